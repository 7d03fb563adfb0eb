// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/RestlessHost.h"

#include <QTreeView>

#include <utility>

namespace {

void add(RecordingService &service)
{
    const QRPC::NodeList added = service.insert(2, 1, "n20(o21(p22) q23) r24");
    Q_EMIT service.nodesAdded(added);
}

void create(RecordingService &service)
{
    add(service);
    Q_EMIT service.nodesCreated({20, 24});
}

/// Step by step, as a host groups.
void group(RecordingService &service)
{
    service.insert(1, 0, "n20()");
    Q_EMIT service.nodesAdded({20});
    if (service.has(20))
        service.moveNodes({3, 10}, 20, -1);
    Q_EMIT service.nodesCreated({20});
}

void addInFront(RecordingService &service)
{
    const QRPC::NodeList added = service.insert(1, 0, "t30(u31) v32");
    Q_EMIT service.nodesAdded(added);
    if (!service.has(2))
        return;
    service.insert(2, 0, "w33");
    Q_EMIT service.nodesAdded({33});
}

void exchange(RecordingService &service)
{
    service.build("k13(c6 g2(d8-)) s7(a3)");
    Q_EMIT service.modelReset();
}

} // namespace

QString HostDeed::scene()
{
    return QStringLiteral("g2(a3 h4(b5 c6-)) s7(d8 e9-) f10 i11-(j12 k13(l14))");
}

const QVector<HostDeed> &HostDeed::announced()
{
    static const QVector<HostDeed> all{
        {"reset", [](RecordingService &s) { Q_EMIT s.modelReset(); }},
        {"add", add},
        {"remove",
         [](RecordingService &s) {
             s.deleteNodes({4, 10, 7});
         }},
        {"move",
         [](RecordingService &s) {
             s.moveNodes({4, 10, 12}, 1, 1);
         }},
        {"group", group},
        {"switch on",
         [](RecordingService &s) {
             s.setEnabled({11, 9}, true);
         }},
        {"rename",
         [](RecordingService &s) {
             s.setName({3, 4, 10}, "x");
         }},
        {"create", create},
    };
    return all;
}

const QVector<HostDeed> &HostDeed::meanwhile()
{
    static const QVector<HostDeed> all{
        {"a reset", [](RecordingService &s) { Q_EMIT s.modelReset(); }},
        {"one removed", [](RecordingService &s) { s.deleteNodes({4}); }},
        {"all removed", [](RecordingService &s) { s.deleteNodes(s.allIds()); }},
        {"some added in front", addInFront},
        {"moved into a group",
         [](RecordingService &s) {
             s.moveNodes({3, 7, 10}, 11, 0);
         }},
        {"moved to the top",
         [](RecordingService &s) {
             s.moveNodes({12, 5}, 1, 0);
         }},
        {"switched off",
         [](RecordingService &s) {
             s.setEnabled({2, 8}, false);
         }},
        {"another tree", exchange},
    };
    return all;
}

RestlessHost::RestlessHost(RecordingService *service, QTreeView *tree) : m_service(service)
{
    const QAbstractItemModel *model = tree->model();
    const auto moment = [this] { pass(); };
    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, moment);
    connect(model, &QAbstractItemModel::rowsInserted, this, moment);
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, moment);
    connect(model, &QAbstractItemModel::rowsRemoved, this, moment);
    connect(model, &QAbstractItemModel::dataChanged, this, moment);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, moment);
    connect(model, &QAbstractItemModel::modelReset, this, moment);
    connect(tree->selectionModel(), &QItemSelectionModel::selectionChanged, this, moment);
    connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, this, moment);
    service->setCallHook([this](const QString &) { pass(); });
}

RestlessHost::~RestlessHost()
{
    m_service->setCallHook({});
}

bool RestlessHost::run(const std::function<void()> &work, const std::function<void()> &deed,
                       int moment)
{
    m_left = moment;
    m_deed = deed;
    work();
    return !std::exchange(m_deed, nullptr);
}

void RestlessHost::pass()
{
    // Taken out first: what it does is made of such moments too.
    if (m_deed && --m_left == 0)
        std::exchange(m_deed, nullptr)();
}

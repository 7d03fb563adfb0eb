// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/model/ModelTest.h"
#include "tests/support/Seeds.h"

#include <QMimeData>

#include <random>

namespace {

/// One step of a script; the numbers pick nodes of the tree as it stands when the step is made, so
/// that a script stays readable for the model when steps are left out.
struct Step
{
    int kind;
    quint32 a;
    quint32 b;
    quint32 c;
};

using Script = QVector<Step>;

} // namespace

/// Random sequences of changes, with the tree compared after each. The seed is printed, and a
/// failing script is shortened to the steps that it needs.
class tst_kxOverlayQtModel_script : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheServicesTreeAfterEachStep_data();
    void shouldShowTheServicesTreeAfterEachStep();

private:
    QString run(const Script &script, QStringList *told = nullptr);
    Script shortened(Script script);
    QString apply(const Step &step);

    QString create(const Step &step);
    QString remove(const Step &step);
    QString bringBack(const Step &step);
    QString move(const Step &step);
    QString rename(const Step &step);
    QString enable(const Step &step);
    QString edit(const Step &step);
    QString duplicate(const Step &step);
    QString group(const Step &step);
    QString drop(const Step &step);
    QString reset(const Step &step);

    QRPC::NodeId anyNode(quint32 pick);
    QRPC::NodeId anyContainer(quint32 pick);
    QRPC::NodeList anyNodes(quint32 pick, quint32 count);

    QStringList m_removed;
};

QRPC::NodeId tst_kxOverlayQtModel_script::anyNode(quint32 pick)
{
    const QRPC::NodeList all = service().allIds();
    return all.isEmpty() ? 0 : all.at(int(pick % quint32(all.size())));
}

QRPC::NodeId tst_kxOverlayQtModel_script::anyContainer(quint32 pick)
{
    QRPC::NodeList containers{1};
    const QRPC::NodeList all = service().allIds();
    for (const QRPC::NodeId id : all) {
        if (service().node(id).kind != notation::Kind::Overlay)
            containers.append(id);
    }
    return containers.at(int(pick % quint32(containers.size())));
}

QRPC::NodeList tst_kxOverlayQtModel_script::anyNodes(quint32 pick, quint32 count)
{
    QRPC::NodeList nodes;
    for (quint32 i = 0; i <= count % 5; ++i)
        nodes.append(anyNode(pick * (2 * i + 1) + i * 7));
    return nodes;
}

QString tst_kxOverlayQtModel_script::create(const Step &step)
{
    const QRPC::NodeId parent = anyContainer(step.a);
    const QStringList lines{"a", "g()", "s*()", "g(a b- h(c) s*(d e-))", "a b c", "g(a) b"};
    const QString &line = lines.at(int(step.b % quint32(lines.size())));
    const int row = int(step.c % quint32(service().node(parent).children.size() + 1));
    QRPC::NodeList tops = service().insert(parent, row, line);
    const QRPC::NodeList all = service().allIds();
    for (const QRPC::NodeId id : all) {
        RecordingService::Node &node = service().node(id);
        if (notation::idOf(node.name) == 0)
            node.name += QString::number(id);
    }
    // what enters a switch enters disabled
    for (const QRPC::NodeId id : qAsConst(tops)) {
        if (service().node(parent).kind == notation::Kind::Switch)
            service().node(id).enabled = false;
    }
    Q_EMIT service().nodesAdded(tops);
    if (step.b & 8)
        model().nodesAddedUpdate(tops);
    return QStringLiteral("insert %1 into %2 at %3").arg(line).arg(parent).arg(row);
}

QString tst_kxOverlayQtModel_script::remove(const Step &step)
{
    QRPC::NodeList nodes = anyNodes(step.a, step.b);
    nodes.removeAll(0);
    QStringList told;
    for (const QRPC::NodeId id : qAsConst(nodes)) {
        if (!service().has(id))
            continue;
        m_removed.append(service().lineOf(id));
        service().erase({id});
        told.append(m_removed.last());
    }
    Q_EMIT service().nodesRemoved(nodes);
    return "remove " + told.join(", ");
}

QString tst_kxOverlayQtModel_script::bringBack(const Step &step)
{
    if (m_removed.isEmpty())
        return "nothing to bring back";
    const QString line = m_removed.takeLast();
    const QRPC::NodeId parent = anyContainer(step.a);
    const QRPC::NodeList tops = service().insert(parent, 0, line);
    if (service().node(parent).kind == notation::Kind::Switch)
        service().node(tops.first()).enabled = false;
    Q_EMIT service().nodesAdded(tops);
    return QStringLiteral("bring back %1 into %2").arg(line).arg(parent);
}

QString tst_kxOverlayQtModel_script::move(const Step &step)
{
    const QRPC::NodeId parent = anyContainer(step.a);
    log().clear();
    service().moveNodes(anyNodes(step.b, step.c), parent, int(step.c % 7) - 1);
    return log().lines().first();
}

QString tst_kxOverlayQtModel_script::rename(const Step &step)
{
    const QRPC::NodeId id = anyNode(step.a);
    if (id == 0)
        return "nothing to rename";
    const QString name = QChar('a' + int(step.b % 26)) + QString::number(id);
    service().setName({id}, name);
    return "rename to " + name;
}

QString tst_kxOverlayQtModel_script::enable(const Step &step)
{
    log().clear();
    service().setEnabled(anyNodes(step.a, step.b), (step.c & 1) != 0);
    return log().lines().first();
}

QString tst_kxOverlayQtModel_script::edit(const Step &step)
{
    const QRPC::NodeId id = anyNode(step.a);
    if (id == 0)
        return "nothing to edit";
    log().clear();
    if (step.b & 1)
        model().setData(index(id), "e" + QString::number(id), Qt::EditRole);
    else
        model().setData(index(id), step.b & 2 ? 2 : 0, Qt::CheckStateRole);
    return "edit: " + log().linesOf({"setName", "setEnabled"}).join(", ");
}

QString tst_kxOverlayQtModel_script::duplicate(const Step &step)
{
    log().clear();
    service().duplicateNodes(anyNodes(step.a, step.b % 2));
    return log().lines().first();
}

QString tst_kxOverlayQtModel_script::group(const Step &step)
{
    log().clear();
    service().groupNodes(anyNodes(step.a, step.b));
    return log().lines().first();
}

/// What the view does: the selected rows are dragged, copies of them are dropped, and the selected
/// rows are removed. Now and then the service changes something while the drag is on its way.
QString tst_kxOverlayQtModel_script::drop(const Step &step)
{
    QModelIndexList dragged;
    QVector<QPersistentModelIndex> sources;
    const QRPC::NodeList nodes = anyNodes(step.a, step.b);
    for (const QRPC::NodeId id : nodes) {
        if (id != 0 && !dragged.contains(index(id)))
            dragged.append(index(id));
    }
    std::copy(dragged.cbegin(), dragged.cend(), std::back_inserter(sources));
    const QRPC::NodeId target = anyContainer(step.c);
    for (QModelIndex at = index(target); at.isValid(); at = at.parent()) {
        if (dragged.contains(at))
            return "a view drops nothing into itself";
    }
    const kxDropTrace trace(&model());
    const std::unique_ptr<QMimeData> data(model().mimeData(dragged));
    if (step.c % 5 == 0)
        service().setEnabled({anyNode(step.b)}, step.c % 2 == 0);
    log().clear();
    const QModelIndex parent = index(target);
    const int row = int(step.b % quint32(model().rowCount(parent) + 2)) - 1;
    model().dropMimeData(data.get(), Qt::MoveAction, row, row < 0 ? -1 : 0, parent);
    for (const QPersistentModelIndex &source : qAsConst(sources)) {
        if (source.isValid())
            model().removeRow(source.row(), source.parent());
    }
    model().settle(trace);
    return "drop: " + log().linesOf({"moveNodes"}).join(", ");
}

QString tst_kxOverlayQtModel_script::reset(const Step &step)
{
    // rare: a reset repairs what went wrong before
    if (step.a % 4 == 0)
        Q_EMIT service().modelReset();
    return "reset";
}

QString tst_kxOverlayQtModel_script::apply(const Step &step)
{
    using Action = QString (tst_kxOverlayQtModel_script::*)(const Step &);
    static constexpr Action actions[] = {
        &tst_kxOverlayQtModel_script::create,    &tst_kxOverlayQtModel_script::remove,
        &tst_kxOverlayQtModel_script::bringBack, &tst_kxOverlayQtModel_script::move,
        &tst_kxOverlayQtModel_script::move,      &tst_kxOverlayQtModel_script::rename,
        &tst_kxOverlayQtModel_script::enable,    &tst_kxOverlayQtModel_script::enable,
        &tst_kxOverlayQtModel_script::edit,      &tst_kxOverlayQtModel_script::duplicate,
        &tst_kxOverlayQtModel_script::group,     &tst_kxOverlayQtModel_script::reset,
        &tst_kxOverlayQtModel_script::drop,      &tst_kxOverlayQtModel_script::drop,
    };
    return (this->*actions[std::size_t(step.kind) % std::size(actions)])(step);
}

/// The first difference; empty when there is none. `told` receives what was done in words.
QString tst_kxOverlayQtModel_script::run(const Script &script, QStringList *told)
{
    m_removed.clear();
    fill("g2(a3 b4 h5(c6 d7)) s8*(x9 y10- k11-(z12)) e13-() f14");
    for (const Step &step : script) {
        const QString done = apply(step);
        if (told)
            told->append(done);
        const QString difference = treeDifference(model(), service());
        if (!difference.isEmpty())
            return difference;
    }
    return QString();
}

Script tst_kxOverlayQtModel_script::shortened(Script script)
{
    bool shorter = true;
    while (shorter) {
        shorter = false;
        for (int i = script.size() - 1; i >= 0; --i) {
            Script candidate = script;
            candidate.remove(i);
            if (run(candidate).isEmpty())
                continue;
            script = candidate;
            shorter = true;
        }
    }
    return script;
}

void tst_kxOverlayQtModel_script::shouldShowTheServicesTreeAfterEachStep_data()
{
    seeds::addRows(30, 1000);
}

void tst_kxOverlayQtModel_script::shouldShowTheServicesTreeAfterEachStep()
{
    QFETCH(quint32, seed);
    std::mt19937 random(seed);
    Script script;
    for (int i = 0; i < 60; ++i)
        script.append(
            Step{int(random() % 1000), quint32(random()), quint32(random()), quint32(random())});
    if (run(script).isEmpty())
        return;
    QStringList told;
    const QString difference = run(shortened(script), &told);
    QFAIL(
        qPrintable(QStringLiteral("seed %1:\n%2\n%3").arg(seed).arg(told.join('\n'), difference)));
}

KX_TEST_MAIN(tst_kxOverlayQtModel_script)
#include "tst_kxOverlayQtModel_script.moc"

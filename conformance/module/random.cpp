// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/MouseDrag.h"
#include "conformance/module/moduleChecks.h"
#include "conformance/module/viewDrop.h"
#include "kit/ForeignDrop.h"
#include "kit/RandomScene.h"

#include <QLineEdit>
#include <QMimeData>

#include <algorithm>

namespace conformance {

namespace {

/// A random sequence of what a user does in the window and of what the service does beside it. After
/// each step the tree shows the service, and the selection holds nodes that are there.
class Script
{
public:
    Script(ModuleBench *bench, quint32 seed)
        : m_bench(*bench)
        , m_scene(
              &bench->service(), [bench] { return bench->service().allIds(); }, seed)
    {
    }

    /// Throws a failure that tells the steps which led to it.
    void run(int count);

private:
    QString step();
    QString select();
    QString command();
    QString edit();
    QString changeOutside() { return m_scene.changeService(); }
    QString addOutside();
    QString filter();
    QString drag();
    QString dropForeign();
    void expectTruth();

    ModuleBench &m_bench;
    RandomScene m_scene;
};

QString Script::select()
{
    const QRPC::NodeList nodes = m_scene.anyNodes();
    m_bench.select(nodes);
    return QStringLiteral("select %1").arg(nodes.size());
}

QString Script::command()
{
    if (m_scene.isLarge()) {
        m_bench.call("selectAll");
        m_bench.call("deleteOverlays");
        return "delete all";
    }
    const char *name = m_scene.anyCommand();
    m_bench.call(name);
    return name;
}

QString Script::edit()
{
    const QRPC::NodeId id = m_scene.anyNode();
    if (m_scene.below(2) == 0) {
        const QString name = QStringLiteral("e%1").arg(m_scene.below(100));
        m_bench.model().setData(m_bench.index(id), name, Qt::EditRole);
        return QStringLiteral("rename %1").arg(id);
    }
    const int state = m_scene.below(2) == 0 ? int(Qt::Checked) : int(Qt::Unchecked);
    m_bench.model().setData(m_bench.index(id), state, Qt::CheckStateRole);
    return QStringLiteral("check %1").arg(id);
}

/// Several new subtrees, announced in the order of their rows.
QString Script::addOutside()
{
    const QRPC::NodeId parent = m_scene.anyContainer();
    RecordingService &service = m_bench.service();
    QRPC::NodeList added;
    for (int i = m_scene.below(4); i >= 0; --i) {
        const int row = m_scene.below(service.node(parent).children.size() + 1);
        added += service.insert(parent, row, "n(o- p)");
    }
    std::sort(added.begin(), added.end(), [&service, parent](auto left, auto right) {
        return service.getChildIndex(parent, left) < service.getChildIndex(parent, right);
    });
    Q_EMIT service.nodesAdded(added);
    return QStringLiteral("add %1 to %2").arg(added.size()).arg(parent);
}

QString Script::filter()
{
    const QString pattern = m_scene.anyPattern();
    static_cast<QLineEdit &>(m_bench.searchBox()).setText(pattern);
    return "filter " + pattern;
}

QString Script::drag()
{
    QTreeView &tree = m_bench.tree();
    const QModelIndexList rows = tree.selectionModel()->selectedIndexes();
    const QModelIndex dragged = rows.value(0);
    const QRect place = tree.visualRect(dragged);
    if (!tree.viewport()->rect().contains(QPoint(place.left() + 30, place.center().y())))
        return "nothing to drag";
    const QRPC::NodeId target = m_scene.anyNode();
    const auto edge = DropCase::Edge(m_scene.below(3));
    MouseDrag drag(tree.viewport(), [this, &tree, target, edge] {
        return DropCase::placeOf(tree, m_bench.index(target), edge);
    });
    QString change;
    if (m_scene.below(3) == 0)
        drag.setBeforeDrop([this, &change] { change = changeOutside(); });
    drag.runFrom(QPoint(place.left() + 30, place.center().y()));
    return QStringLiteral("drag to %1 (%2) %3").arg(target).arg(edge).arg(change);
}

QString Script::dropForeign()
{
    const QRPC::NodeList nodes = m_scene.anyNodes();
    QMimeData data;
    data.setData(DropData::treeFormat(), DropData::records(nodes));
    const QRect room = m_bench.tree().viewport()->rect();
    dropOnView(m_bench.tree(), QPoint(room.center().x(), m_scene.below(room.height())), data,
               Qt::MoveAction);
    return QStringLiteral("drop %1 from elsewhere").arg(nodes.size());
}

QString Script::step()
{
    static constexpr QString (Script::*actions[])() = {
        &Script::select,     &Script::select,        &Script::command,       &Script::command,
        &Script::edit,       &Script::changeOutside, &Script::changeOutside, &Script::addOutside,
        &Script::filter,     &Script::drag,          &Script::drag,          &Script::drag,
        &Script::dropForeign};
    return (this->*actions[m_scene.below(int(std::size(actions)))])();
}

void Script::expectTruth()
{
    m_bench.expectSettled();
    const QRPC::NodeList nodes = m_bench.selected();
    for (const QRPC::NodeId node : nodes)
        expect("what is selected is there", m_bench.service().has(node));
    const auto &field = m_bench.form<QLineEdit>("_overlay_name");
    if (nodes.size() == 1)
        expectEqual("the name field", field.text(), m_bench.node(nodes.constFirst()).name);
    expectEqual("the name field is enabled", field.isEnabled(), !nodes.isEmpty());
}

void Script::run(int count)
{
    m_bench.openShown("g2(a3 b4 h5(c6 d7)) s8*(x9 y10- k11-(z12)) e13-() f14");
    QStringList told;
    try {
        for (int i = 0; i < count; ++i) {
            told.append(step());
            expectTruth();
        }
    } catch (Failure &failure) {
        failure.what += QStringLiteral(" after: ") + told.join("; ");
        throw;
    }
}

} // namespace

ModuleChecks randomChecks()
{
    ModuleChecks checks;
    for (quint32 seed = 1; seed <= 20; ++seed) {
        checks.push_back({QStringLiteral("random.%1").arg(seed),
                          "After each of many steps the tree shows the service.",
                          [seed](ModuleBench &bench) { Script(&bench, seed).run(60); },
                          Stage::Running});
    }
    return checks;
}

} // namespace conformance

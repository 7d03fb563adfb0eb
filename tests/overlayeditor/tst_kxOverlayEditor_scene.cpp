// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/EditorTest.h"
#include "tests/support/Seeds.h"
#include "tests/viewer/scene/SceneText.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QMimeData>

#include <memory>
#include <random>

/// The editor above the viewer's own service, whose rules of moving, grouping and switching are not
/// those that a test made up. Random commands, edits, changes from outside, undoing, filters and drops;
/// after each the tree shows the scene. The long run makes more than 10,000 steps.
class tst_kxOverlayEditor_scene : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheSceneAfterEachStep_data();
    void shouldShowTheSceneAfterEachStep();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

private:
    quint32 random(int below) { return m_random() % quint32(below); }
    QRPC::NodeList allNodes();
    QRPC::NodeId anyNode();
    QRPC::NodeId anyContainer();
    QRPC::NodeList anyNodes();

    QString step();
    QString selectSome();
    QString command();
    QString edit();
    QString changeOutside();
    QString undo();
    QString filter();
    QString drop();

    QString fault();
    QString rowOf(QRPC::NodeId id);
    static QString rowOf(const QModelIndex &index);

    std::unique_ptr<viewer::OverlayService> m_scene;
    std::mt19937 m_random;
};

void tst_kxOverlayEditor_scene::init()
{
    EditorTest::init();
    m_scene = std::make_unique<viewer::OverlayService>();
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(m_scene.get());
}

void tst_kxOverlayEditor_scene::cleanup()
{
    EditorTest::cleanup();
    m_scene.reset();
}

/// All but the root, parents before children.
QRPC::NodeList tst_kxOverlayEditor_scene::allNodes()
{
    QRPC::NodeList nodes{viewer::Scene::RootId};
    for (int i = 0; i < nodes.size(); ++i) {
        for (const QRPC::NodeId child : m_scene->scene().find(nodes.at(i))->children)
            nodes.append(child);
    }
    nodes.removeFirst();
    return nodes;
}

QRPC::NodeId tst_kxOverlayEditor_scene::anyNode()
{
    const QRPC::NodeList all = allNodes();
    return all.isEmpty() ? 0 : all.at(int(random(all.size())));
}

QRPC::NodeId tst_kxOverlayEditor_scene::anyContainer()
{
    const QRPC::NodeId node = anyNode();
    return node == 0 || m_scene->isOverlay(node) ? m_scene->getRootNode() : node;
}

QRPC::NodeList tst_kxOverlayEditor_scene::anyNodes()
{
    QRPC::NodeList nodes;
    for (quint32 i = random(5); i > 0; --i)
        nodes.append(anyNode());
    return nodes;
}

QString tst_kxOverlayEditor_scene::selectSome()
{
    const QRPC::NodeList nodes = anyNodes();
    select(nodes);
    return QStringLiteral("select %1 rows").arg(nodes.size());
}

QString tst_kxOverlayEditor_scene::command()
{
    static constexpr const char *commands[] = {
        "createOverlay", "createOverlayGroup", "createSwitch",     "deleteOverlays",
        "toggle",        "switchOn",           "switchOff",        "createGroupFromSelection",
        "selectAll",     "invertSelection",    "duplicateOverlays"};
    // A tree that doubles at each second step would soon be too large to be compared.
    const bool isLarge = allNodes().size() > 60;
    if (isLarge)
        call("selectAll");
    const char *slot = isLarge ? "deleteOverlays" : commands[random(int(std::size(commands)))];
    call(slot);
    return slot;
}

QString tst_kxOverlayEditor_scene::edit()
{
    const QModelIndex row = index(anyNode());
    const QString name = QStringLiteral("e%1").arg(random(100));
    if (random(2) == 0) {
        model().setData(row, name, Qt::EditRole);
        return QStringLiteral("rename to ") + name;
    }
    const Qt::CheckState state = random(2) == 0 ? Qt::Checked : Qt::Unchecked;
    model().setData(row, int(state), Qt::CheckStateRole);
    return QStringLiteral("check %1").arg(state);
}

QString tst_kxOverlayEditor_scene::changeOutside()
{
    const QRPC::NodeList nodes = anyNodes();
    switch (random(5)) {
    case 0:
        m_scene->moveNodes(nodes, anyContainer(), int(random(6)) - 1);
        return "outside: move";
    case 1:
        m_scene->deleteNodes(nodes);
        return "outside: delete";
    case 2:
        m_scene->setName(nodes, QStringLiteral("o%1").arg(random(100)));
        return "outside: rename";
    case 3:
        m_scene->setEnabled(nodes, random(2) == 0);
        return "outside: enable";
    default:
        m_scene->groupNodes(nodes);
        return "outside: group";
    }
}

/// Brings removed nodes back under their old ids, among the rest.
QString tst_kxOverlayEditor_scene::undo()
{
    const quint32 count = random(4);
    for (quint32 i = 0; i < count; ++i)
        m_scene->undo();
    const quint32 redone = random(2);
    if (redone > 0)
        m_scene->redo();
    return QStringLiteral("undo %1 steps, redo %2").arg(count).arg(redone);
}

QString tst_kxOverlayEditor_scene::filter()
{
    const QStringList texts{"", "", "e", "Group", "[a-f]", "nothing of that name"};
    const QString &text = texts.at(int(random(texts.size())));
    static_cast<QLineEdit &>(searchBox()).setText(text);
    return "filter " + text;
}

/// What the toolkit's view does with a drag of its own, which needs a mouse: the selected rows are
/// dragged, and what is selected after the drop is removed.
QString tst_kxOverlayEditor_scene::drop()
{
    const QModelIndexList dragged = tree().selectionModel()->selectedIndexes();
    const QRPC::NodeId target = anyContainer();
    for (QModelIndex at = index(target); at.isValid(); at = at.parent()) {
        if (dragged.contains(at))
            return "a view drops nothing into itself";
    }
    if (dragged.isEmpty())
        return "nothing to drag";
    const kxDropTrace trace(&model());
    const std::unique_ptr<QMimeData> data(model().mimeData(dragged));
    const QString change = random(3) == 0 ? changeOutside() : QString();
    const QModelIndex parent = index(target);
    if (target != m_scene->getRootNode() && !parent.isValid())
        return change + ", and the target is gone";
    const QModelIndexList left = tree().selectionModel()->selectedIndexes();
    const QVector<QPersistentModelIndex> sources(left.begin(), left.end());
    const int row = int(random(model().rowCount(parent) + 2)) - 1;
    model().dropMimeData(data.get(), Qt::MoveAction, row, row < 0 ? -1 : 0, parent);
    for (const QPersistentModelIndex &source : sources) {
        if (source.isValid())
            model().removeRow(source.row(), source.parent());
    }
    model().settle(trace);
    return QStringLiteral("%1 drop of %2 on %3 at %4")
        .arg(change)
        .arg(dragged.size())
        .arg(target)
        .arg(row);
}

QString tst_kxOverlayEditor_scene::step()
{
    using Self = tst_kxOverlayEditor_scene;
    static constexpr QString (Self::*actions[])() = {
        &Self::selectSome, &Self::selectSome, &Self::command,       &Self::command,
        &Self::command,    &Self::edit,       &Self::changeOutside, &Self::undo,
        &Self::filter,     &Self::drop,       &Self::drop};
    return (this->*actions[random(int(std::size(actions)))])();
}

QString tst_kxOverlayEditor_scene::rowOf(QRPC::NodeId id)
{
    return QStringLiteral("%1 '%2' %3 %4 children")
        .arg(id)
        .arg(m_scene->getName(id))
        .arg((m_scene->isEnabled(id) ? 2 : 0) + (m_scene->isActive(id) ? 1 : 0))
        .arg(m_scene->getChildCount(id));
}

QString tst_kxOverlayEditor_scene::rowOf(const QModelIndex &index)
{
    const bool checked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    const bool active = index.data(Qt::UserRole + 2).toBool();
    return QStringLiteral("%1 '%2' %3 %4 children")
        .arg(index.data(Qt::UserRole + 1).toUInt())
        .arg(index.data().toString())
        .arg((checked ? 2 : 0) + (active ? 1 : 0))
        .arg(index.model()->rowCount(index));
}

/// The first row that does not show its node; empty for none.
QString tst_kxOverlayEditor_scene::fault()
{
    QVector<QPair<QRPC::NodeId, QModelIndex>> open{{m_scene->getRootNode(), QModelIndex()}};
    while (!open.isEmpty()) {
        const auto [node, parent] = open.takeLast();
        const int count = m_scene->getChildCount(node);
        if (model().rowCount(parent) != count)
            return QStringLiteral("%1 rows in %2, which has %3 children")
                .arg(model().rowCount(parent))
                .arg(node)
                .arg(count);
        for (int i = 0; i < count; ++i) {
            const QRPC::NodeId child = m_scene->getChild(node, i);
            const QModelIndex row = model().index(i, 0, parent);
            if (rowOf(row) != rowOf(child))
                return rowOf(row) + " instead of " + rowOf(child);
            open.append({child, row});
        }
    }
    return QString();
}

void tst_kxOverlayEditor_scene::shouldShowTheSceneAfterEachStep_data()
{
    seeds::addRows(8, 150);
}

void tst_kxOverlayEditor_scene::shouldShowTheSceneAfterEachStep()
{
    QFETCH(quint32, seed);
    m_random.seed(seed);
    openEditor();
    showWindow();
    m_scene->setScene(scenetext::build("g(a b h(c d)) s{x y- k-(z)} e-() f"));
    const QAbstractItemModelTester tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    QStringList told;
    for (int i = 0; i < 70; ++i) {
        told.append(step());
        QCoreApplication::processEvents();
        const QString found = fault();
        const QString story = QStringLiteral("seed %1:\n%2\n").arg(seed).arg(told.join('\n'));
        QVERIFY2(found.isEmpty(), qPrintable(story + found));
    }
}

KX_TEST_MAIN(tst_kxOverlayEditor_scene)
#include "tst_kxOverlayEditor_scene.moc"

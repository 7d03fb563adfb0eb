// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "tests/overlayeditor/RandomEditorTest.h"
#include "tests/support/Seeds.h"
#include "tests/viewer/scene/SceneText.h"

#include <memory>

/// The editor above the viewer's own service, whose rules of moving, grouping and switching are not
/// those that a test made up. Random commands, edits, changes from outside, undoing, filters and drops;
/// after each the tree shows the scene. The long run makes more than 10,000 steps.
class tst_kxOverlayEditor_scene : public RandomEditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheSceneAfterEachStep_data();
    void shouldShowTheSceneAfterEachStep();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

private:
    kxOverlayService &mirrored() override { return *m_scene; }
    QRPC::NodeList allNodes() override;
    QString step() override;
    QString fault() override;
    QString undo();
    QString rowOf(QRPC::NodeId id);
    static QString rowOf(const QModelIndex &index);

    std::unique_ptr<viewer::OverlayService> m_scene;
};

void tst_kxOverlayEditor_scene::init()
{
    RandomEditorTest::init();
    m_scene = std::make_unique<viewer::OverlayService>();
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(m_scene.get());
}

void tst_kxOverlayEditor_scene::cleanup()
{
    RandomEditorTest::cleanup();
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

QString tst_kxOverlayEditor_scene::step()
{
    using Self = tst_kxOverlayEditor_scene;
    static constexpr QString (Self::*actions[])() = {
        &Self::selectSome, &Self::selectSome, &Self::command,       &Self::command,
        &Self::command,    &Self::edit,       &Self::changeOutside, &Self::undo,
        &Self::filter,     &Self::dropOwn,    &Self::dropOwn};
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
    openEditor();
    showWindow();
    m_scene->setScene(scenetext::build("g(a b h(c d)) s{x y- k-(z)} e-() f"));
    run(seed);
}

KX_TEST_MAIN(tst_kxOverlayEditor_scene)
#include "tst_kxOverlayEditor_scene.moc"

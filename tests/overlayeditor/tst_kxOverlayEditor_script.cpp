// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/RandomEditorTest.h"
#include "tests/support/Seeds.h"

#include <QMimeData>

#include <memory>

/// Random sequences of what a user does in the editor's window and of what the service does beside
/// it: selections, commands, edits, filters, drops. After each step the tree shows the service, and
/// the selection holds nodes that are there. The seed is printed with the steps that led to a
/// failure. The long run makes more than 10,000 steps.
class tst_kxOverlayEditor_script : public RandomEditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheServiceAfterEachStep_data();
    void shouldShowTheServiceAfterEachStep();

private:
    kxOverlayService &mirrored() override { return service(); }
    QRPC::NodeList allNodes() override { return service().allIds(); }
    QString step() override;
    QString fault() override;
    QString dropForeign();
};

/// Nodes dropped on the view from elsewhere, anywhere in it.
QString tst_kxOverlayEditor_script::dropForeign()
{
    QModelIndexList indexes;
    const QRPC::NodeList nodes = anyNodes();
    for (const QRPC::NodeId id : nodes)
        indexes.append(index(id));
    const std::unique_ptr<QMimeData> data(model().mimeData(indexes));
    if (!data)
        return "nothing to drop";
    const QRect room = tree().viewport()->rect();
    const QPoint place(room.center().x(), int(random(room.height())));
    log().clear();
    QDropEvent drop(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(tree().viewport(), &drop);
    return "from elsewhere: " + log().linesOf({"moveNodes"}).join(", ");
}

QString tst_kxOverlayEditor_script::step()
{
    using Action = QString (tst_kxOverlayEditor_script::*)();
    using Self = tst_kxOverlayEditor_script;
    static constexpr Action actions[] = {&Self::selectSome,    &Self::selectSome, &Self::command,
                                         &Self::command,       &Self::command,    &Self::edit,
                                         &Self::changeOutside, &Self::filter,     &Self::dropOwn,
                                         &Self::dropOwn,       &Self::dropForeign};
    return (this->*actions[random(int(std::size(actions)))])();
}

/// What is wrong after a step; empty for nothing.
QString tst_kxOverlayEditor_script::fault()
{
    const QString difference = treeDifference(model(), service());
    if (!difference.isEmpty())
        return difference;
    const QRPC::NodeList nodes = selected();
    for (const QRPC::NodeId id : nodes) {
        if (!service().has(id))
            return QStringLiteral("%1 is selected and not there").arg(id);
    }
    const bool isOne = nodes.size() == 1;
    if (isOne && window()._overlay_name->text() != service().node(nodes.first()).name)
        return QStringLiteral("the name field shows ") + window()._overlay_name->text();
    return QString();
}

void tst_kxOverlayEditor_script::shouldShowTheServiceAfterEachStep_data()
{
    seeds::addRows(8, 150);
    // The dragged rows are grouped during the drag, and rows are taken from elsewhere after it.
    QTest::newRow("grouped during the drag") << 2933633026U;
}

void tst_kxOverlayEditor_script::shouldShowTheServiceAfterEachStep()
{
    QFETCH(quint32, seed);
    openEditor("g2(a3 b4 h5(c6 d7)) s8*(x9 y10- k11-(z12)) e13-() f14");
    showWindow();
    run(seed);
}

KX_TEST_MAIN(tst_kxOverlayEditor_script)
#include "tst_kxOverlayEditor_script.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/EditorTest.h"
#include "tests/support/Seeds.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QMimeData>

#include <memory>
#include <random>

/// Random sequences of what a user does in the editor's window and of what the service does beside
/// it: selections, commands, edits, filters, drops. After each step the tree shows the service, and
/// the selection holds nodes that are there. The seed is printed with the steps that led to a
/// failure. The long run makes more than 10,000 steps.
class tst_kxOverlayEditor_script : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheServiceAfterEachStep_data();
    void shouldShowTheServiceAfterEachStep();

private:
    quint32 random(int below) { return m_random() % quint32(below); }
    QRPC::NodeId anyNode();
    QRPC::NodeId anyContainer();
    QRPC::NodeList anyNodes();

    QString step();
    QString selectSome();
    QString command();
    QString edit();
    QString changeOutside();
    QString filter();
    QString dropOwn();
    QString dropForeign();
    QString fault();

    std::mt19937 m_random;
};

QRPC::NodeId tst_kxOverlayEditor_script::anyNode()
{
    const QRPC::NodeList all = service().allIds();
    return all.isEmpty() ? 0 : all.at(int(random(all.size())));
}

QRPC::NodeId tst_kxOverlayEditor_script::anyContainer()
{
    QRPC::NodeList containers{RecordingService::rootId};
    const QRPC::NodeList all = service().allIds();
    for (const QRPC::NodeId id : all) {
        if (service().node(id).kind != notation::Kind::Overlay)
            containers.append(id);
    }
    return containers.at(int(random(containers.size())));
}

QRPC::NodeList tst_kxOverlayEditor_script::anyNodes()
{
    QRPC::NodeList nodes;
    for (quint32 i = random(5); i > 0; --i)
        nodes.append(anyNode());
    nodes.removeAll(0);
    return nodes;
}

QString tst_kxOverlayEditor_script::selectSome()
{
    const QRPC::NodeList nodes = anyNodes();
    select(nodes);
    return "select " + QString::number(nodes.size());
}

QString tst_kxOverlayEditor_script::command()
{
    static constexpr const char *slots_[] = {"createOverlay",
                                             "createOverlayGroup",
                                             "createSwitch",
                                             "deleteOverlays",
                                             "toggle",
                                             "switchOn",
                                             "switchOff",
                                             "selectAll",
                                             "deselectAll",
                                             "invertSelection",
                                             "createGroupFromSelection",
                                             "duplicateOverlays"};
    // A tree that doubles at each second step would soon be too large to be compared.
    const bool isLarge = service().allIds().size() > 60;
    const char *slot = isLarge ? "deleteOverlays" : slots_[random(int(std::size(slots_)))];
    if (isLarge)
        call("selectAll");
    call(slot);
    return slot;
}

QString tst_kxOverlayEditor_script::edit()
{
    const QRPC::NodeId id = anyNode();
    const QString name = QStringLiteral("e%1").arg(random(100));
    switch (random(3)) {
    case 0:
        model().setData(index(id), name, Qt::EditRole);
        return "rename " + QString::number(id);
    case 1:
        model().setData(index(id), random(2) ? int(Qt::Checked) : int(Qt::Unchecked),
                        Qt::CheckStateRole);
        return "check " + QString::number(id);
    default:
        window()._overlay_name->setText(name);
        window()._overlay_name->setModified(true);
        call("nameChanged");
        return "name field " + name;
    }
}

QString tst_kxOverlayEditor_script::changeOutside()
{
    log().clear();
    switch (random(6)) {
    case 0:
        service().moveNodes(anyNodes(), anyContainer(), int(random(6)) - 1);
        break;
    case 1:
        service().deleteNodes(anyNodes());
        break;
    case 2:
        service().setName(anyNodes(), QStringLiteral("o%1").arg(random(100)));
        break;
    case 3:
        service().setEnabled(anyNodes(), random(2) == 0);
        break;
    case 4:
        service().groupNodes(anyNodes());
        break;
    default:
        if (random(4) == 0)
            Q_EMIT service().modelReset();
        break;
    }
    return "outside: " + log().lines().value(0);
}

QString tst_kxOverlayEditor_script::filter()
{
    const QStringList texts{"", "", "e", "o1", "[a-f]", "*", "nothing of that name"};
    const QString &text = texts.at(int(random(texts.size())));
    static_cast<QLineEdit &>(searchBox()).setText(text);
    return "filter " + text;
}

/// What the toolkit's view does with a drag of its own, which needs a mouse: it takes the selected
/// rows that are not hidden, and removes what is selected after the drop.
QString tst_kxOverlayEditor_script::dropOwn()
{
    const QRPC::NodeId target = anyContainer();
    const QModelIndexList dragged = tree().selectionModel()->selectedIndexes();
    for (QModelIndex at = index(target); at.isValid(); at = at.parent()) {
        if (dragged.contains(at))
            return "a view drops nothing into itself";
    }
    if (dragged.isEmpty())
        return "nothing to drag";
    const kxDropTrace trace(&model());
    const std::unique_ptr<QMimeData> data(model().mimeData(dragged));
    const QString change = random(3) == 0 ? changeOutside() : QString();
    if (target != RecordingService::rootId && !index(target).isValid())
        return change + ", and the target is gone";
    const int row = int(random(model().rowCount(index(target)) + 2)) - 1;
    const QModelIndexList selectedNow = tree().selectionModel()->selectedIndexes();
    QVector<QPersistentModelIndex> sources(selectedNow.begin(), selectedNow.end());
    model().dropMimeData(data.get(), Qt::MoveAction, row, row < 0 ? -1 : 0, index(target));
    for (const QPersistentModelIndex &source : qAsConst(sources)) {
        if (source.isValid())
            model().removeRow(source.row(), source.parent());
    }
    model().settle(trace);
    return QStringLiteral("%1 drop on %2 at %3").arg(change).arg(target).arg(row);
}

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
    m_random.seed(seed);
    openEditor("g2(a3 b4 h5(c6 d7)) s8*(x9 y10- k11-(z12)) e13-() f14");
    showWindow();
    const QAbstractItemModelTester tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    QStringList told;
    for (int i = 0; i < 70; ++i) {
        told.append(step());
        QCoreApplication::processEvents();
        const QString found = fault();
        if (!found.isEmpty())
            QFAIL(qPrintable(
                QStringLiteral("seed %1:\n%2\n%3").arg(seed).arg(told.join('\n'), found)));
    }
}

KX_TEST_MAIN(tst_kxOverlayEditor_script)
#include "tst_kxOverlayEditor_script.moc"

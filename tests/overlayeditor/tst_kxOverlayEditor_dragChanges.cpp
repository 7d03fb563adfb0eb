// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/DragTest.h"
#include "tests/support/RealInput.h"

#include <QLineEdit>

/// Drags in the middle of something else: the service changes nodes while the button is down, a
/// filter hides rows, a name is being edited.
class tst_kxOverlayEditor_dragChanges : public DragTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowWhatChangedDuringTheDrag_data();
    void shouldShowWhatChangedDuringTheDrag();
    void shouldKeepTheRowThatWasSelectedDuringTheDrag();
    void shouldShowWhatChangedAfterTheDrop();
    void shouldLeaveHiddenSelectedRowsWhereTheyAre();
    void shouldMoveTheHiddenChildrenOfADraggedGroup();
    void shouldSendTheNameThatIsBeingEditedBeforeTheDrag_data();
    void shouldSendTheNameThatIsBeingEditedBeforeTheDrag();

private:
    struct NamedChange
    {
        const char *name;
        void (tst_kxOverlayEditor_dragChanges::*change)();
    };
    static std::vector<NamedChange> changes();

    void rename() { service().setName({2, 3}, "new"); }
    void switchOff() { service().setEnabled({2}, false); }
    void switchOffTheTarget() { service().setEnabled({5}, false); }
    void remove() { service().deleteNodes({2}); }
    void removeAnother() { service().deleteNodes({7}); }
    void removeAChild() { service().deleteNodes({3}); }
    void removeTheTarget() { service().deleteNodes({5}); }
    void addAChild() { service().createOverlay(2); }
    void addAbove() { announce(service().insert(1, 0, "x20")); }
    void addToTheTarget() { service().createGroup(5); }
    void moveElsewhere() { service().moveNodes({2}, 8, -1); }
    void moveAChildOut() { service().moveNodes({3}, 1, 0); }
    void moveTheTarget() { service().moveNodes({5}, 8, -1); }
    void reset() { Q_EMIT service().modelReset(); }
    void groupIt() { service().groupNodes({2, 7}); }
    void announce(const QRPC::NodeList &nodes) { Q_EMIT service().nodesAdded(nodes); }
};

std::vector<tst_kxOverlayEditor_dragChanges::NamedChange> tst_kxOverlayEditor_dragChanges::changes()
{
    using Self = tst_kxOverlayEditor_dragChanges;
    return {
        {"the node is renamed", &Self::rename},
        {"the node is switched off", &Self::switchOff},
        {"the target is switched off", &Self::switchOffTheTarget},
        {"the node is removed", &Self::remove},
        {"another node is removed", &Self::removeAnother},
        {"a child is removed", &Self::removeAChild},
        {"the target is removed", &Self::removeTheTarget},
        {"a child is added", &Self::addAChild},
        {"a node is added above", &Self::addAbove},
        {"a node is added to the target", &Self::addToTheTarget},
        {"the node is moved", &Self::moveElsewhere},
        {"a child is moved out", &Self::moveAChildOut},
        {"the target is moved", &Self::moveTheTarget},
        {"the node is grouped with another", &Self::groupIt},
        {"all is read anew", &Self::reset},
    };
}

void tst_kxOverlayEditor_dragChanges::shouldShowWhatChangedDuringTheDrag_data()
{
    QTest::addColumn<int>("change");
    int at = 0;
    for (const NamedChange &change : changes())
        QTest::newRow(change.name) << at++;
}

void tst_kxOverlayEditor_dragChanges::shouldShowWhatChangedDuringTheDrag()
{
    QFETCH(int, change);
    open("g2(a3 b4) h5(c6) d7 k8() e9");
    selectByMouse({2});
    const auto changeAndForget = [&] {
        (this->*changes().at(std::size_t(change)).change)();
        tree().expandAll();
        log().clear();
    };
    QVERIFY(drag(2, 5, On, changeAndForget));
    QCOMPARE(log().count("moveNodes"), 1);
    KX_COMPARE_ROWS();
    QCOMPARE(log().linesOf({"setName", "setEnabled", "deleteNodes"}), QStringList());
}

void tst_kxOverlayEditor_dragChanges::shouldKeepTheRowThatWasSelectedDuringTheDrag()
{
    open("a2 g3() b4 c5");
    selectByMouse({2});
    QVERIFY(drag(2, 3, On, [this] { select({4, 5}); }));
    QCOMPARE(commands(), QStringList{"moveNodes [2] 3 -1"});
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString("g3(a2) b4 c5"));
    QCOMPARE(selected(), QRPC::NodeList{2});
}

void tst_kxOverlayEditor_dragChanges::shouldShowWhatChangedAfterTheDrop()
{
    open("g2(a3 b4) h5() c6");
    selectByMouse({2, 6});
    QVERIFY(drag(6, 5, On));
    service().setName({2, 3}, "new");
    KX_COMPARE_ROWS();
    service().setEnabled({5}, false);
    KX_COMPARE_ROWS();
    service().moveNodes({3, 6}, 1, 0);
    KX_COMPARE_ROWS();
    service().deleteNodes({2});
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString("new#3 c6 h5-()"));
}

void tst_kxOverlayEditor_dragChanges::shouldLeaveHiddenSelectedRowsWhereTheyAre()
{
    open("a2 b3 g4() h5(b6 a7)");
    selectByMouse({3, 2, 6});
    const QPersistentModelIndex hidden(index(3));
    realInput::key("ctrl+f");
    QTRY_COMPARE(QApplication::focusWidget(), &searchBox());
    for (const char *key : {"bracketleft", "a", "g", "h", "bracketright"})
        realInput::key(key);
    QTRY_VERIFY(tree().isRowHidden(1, QModelIndex()));
    QCOMPARE(selected(), (QRPC::NodeList{2, 3, 6}));
    QVERIFY(drag(2, 4, On));
    QCOMPARE(commands(), QStringList{"moveNodes [2] 4 -1"});
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString("b3 g4(a2) h5(b6 a7)"));
    // The row itself, not a new one in its place, which the filter would not hide.
    QCOMPARE(QModelIndex(hidden), index(3));
    QVERIFY(tree().isRowHidden(0, QModelIndex()));
    QCOMPARE(selected(), QRPC::NodeList{2});
}

void tst_kxOverlayEditor_dragChanges::shouldMoveTheHiddenChildrenOfADraggedGroup()
{
    open("g2(a3 b4) h5()");
    QVERIFY(QMetaObject::invokeMethod(&editor(), "searchChanged", Q_ARG(QString, "[gha]")));
    QVERIFY(tree().isRowHidden(1, index(2)));
    selectByMouse({2});
    QVERIFY(drag(2, 5, On));
    QCOMPARE(commands(), QStringList{"moveNodes [2] 5 -1"});
    KX_COMPARE_ROWS();
    QCOMPARE(shown(), QString("h5(g2(a3 b4))"));
}

void tst_kxOverlayEditor_dragChanges::shouldSendTheNameThatIsBeingEditedBeforeTheDrag_data()
{
    QTest::addColumn<QRPC::NodeId>("edited");
    QTest::newRow("of another row") << QRPC::NodeId(4);
    QTest::newRow("of the target") << QRPC::NodeId(3);
    QTest::newRow("of the dragged row") << QRPC::NodeId(2);
}

void tst_kxOverlayEditor_dragChanges::shouldSendTheNameThatIsBeingEditedBeforeTheDrag()
{
    QFETCH(QRPC::NodeId, edited);
    open("a2 g3() b4");
    selectByMouse({edited});
    realInput::key("ctrl+r");
    QTRY_VERIFY(nameEditor() && nameEditor()->hasFocus());
    realInput::key("n");
    QTRY_COMPARE(static_cast<QLineEdit *>(nameEditor())->text(), QString("n"));
    QVERIFY(drag(2, 3, On));
    QTRY_VERIFY(!nameEditor());
    QCOMPARE(commands(),
             (QStringList{QString("setName [%1] \"n\"").arg(edited), "moveNodes [2] 3 -1"}));
    KX_COMPARE_ROWS();
    QCOMPARE(selected(), QRPC::NodeList{2});
}

KX_TEST_MAIN(tst_kxOverlayEditor_dragChanges)
#include "tst_kxOverlayEditor_dragChanges.moc"

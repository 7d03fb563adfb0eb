// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/EditorTest.h"

#include <QLineEdit>

/// A name that is being edited in the tree while the service changes nodes.
class tst_kxOverlayEditor_openName : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCloseWhenItsRowLeavesItsPlace_data();
    void shouldCloseWhenItsRowLeavesItsPlace();
    void shouldStayWhileOtherRowsChange_data();
    void shouldStayWhileOtherRowsChange();
    void shouldShowTheNameThatTheServiceGives();
    void shouldOpenInAClosedGroup();

private:
    struct NamedChange
    {
        const char *name;
        void (*make)(RecordingService &service);
    };
    static void addRows(const std::vector<NamedChange> &changes);
    static std::vector<NamedChange> changesOfItsRow();
    static std::vector<NamedChange> changesOfOtherRows();

    void openOn(QRPC::NodeId node);
    QLineEdit *line() { return static_cast<QLineEdit *>(nameEditor()); }
};

void tst_kxOverlayEditor_openName::addRows(const std::vector<NamedChange> &changes)
{
    QTest::addColumn<int>("change");
    int at = 0;
    for (const NamedChange &change : changes)
        QTest::newRow(change.name) << at++;
}

/// Starts to edit a name and types another one over it.
void tst_kxOverlayEditor_openName::openOn(QRPC::NodeId node)
{
    select({node});
    call("renameOverlay");
    QVERIFY(line());
    QTest::keyClicks(line(), "new");
    QCOMPARE(line()->text(), QString("new"));
    log().clear();
}

std::vector<tst_kxOverlayEditor_openName::NamedChange>
tst_kxOverlayEditor_openName::changesOfItsRow()
{
    return {
        {"moved", [](RecordingService &service) { service.moveNodes({3}, 5, -1); }},
        {"moved with its group", [](RecordingService &service) { service.moveNodes({2}, 5, -1); }},
        {"removed", [](RecordingService &service) { service.deleteNodes({3}); }},
        {"removed with its group", [](RecordingService &service) { service.deleteNodes({2}); }},
        {"all read anew", [](RecordingService &service) { Q_EMIT service.modelReset(); }},
    };
}

void tst_kxOverlayEditor_openName::shouldCloseWhenItsRowLeavesItsPlace_data()
{
    addRows(changesOfItsRow());
}

void tst_kxOverlayEditor_openName::shouldCloseWhenItsRowLeavesItsPlace()
{
    QFETCH(int, change);
    openEditor("g2(a3) b4 h5(c6)");
    showWindow();
    openOn(3);
    changesOfItsRow().at(std::size_t(change)).make(service());
    QTRY_VERIFY(!line());
    QCOMPARE(log().count("setName"), 0);
    KX_COMPARE_TREE(model(), service());
    openOn(4);
    QTest::keyClick(line(), Qt::Key_Return);
    QTRY_COMPARE(log().linesOf({"setName"}), QStringList("setName [4] \"new\""));
    KX_COMPARE_TREE(model(), service());
}

std::vector<tst_kxOverlayEditor_openName::NamedChange>
tst_kxOverlayEditor_openName::changesOfOtherRows()
{
    return {
        {"a row is added above",
         [](RecordingService &service) { Q_EMIT service.nodesAdded(service.insert(1, 0, "x9")); }},
        {"a row is added beside it",
         [](RecordingService &service) { Q_EMIT service.nodesAdded(service.insert(2, 0, "x9")); }},
        {"a row above is removed", [](RecordingService &service) { service.deleteNodes({4}); }},
        {"a row is moved above it",
         [](RecordingService &service) { service.moveNodes({6}, 2, 0); }},
        {"another is renamed",
         [](RecordingService &service) {
             service.setName({4, 2}, "x");
         }},
        {"its group is switched off",
         [](RecordingService &service) { service.setEnabled({2}, false); }},
    };
}

void tst_kxOverlayEditor_openName::shouldStayWhileOtherRowsChange_data()
{
    addRows(changesOfOtherRows());
}

void tst_kxOverlayEditor_openName::shouldStayWhileOtherRowsChange()
{
    QFETCH(int, change);
    openEditor("b4 g2(a3) h5(c6)");
    showWindow();
    openOn(3);
    changesOfOtherRows().at(std::size_t(change)).make(service());
    QCoreApplication::processEvents();
    QVERIFY(line());
    QCOMPARE(line()->text(), QString("new"));
    log().clear();
    QTest::keyClick(line(), Qt::Key_Return);
    QTRY_COMPARE(log().linesOf({"setName"}), QStringList("setName [3] \"new\""));
    KX_COMPARE_TREE(model(), service());
}

/// What was typed gives way to it, and is not sent.
void tst_kxOverlayEditor_openName::shouldShowTheNameThatTheServiceGives()
{
    openEditor("g2(a3)");
    showWindow();
    openOn(3);
    service().setName({3}, "given");
    QCOMPARE(line()->text(), QString("given"));
    QTest::keyClick(line(), Qt::Key_Return);
    QTRY_VERIFY(!line());
    QCOMPARE(log().linesOf({"setName"}).mid(1), QStringList("setName [3] \"given\""));
    KX_COMPARE_TREE(model(), service());
}

void tst_kxOverlayEditor_openName::shouldOpenInAClosedGroup()
{
    openEditor("g2(a3) b4");
    tree().collapseAll();
    showWindow();
    select({3});
    call("renameOverlay");
    QVERIFY(line());
    QVERIFY(tree().isExpanded(index(2)));
    QVERIFY(line()->hasFocus());
    QVERIFY(line()->geometry().intersects(tree().visualRect(index(3))));
    QTest::keyClicks(line(), "new");
    QTest::keyClick(line(), Qt::Key_Return);
    QTRY_COMPARE(log().linesOf({"setName"}), QStringList("setName [3] \"new\""));
}

KX_TEST_MAIN(tst_kxOverlayEditor_openName)
#include "tst_kxOverlayEditor_openName.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealInput.h"

/// The tree in the running viewer, by real mouse and keys.
class tst_viewer_tree : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFollowMouseAndKeys();

private:
    void click(int row, const QStringList &heldKeys = {});
    QStringList selectedRows() const;

    void selectByMouse();
    void selectByKeys();
    void deleteScatteredRows();
};

void tst_viewer_tree::click(int row, const QStringList &heldKeys)
{
    clickRow(tree()->model()->index(row, 0), heldKeys);
}

QStringList tst_viewer_tree::selectedRows() const
{
    QStringList names = selectedNames();
    names.sort();
    return names;
}

void tst_viewer_tree::shouldFollowMouseAndKeys()
{
    QVERIFY(start({EXAMPLES "/title_sheet.json"}));

    selectByMouse();
    selectByKeys();
    deleteScatteredRows();
}

void tst_viewer_tree::selectByMouse()
{
    QCOMPARE(topRows(), (QStringList{"Shade", "Heading", "Credits", "Brand", "Draft", "Guides"}));
    click(1);
    QTRY_COMPARE(selectedRows(), QStringList{"Heading"});
    click(3, {"shift"});
    QTRY_COMPARE(selectedRows(), (QStringList{"Brand", "Credits", "Heading"}));
}

void tst_viewer_tree::selectByKeys()
{
    realInput::key("ctrl+a");
    QTRY_COMPARE(selectedRows().size(), 6);
    realInput::key("ctrl+i");
    QTRY_COMPARE(selectedRows(), QStringList());
    click(2);
    QTRY_COMPARE(selectedRows(), QStringList{"Credits"});
    realInput::key("ctrl+i");
    QTRY_COMPARE(selectedRows(), (QStringList{"Brand", "Draft", "Guides", "Heading", "Shade"}));
    realInput::key("ctrl+shift+a");
    QTRY_COMPARE(selectedRows(), QStringList());
}

/// Ranges of a selection that begin at a row which the service removes.
void tst_viewer_tree::deleteScatteredRows()
{
    click(0);
    QTRY_COMPARE(selectedRows(), QStringList{"Shade"});
    click(2, {"shift"});
    QTRY_COMPARE(selectedRows().size(), 3);
    click(4, {"ctrl"});
    QTRY_COMPARE(selectedRows(), (QStringList{"Credits", "Draft", "Heading", "Shade"}));
    realInput::key("Delete");
    QTRY_COMPARE(topRows(), (QStringList{"Brand", "Guides"}));
    QCOMPARE(selectedRows(), QStringList());
}

KX_TEST_MAIN(tst_viewer_tree)
#include "tst_viewer_tree.moc"

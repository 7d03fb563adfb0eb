// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/support/RealInput.h"
#include "viewer/app/ViewerSession.h"

#include <QTreeView>

using namespace viewer;

/// The tree in the running viewer, by real mouse and keys. One test function, because the editor of
/// a process is created once.
class tst_viewer_tree : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldFollowMouseAndKeys();

private:
    void click(int row, const QStringList &heldKeys = {});
    QStringList rows() const;
    QStringList selectedRows() const;

    void selectByMouse();
    void selectByKeys();
    void deleteScatteredRows();

    QTreeView *m_tree = nullptr;
};

void tst_viewer_tree::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

void tst_viewer_tree::click(int row, const QStringList &heldKeys)
{
    const QRect place = m_tree->visualRect(m_tree->model()->index(row, 0));
    realInput::click(*m_tree->viewport(), place.center(), heldKeys);
}

QStringList tst_viewer_tree::rows() const
{
    QStringList names;
    for (int row = 0; row < m_tree->model()->rowCount(); ++row)
        names.append(m_tree->model()->index(row, 0).data().toString());
    return names;
}

QStringList tst_viewer_tree::selectedRows() const
{
    QStringList names;
    const QModelIndexList indexes = m_tree->selectionModel()->selectedIndexes();
    for (const QModelIndex &index : indexes)
        names.append(index.data().toString());
    names.sort();
    return names;
}

void tst_viewer_tree::shouldFollowMouseAndKeys()
{
    const CommandLine line(
        {"overlay-viewer", EXAMPLES "/title_sheet.json", "--plugin", EDITOR_PLUGIN});
    ViewerSession session(line, nullptr);
    session.start();
    m_tree = session.window()->findChild<QTreeView *>();
    QVERIFY(m_tree);
    QVERIFY(becomesActive(session.window()));

    selectByMouse();
    selectByKeys();
    deleteScatteredRows();
}

void tst_viewer_tree::selectByMouse()
{
    QCOMPARE(rows(), (QStringList{"Shade", "Heading", "Credits", "Brand", "Draft", "Guides"}));
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
    QTRY_COMPARE(rows(), (QStringList{"Brand", "Guides"}));
    QCOMPARE(selectedRows(), QStringList());
}

KX_TEST_MAIN(tst_viewer_tree)
#include "tst_viewer_tree.moc"

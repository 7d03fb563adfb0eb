// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SearchGuide.h"

#include "host/QKXSearchBox.h"
#include "tests/support/KxTest.h"

#include <QLabel>
#include <QStandardItemModel>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <functional>

using viewer::SearchGuide;

class tst_SearchGuide;
using Change = std::function<void(tst_SearchGuide &)>;
Q_DECLARE_METATYPE(Change)

/// A panel as a module builds it: a search box above a tree, here of two levels. The test hides the
/// rows itself, in the place of the module's filter.
class tst_SearchGuide : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldSayNothingWhileNothingIsSearchedFor();
    void shouldCountTheNamesThatMatch_data();
    void shouldCountTheNamesThatMatch();
    void shouldTellOfSelectedRowsThatAreHidden();
    void shouldFollowNamesRowsAndSelection();
    void shouldTellWhatChangedSinceTheSearch_data();
    void shouldTellWhatChangedSinceTheSearch();
    void shouldSearchAgainOnRequest();
    void shouldLeadTabToTheRequestWhereItStands();
    void shouldCountOncePerTurn();
    void shouldLeaveSelectionAndExpansion();
    void shouldGuideOnlyBoxesAboveATree();

private:
    QStandardItem *item(const QString &name) const;
    void hide(const QString &name);
    void searchAsAModule(const QString &text);
    void hideUnmatched(const QString &text);
    QString changed() const;
    QString said() const;

    std::unique_ptr<QWidget> m_panel;
    QKXSearchBox *m_box = nullptr;
    QTreeView *m_tree = nullptr;
    QStandardItemModel *m_model = nullptr;
};

void tst_SearchGuide::init()
{
    KxTest::init();
    m_panel = std::make_unique<QWidget>();
    m_box = new QKXSearchBox(m_panel.get());
    m_tree = new QTreeView(m_panel.get());
    m_model = new QStandardItemModel(m_panel.get());
    m_tree->setModel(m_model);
    m_tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto *group = new QStandardItem("group");
    group->appendRow(new QStandardItem("apple"));
    group->appendRow(new QStandardItem("pear"));
    m_model->appendRow(group);
    m_model->appendRow(new QStandardItem("pineapple"));
    m_model->appendRow(new QStandardItem("Apple"));
    auto *layout = new QVBoxLayout(m_panel.get());
    layout->addWidget(m_box);
    layout->addWidget(m_tree);
    SearchGuide::guideAll(m_panel.get());
    m_panel->show();
}

void tst_SearchGuide::cleanup()
{
    m_panel.reset();
    KxTest::cleanup();
}

QStandardItem *tst_SearchGuide::item(const QString &name) const
{
    return m_model->findItems(name, Qt::MatchExactly | Qt::MatchRecursive).value(0);
}

void tst_SearchGuide::hide(const QString &name)
{
    const QModelIndex index = item(name)->index();
    m_tree->setRowHidden(index.row(), index.parent(), true);
}

/// From now on the rows are filtered as a module does it.
void tst_SearchGuide::searchAsAModule(const QString &text)
{
    connect(m_box, &QKXSearchBox::searchChanged, this, &tst_SearchGuide::hideUnmatched);
    m_box->setText(text);
}

/// Shows what matches and what holds a match; what lies in a hidden row stays as it is.
void tst_SearchGuide::hideUnmatched(const QString &text)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        QStandardItem *top = m_model->item(row);
        QVector<bool> matches;
        for (int child = 0; child < top->rowCount(); ++child)
            matches.append(top->child(child)->text().contains(text));
        const bool hidden = !top->text().contains(text) && !matches.contains(true);
        m_tree->setRowHidden(row, QModelIndex(), hidden);
        for (int child = 0; child < top->rowCount() && !hidden; ++child)
            m_tree->setRowHidden(child, top->index(), !matches.at(child));
    }
}

/// What the guide says of the changes since the search; empty for nothing.
QString tst_SearchGuide::changed() const
{
    QCoreApplication::processEvents();
    const auto *label = m_panel->findChild<QLabel *>("searchChanges");
    return label->isVisible() ? label->text() : QString();
}

/// What stands below the box once the event loop is idle.
QString tst_SearchGuide::said() const
{
    QCoreApplication::processEvents();
    const auto *label = m_panel->findChild<QLabel *>("searchGuide");
    return label->isHidden() ? QString() : label->text();
}

void tst_SearchGuide::shouldSayNothingWhileNothingIsSearchedFor()
{
    QCOMPARE(said(), QString());
    m_tree->selectAll();
    QCOMPARE(said(), QString());
    m_box->setText("x");
    QVERIFY(!said().isEmpty());
    m_box->clear();
    QCOMPARE(said(), QString());
}

void tst_SearchGuide::shouldCountTheNamesThatMatch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("line");
    QTest::newRow("anywhere in the name, case counts") << "apple"
                                                       << "2 found";
    QTest::newRow("a group and its children") << "p"
                                              << "5 found";
    QTest::newRow("with wildcards") << "p?a"
                                    << "1 found";
    QTest::newRow("none") << "zebra"
                          << "Nothing found";
}

void tst_SearchGuide::shouldCountTheNamesThatMatch()
{
    QFETCH(QString, text);
    QFETCH(QString, line);
    m_box->setText(text);
    QCOMPARE(said(), line);
}

void tst_SearchGuide::shouldTellOfSelectedRowsThatAreHidden()
{
    m_tree->expandAll();
    m_tree->selectAll();
    hide("group");
    hide("Apple");
    m_box->setText("pine");
    QCOMPARE(said(), QString("1 found\n4 selected, but hidden by the search"));
    m_tree->selectionModel()->select(item("pineapple")->index(),
                                     QItemSelectionModel::ClearAndSelect);
    QCOMPARE(said(), QString("1 found"));
    m_tree->setRowHidden(0, QModelIndex(), false);
    hide("pear");
    m_tree->selectionModel()->select(item("pear")->index(), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(said(), QString("1 found\n1 selected, but hidden by the search"));
}

void tst_SearchGuide::shouldFollowNamesRowsAndSelection()
{
    m_box->setText("apple");
    QCOMPARE(said(), QString("2 found"));
    item("pear")->setText("crab apple");
    QCOMPARE(said(), QString("3 found"));
    m_model->appendRow(new QStandardItem("apple tree"));
    QCOMPARE(said(), QString("4 found"));
    m_model->removeRow(0);
    QCOMPARE(said(), QString("2 found"));
    m_model->clear();
    QCOMPARE(said(), QString("Nothing found"));
}

void tst_SearchGuide::shouldTellWhatChangedSinceTheSearch_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("line");
    const auto row = [](const char *name, const Change &change, const char *line) {
        QTest::newRow(name) << change << line;
    };
    const auto rename = [](const char *from, const char *to) {
        return [=](tst_SearchGuide &test) { test.item(from)->setText(to); };
    };
    row(
        "nothing", [](auto &) {}, "");
    row(
        "a new row that does not match",
        [](auto &test) { test.m_model->appendRow(new QStandardItem("lamp")); },
        "1 changed since the search");
    row(
        "a new row that matches",
        [](auto &test) { test.m_model->appendRow(new QStandardItem("apple tree")); }, "");
    row("a shown row that matches no longer", rename("pineapple", "lamp"),
        "1 changed since the search");
    row("a hidden row that matches now", rename("Apple", "apple tree"),
        "1 changed since the search");
    row("a row in a group, which goes with it", rename("apple", "peach"),
        "2 changed since the search");
    row("a group that is shown for its child", rename("group", "others"), "");
    row(
        "a check mark", [](auto &test) { test.item("pear")->setCheckState(Qt::Checked); }, "");
    row(
        "the child that a group is shown for", [](auto &test) { test.item("group")->removeRow(0); },
        "1 changed since the search");
    row(
        "the selection", [](auto &test) { test.m_tree->selectAll(); }, "");
    row(
        "all", [](auto &test) { test.m_model->clear(); }, "");
}

void tst_SearchGuide::shouldTellWhatChangedSinceTheSearch()
{
    QFETCH(Change, change);
    QFETCH(QString, line);
    auto *hiddenGroup = new QStandardItem("basket");
    hiddenGroup->appendRow(new QStandardItem("plum"));
    m_model->appendRow(hiddenGroup);
    searchAsAModule("apple");
    QCOMPARE(changed(), QString());
    change(*this);
    QCOMPARE(changed(), line);
    m_box->clear();
    QCOMPARE(changed(), QString());
    m_model->appendRow(new QStandardItem("late"));
    QCOMPARE(changed(), QString());
}

void tst_SearchGuide::shouldSearchAgainOnRequest()
{
    searchAsAModule("apple");
    item("pineapple")->setText("lamp");
    QVERIFY(!changed().isEmpty());
    QVERIFY(!m_tree->isRowHidden(1, QModelIndex()));
    auto *again = m_panel->findChild<QToolButton *>("searchAgain");
    QVERIFY(again->isVisible());
    QVERIFY(!again->accessibleName().isEmpty());
    QTest::mouseClick(again, Qt::LeftButton);
    QVERIFY(m_tree->isRowHidden(1, QModelIndex()));
    QCOMPARE(changed(), QString());
    QVERIFY(!again->isVisible());
    QCOMPARE(m_box->text(), QString("apple"));
}

void tst_SearchGuide::shouldLeadTabToTheRequestWhereItStands()
{
    searchAsAModule("apple");
    item("pineapple")->setText("lamp");
    QVERIFY(!changed().isEmpty());
    m_panel->activateWindow();
    QVERIFY(becomesActive(m_panel.get()));
    m_box->setFocus();
    QTest::keyClick(m_box, Qt::Key_Tab);
    QWidget *again = m_panel->findChild<QToolButton *>("searchAgain");
    QCOMPARE(QApplication::focusWidget(), again);
    QTest::keyClick(again, Qt::Key_Space);
    QCOMPARE(changed(), QString());
    QVERIFY(m_tree->hasFocus());
}

void tst_SearchGuide::shouldCountOncePerTurn()
{
    const auto *guide = m_box->findChild<SearchGuide *>();
    QVERIFY(guide);
    m_box->setText("a");
    m_box->setText("ap");
    m_tree->selectAll();
    QVERIFY(guide->label()->isHidden());
    QCOMPARE(said(), QString("2 found"));
}

void tst_SearchGuide::shouldLeaveSelectionAndExpansion()
{
    m_tree->expandAll();
    m_tree->selectAll();
    const QModelIndexList before = m_tree->selectionModel()->selectedIndexes();
    m_box->setText("apple");
    said();
    QCOMPARE(m_tree->selectionModel()->selectedIndexes(), before);
    QVERIFY(m_tree->isExpanded(item("group")->index()));
}

void tst_SearchGuide::shouldGuideOnlyBoxesAboveATree()
{
    QWidget other;
    auto *layout = new QVBoxLayout(&other);
    layout->addWidget(new QTreeView(&other));
    layout->addWidget(new QKXSearchBox(&other));
    new QKXSearchBox(&other);
    SearchGuide::guideAll(&other);
    QVERIFY(!other.findChild<QLabel *>("searchGuide"));
}

KX_TEST_MAIN(tst_SearchGuide)
#include "tst_SearchGuide.moc"

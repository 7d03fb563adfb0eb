// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"
#include "kit/widgets.h"
#include "overlayeditor/model/kxDropTrace.h"
#include "tests/overlayeditor/CountedService.h"
#include "tests/overlayeditor/EditorTest.h"
#include "tests/overlayeditor/WorkCounter.h"
#include "tests/support/Seeds.h"
#include "tests/viewer/scene/SceneText.h"

#include <QLineEdit>
#include <QMimeData>
#include <QRegularExpression>

#include <memory>

namespace {

const char s_flatColor[] = "service.fontColorChanged: 1; isOverlay: n; getOverlayType: n+1; "
                           "getFontColor: n+1; ";
const char s_groupedColor[] = "service.fontColorChanged: 1; isOverlay: 19n; getOverlayType: 19n+1; "
                              "getFontColor: 19n+1; ";

/// A row is told of its check mark, its state, its icon and its colour. What lies in a group is
/// refreshed with it and not once more by itself.
const char s_flatStates[] = "service.enabledStateChanged: 1; getRootNode: n; isEnabled: n; "
                            "isActive: 2n; isOverlay: n; model.dataChanged: 4n; ";
const char s_groupedStates[] = "service.enabledStateChanged: 1; getRootNode: 20n; isEnabled: 20n; "
                               "isActive: 40n; isOverlay: 20n; model.dataChanged: 80n; ";

/// Only the list of children is read from the rows that stay. The layout changes are the toolkit's,
/// which says so for each copy that it puts into its row.
const char s_flatDrop[] =
    "moveNodes: 1; service.nodesMoved: 1; service.enabledStateChanged: 1; model.nodesDropped: 1; "
    "selection.selectionChanged: 1; model.rowsInserted: 1; rows inserted: 1000; "
    "model.rowsRemoved: 1; rows removed: 1000; model.layoutChanged: 1000; model.dataChanged: 2000; "
    "getRootNode: 3002; getParent: 2000; getChildCount: 1001; getChild: n+1000; getName: 1000; "
    "isEnabled: 2000; isActive: 3000; isOverlay: 2000; isSwitch: 1000; ";
const char s_groupedDrop[] =
    "moveNodes: 1; service.nodesMoved: 1; service.enabledStateChanged: 1; model.nodesDropped: 1; "
    "selection.selectionChanged: 1; model.rowsInserted: 1; rows inserted: 50; "
    "model.rowsRemoved: 1; rows removed: 50; model.layoutChanged: 50; model.dataChanged: 1050; "
    "getRootNode: 152; getParent: 100; getChildCount: 1001; getChild: n+1000; getName: 1000; "
    "isEnabled: 1050; isActive: 2050; isOverlay: 1050; isSwitch: 100; ";

/// Nothing is read from the rows that stay.
const char s_flatDropUndo[] =
    "service.nodesMoved: 1; service.enabledStateChanged: 1; model.rowsInserted: 1000; "
    "rows inserted: 1000; model.rowsRemoved: 1000; rows removed: 1000; model.dataChanged: 1000; "
    "getRootNode: 4000; isEnabled: 1000; isActive: 2000; isOverlay: 1000; isSwitch: 1000; ";
const char s_groupedDropUndo[] =
    "service.nodesMoved: 1; service.enabledStateChanged: 1; model.rowsInserted: 50; "
    "rows inserted: 50; model.rowsRemoved: 50; rows removed: 50; model.dataChanged: 1000; "
    "getRootNode: 200; isEnabled: 50; isActive: 1050; isOverlay: 1000; isSwitch: 100; ";

} // namespace

/// What the editor does for trees of many nodes, counted: questions to the service, signals, rows,
/// layouts and polishes. The counts are exact, each a formula of the size, so that one question more
/// for a node is seen as well as anything that grows faster than the tree.
///
/// A flat tree has n overlays. A grouped one has n groups with 19 overlays each, all open: 20n nodes.
class tst_kxOverlayEditor_scale : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCostWhatItsSizeAsksFor_data();
    void shouldCostWhatItsSizeAsksFor();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

private:
    using Step = void (tst_kxOverlayEditor_scale::*)();
    struct Operation
    {
        const char *name;
        Step prepare;
        Step run;
        QString flat; ///< its counts
        QString grouped;
    };
    enum Shape { Flat, Grouped };
    static QString built(Shape shape);
    static QString refreshed(Shape shape);
    static const QVector<Operation> &operations();
    static QStringList expected(const QString &formulas, int size);
    QString differenceTo(const QStringList &expected) const;

    void nothing() {}
    void open();
    void selectAll() { call("selectAll"); }
    void selectOverlays();
    void refresh() { editor().updateAll(); }
    void search();
    void endSearch() { searchLine().clear(); }
    void color();
    void toggle() { call("toggle"); }
    void duplicate() { call("duplicateOverlays"); }
    void remove() { call("deleteOverlays"); }
    void undo() { m_service->undo(); }
    void addDropped();
    void drop();

    template<Step First, Step... Rest>
    void inTurn();
    QLineEdit &searchLine() { return static_cast<QLineEdit &>(searchBox()); }

    std::unique_ptr<WorkCounter> m_counter;
    std::unique_ptr<CountedService> m_service;
    bool m_isGrouped = false;
    int m_size = 0;
};

void tst_kxOverlayEditor_scale::init()
{
    EditorTest::init();
    m_counter = std::make_unique<WorkCounter>();
    m_service = std::make_unique<CountedService>(m_counter.get());
    kxKernelServiceFactory::the()->registerService<kxOverlayService>(m_service.get());
}

void tst_kxOverlayEditor_scale::cleanup()
{
    EditorTest::cleanup();
    m_service.reset();
    m_counter.reset();
}

void tst_kxOverlayEditor_scale::open()
{
    QString line;
    for (int i = 0; i < m_size; ++i) {
        line += QStringLiteral("n%1").arg(i);
        if (m_isGrouped)
            line += QStringLiteral("(%1)").arg(QStringLiteral("o%1 ").arg(i).repeated(19));
        line += QLatin1Char(' ');
    }
    m_service->setScene(scenetext::build(line));
    // Not expandAll(), which makes the view keep rows that hold nothing as well.
    for (int row = 0; m_isGrouped && row < m_size; ++row)
        tree().expand(model().index(row, 0));
}

void tst_kxOverlayEditor_scale::selectOverlays()
{
    QItemSelection overlays;
    const auto addRowsOf = [&](const QModelIndex &parent) {
        const int last = model().rowCount(parent) - 1;
        overlays.select(model().index(0, 0, parent), model().index(last, 0, parent));
    };
    for (int row = 0; m_isGrouped && row < m_size; ++row)
        addRowsOf(model().index(row, 0));
    if (!m_isGrouped)
        addRowsOf(QModelIndex());
    tree().selectionModel()->select(overlays, QItemSelectionModel::ClearAndSelect);
}

/// One key, which leaves about half of the rows in sight.
void tst_kxOverlayEditor_scale::search()
{
    QTest::keyClick(&searchLine(), Qt::Key_5);
}

void tst_kxOverlayEditor_scale::color()
{
    QVERIFY(QMetaObject::invokeMethod(&editor(), "fontColorChanged", Q_ARG(float, 0.25F),
                                      Q_ARG(float, 0.5F), Q_ARG(float, 0.75F)));
}

/// 1,000 nodes more in front, selected: 50 groups of the grouped tree.
void tst_kxOverlayEditor_scale::addDropped()
{
    const int tops = m_isGrouped ? 50 : 1000;
    m_size += tops;
    open();
    m_size -= tops;
    const QItemSelection dropped(model().index(0, 0), model().index(tops - 1, 0));
    tree().selectionModel()->select(dropped, QItemSelectionModel::ClearAndSelect);
}

/// To the end of the tree, with what the view does when it drags by the mouse.
void tst_kxOverlayEditor_scale::drop()
{
    const QModelIndexList rows = tree().selectionModel()->selectedIndexes();
    const QVector<QPersistentModelIndex> dragged(rows.begin(), rows.end());
    const kxDropTrace trace(&model());
    const std::unique_ptr<QMimeData> data(model().mimeData(rows));
    QVERIFY(model().dropMimeData(data.get(), Qt::MoveAction, -1, -1, QModelIndex()));
    tree().selectionModel()->clear();
    model().removeRows(dragged.first().row(), dragged.size());
    model().settle(trace);
}

template<tst_kxOverlayEditor_scale::Step First, tst_kxOverlayEditor_scale::Step... Rest>
void tst_kxOverlayEditor_scale::inTurn()
{
    (this->*First)();
    ((widgets::settle(), (this->*Rest)()), ...);
}

/// What each new row asks for, made from the node alone: its kind once for the flags and once for the
/// icon, a container's a second time. A flat tree has a row per unit of size, a grouped one 20.
QString tst_kxOverlayEditor_scale::built(Shape shape)
{
    const QString row = QStringLiteral("rows inserted: n; model.rowsInserted: n; ");
    return row
           + (shape == Flat
                  ? "getName: n; isEnabled: n; isActive: n; isOverlay: 2n; getChildCount: n; "
                  : "getName: 20n; isEnabled: 20n; isActive: 20n; isOverlay: 40n; isSwitch: n; "
                    "getChildCount: 20n; getChild: 19n; getRootNode: 19n; ");
}

/// One refresh of the panel for overlays that differ in their names alone. Each of its parts asks for
/// kinds and types itself, as it does where the service announces its property only. The size is
/// shown with its type and again in its turn, the offset by two boxes that are marked each by itself.
/// A value is read once more than there are nodes, to compare all with it.
QString tst_kxOverlayEditor_scale::refreshed(Shape shape)
{
    return shape == Flat
               ? "isOverlay: 11n; getOverlayType: 7n+8; getText: n+1; getFont: n+1; getFontColor: "
                 "n+1; "
                 "getBackgroundColor: n+1; getBackgroundTransparency: n+1; getSizeType: n+3; "
                 "getSize: 2n+2; getPosition: n+1; getOffset: 2n+2; getName: 3; "
               : "isOverlay: 209n; getOverlayType: 133n+8; getText: 19n+1; getFont: 19n+1; "
                 "getFontColor: 19n+1; getBackgroundColor: 19n+1; getBackgroundTransparency: "
                 "19n+1; "
                 "getSizeType: 19n+3; getSize: 38n+2; getPosition: 19n+1; getOffset: 38n+2; "
                 "getName: 21; ";
}

/// Where all is selected in a grouped tree, the panel knows with the first group that only the name
/// is to be shown.
const QVector<tst_kxOverlayEditor_scale::Operation> &tst_kxOverlayEditor_scale::operations()
{
    using T = tst_kxOverlayEditor_scale;
    const char *reset =
        "service.modelReset: 1; model.modelReset: 1; model.columnsInserted: 1; "
        "getRootNode: n+1; getChild: n; getChildCount: n+1; event LayoutRequest: 1; ";
    const char *selected = "selection.selectionChanged: 1; ";
    const char *marked = "event DynamicPropertyChange: 2; "; // the name, and the text that it hides
    const char *layout = "event LayoutRequest: 1";
    const char *removed = "service.nodesRemoved: 1; selection.selectionChanged: 1; getRootNode: n; "
                          "model.rowsRemoved: n; rows removed: n; ";
    const char *added = "service.nodesAdded: 1; getParent: n; getChildIndex: n; getRootNode: 2n; ";
    // Created nodes were added before: their rows are found, made sure of and selected.
    const char *created = "service.nodesCreated: 1; getParent: n; getRootNode: 3n; ";
    static const QVector<Operation> all{
        {"open", &T::nothing, &T::open, built(Flat) + reset, built(Grouped) + reset},
        {"select all", &T::open, &T::selectAll,
         refreshed(Flat) + selected + marked + "event LayoutRequest: 6",
         QString(selected) + marked + "isOverlay: 19n+1; getName: 21"},
        {"refresh", &T::inTurn<&T::open, &T::selectOverlays>, &T::refresh, refreshed(Flat),
         refreshed(Grouped)},
        {"search by one key", &T::open, &T::search, layout, layout},
        {"end a search", &T::inTurn<&T::open, &T::search>, &T::endSearch, layout, layout},
        {"color", &T::inTurn<&T::open, &T::selectOverlays>, &T::color,
         QString("setFontColor: 1; ") + s_flatColor, QString("setFontColor: 1; ") + s_groupedColor},
        {"undo of color", &T::inTurn<&T::open, &T::selectOverlays, &T::color>, &T::undo,
         s_flatColor, s_groupedColor},
        {"toggle", &T::inTurn<&T::open, &T::selectAll>, &T::toggle,
         QString("setEnabled: 2; isEnabled: n; ") + s_flatStates + "isSwitch: n; ",
         QString("setEnabled: 2; isEnabled: 20n; ") + s_groupedStates + "isSwitch: 2n; "},
        {"undo of toggle", &T::inTurn<&T::open, &T::selectAll, &T::toggle>, &T::undo,
         QString(s_flatStates) + "isSwitch: n; ", QString(s_groupedStates) + "isSwitch: 21n; "},
        {"duplicate", &T::inTurn<&T::open, &T::selectAll>, &T::duplicate,
         "duplicateNodes: 1; " + built(Flat) + added + created + selected + refreshed(Flat),
         "duplicateNodes: 1; " + built(Grouped) + added + created + selected
             + "isOverlay: 1; getName: 3; "},
        {"undo of duplicate", &T::inTurn<&T::open, &T::selectAll, &T::duplicate>, &T::undo, removed,
         removed},
        {"delete", &T::inTurn<&T::open, &T::selectAll>, &T::remove,
         QString("deleteNodes: 1; ") + removed + layout,
         QString("deleteNodes: 1; ") + removed + layout},
        {"undo of delete", &T::inTurn<&T::open, &T::selectAll, &T::remove>, &T::undo,
         built(Flat) + added + layout, built(Grouped) + added + layout},
        {"drop of 1,000", &T::addDropped, &T::drop, s_flatDrop, s_groupedDrop},
        {"undo of drop", &T::inTurn<&T::addDropped, &T::drop>, &T::undo, s_flatDropUndo,
         s_groupedDropUndo},
    };
    return all;
}

/// "name: 3n+2; other: 1" for a size, a line each; what is named twice is added up.
QStringList tst_kxOverlayEditor_scale::expected(const QString &formulas, int size)
{
    static const QRegularExpression formula(QStringLiteral("^(.+): (?:(\\d*)(n))?([+-]?\\d+)?$"));
    QMap<QString, int> counts;
    const QStringList parts = formulas.split(QStringLiteral("; "), Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QRegularExpressionMatch match = formula.match(part);
        if (!match.hasMatch())
            return {QStringLiteral("not a formula: ") + part};
        const int factor = match.captured(2).isEmpty() ? 1 : match.captured(2).toInt();
        const int growing = match.captured(3).isEmpty() ? 0 : factor * size;
        counts[match.captured(1)] += growing + match.captured(4).toInt();
    }
    QStringList lines;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        lines.append(QStringLiteral("%1: %2").arg(count.key()).arg(count.value()));
    return lines;
}

/// Each count that is another one than expected; empty for none.
QString tst_kxOverlayEditor_scale::differenceTo(const QStringList &expected) const
{
    const QStringList counted = m_counter->lines();
    QStringList differing;
    for (const QString &line : counted) {
        if (!expected.contains(line))
            differing.append(QStringLiteral("counted ") + line);
    }
    for (const QString &line : expected) {
        if (!counted.contains(line))
            differing.append(QStringLiteral("expected ") + line);
    }
    return differing.join(QStringLiteral("; "));
}

void tst_kxOverlayEditor_scale::shouldCostWhatItsSizeAsksFor_data()
{
    QTest::addColumn<int>("operation");
    QTest::addColumn<bool>("grouped");
    QTest::addColumn<int>("nodes");
    for (int i = 0; i < operations().size(); ++i) {
        for (const int nodes : {1000, 10000, 100000}) {
            if (nodes > 10000 && !seeds::isLongRun())
                continue;
            QTest::addRow("%s, %d flat", operations().at(i).name, nodes) << i << false << nodes;
            QTest::addRow("%s, %d grouped", operations().at(i).name, nodes) << i << true << nodes;
        }
    }
}

void tst_kxOverlayEditor_scale::shouldCostWhatItsSizeAsksFor()
{
    QFETCH(int, operation);
    QFETCH(bool, grouped);
    QFETCH(int, nodes);
    const Operation &measured = operations().at(operation);
    m_isGrouped = grouped;
    m_size = grouped ? nodes / 20 : nodes;
    openEditor();
    showWindow();
    (this->*measured.prepare)();
    widgets::settle();

    m_counter->watch(m_service.get(), "service");
    m_counter->watch(&model(), "model");
    m_counter->watch(tree().selectionModel(), "selection");
    m_counter->watchRows(&model());
    m_counter->clear();
    (this->*measured.run)();
    widgets::settle();
    const QString difference =
        differenceTo(expected(grouped ? measured.grouped : measured.flat, m_size));
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

KX_TEST_MAIN(tst_kxOverlayEditor_scale)
#include "tst_kxOverlayEditor_scale.moc"

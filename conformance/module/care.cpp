// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/QKXTextureControls.h"
#include "kit/widgets.h"

#include <QComboBox>
#include <QFontComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;

/// A label and the control that it names to assistive tools.
struct Named
{
    const char *label;
    const char *control;
};

const Named s_named[] = {
    {"_name_label", "_overlay_name"},
    {"_text_label", "_text_edit"},
    {"_font_label", "_font_combo_box"},
    {"_font_color_label", "_color_slider"},
    {"_background_label", "_background_slider"},
    {"_transparency_label", "_transparency_slider"},
    {"_image_label", "_image_edit"},
    {"_size_label", "_size_slider"},
    {"_position_label", "_position_combo_box"},
};

const char *const s_focusOrder[] = {
    "_overlay_name",          "_text_radio_button",
    "_image_radio_button",    "_text_edit",
    "_font_combo_box",        "_color_slider",
    "_background_slider",     "_transparency_slider",
    "_absolute_radio_button", "_relative_radio_button",
    "_size_slider",           "_position_combo_box",
    "_offset_x_spin_box",     "_offset_y_spin_box",
};

/// How many steps of the Tab key, hidden widgets included, lead from one widget to a control or a
/// part of it.
int stepsTo(const QWidget &control, const QWidget &from)
{
    int steps = 0;
    for (const QWidget *at = &from; at != &control && !control.isAncestorOf(at); ++steps) {
        at = at->nextInFocusChain();
        expect("Tab leads to the control", at != &from);
    }
    return steps;
}

ModuleChecks assistChecks()
{
    return {
        {"assist.labels", "Labels name the controls beside them to assistive tools.",
         [](ModuleBench &bench) {
             for (const Named &named : s_named)
                 expect(named.control, bench.form<QLabel>(named.label).buddy()
                                           == &bench.form<QWidget>(named.control));
         }},
        {"assist.names", "Controls without a label of their own have names for assistive tools.",
         [](ModuleBench &bench) {
             expect("the tree has a name", !bench.tree().accessibleName().isEmpty());
             const QString x = bench.form<QWidget>("_offset_x_spin_box").accessibleName();
             const QString y = bench.form<QWidget>("_offset_y_spin_box").accessibleName();
             expect("the offsets have names", !x.isEmpty() && !y.isEmpty() && x != y);
         }},
        {"assist.focusOrder", "Tab goes from the search box to the tree and down the panel.",
         [](ModuleBench &bench) {
             const QWidget &window = bench.window();
             const int first = stepsTo(bench.searchBox(), window);
             int before = stepsTo(bench.tree(), window);
             expect("the tree", before > first);
             expect("what holds the tree is no stop",
                    bench.tree().parentWidget()->focusPolicy() == Qt::NoFocus);
             for (const char *name : s_focusOrder) {
                 const int steps = stepsTo(bench.form<QWidget>(name), window);
                 expect(name, steps > before);
                 before = steps;
             }
         }},
        {"assist.hostsKeys", "Keys of the host pass the tree.",
         [](ModuleBench &bench) {
             QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
             event.ignore();
             QCoreApplication::sendEvent(&bench.tree(), &event);
             expect("the tree leaves the key to the host", !event.isAccepted());
         }},
    };
}

ModuleChecks widthChecks()
{
    return {
        {"assist.paneWidth", "The panel is never too narrow for its controls.",
         [](ModuleBench &bench) {
             QMainWindow &window = bench.window();
             window.show();
             QCoreApplication::processEvents();
             const QSize before = window.size();
             window.resize(1, before.height());
             QCoreApplication::processEvents();
             const auto &pane = bench.form<QScrollArea>("_property_scrollArea");
             expectEqual("hidden at the side", pane.horizontalScrollBar()->maximum(), 0);
             expect("there is room beside the scroll bar",
                    pane.minimumWidth() > pane.widget()->minimumSizeHint().width());
             window.resize(before);
         }},
        {"assist.paneWidthFollows", "The panel widens with its controls, before it lacks the room.",
         [](ModuleBench &bench) {
             QMainWindow &window = bench.window();
             window.show();
             const QSize size = window.size();
             auto &pane = bench.form<QScrollArea>("_property_scrollArea");
             const int least = pane.minimumWidth();
             window.resize(3 * least, size.height());
             QCoreApplication::processEvents();
             auto &name = bench.form<QLineEdit>("_overlay_name");
             name.setMinimumWidth(least);
             for (int level = 0; level < 10; ++level)
                 QCoreApplication::processEvents(); // what contains it is asked level by level
             const int needed = pane.widget()->minimumSizeHint().width();
             const int given = pane.minimumWidth();
             name.setMinimumWidth(0);
             QCoreApplication::processEvents();
             pane.setMinimumWidth(least);
             window.resize(size);
             expect("more room is needed", needed > least);
             expect("there is room for all", given > needed);
         }},
    };
}

void choose(QComboBox &box, int row)
{
    const QString text = box.itemText(row);
    expect("the box tells of a choice",
           QMetaObject::invokeMethod(&box, "activated", Q_ARG(int, row))
               && QMetaObject::invokeMethod(&box, "textActivated", Q_ARG(QString, text)));
}

// One table, long as it has an entry for each check.
ModuleChecks mixedChecks() // NOLINT(readability-function-size)
{
    return {
        {"mixed.sameFamily", "The family that a box shows can be chosen where it hides others.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             auto &box = bench.form<QFontComboBox>("_font_combo_box");
             bench.node(2).font = box.itemText(0);
             bench.select({2});
             expectEqual("calls", bench.commandsOf([&box] { choose(box, 0); }), QStringList());
             bench.node(3).font = "another";
             bench.select({2, 3});
             expectEqual("calls", bench.commandsOf([&box] { choose(box, 0); }),
                         QStringList(QStringLiteral("setFont [2,3] \"%1\"").arg(box.itemText(0))));
         }},
        {"mixed.samePosition", "The anchor that a box shows can be chosen where it hides others.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             auto &box = bench.form<QComboBox>("_position_combo_box");
             bench.node(2).position = QPointF(0, 0.5);
             bench.select({2});
             expectEqual("calls", bench.commandsOf([&box] { choose(box, 0); }), QStringList());
             bench.node(3).position = QPointF(1, 1);
             bench.select({2, 3});
             expectEqual("calls", bench.commandsOf([&box] { choose(box, 0); }),
                         QStringList("setPosition [2,3] (0,0.5)"));
         }},
        {"mixed.nameInPassing",
         "A name for several nodes is sent once it was typed, not in passing.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.select({2});
             bench.select({2, 3});
             auto &field = bench.form<QLineEdit>("_overlay_name");
             const auto leave = [&field] { Q_EMIT field.editingFinished(); };
             expectEqual("calls", bench.commandsOf(leave), QStringList());
             field.setText("new");
             Q_EMIT bench.service().nameChanged({3});
             expectEqual("calls", bench.commandsOf(leave), QStringList("setName [2,3] \"new\""));
         }},
        {"mixed.image", "The mark of the image line is handed on to its parts.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.node(2).type = bench.node(3).type = 1;
             bench.node(2).image = "/no/such.png";
             bench.select({2, 3});
             const auto *field =
                 bench.form<QKXTextureControls>("_image_edit").findChild<QLineEdit *>();
             expect("the line has a field", field != nullptr);
             expect("the field is marked", widgets::isMarked(*field));
             bench.select({2});
             expect("the field is not marked", !widgets::isMarked(*field));
         }},
        {"mixed.imageOfText", "The image line is left alone where the types differ.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.node(3).type = 1;
             bench.node(3).image = "/no/such.png";
             bench.select({2, 3});
             Q_EMIT bench.service().imageChanged({3});
             expect("the line is not marked",
                    !widgets::isMarked(bench.form<QWidget>("_image_edit")));
         }},
        {"mixed.layoutStays", "A layout stays where types come to differ.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.select({2, 3});
             bench.node(2).type = 1;
             Q_EMIT bench.service().overlayTypeChanged({2});
             expect("the type is marked",
                    widgets::isMarked(bench.form<QWidget>("_text_radio_button")));
             expect("the image is hidden", bench.form<QWidget>("_image_edit").isHidden());
             expect("the text is not", !bench.form<QWidget>("_text_edit").isHidden());
         }},
        {"mixed.sizesFollow", "Size, position and offset follow the service for mixed types too.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.node(3).type = 1;
             bench.select({2, 3});
             bench.node(3).size = 55;
             Q_EMIT bench.service().sizeChanged({3});
             expect("the size is marked", widgets::isMarked(bench.form<QWidget>("_size_slider")));
             bench.node(3).position = QPointF(1, 1);
             Q_EMIT bench.service().positionChanged({3});
             expect("the position is marked",
                    widgets::isMarked(bench.form<QWidget>("_position_combo_box")));
             bench.node(3).offset = QPointF(6, 7);
             Q_EMIT bench.service().offsetChanged({3});
             expect("the offset is marked",
                    widgets::isMarked(bench.form<QWidget>("_offset_x_spin_box")));
             bench.node(3).sizeType = 1;
             Q_EMIT bench.service().sizeTypeChanged({3});
             expect("the size type is marked",
                    widgets::isMarked(bench.form<QWidget>("_absolute_radio_button")));
         }},
    };
}

constexpr int many = 100;

/// `many` selected overlays and the group of them, which has an id of its own behind theirs.
Nodes openMany(ModuleBench &bench)
{
    QStringList names;
    Nodes nodes;
    for (int i = 0; i < many; ++i) {
        nodes.append(QRPC::NodeId(i + 2));
        names.append(QStringLiteral("a%1").arg(nodes.constLast()));
    }
    names.append(QStringLiteral("g%1()").arg(many + 2));
    bench.open(names.join(' '));
    bench.select(nodes);
    return nodes;
}

/// The panel reads the selection once or twice, not once for each row that comes or goes.
void expectFewRefreshes(ModuleBench &bench, const std::function<void()> &action)
{
    bench.log().clear();
    action();
    const int count = bench.log().count("getText");
    expectEqual("values read, at most three for a node", qMax(count, 3 * many), 3 * many);
}

ModuleChecks costChecks()
{
    return {
        {"cost.removal", "The panel is refreshed in proportion to a removal of many nodes.",
         [](ModuleBench &bench) {
             const Nodes nodes = openMany(bench);
             expectFewRefreshes(bench, [&] { bench.service().deleteNodes(nodes); });
             bench.expectTree();
         }},
        {"cost.move", "The panel is refreshed in proportion to a move of many nodes.",
         [](ModuleBench &bench) {
             const Nodes nodes = openMany(bench);
             expectFewRefreshes(bench, [&] { bench.service().moveNodes(nodes, many + 2, 0); });
             bench.expectTree();
         }},
        {"cost.selection", "The panel is refreshed in proportion to a selection of all.",
         [](ModuleBench &bench) {
             openMany(bench);
             bench.select({});
             expectFewRefreshes(bench, [&bench] { bench.call("selectAll"); });
         }},
        {"cost.switch", "The children of a switch are read once or twice, however many change.",
         [](ModuleBench &bench) {
             const Nodes nodes = openMany(bench);
             bench.service().insert(1, -1, QStringLiteral("s%1*()").arg(many + 3));
             for (const QRPC::NodeId node : nodes)
                 bench.service().place(node, many + 3, -1);
             Q_EMIT bench.service().modelReset();
             bench.log().clear();
             Q_EMIT bench.service().enabledStateChanged(nodes);
             const int count = bench.log().count("isEnabled");
             expectEqual("states read, at most three for a node", qMax(count, 3 * many), 3 * many);
         }},
        {"cost.order", "The panel reads the values of a selection in this order.",
         [](ModuleBench &bench) {
             bench.open("a2");
             QStringList read;
             const QStringList calls = bench.callsOf([&bench] {
                 bench.tree().selectionModel()->select(bench.index(2), QItemSelectionModel::Select);
             });
             for (const QString &call : calls) {
                 const QString getter = call.section(' ', 0, 0);
                 if (getter.startsWith("get") && getter != "getRootNode" && !read.contains(getter))
                     read.append(getter);
             }
             expectEqual(
                 "values", read,
                 QStringList({"getName", "getOverlayType", "getText", "getFont", "getFontColor",
                              "getBackgroundColor", "getBackgroundTransparency", "getSizeType",
                              "getSize", "getPosition", "getOffset"}));
             expect("the size is read to its end before the position",
                    calls.lastIndexOf("getSize 2") < calls.indexOf("getPosition 2"));
         }},
        {"cost.creation", "The panel is refreshed in proportion to many created nodes.",
         [](ModuleBench &bench) {
             const Nodes nodes = openMany(bench);
             expectFewRefreshes(bench, [&] { bench.service().duplicateNodes(nodes); });
             bench.expectTree();
         }},
    };
}

} // namespace

ModuleChecks careChecks()
{
    return joined<ModuleBench>({assistChecks(), widthChecks(), mixedChecks(), costChecks()});
}

} // namespace conformance

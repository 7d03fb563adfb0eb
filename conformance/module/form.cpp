// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "kit/FormMember.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>

namespace conformance {

namespace {

const QObject &member(ModuleBench &bench, const char *name)
{
    const auto *found = bench.window().findChild<QObject *>(QString::fromLatin1(name));
    expect(name, found != nullptr);
    return *found;
}

/// "row, column, rows, columns" of an object in the grids of the form; empty when it is in none.
QString cellOf(ModuleBench &bench, const QObject &object)
{
    for (const char *name : {"gridLayout", "gridLayout_2", "gridLayout_4"}) {
        const auto &grid = bench.form<QGridLayout>(name);
        for (int i = 0; i < grid.count(); ++i) {
            QLayoutItem *item = grid.itemAt(i);
            if (item->widget() != &object && item->layout() != &object)
                continue;
            int cell[4];
            grid.getItemPosition(i, &cell[0], &cell[1], &cell[2], &cell[3]);
            return QStringLiteral("%1, %2, %3, %4")
                .arg(cell[0])
                .arg(cell[1])
                .arg(cell[2])
                .arg(cell[3]);
        }
    }
    return QString();
}

QStringList inOrder(const QLayout &layout)
{
    QStringList names;
    for (int i = 0; i < layout.count(); ++i) {
        if (const QWidget *widget = layout.itemAt(i)->widget())
            names.append(widget->objectName());
    }
    return names;
}

template<class T>
bool hasNoFrame(ModuleBench &bench, const char *name)
{
    return bench.form<T>(name).frameShape() == QFrame::NoFrame;
}

} // namespace

// One table, long as it has an entry for each check.
ModuleChecks formChecks() // NOLINT(readability-function-size)
{
    return {
        {"form.classes", "Every member of the form is there under its name, with its class.",
         [](ModuleBench &bench) {
             for (const FormMember &wanted : FormMember::all())
                 expectEqual(wanted.name,
                             QByteArray(member(bench, wanted.name).metaObject()->className()),
                             QByteArray(wanted.className));
         }},
        {"form.parents", "Every member of the form has its parent.",
         [](ModuleBench &bench) {
             for (const FormMember &wanted : FormMember::all()) {
                 const QString parent = QString::fromLatin1(wanted.parent);
                 const QObject *seen = member(bench, wanted.name).parent();
                 if (parent == "window")
                     expect(wanted.name, seen == &bench.window());
                 else if (!parent.isEmpty())
                     expectEqual(wanted.name, seen->objectName(), parent);
             }
         }},
        {"form.cells", "Every member that lies in a grid lies in its cell.",
         [](ModuleBench &bench) {
             for (const FormMember &wanted : FormMember::all()) {
                 const QString cell =
                     wanted.row < 0
                         ? QString()
                         : QStringLiteral("%1, %2, 1, 1").arg(wanted.row).arg(wanted.column);
                 expectEqual(wanted.name, cellOf(bench, member(bench, wanted.name)), cell);
             }
         }},
        {"form.nesting", "Containers hold what they are to hold.",
         [](ModuleBench &bench) {
             expectEqual("central widget", bench.window().centralWidget()->objectName(),
                         QString("centralwidget"));
             expectEqual("status bar", bench.window().statusBar()->objectName(),
                         QString("statusbar"));
             const auto &splitter = bench.form<QSplitter>("splitter");
             expectEqual("panes", splitter.count(), 2);
             expectEqual("first pane", splitter.widget(0)->objectName(),
                         QString("_tree_frame_layout"));
             expectEqual("second pane", splitter.widget(1)->objectName(),
                         QString("_property_scrollArea"));
             expectEqual("scrolled", bench.form<QScrollArea>("_property_scrollArea").widget(),
                         &bench.form<QWidget>("scrollAreaWidgetContents"));
             expect(
                 "the first frame holds its page",
                 bench.form<QWidget>("_property_frame").isAncestorOf(&bench.form<QWidget>("page")));
             expect("the second frame holds its page",
                    bench.form<QWidget>("_size_position_frame")
                        .isAncestorOf(&bench.form<QWidget>("page_2")));
         }},
        {"form.rowOrder", "The box layouts hold their widgets in this order.",
         [](ModuleBench &bench) {
             expectEqual(
                 "verticalLayout", inOrder(bench.form<QVBoxLayout>("verticalLayout")),
                 QStringList({"_property_frame", "_size_position_frame", "_offset_spacer_frame2"}));
             expectEqual("verticalLayout_3", inOrder(bench.form<QVBoxLayout>("verticalLayout_3")),
                         QStringList("_overlay_tree_frame"));
             expectEqual(
                 "horizontalLayout", inOrder(bench.form<QHBoxLayout>("horizontalLayout")),
                 QStringList({"_offset_x_spin_box", "_offset_y_spin_box", "_offset_spacer_frame"}));
         }},
        {"form.texts", "Labels and buttons have their texts.",
         [](ModuleBench &bench) {
             for (const auto &[name, text] : FormMember::texts())
                 expectEqual(name, member(bench, name).property("text").toString(),
                             QString::fromLatin1(text));
         }},
        {"form.captions", "The two frames have their captions.",
         [](ModuleBench &bench) {
             expectEqual("first", member(bench, "_property_frame").property("caption").toString(),
                         QString("Properties"));
             expectEqual("second",
                         member(bench, "_size_position_frame").property("caption").toString(),
                         QString("Size and Position"));
         }},
        {"form.title", "The window is titled Overlay Editor and has no tool tip.",
         [](ModuleBench &bench) {
             expectEqual("title", bench.window().windowTitle(), QString("Overlay Editor"));
             expectEqual("tool tip", bench.window().toolTip(), QString());
         }},
        {"form.size", "The form makes the window 556 by 1346 pixels large.",
         [](ModuleBench &bench) {
             bench.callEntry();
             expectEqual("size", bench.window().size(), QSize(556, 1346));
         },
         Stage::Fresh},
        {"form.frames",
         "Frames, margins and spacing are set so that nothing is drawn around the panes.",
         [](ModuleBench &bench) {
             expect("_tree_frame_layout", hasNoFrame<QFrame>(bench, "_tree_frame_layout"));
             expect("_overlay_tree_frame", hasNoFrame<QFrame>(bench, "_overlay_tree_frame"));
             expect("_property_scrollArea", hasNoFrame<QScrollArea>(bench, "_property_scrollArea"));
             expect("the scrolled widget is resizable",
                    bench.form<QScrollArea>("_property_scrollArea").widgetResizable());
             const auto &layout = bench.form<QVBoxLayout>("verticalLayout_3");
             expectEqual("spacing of the tree's pane", layout.spacing(), 0);
             expectEqual("margins of the tree's pane", layout.contentsMargins(), QMargins());
             expectEqual("margins of the properties",
                         bench.form<QVBoxLayout>("verticalLayout").contentsMargins(), QMargins());
             expectEqual("orientation", int(bench.form<QSplitter>("splitter").orientation()),
                         int(Qt::Horizontal));
         }},
        {"form.leastSizes", "Colour strips, labels and the position box have their least sizes.",
         [](ModuleBench &bench) {
             for (const char *name :
                  {"_background_slider", "_transparency_slider", "_color_slider"})
                 expectEqual(name, bench.form<QWidget>(name).minimumSize(), QSize(0, 16));
             for (const char *name : {"_name_label", "_type_label_2"})
                 expectEqual(name, bench.form<QWidget>(name).minimumWidth(), 150);
             expectEqual("_position_combo_box",
                         bench.form<QWidget>("_position_combo_box").minimumWidth(), 188);
         }},
        {"form.firstButtons", "Text and Absolute are checked at the start.",
         [](ModuleBench &bench) {
             bench.callEntry();
             expect("text", bench.form<QRadioButton>("_text_radio_button").isChecked());
             expect("not image", !bench.form<QRadioButton>("_image_radio_button").isChecked());
             expect("absolute", bench.form<QRadioButton>("_absolute_radio_button").isChecked());
             expect("not relative",
                    !bench.form<QRadioButton>("_relative_radio_button").isChecked());
         },
         Stage::Fresh},
    };
}

} // namespace conformance

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/keys.h"
#include "conformance/module/moduleChecks.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

namespace conformance {

namespace {

using Nodes = QRPC::NodeList;

constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

/// A key in the tree, and the calls that it makes while the nodes 2 and 4 are selected.
struct Key
{
    const char *name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    QStringList calls;
};

std::vector<Key> handledKeys()
{
    return {
        {"delete", Qt::Key_Delete, Qt::NoModifier, {"deleteNodes [2,4]"}},
        {"ctrlD", Qt::Key_D, ctrl, {"duplicateNodes [2,4]"}},
        {"ctrlG", Qt::Key_G, ctrl, {"createGroup 1"}},
        {"ctrlShiftG", Qt::Key_G, ctrlShift, {"groupNodes [2,4]"}},
        {"ctrlT", Qt::Key_T, ctrl, {"setEnabled [2] false", "setEnabled [4] true"}},
        {"ctrlA", Qt::Key_A, ctrl, {}},
        {"ctrlShiftA", Qt::Key_A, ctrlShift, {}},
        {"ctrlI", Qt::Key_I, ctrl, {}},
        {"ctrlF", Qt::Key_F, ctrl, {}},
    };
}

/// Keys that belong to others: the modifiers have to be exactly those of a command.
std::vector<Key> otherKeys()
{
    return {
        {"ctrlAltG", Qt::Key_G, Qt::ControlModifier | Qt::AltModifier, {}},
        {"shiftDelete", Qt::Key_Delete, Qt::ShiftModifier, {}},
        {"ctrlDelete", Qt::Key_Delete, ctrl, {}},
        {"ctrlShiftD", Qt::Key_D, ctrlShift, {}},
        {"ctrlShiftT", Qt::Key_T, ctrlShift, {}},
        {"ctrlX", Qt::Key_X, ctrl, {}},
        {"ctrlShiftMetaG", Qt::Key_G, ctrlShift | Qt::MetaModifier, {}},
        {"keypadDelete", Qt::Key_Delete, Qt::KeypadModifier, {}},
        {"backspace", Qt::Key_Backspace, Qt::NoModifier, {}},
    };
}

void openForKeys(ModuleBench &bench)
{
    bench.open("a2 b3 c4-");
    bench.service().setApplies(false);
    bench.select({2, 4});
}

ModuleChecks callChecks()
{
    ModuleChecks checks;
    for (const Key &key : handledKeys()) {
        checks.push_back(
            {QStringLiteral("key.%1").arg(key.name),
             "The key in the tree is taken and makes these calls.", [key](ModuleBench &bench) {
                 openForKeys(bench);
                 bool taken = false;
                 const QStringList calls =
                     bench.commandsOf([&] { taken = bench.press(key.key, key.modifiers); });
                 expectEqual("calls", calls, key.calls);
                 expect("the key is taken", taken);
             }});
    }
    for (const Key &key : otherKeys()) {
        checks.push_back({QStringLiteral("key.other.%1").arg(key.name),
                          "A key with other modifiers than a command's is left alone.",
                          [key](ModuleBench &bench) {
                              openForKeys(bench);
                              expectEqual("calls", bench.commandsOf([&] {
                                  bench.press(key.key, key.modifiers);
                              }),
                                          QStringList());
                              expectEqual("selection", bench.selected(), Nodes({2, 4}));
                          }});
    }
    return checks;
}

QLineEdit *nameEditor(ModuleBench &bench)
{
    return bench.tree().viewport()->findChild<QLineEdit *>();
}

// One table, long as it has an entry for each check.
ModuleChecks effectChecks() // NOLINT(readability-function-size)
{
    return {
        {"key.ctrlA.selects", "Ctrl+A selects every open row.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bench.press(Qt::Key_A, ctrl);
             expectEqual("selection", bench.selected(), Nodes({2, 3, 4}));
         }},
        {"key.ctrlShiftA.deselects", "Ctrl+Shift+A leaves nothing selected.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bench.select({2, 4});
             bench.press(Qt::Key_A, ctrlShift);
             expectEqual("selection", bench.selected(), Nodes());
         }},
        {"key.ctrlI.inverts", "Ctrl+I inverts the selection.",
         [](ModuleBench &bench) {
             bench.open("a2 g3(b4)");
             bench.select({2});
             bench.press(Qt::Key_I, ctrl);
             expectEqual("selection", bench.selected(), Nodes({3, 4}));
         }},
        {"key.ctrlF.finds", "Ctrl+F puts the focus into the search box.",
         [](ModuleBench &bench) {
             bench.open("a2");
             QWidget &window = bench.window();
             window.show();
             bench.tree().setFocus();
             bench.press(Qt::Key_F, ctrl);
             expect("the box has the focus of the window",
                    window.focusWidget() == &bench.searchBox());
         }},
        {"key.ctrlG.inGroup", "Ctrl+G creates in the group of the first selected row.",
         [](ModuleBench &bench) {
             bench.open("g2(a3) h4()");
             bench.service().setApplies(false);
             bench.select({3, 4});
             expectEqual("calls", bench.commandsOf([&] { bench.press(Qt::Key_G, ctrl); }),
                         QStringList("createGroup 2"));
         }},
        {"key.ctrlR.renames", "Ctrl+R opens the name of the first selected row.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             QWidget &window = bench.window();
             window.show();
             bench.select({3, 2});
             expect("the key is taken", bench.press(Qt::Key_R, ctrl));
             expect("an editor is open", nameEditor(bench) != nullptr);
             expectEqual("its text", nameEditor(bench)->text(), QString("b3"));
         }},
        {"key.ctrlR.nothing", "Ctrl+R with nothing selected opens no editor.",
         [](ModuleBench &bench) {
             bench.open("a2 b3");
             bench.select({});
             bench.press(Qt::Key_R, ctrl);
             expect("no editor is open", nameEditor(bench) == nullptr);
         }},
        {"key.inNameEditor", "Keys that are typed into a name in place are no commands.",
         [](ModuleBench &bench) {
             openForKeys(bench);
             QWidget &window = bench.window();
             window.show();
             QApplication::setActiveWindow(&window);
             bench.press(Qt::Key_R, ctrl);
             QLineEdit *edit = nameEditor(bench);
             expect("an editor is open", edit != nullptr);
             edit->setFocus();
             expect("the editor has the focus", edit->hasFocus());
             const QStringList calls = bench.commandsOf([edit] {
                 for (const Qt::Key key : {Qt::Key_D, Qt::Key_T, Qt::Key_G})
                     keys::press(edit, key, ctrl);
             });
             expectEqual("calls", calls, QStringList());
         }},
        {"key.leftByOthers", "A command takes its key from whoever left it, once and for all.",
         [](ModuleBench &bench) {
             openForKeys(bench);
             QKeyEvent event(QEvent::KeyPress, Qt::Key_D, ctrl);
             event.ignore();
             const QStringList calls =
                 bench.commandsOf([&] { QCoreApplication::sendEvent(&bench.tree(), &event); });
             expectEqual("calls", calls, QStringList("duplicateNodes [2,4]"));
             expect("nobody else gets it", event.isAccepted());
         }},
        {"key.othersMove", "A key of no command does in the tree what it does in every tree.",
         [](ModuleBench &bench) {
             bench.openShown("a2 b3");
             bench.tree().setCurrentIndex(bench.index(2));
             expect("the key is taken", bench.press(Qt::Key_Down));
             expectEqual("selection", bench.selected(), Nodes({3}));
         }},
        {"key.elsewhere", "Keys in other widgets of the panel are no commands.",
         [](ModuleBench &bench) {
             openForKeys(bench);
             const QStringList calls = bench.commandsOf([&bench] {
                 for (const Key &key : handledKeys()) {
                     if (key.key != Qt::Key_Delete)
                         keys::press(&bench.searchBox(), key.key, key.modifiers);
                 }
             });
             expectEqual("calls", calls, QStringList());
         }},
        {"key.otherObjects", "What others are told passes the editor.",
         [](ModuleBench &bench) {
             openForKeys(bench);
             QKeyEvent event(QEvent::KeyPress, Qt::Key_D, ctrl);
             const QStringList calls = bench.commandsOf([&bench, &event] {
                 expect("it passes", !bench.editor().eventFilter(&bench.searchBox(), &event));
             });
             expectEqual("calls", calls, QStringList());
         }},
        {"key.menuLeavesEvent", "What opens the menu reaches the tree view too.",
         [](ModuleBench &bench) {
             bench.open("a2");
             bench.window().show();
             QTimer::singleShot(0, &bench.menu(), [&bench] { bench.menu().close(); });
             bench.tree().setContextMenuPolicy(Qt::CustomContextMenu);
             bool heard = false;
             const auto connection = QObject::connect(
                 &bench.tree(), &QWidget::customContextMenuRequested, [&heard] { heard = true; });
             QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5));
             QCoreApplication::sendEvent(&bench.tree(), &event);
             QObject::disconnect(connection);
             bench.tree().setContextMenuPolicy(Qt::DefaultContextMenu);
             expect("the view has seen it", heard);
         }},
        {"key.menuAtMouse", "A right click opens the menu, which can be left again.",
         [](ModuleBench &bench) {
             bench.open("a2");
             QWidget &window = bench.window();
             window.show();
             bool opened = false;
             QTimer::singleShot(0, &bench.menu(), [&bench, &opened] {
                 opened = bench.menu().isVisible();
                 bench.menu().close();
             });
             QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5));
             QCoreApplication::sendEvent(&bench.tree(), &event);
             expect("the menu was open", opened);
         }},
    };
}

} // namespace

ModuleChecks keyChecks()
{
    return joined<ModuleBench>({callChecks(), effectChecks()});
}

} // namespace conformance

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/kxIconManager.h"
#include "host/kxShortcut.h"
#include "kit/CallCounter.h"
#include "kit/FormMember.h"
#include "kit/editorSlots.h"

#include <QGridLayout>
#include <QMetaMethod>
#include <QPlainTextEdit>

#include <stdexcept>

namespace conformance {

namespace {

QString keyLine(const QString &text, int key, int modifiers)
{
    return QStringLiteral("%1 %2 %3").arg(text).arg(key).arg(modifiers);
}

QStringList registeredKeys()
{
    QStringList lines;
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    for (const kxShortcut::Entry &key : keys)
        lines.append(keyLine(key.category + ": " + key.description, key.key, key.modifiers));
    return lines;
}

QStringList wantedKeys()
{
    const int ctrl = Qt::ControlModifier;
    const int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    return {
        keyLine("Overlay Editor: Delete Overlays", Qt::Key_Delete, 0),
        keyLine("Overlay Editor: Duplicate Overlay", Qt::Key_D, ctrl),
        keyLine("Overlay Editor: Rename Overlay", Qt::Key_R, ctrl),
        keyLine("Overlay Editor: Find Overlay", Qt::Key_F, ctrl),
        keyLine("Overlay Editor: Select All Overlays", Qt::Key_A, ctrl),
        keyLine("Overlay Editor: Deselect All Overlays", Qt::Key_A, ctrlShift),
        keyLine("Overlay Editor: Invert Selection", Qt::Key_I, ctrl),
        keyLine("Overlay Editor: Toggle Overlay Enabled State", Qt::Key_T, ctrl),
        keyLine("Overlay Editor: Create Group", Qt::Key_G, ctrl),
        keyLine("Overlay Editor: Create Group from selection", Qt::Key_G, ctrlShift),
    };
}

QStringList slotsOf(const QObject &object)
{
    QStringList all;
    const QMetaObject *meta = object.metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Slot)
            all.append(QString::fromLatin1(meta->method(i).methodSignature()));
    }
    return all;
}

int receivers(ModuleBench &bench, const char *signal)
{
    return bench.service().receivers(signal);
}

void failAt(ModuleBench &bench, const char *call)
{
    bench.host().throwAt(call);
    bool thrown = false;
    try {
        bench.callEntry();
    } catch (const std::runtime_error &) {
        thrown = true;
    }
    expect("the exception of a service comes out of the entry", thrown);
    bench.host().throwAt(QString());
    expectEqual("listeners left behind", receivers(bench, SIGNAL(nodesAdded(QRPC::NodeList))), 0);
    expectEqual("keys left behind", registeredKeys(), QStringList());
    for (const HostFixture::Registration &registration : bench.host().registrations())
        expect("the window is gone", registration.window.isNull());
    bench.callEntry();
    expect("the next call builds a window", !bench.host().registrations().last().window.isNull());
}

} // namespace

// One table, long as it has an entry for each check.
ModuleChecks entryChecks() // NOLINT(readability-function-size)
{
    return {
        {"entry.registersOneWindow", "The first call registers the window with these words.",
         [](ModuleBench &bench) {
             expectEqual("registrations", bench.host().registrations().size(), 1);
             const auto module = bench.host().registrations().first();
             expectEqual("name", module.name, QString("Overlay Editor"));
             expectEqual("category", module.category, QString("Scene"));
             expectEqual("help identifier", module.helpId, QString("Tipreel_Overlays"));
             expectEqual("title", module.title, QString("Overlays"));
             expectEqual("flag", module.flag, 0);
         }},
        {"entry.moduleIcon", "The module is registered with the icon ModuleOverlay.",
         [](ModuleBench &bench) {
             const auto imageOf = [](const QIcon &icon) { return icon.pixmap(32, 32).toImage(); };
             const QImage wanted = imageOf(kxIconManager::getIcon("ModuleOverlay", ""));
             const QIcon icon = bench.host().registrations().first().icon;
             expect("the icon is that of the icon manager", imageOf(icon) == wanted);
         }},
        {"entry.windowClass", "The window is a kxOverlayEditorGUIW, a QMainWindow with one signal.",
         [](ModuleBench &bench) {
             const QMetaObject *meta = bench.window().metaObject();
             expectEqual("class", QByteArray(meta->className()), QByteArray("kxOverlayEditorGUIW"));
             expectEqual("base", QByteArray(meta->superClass()->className()),
                         QByteArray("QMainWindow"));
             expectEqual("own methods", meta->methodCount() - meta->methodOffset(), 1);
             expectEqual("own signal", meta->method(meta->methodOffset()).methodSignature(),
                         QByteArray("show()"));
         }},
        {"entry.windowName", "The window is named Module before the form is set up, and stays so.",
         [](ModuleBench &bench) {
             expectEqual("name when registered", bench.host().registrations().first().objectName,
                         QString("Module"));
             expectEqual("name", bench.window().objectName(), QString("Module"));
         }},
        {"entry.windowParent", "The window is a child of the host's main window.",
         [](ModuleBench &bench) {
             expect("the parent is the main window",
                    bench.window().parentWidget() == &bench.host().mainWindow());
         }},
        {"entry.registersBeforeFilling",
         "The window is registered when it has its form and before it has its tree.",
         [](ModuleBench &bench) {
             expect("it had its form", bench.host().registrations().first().hadForm);
             expect("it had no tree yet", !bench.host().registrations().first().hadTree);
         }},
        {"entry.laterCallsDoNothing", "Later calls of the entry do nothing.",
         [](ModuleBench &bench) {
             const QStringList calls = bench.callsOf([&bench] {
                 bench.callEntry();
                 bench.callEntry();
             });
             expectEqual("calls", calls, QStringList());
             expectEqual("registrations", bench.host().registrations().size(), 1);
             expectEqual("keys", registeredKeys().size(), 10);
             expectEqual("listeners", receivers(bench, SIGNAL(nodesAdded(QRPC::NodeList))), 1);
         }},
        {"entry.shortcuts", "Ten keys are registered under Overlay Editor, in this order.",
         [](ModuleBench &) { expectEqual("keys", registeredKeys(), wantedKeys()); }},
        {"entry.slotOrder", "The editor declares its 53 slots in this order.",
         [](ModuleBench &bench) { expectEqual("slots", slotsOf(bench.editor()), editorSlots()); }},
        {"entry.hearsInit", "The editor listens to the host's init() and does nothing then.",
         [](ModuleBench &bench) {
             expectEqual("listeners", bench.host().initReceivers(), 1);
             expectEqual("calls", bench.callsOf([&bench] { bench.host().announceInit(); }),
                         QStringList());
         }},
        {"entry.showIsToldOnce", "Each showing of the window emits show() once.",
         [](ModuleBench &bench) {
             const CallCounter told(&bench.window(), SIGNAL(show()));
             QWidget &window = bench.window();
             window.show();
             expectEqual("signals", told.count(), 1);
             expect("the window is visible", window.isVisible());
             window.hide();
             expectEqual("signals after hiding", told.count(), 1);
             window.setVisible(true);
             expectEqual("signals after the second showing", told.count(), 2);
         }},
        {"entry.showRaises", "Each showing of the window raises it.",
         [](ModuleBench &bench) {
             bench.enter();
             QWidget outer;
             QWidget &window = bench.window();
             window.setParent(&outer);
             window.hide();
             auto *above = new QWidget(&outer);
             outer.show();
             above->raise();
             window.show();
             const bool raised = outer.children().last() == &window;
             window.setParent(&bench.host().mainWindow(), Qt::Window);
             expect("the window stands above its siblings", raised);
         },
         Stage::Fresh},
        {"entry.headless",
         "Without user interface there is a model and no window, key or listener.",
         [](ModuleBench &bench) {
             bench.host().headless = true;
             bench.callEntry();
             expectEqual("registrations", bench.host().registrations().size(), 0);
             expectEqual("keys", registeredKeys(), QStringList());
             expectEqual("calls", bench.log().lines(), QStringList("controller.isHeadless"));
             expectEqual("listeners to init", bench.host().initReceivers(), 0);
             expectEqual("listeners to nodesAdded",
                         receivers(bench, SIGNAL(nodesAdded(QRPC::NodeList))), 1);
             expectEqual("listeners to nodesCreated",
                         receivers(bench, SIGNAL(nodesCreated(QRPC::NodeList))), 0);
             expectEqual("listeners to textChanged",
                         receivers(bench, SIGNAL(textChanged(QRPC::NodeList))), 0);
         },
         Stage::Fresh},
        {"entry.headlessMirrors", "Without user interface the model follows the service.",
         [](ModuleBench &bench) {
             bench.host().headless = true;
             bench.callEntry();
             bench.service().build("a2 g3(b4)");
             const QStringList calls =
                 bench.callsOf([&bench] { Q_EMIT bench.service().modelReset(); });
             expect("the reset reads the names", calls.contains("getName 4"));
             expectEqual("writes", bench.commandsOf([&bench] {
                 bench.service().setEnabled({3}, false);
                 bench.service().deleteNodes({2});
             }),
                         QStringList({"setEnabled [3] false", "deleteNodes [2]"}));
         },
         Stage::Fresh},
        {"entry.failsWithoutTraceAtWindow",
         "An exception of a service leaves nothing behind, and the next call tries again.",
         [](ModuleBench &bench) { failAt(bench, "mainWindow.registerModule"); }, Stage::Fresh},
        {"entry.failsWithoutTraceAtSizes",
         "An exception late in the construction leaves nothing behind either.",
         [](ModuleBench &bench) { failAt(bench, "platform.getScaleFactorY"); }, Stage::Fresh},
        {"entry.emptyBeforeReset", "The tree is empty until the first modelReset().",
         [](ModuleBench &bench) {
             bench.service().build("a2 g3(b4)");
             bench.callEntry();
             expectEqual("rows", bench.model().rowCount(), 0);
             Q_EMIT bench.service().modelReset();
             bench.expectTree();
         },
         Stage::Fresh},
        {"entry.asksServicesInOrder", "The services of the window are asked in the stated order.",
         [](ModuleBench &bench) {
             bench.callEntry();
             QStringList calls;
             const QStringList lines = bench.log().lines();
             for (const QString &line : lines) {
                 if (line.contains('.'))
                     calls.append(line);
             }
             expectEqual("calls", calls,
                         QStringList({"controller.isHeadless", "mainWindow.getMainWindow",
                                      "mainWindow.registerModule", "platform.getIconWidth",
                                      "platform.getIconHeight", "platform.getScaleFactorX",
                                      "platform.getScaleFactorY", "platform.getScaleFactorX"}));
         },
         Stage::Fresh},
        {"entry.scaledSizes", "Sizes are scaled by the display's factors and truncated.",
         [](ModuleBench &bench) {
             bench.host().scaleX = 1.25;
             bench.host().scaleY = 1.33;
             bench.callEntry();
             expectEqual("tree frame", bench.form<QWidget>("_overlay_tree_frame").minimumSize(),
                         QSize(162, 0));
             const auto &text = bench.form<QPlainTextEdit>("_text_edit");
             expectEqual("least height of the text", text.minimumHeight(), 93);
             expectEqual("greatest height of the text", text.maximumHeight(), 93);
             for (const char *name : {"_offset_x_spin_box", "_offset_y_spin_box"})
                 expectEqual(name, bench.form<QWidget>(name).minimumSize(), QSize(113, 0));
         },
         Stage::Fresh},
        {"entry.labelsLineUp", "The labels of both frames have one width, at least 130.",
         [](ModuleBench &bench) {
             const int width = bench.form<QGridLayout>("gridLayout_2").columnMinimumWidth(0);
             expect("the column is 130 pixels wide or wider", width >= 130);
             expectEqual("second column", width,
                         bench.form<QGridLayout>("gridLayout_4").columnMinimumWidth(0));
         }},
        {"entry.inputsStartDisabled",
         "Nothing is selected at the start: name and inputs are disabled.",
         [](ModuleBench &bench) {
             bench.callEntry();
             for (const char *name : FormMember::inputs())
                 expect(name, !bench.form<QWidget>(name).isEnabled());
             expect("the name is disabled", !bench.form<QWidget>("_overlay_name").isEnabled());
             expect("the tree is enabled", bench.tree().isEnabled());
         },
         Stage::Fresh},
        {"entry.endsRegularly", "The process ends regularly after its window is gone.",
         [](ModuleBench &bench) {
             bench.enter();
             bench.open("a2 g3(b4 s5*(c6))");
             bench.select({2, 4});
             bench.service().deleteNodes({3});
         },
         Stage::Ending},
        {"entry.outlivesItsWindow", "A host may take the window down before its services.",
         [](ModuleBench &bench) {
             bench.enter();
             bench.open("g2(a3) b4");
             bench.select({3, 4});
             delete &bench.window();
             bench.service().setName({3}, "x3");
             bench.service().setOffsetX({3, 4}, 5.0F);
             bench.service().createOverlay(2);
             bench.service().deleteNodes({3});
             Q_EMIT bench.service().modelReset();
             bench.host().announceInit();
         },
         Stage::Ending},
    };
}

} // namespace conformance

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxKernelServiceFactory.h"
#include "host/kxShortcut.h"
#include "kit/editorSlots.h"
#include "tests/overlayeditor/EditorTest.h"

#include <QPlainTextEdit>
#include <QSignalSpy>

#include <stdexcept>

/// Construction, registration and end of the editor.
class tst_kxOverlayEditor_lifecycle : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAskItsHostInOrder();
    void shouldRegisterItsWindow();
    void shouldNameItsWindowBeforeTheForm();
    void shouldRegisterTenShortcutsInOrder();
    void shouldScaleItsSizes_data();
    void shouldScaleItsSizes();
    void shouldDeclareFiftyThreeSlotsInOrder();
    void shouldDeclareOneSignalOfItsWindow();
    void shouldBuildNoWindowForAHeadlessHost();
    void shouldNeedNoWindowServicesForAHeadlessHost();
    void shouldListenToTheHostsInit();
    void shouldTellOfEachShowingOnce();
    void shouldRaiseItsWindowWhenItIsShown();
    void shouldOnlyTellWhenShownThroughItsOwnType();
    void shouldLeaveItsWindowWhenItEnds();
    void shouldOutliveItsWindow();
    void shouldLeaveNothingBehindWhenConstructionFails_data();
    void shouldLeaveNothingBehindWhenConstructionFails();
    void shouldEnableItsInputs();
    void shouldRefreshThePanelWhenNodesAreRemoved();
    void shouldRefreshThePanelAfterAReset();
};

void tst_kxOverlayEditor_lifecycle::shouldAskItsHostInOrder()
{
    openEditor();
    kxOverlayEditor second;
    QStringList calls;
    for (const QString &line : log().lines()) {
        if (line.contains('.'))
            calls.append(line);
    }
    QCOMPARE(calls, (QStringList{"controller.isHeadless", "mainWindow.getMainWindow",
                                 "mainWindow.registerModule", "platform.getIconWidth",
                                 "platform.getIconHeight", "platform.getScaleFactorX",
                                 "platform.getScaleFactorY", "platform.getScaleFactorX"}));
}

void tst_kxOverlayEditor_lifecycle::shouldRegisterItsWindow()
{
    openEditor();
    QCOMPARE(host().registrations().size(), 1);
    const HostFixture::Registration module = host().registrations().first();
    QCOMPARE(module.name, QString("Overlay Editor"));
    QCOMPARE(module.category, QString("Scene"));
    QVERIFY(qobject_cast<kxOverlayEditorGUIW *>(module.window.data()));
    QCOMPARE(module.helpId, QString("Tipreel_Overlays"));
    QCOMPARE(module.title, QString("Overlays"));
    QCOMPARE(module.flag, 0);
    QVERIFY(!module.icon.isNull());
    const QSize size(32, 32);
    QCOMPARE(module.icon.pixmap(size).toImage(),
             kxIconManager::getIcon("ModuleOverlay", "").pixmap(size).toImage());
    QCOMPARE(module.window->parentWidget(), &host().mainWindow());
    QVERIFY(module.hadForm);
    QVERIFY(!module.hadTree);
}

void tst_kxOverlayEditor_lifecycle::shouldNameItsWindowBeforeTheForm()
{
    openEditor();
    QCOMPARE(host().registrations().first().objectName, QString("Module"));
    QCOMPARE(window().objectName(), QString("Module"));
    QCOMPARE(window().windowTitle(), QString("Overlay Editor"));
}

void tst_kxOverlayEditor_lifecycle::shouldRegisterTenShortcutsInOrder()
{
    openEditor();
    const int ctrl = Qt::ControlModifier;
    const int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    const struct
    {
        const char *description;
        int key;
        int modifiers;
    } wanted[] = {
        {"Delete Overlays", Qt::Key_Delete, 0},
        {"Duplicate Overlay", Qt::Key_D, ctrl},
        {"Rename Overlay", Qt::Key_R, ctrl},
        {"Find Overlay", Qt::Key_F, ctrl},
        {"Select All Overlays", Qt::Key_A, ctrl},
        {"Deselect All Overlays", Qt::Key_A, ctrlShift},
        {"Invert Selection", Qt::Key_I, ctrl},
        {"Toggle Overlay Enabled State", Qt::Key_T, ctrl},
        {"Create Group", Qt::Key_G, ctrl},
        {"Create Group from selection", Qt::Key_G, ctrlShift},
    };
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    QCOMPARE(keys.size(), int(std::size(wanted)));
    for (int i = 0; i < keys.size(); ++i) {
        QCOMPARE(keys.at(i).category, QString("Overlay Editor"));
        QCOMPARE(keys.at(i).description, QString(wanted[i].description));
        QCOMPARE(keys.at(i).key, wanted[i].key);
        QCOMPARE(keys.at(i).modifiers, wanted[i].modifiers);
    }
}

void tst_kxOverlayEditor_lifecycle::shouldScaleItsSizes_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("treeWidth");
    QTest::addColumn<int>("textHeight");
    QTest::addColumn<int>("offsetWidth");
    QTest::newRow("usual") << 1.0 << 1.0 << 130 << 70 << 91;
    QTest::newRow("one and a half") << 1.5 << 1.5 << 195 << 105 << 136;
    QTest::newRow("truncated, not rounded") << 1.25 << 1.33 << 162 << 93 << 113;
}

void tst_kxOverlayEditor_lifecycle::shouldScaleItsSizes()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(int, treeWidth);
    QFETCH(int, textHeight);
    QFETCH(int, offsetWidth);
    host().scaleX = x;
    host().scaleY = y;
    openEditor();
    QCOMPARE(window()._overlay_tree_frame->minimumSize(), QSize(treeWidth, 0));
    QCOMPARE(window()._text_edit->minimumHeight(), textHeight);
    QCOMPARE(window()._text_edit->maximumHeight(), textHeight);
    QCOMPARE(window()._offset_x_spin_box->minimumSize(), QSize(offsetWidth, 0));
    QCOMPARE(window()._offset_y_spin_box->minimumSize(), QSize(offsetWidth, 0));
}

void tst_kxOverlayEditor_lifecycle::shouldDeclareFiftyThreeSlotsInOrder()
{
    const QMetaObject &meta = kxOverlayEditor::staticMetaObject;
    QStringList declared;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(i).access(), QMetaMethod::Private);
        declared.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(declared, editorSlots());
}

void tst_kxOverlayEditor_lifecycle::shouldDeclareOneSignalOfItsWindow()
{
    const QMetaObject &meta = kxOverlayEditorGUIW::staticMetaObject;
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    const QMetaMethod show = meta.method(meta.methodOffset());
    QCOMPARE(show.methodType(), QMetaMethod::Signal);
    QCOMPARE(show.methodSignature(), QByteArray("show()"));
    QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QMainWindow"));
}

void tst_kxOverlayEditor_lifecycle::shouldBuildNoWindowForAHeadlessHost()
{
    host().headless = true;
    openEditor("a2 g3()");
    QCOMPARE(kxOverlayEditor::_the, &editor());
    QVERIFY(host().registrations().isEmpty());
    QVERIFY(host().mainWindow().findChildren<QTreeView *>().isEmpty());
    QVERIFY(kxShortcut::registeredKeys().isEmpty());
    QCOMPARE(host().initReceivers(), 0);
    QCOMPARE(service().receivers(SIGNAL(modelReset())), 1);
    QCOMPARE(service().receivers(SIGNAL(nodesAdded(QRPC::NodeList))), 1);
    QCOMPARE(service().receivers(SIGNAL(nodesCreated(QRPC::NodeList))), 0);
    QCOMPARE(service().receivers(SIGNAL(textChanged(QRPC::NodeList))), 0);
    QCOMPARE(commandsOf([this] { service().setName({2}, "x2"); }),
             QStringList("setName [2] \"x2\""));
}

void tst_kxOverlayEditor_lifecycle::shouldNeedNoWindowServicesForAHeadlessHost()
{
    host().headless = true;
    kxKernelServiceFactory::the()->unregisterService<kxMainWindowService>();
    kxKernelServiceFactory::the()->unregisterService<kxPlatformService>();
    kxKernelServiceFactory::the()->unregisterService<kxBaseService>();
    openEditor("a2");
    QCOMPARE(kxOverlayEditor::_the, &editor());
}

void tst_kxOverlayEditor_lifecycle::shouldListenToTheHostsInit()
{
    openEditor("a2");
    QCOMPARE(host().initReceivers(), 1);
    host().announceInit();
    QCOMPARE(log().lines(), QStringList());
}

void tst_kxOverlayEditor_lifecycle::shouldTellOfEachShowingOnce()
{
    openEditor();
    QSignalSpy told(&window(), SIGNAL(show()));
    QWidget &widget = window();
    widget.show();
    QCOMPARE(told.count(), 1);
    QVERIFY(widget.isVisible());
    widget.hide();
    QCOMPARE(told.count(), 1);
    widget.setVisible(true);
    QCOMPARE(told.count(), 2);
}

void tst_kxOverlayEditor_lifecycle::shouldRaiseItsWindowWhenItIsShown()
{
    openEditor();
    QWidget outer;
    QWidget &panel = window();
    panel.setParent(&outer);
    panel.hide(); // so that its parent does not show it
    auto *above = new QWidget(&outer);
    outer.show();
    QCOMPARE(outer.children().last(), above);
    panel.show();
    QCOMPARE(outer.children().last(), &panel);
    above->raise();
    panel.hide();
    panel.show();
    QCOMPARE(outer.children().last(), &panel);
    panel.setParent(&host().mainWindow(), Qt::Window);
}

void tst_kxOverlayEditor_lifecycle::shouldOnlyTellWhenShownThroughItsOwnType()
{
    openEditor();
    QSignalSpy told(&window(), SIGNAL(show()));
    Q_EMIT window().show();
    QCOMPARE(told.count(), 1);
    QVERIFY(!window().isVisible());
}

void tst_kxOverlayEditor_lifecycle::shouldLeaveItsWindowWhenItEnds()
{
    openEditor("a2 g3(b4)");
    showWindow();
    select({2, 4});
    call("renameOverlay");
    QVERIFY(nameEditor());
    const QPointer<QWidget> panel(&window());
    const QPointer<kxOverlayQtModel> shownModel(&model());
    const kxOverlayEditor *const address = &editor();
    dropEditor();
    QVERIFY(panel);
    QVERIFY(!shownModel);
    QCOMPARE(static_cast<const void *>(kxOverlayEditor::_the), static_cast<const void *>(address));
    QCOMPARE(service().receivers(SIGNAL(modelReset())), 0);
    QCOMPARE(service().receivers(SIGNAL(textChanged(QRPC::NodeList))), 0);
    panel->show();
}

/// A host that closes takes its main window down before its services.
void tst_kxOverlayEditor_lifecycle::shouldOutliveItsWindow()
{
    openEditor("g2(a3) b4");
    select({3, 4});
    delete &window();
    service().setName({3}, "x3");
    service().setOffsetX({3, 4}, 5.0F);
    service().createOverlay(2);
    service().deleteNodes({3});
    Q_EMIT service().modelReset();
    host().announceInit();
    QCOMPARE(log().count("getOffset"), 0);
    QCOMPARE(service().receivers(SIGNAL(nodesCreated(QRPC::NodeList))), 0);
    QCOMPARE(service().receivers(SIGNAL(nodesAdded(QRPC::NodeList))), 1);
}

void tst_kxOverlayEditor_lifecycle::shouldLeaveNothingBehindWhenConstructionFails_data()
{
    QTest::addColumn<QString>("call");
    for (const char *call :
         {"controller.isHeadless", "mainWindow.getMainWindow", "mainWindow.registerModule",
          "platform.getIconWidth", "platform.getIconHeight", "platform.getScaleFactorX",
          "platform.getScaleFactorY"})
        QTest::newRow(call) << call;
}

void tst_kxOverlayEditor_lifecycle::shouldLeaveNothingBehindWhenConstructionFails()
{
    QFETCH(QString, call);
    host().throwAt(call);
    QVERIFY_EXCEPTION_THROWN(openEditor("a2"), std::runtime_error);
    QCOMPARE(kxOverlayEditor::_the, nullptr);
    QCOMPARE(service().receivers(SIGNAL(modelReset())), 0);
    QCOMPARE(service().receivers(SIGNAL(nameChanged(QRPC::NodeList))), 0);
    for (const QObject *child : host().mainWindow().children())
        QVERIFY(!qobject_cast<const kxOverlayEditorGUIW *>(child));
    QVERIFY(kxShortcut::registeredKeys().isEmpty());
    host().throwAt(QString());
    log().clear();
    auto again = std::make_unique<kxOverlayEditor>();
    QCOMPARE(kxOverlayEditor::_the, again.get());
}

void tst_kxOverlayEditor_lifecycle::shouldEnableItsInputs()
{
    openEditor("a2");
    const kxOverlayEditorGUIW &form = window();
    const QList<const QWidget *> inputs{
        form._image_radio_button,  form._text_radio_button,     form._text_edit,
        form._font_combo_box,      form._color_slider,          form._background_slider,
        form._transparency_slider, form._absolute_radio_button, form._relative_radio_button,
        form._size_slider,         form._position_combo_box,    form._offset_x_spin_box,
        form._offset_y_spin_box};
    const bool nameEnabled = form._overlay_name->isEnabled();
    const bool imageEnabled = form._image_edit->isEnabled();
    for (const bool enabled : {true, false, true}) {
        editor().setInputEnabled(enabled);
        for (const QWidget *input : inputs)
            QVERIFY2(input->isEnabled() == enabled, qPrintable(input->objectName()));
        QCOMPARE(form._overlay_name->isEnabled(), nameEnabled);
        QCOMPARE(form._image_edit->isEnabled(), imageEnabled);
        QVERIFY(tree().isEnabled());
    }
}

void tst_kxOverlayEditor_lifecycle::shouldRefreshThePanelWhenNodesAreRemoved()
{
    openEditor("a2 b3");
    select({2, 3});
    QVERIFY(window()._overlay_name->isEnabled());
    service().deleteNodes({3});
    QCOMPARE(window()._overlay_name->text(), QString("a2"));
    QVERIFY(window()._overlay_name->isEnabled());
    service().deleteNodes({2});
    QVERIFY(!window()._overlay_name->isEnabled());
}

void tst_kxOverlayEditor_lifecycle::shouldRefreshThePanelAfterAReset()
{
    openEditor("a2 b3");
    select({2});
    QVERIFY(window()._overlay_name->isEnabled());
    Q_EMIT service().modelReset();
    QVERIFY(!window()._overlay_name->isEnabled());
    QVERIFY(!window()._text_edit->isEnabled());
}

KX_TEST_MAIN(tst_kxOverlayEditor_lifecycle)
#include "tst_kxOverlayEditor_lifecycle.moc"

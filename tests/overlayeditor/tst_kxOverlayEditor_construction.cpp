// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXToolBar.h"
#include "host/kxShortcut.h"
#include "kit/MarkingTranslator.h"
#include "tests/overlayeditor/EditorTest.h"

#include <QAction>
#include <QButtonGroup>
#include <QMenu>
#include <QTranslator>

namespace {

/// The toolkit's own translation of one key.
class KeyTranslator : public QTranslator
{
public:
    KeyTranslator() { QCoreApplication::installTranslator(this); }
    ~KeyTranslator() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY(KeyTranslator)

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        const bool isKey = qstrcmp(context, "QShortcut") == 0 && qstrcmp(text, "Ctrl") == 0;
        return isKey ? QStringLiteral("Strg") : QString();
    }
};

bool isMarked(const QString &text)
{
    return text.startsWith(QLatin1Char('*'));
}

} // namespace

/// The order in which the editor is built, and the texts that it is built with.
class tst_kxOverlayEditor_construction : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldHaveItsModelAndItsPointerBeforeItAsksForAWindow();
    void shouldRegisterItsWindowBeforeItFillsIt();
    void shouldBuildThePanelsBeforeItScalesThem();
    void shouldBuildThePropertiesBeforeTheQuickActions();
    void shouldRegisterItsKeysBehindItsSizes();
    void shouldRefreshThePanelLast();
    void shouldLineUpTheLabelsOfBothFrames();
    void shouldTranslateWhatTheUserSees();

private:
    /// Builds the editor and runs `look` inside its first call of `call`.
    void lookAt(const QString &call, const std::function<void()> &look);
};

void tst_kxOverlayEditor_construction::lookAt(const QString &call,
                                              const std::function<void()> &look)
{
    int calls = 0;
    host().onCall = [&](const QString &made) {
        if (made == call && ++calls == 1)
            look();
    };
    openEditor("a2");
    host().onCall = nullptr;
    QVERIFY2(calls > 0, qPrintable(call));
}

void tst_kxOverlayEditor_construction::shouldHaveItsModelAndItsPointerBeforeItAsksForAWindow()
{
    kxOverlayEditor::_the = nullptr;
    const kxOverlayEditor *pointer = nullptr;
    int models = 0;
    lookAt("controller.isHeadless", [&] {
        pointer = kxOverlayEditor::_the;
        models = service().receivers(SIGNAL(modelReset()));
    });
    QCOMPARE(pointer, &editor());
    QCOMPARE(models, 1);
}

void tst_kxOverlayEditor_construction::shouldRegisterItsWindowBeforeItFillsIt()
{
    int windows = -1;
    lookAt("mainWindow.getMainWindow",
           [&] { windows = host().mainWindow().findChildren<kxOverlayEditorGUIW *>().size(); });
    QCOMPARE(windows, 0);
    QVERIFY(host().registrations().first().hadForm);
    QVERIFY(!host().registrations().first().hadTree);
}

void tst_kxOverlayEditor_construction::shouldBuildThePanelsBeforeItScalesThem()
{
    lookAt("platform.getScaleFactorX", [this] {
        QVERIFY(tree().findChild<QMenu *>());
        QVERIFY(window().findChild<QKXToolBar *>("QuickActionBar"));
        QCOMPARE(window()._position_combo_box->count(), 9);
        QVERIFY(window()._image_edit->isHidden());
        QCOMPARE(service().receivers(SIGNAL(textChanged(QRPC::NodeList))), 1);
        QVERIFY(window().gridLayout_2->columnMinimumWidth(0) > 0);
        QCOMPARE(window()._overlay_tree_frame->minimumWidth(), 0);
    });
}

void tst_kxOverlayEditor_construction::shouldBuildThePropertiesBeforeTheQuickActions()
{
    openEditor();
    QVector<const QMetaObject *> classes;
    for (const QObject *child : editor().children())
        classes.append(child->metaObject());
    QCOMPARE(classes, (QVector<const QMetaObject *>{
                          &QButtonGroup::staticMetaObject, &QButtonGroup::staticMetaObject,
                          &QAction::staticMetaObject, &QAction::staticMetaObject,
                          &QAction::staticMetaObject}));
}

void tst_kxOverlayEditor_construction::shouldRegisterItsKeysBehindItsSizes()
{
    int keys = -1;
    int initReceivers = -1;
    lookAt("platform.getScaleFactorY", [&] {
        keys = kxShortcut::registeredKeys().size();
        initReceivers = host().initReceivers();
    });
    QCOMPARE(keys, 0);
    QCOMPARE(initReceivers, 0);
    QCOMPARE(kxShortcut::registeredKeys().size(), 10);
    QCOMPARE(host().initReceivers(), 1);
}

void tst_kxOverlayEditor_construction::shouldRefreshThePanelLast()
{
    openEditor();
    host().onCall = [this](const QString &call) {
        if (call == "platform.getScaleFactorY") {
            window()._overlay_name->setEnabled(true);
            window()._text_edit->setEnabled(true);
        }
    };
    const kxOverlayEditor second; // no reset follows, which would refresh the panel too
    QVERIFY(!window()._overlay_name->isEnabled());
    QVERIFY(!window()._text_edit->isEnabled());
}

void tst_kxOverlayEditor_construction::shouldLineUpTheLabelsOfBothFrames()
{
    openEditor();
    const int width = window().gridLayout_2->columnMinimumWidth(0);
    QVERIFY(width >= 130);
    QVERIFY(width >= window()._transparency_label->sizeHint().width());
    QCOMPARE(window().gridLayout_4->columnMinimumWidth(0), width);
}

void tst_kxOverlayEditor_construction::shouldTranslateWhatTheUserSees()
{
    const MarkingTranslator translator("kxOverlayEditor");
    const KeyTranslator keyTranslator;
    openEditor();

    const HostFixture::Registration &module = host().registrations().first();
    QCOMPARE(module.title, QString("*Overlays"));
    QCOMPARE(module.name, QString("Overlay Editor"));
    QCOMPARE(module.category, QString("Scene"));
    QCOMPARE(module.helpId, QString("Tipreel_Overlays"));
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    for (const kxShortcut::Entry &key : keys)
        QVERIFY2(isMarked(key.category) && isMarked(key.description), qPrintable(key.description));
    const QList<QAction *> entries = tree().findChild<QMenu *>()->actions();
    for (const QAction *entry : entries)
        QVERIFY2(entry->isSeparator() || isMarked(entry->text()), qPrintable(entry->text()));
    QCOMPARE(entries.at(1)->text(), QString("*Create Group\tStrg+G"));
    const auto *bar = window().findChild<QKXToolBar *>("QuickActionBar");
    QVERIFY(isMarked(bar->windowTitle()));
    const QList<QAction *> actions = bar->actions();
    for (const QAction *action : actions)
        QVERIFY2(isMarked(action->text()) && isMarked(action->statusTip()),
                 qPrintable(action->text()));
    for (int i = 0; i < window()._position_combo_box->count(); ++i)
        QVERIFY(isMarked(window()._position_combo_box->itemText(i)));
}

KX_TEST_MAIN(tst_kxOverlayEditor_construction)
#include "tst_kxOverlayEditor_construction.moc"

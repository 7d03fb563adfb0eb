// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"
#include "host/kxShortcut.h"
#include "kit/MarkingTranslator.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QToolBar>

namespace conformance {

namespace {

void expectMarked(const char *what, const QString &text)
{
    if (!text.startsWith(QLatin1Char('*')))
        throw Failure{QString::fromUtf8(what), QStringLiteral("a translated text"), text};
}

void translatesInCode(ModuleBench &bench)
{
    const MarkingTranslator translator("kxOverlayEditor");
    bench.callEntry();
    const HostFixture::Registration module = bench.host().registrations().first();
    expectEqual("title", module.title, QString("*Overlays"));
    expectEqual("name", module.name, QString("Overlay Editor"));
    expectEqual("category", module.category, QString("Scene"));
    expectEqual("help identifier", module.helpId, QString("Tipreel_Overlays"));
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    for (const kxShortcut::Entry &key : keys) {
        expectMarked("category of a key", key.category);
        expectMarked("description of a key", key.description);
    }
    const QList<QAction *> entries = bench.menu().actions();
    for (const QAction *entry : entries) {
        if (!entry->isSeparator())
            expectMarked("entry of the menu", entry->text());
    }
    const auto *bar = bench.window().findChild<QToolBar *>("QuickActionBar");
    expect("there is a bar", bar != nullptr);
    expectMarked("title of the bar", bar->windowTitle());
    const QList<QAction *> actions = bar->actions();
    for (const QAction *action : actions) {
        expectMarked("action", action->text());
        expectMarked("tip of an action", action->statusTip());
    }
    const auto &box = bench.form<QComboBox>("_position_combo_box");
    for (int i = 0; i < box.count(); ++i)
        expectMarked("anchor", box.itemText(i));
}

void translatesInForm(ModuleBench &bench)
{
    const MarkingTranslator translator("kxOverlayEditorGUI");
    bench.callEntry();
    expectEqual("title", bench.window().windowTitle(), QString("*Overlay Editor"));
    for (const char *name : {"_name_label", "_type_label_2", "_relative_radio_button"})
        expectMarked(name, bench.form<QWidget>(name).property("text").toString());
    for (const char *name : {"_property_frame", "_size_position_frame"})
        expectMarked(name, bench.form<QWidget>(name).property("caption").toString());
}

/// The toolkit's own names of keys, as a platform in another language has them.
void translatesKeys(ModuleBench &bench)
{
    const MarkingTranslator translator("QShortcut");
    bench.callEntry();
    for (const char *text : {"Create Group", "Toggle", "Select All"})
        expectMarked(text, bench.menuEntry(text).text().section('\t', 1));
}

} // namespace

ModuleChecks textChecks()
{
    return {
        {"texts.code", "Texts of the code are translated in the context kxOverlayEditor.",
         translatesInCode, Stage::Fresh},
        {"texts.form", "Texts of the form are translated in the context kxOverlayEditorGUI.",
         translatesInForm, Stage::Fresh},
        {"texts.keys", "Keys in the menu are named as the platform names them.", translatesKeys,
         Stage::Fresh},
    };
}

} // namespace conformance

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "Services.h"
#include "View.h"
#include "host/initPlugin.h"
#include "host/kxIconManager.h"
#include "host/kxShortcut.h"
#include "host/kxStyle.h"

#include <QApplication>
#include <QLibrary>
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QTimer>
#include <QTranslator>

#include <cstdio>

namespace {

//! [translations]
void installTranslations(QApplication *application)
{
    for (const char *catalogue : {"kxhost", "overlayeditor"}) {
        auto *translator = new QTranslator(application);
        if (translator->load(QLocale(), QLatin1String(catalogue), QStringLiteral("_"),
                             QStringLiteral(TRANSLATIONS)))
            QCoreApplication::installTranslator(translator);
    }
}
//! [translations]

//! [load]
/// Loads a module and enters it. Returns what went wrong; empty when nothing did.
QString loadModule(const QString &file)
{
    QLibrary library(file); // does not unload when it goes, and must not
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    const auto entry = reinterpret_cast<decltype(&initPlugin)>(library.resolve("initPlugin"));
    if (!entry)
        return library.errorString();
    try {
        entry();
    } catch (const std::exception &problem) {
        return QString::fromLocal8Bit(problem.what());
    }
    return QString();
}
//! [load]

//! [keys]
void showKeys(QWidget *window)
{
    QStringList lines;
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    for (const kxShortcut::Entry &entry : keys)
        lines.append(QStringLiteral("%1: %2\t%3")
                         .arg(entry.category, entry.description,
                              kxShortcut::convertKey(entry.key, entry.modifiers, false)));
    QMessageBox::information(window, QCoreApplication::translate("minimal", "Keyboard Shortcuts"),
                             lines.join('\n'));
}
//! [keys]

//! [fill]
/// Something to look at: a title and a switch with two captions.
void fill(minimal::Overlays *overlays)
{
    const auto add = [overlays](QRPC::NodeId parent, const char *text, const QPointF &anchor) {
        const QRPC::NodeId node = overlays->createOverlay(parent);
        overlays->setName({node}, QString::fromLatin1(text));
        overlays->setText({node}, QString::fromLatin1(text));
        overlays->setPosition({node}, anchor);
    };
    const QRPC::NodeId root = overlays->getRootNode();
    add(root, "A title", {0.5, 1});
    const QRPC::NodeId captions = overlays->createSwitch(root);
    overlays->setName({captions}, QStringLiteral("Captions"));
    add(captions, "The first caption", {0, 0});
    add(captions, "The other caption", {0, 0});
}
//! [fill]

} // namespace

//! [main]
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(new kxStyle);
    QApplication::setWindowIcon(kxIconManager::getIcon("Application", ""));
    installTranslations(&application);

    minimal::Services services;
    fill(services.overlays());
    QMainWindow *window = services.window();
    window->setCentralWidget(new minimal::View(services.overlays()));

    const QString problem = loadModule(QStringLiteral(OVERLAY_EDITOR));
    if (!problem.isEmpty()) {
        std::fprintf(stderr, "minimal_host: %s\n", qPrintable(problem));
        return 1;
    }
    window->menuBar()->addAction(QCoreApplication::translate("minimal", "Keys"), window,
                                 [window] { showKeys(window); });
    window->resize(1200, 800);
    window->show();
    services.announceReady();

    // With the name of a file it writes a picture of its window there, and ends.
    if (const QString picture = QCoreApplication::arguments().value(1); !picture.isEmpty())
        QTimer::singleShot(0, window, [window, picture] {
            QCoreApplication::exit(window->grab().save(picture) ? 0 : 1);
        });
    return QApplication::exec();
}
//! [main]

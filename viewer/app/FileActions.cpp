// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/FileActions.h"

#include "host/kxIconManager.h"
#include "viewer/app/SceneDocument.h"

#include <QDir>
#include <QMenu>

namespace viewer {

namespace {

QString entryText(int number, const QString &file)
{
    QString name = QDir::toNativeSeparators(file);
    name.replace(QLatin1Char('&'), QLatin1String("&&"));
    return FileActions::tr("&%1  %2").arg(number).arg(name);
}

} // namespace

FileActions::FileActions(SceneDocument *document, QMenu *menu)
    : QObject(menu)
    , m_document(document)
    , m_recent(new QMenu(tr("Open &Recent"), menu))
{
    QAction *before = menu->actions().value(0);
    const auto add = [&](const char *name, const char *icon, const QString &text,
                         const QKeySequence &key, auto slot) {
        auto *action = new QAction(kxIconManager::getIcon(icon, ""), text, this);
        action->setObjectName(QLatin1String(name));
        action->setShortcut(key);
        connect(action, &QAction::triggered, document, slot);
        menu->insertAction(before, action);
    };
    add("newScene", "CreateNew", tr("&New Scene"), QKeySequence::New, &SceneDocument::startNew);
    add("openScene", "FileOpen", tr("&Open Scene…"), QKeySequence::Open,
        &SceneDocument::chooseAndOpen);
    m_recent->setObjectName(QStringLiteral("openRecent"));
    menu->insertMenu(before, m_recent);
    menu->insertSeparator(before);
    add("saveScene", "Save", tr("&Save"), QKeySequence::Save, [document] { document->save(); });
    // Not every desktop has a standard key for it.
    add("saveSceneAs", "Save", tr("Save &As…"), Qt::CTRL + Qt::SHIFT + Qt::Key_S,
        [document] { document->saveAs(); });
    menu->insertSeparator(before);
    connect(menu, &QMenu::aboutToShow, this, &FileActions::fillRecent);
    fillRecent();
}

void FileActions::fillRecent()
{
    m_recent->clear();
    const QStringList files = m_document->recentFiles();
    for (const QString &file : files) {
        m_recent->addAction(entryText(m_recent->actions().size() + 1, file), m_document,
                            [this, file] { m_document->open(file); });
    }
    m_recent->setEnabled(!files.isEmpty());
    m_recent->addSeparator();
    m_recent->addAction(tr("&Clear List"), this, [this] {
        m_document->forgetRecentFiles();
        fillRecent();
    });
}

} // namespace viewer

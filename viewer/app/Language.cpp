// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/Language.h"

#include "viewer/app/SharedFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>

namespace viewer {

namespace {

QString sourceLanguage()
{
    return QStringLiteral("en");
}

/// Under which names the catalogues of a locale may lie, the best first. A locale takes the catalogue of
/// its language's main country if it is written in the same script: "de_AT" takes "de", "zh_SG" takes
/// "zh_CN", "zh_TW" takes neither.
QStringList candidates(const QString &locale)
{
    QString name = locale;
    name.replace(QLatin1Char('-'), QLatin1Char('_'));
    const QLocale asked(name);
    const QLocale main(asked.language());
    QStringList names{name, asked.name()};
    if (asked.script() == main.script())
        names += {main.name(), main.name().section(QLatin1Char('_'), 0, 0)};
    names.removeDuplicates();
    return names;
}

/// The catalogues of the toolkit's widgets; its folder holds those of its other parts too.
QString nameFilter(const QString &folder, const QString &language)
{
    const bool isToolkit = folder == QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    return (isToolkit ? QStringLiteral("qtbase_%1.qm") : QStringLiteral("*_%1.qm")).arg(language);
}

} // namespace

Language::Language(const QString &wanted, const QStringList &folders)
{
    const QStringList locales =
        wanted.isEmpty() ? QLocale::system().uiLanguages() : QStringList(wanted);
    if (!wanted.isEmpty())
        QLocale::setDefault(QLocale(wanted));
    m_folders = folders;
    m_name = choose(locales);
    m_folders.clear();
    for (const QString &folder : folders)
        addFolder(folder);
}

Language::~Language()
{
    QLocale::setDefault(m_formerLocale);
}

void Language::addFolder(const QString &folder)
{
    const QString path = QDir::cleanPath(QDir(folder).absolutePath());
    if (m_folders.contains(path))
        return;
    m_folders.append(path);
    const QFileInfoList files =
        QDir(path).entryInfoList({nameFilter(path, m_name)}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(file.absoluteFilePath())
            && QCoreApplication::installTranslator(translator.get()))
            m_translators.push_back(std::move(translator));
    }
}

QStringList Language::standardFolders()
{
    return QStringList(QLibraryInfo::location(QLibraryInfo::TranslationsPath))
           + sharedfiles::folders(QStringLiteral("translations"));
}

QString Language::wantedBy(const QStringList &arguments)
{
    static const QLatin1String option("--locale");
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments.at(i) == option)
            return arguments.value(i + 1);
        if (arguments.at(i).startsWith(option + QLatin1Char('=')))
            return arguments.at(i).mid(option.size() + 1);
    }
    return {};
}

bool Language::isName(const QString &name)
{
    static const QRegularExpression form(QStringLiteral("^[a-z]{2,3}([_-][A-Za-z0-9]{2,4}){0,2}$"));
    return form.match(name).hasMatch() && QLocale(name).language() != QLocale::C;
}

QString Language::choose(const QStringList &locales) const
{
    for (const QString &locale : locales) {
        const QStringList names = candidates(locale);
        for (const QString &name : names) {
            if (name == sourceLanguage() || hasCatalogue(name))
                return name;
        }
    }
    return sourceLanguage();
}

bool Language::hasCatalogue(const QString &name) const
{
    const QString file = QStringLiteral("overlay-viewer_%1.qm").arg(name);
    return std::any_of(m_folders.begin(), m_folders.end(), [&file](const QString &folder) {
        return QFileInfo(QDir(folder).filePath(file)).isFile();
    });
}

} // namespace viewer

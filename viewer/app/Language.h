// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace viewer {

/// The language of one run: installs the catalogues of the viewer, the host library, the modules and
/// the toolkit, and sets how numbers and dates are written. Made by the main program after the
/// application object and before the first text; takes all back when it goes. Texts without a
/// translation stay English.
class Language
{
public:
    /// `wanted` is a name such as "de" or "zh_CN", or empty for the language of the desktop. The
    /// catalogues `<part>_<name>.qm` of all `folders` are used.
    Language(const QString &wanted, const QStringList &folders);
    ~Language();
    Q_DISABLE_COPY(Language)

    /// Uses the catalogues of one more folder, such as that of a module. A folder that was used
    /// before, or does not exist, changes nothing.
    void addFolder(const QString &folder);

    /// The name in the catalogues' file names; "en" where the texts stay as they are.
    QString name() const { return m_name; }

    /// Where the viewer's own catalogues and the toolkit's are.
    static QStringList standardFolders();

    /// The value of `--locale` among the program's arguments, which is needed before they can be
    /// read in full; empty when there is none.
    static QString wantedBy(const QStringList &arguments);

    /// Whether a locale of that name can exist.
    static bool isName(const QString &name);

private:
    QString choose(const QStringList &locales) const;
    bool hasCatalogue(const QString &name) const;

    QStringList m_folders;
    QString m_name;
    const QLocale m_formerLocale;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace viewer

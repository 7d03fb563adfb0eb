// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTextDocument>
#include <QVector>

namespace viewer {

/// The user guide, read from its Markdown file. Its headings are anchors: under their words, as links in
/// the text name them ("Moving by key" is "moving-by-key"), and under the help identifiers that stand in
/// comments before them:
///
///     <!-- help: Some_Panel -->
///     ## The panel
///
/// Made and owned by whoever shows it; GUI thread only.
class UserGuide : public QTextDocument
{
    Q_OBJECT

public:
    struct Heading
    {
        QString text;
        int level;           ///< 1 for the title
        QStringList anchors; ///< the words first, then the help identifiers
    };

    /// `folder` is where the guide's pictures are looked for.
    UserGuide(const QString &markdown, const QString &folder, QObject *parent = nullptr);

    const QVector<Heading> &headings() const { return m_headings; }

    /// Whether a heading has this anchor.
    bool hasAnchor(const QString &anchor) const;

    /// The guide's file; empty where it was not shipped.
    static QString file();

protected:
    /// Pictures are no wider than a page.
    QVariant loadResource(int type, const QUrl &name) override;

private:
    void readHeadings();
    void setAnchors(const QTextBlock &block, const QStringList &anchors);
    void layOut();
    void layOutTables();

    QVector<Heading> m_headings;
};

} // namespace viewer

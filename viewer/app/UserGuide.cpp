// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/UserGuide.h"

#include "viewer/app/SharedFiles.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace viewer {

namespace {

constexpr int WidestPicture = 640;

// Carries a help identifier behind the words of its heading while the text is read; no text has it.
constexpr ushort Mark = 0xe000;

/// Help identifiers, which comments hold, become a part of their headings.
QString withMarks(QString markdown)
{
    static const QRegularExpression comment(
        QStringLiteral("<!-- help: (\\w+) -->\\s*((?:<!-- help: \\w+ -->\\s*)*)(#+ [^\\n]*)"));
    for (QRegularExpressionMatch match = comment.match(markdown); match.hasMatch();
         match = comment.match(markdown)) {
        markdown.replace(match.capturedStart(), match.capturedLength(),
                         match.captured(2) + match.captured(3) + QChar(Mark) + match.captured(1));
    }
    return markdown;
}

/// The words that stand in for a picture come to stand in one line: the toolkit shows the picture once
/// for each line of them.
QString withShortPictures(QString markdown)
{
    static const QRegularExpression words(QStringLiteral("!\\[[^\\]]*\\]\\("));
    for (QRegularExpressionMatch match = words.match(markdown); match.hasMatch();
         match = words.match(markdown, match.capturedEnd())) {
        QString line = match.captured();
        line.replace(QLatin1Char('\n'), QLatin1Char(' '));
        markdown.replace(match.capturedStart(), match.capturedLength(), line);
    }
    return markdown;
}

/// The name that links give to a heading.
QString slug(const QString &heading)
{
    const QString letters = heading.toLower();
    QString name;
    for (const QChar letter : letters) {
        if (letter.isLetterOrNumber() || letter == QLatin1Char('-') || letter == QLatin1Char('_'))
            name += letter;
        else if (letter.isSpace())
            name += QLatin1Char('-');
    }
    return name;
}

} // namespace

UserGuide::UserGuide(const QString &markdown, const QString &folder, QObject *parent)
    : QTextDocument(parent)
{
    setBaseUrl(QUrl::fromLocalFile(folder + QLatin1Char('/')));
    setMarkdown(withShortPictures(withMarks(markdown)));
    readHeadings();
    layOut();
    layOutTables();
    setUndoRedoEnabled(false);
}

bool UserGuide::hasAnchor(const QString &anchor) const
{
    return std::any_of(m_headings.begin(), m_headings.end(), [&anchor](const Heading &heading) {
        return heading.anchors.contains(anchor);
    });
}

QString UserGuide::file()
{
    return sharedfiles::find(QStringLiteral("docs"), QStringLiteral("USER_GUIDE.md"));
}

QVariant UserGuide::loadResource(int type, const QUrl &name)
{
    if (type != ImageResource)
        return QTextDocument::loadResource(type, name);
    QImage picture(baseUrl().resolved(name).toLocalFile());
    if (picture.width() > WidestPicture)
        picture = picture.scaledToWidth(WidestPicture, Qt::SmoothTransformation);
    // The layout asks for each picture time and again.
    addResource(type, name, picture);
    return picture;
}

/// Markdown says nothing of room: paragraphs would stand line on line.
void UserGuide::layOut()
{
    const qreal em = QFontMetricsF(defaultFont()).height();
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        if (cursor.currentTable())
            continue;
        const int level = block.blockFormat().headingLevel();
        QTextBlockFormat format;
        format.setTopMargin(level > 1 ? 1.4 * em : 0);
        format.setBottomMargin(block.textList() ? 0.2 * em : 0.6 * em);
        // The room between lines would be a fifth of a picture's height.
        const bool isPicture = block.text().contains(QChar::ObjectReplacementCharacter);
        format.setLineHeight(isPicture ? 100 : 120, QTextBlockFormat::ProportionalHeight);
        cursor.mergeBlockFormat(format);
    }
}

void UserGuide::layOutTables()
{
    const QList<QTextFrame *> frames = rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        auto *table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorder(1);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QGuiApplication::palette().mid());
        format.setCellPadding(QFontMetricsF(defaultFont()).height() / 3);
        format.setTopMargin(QFontMetricsF(defaultFont()).height() / 2);
        format.setBottomMargin(QFontMetricsF(defaultFont()).height());
        table->setFormat(format);
    }
}

void UserGuide::readHeadings()
{
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0)
            continue;
        const QStringList parts = block.text().split(QChar(Mark));
        const QString text = parts.first().trimmed();
        const Heading heading{text, level, QStringList(slug(text)) + parts.mid(1)};
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + parts.first().size());
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        setAnchors(block, heading.anchors);
        m_headings.append(heading);
    }
}

void UserGuide::setAnchors(const QTextBlock &block, const QStringList &anchors)
{
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorNames(anchors);
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(format);
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/TextBlock.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>

#include <algorithm>

namespace viewer {

namespace {

constexpr int ReferenceSize = 200;
constexpr double OutlinedSize = 60.0; // from a little above, glyphs are drawn as outlines

/// The font that all layouts are made in. It is large, so that rounding to its pixels vanishes, and
/// not hinted, so that glyphs scale.
QFont referenceFont(const QString &family)
{
    QFont font(family);
    font.setPixelSize(ReferenceSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias
                                               | QFont::ForceOutline));
    return font;
}

std::unique_ptr<QTextLayout> layOut(const QString &line, const QFont &font)
{
    auto layout = std::make_unique<QTextLayout>(line, font);
    QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute); // also where the text runs leftwards
    option.setWrapMode(QTextOption::NoWrap);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine();
    layout->endLayout();
    return layout;
}

/// Unicode has separators of its own for lines and paragraphs; a layout ends its line at them.
QStringList linesOf(QString text)
{
    text.replace(QChar::LineSeparator, QLatin1Char('\n'));
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text.split(QLatin1Char('\n'));
}

/// Outlines come from the face of a font file, which all texts of the process share, and which is
/// left shifted by the part of a pixel where a text of the window had its last glyph. A new engine on
/// the face takes the shift away.
void straightenFaces(const QTextLayout &line)
{
    const QList<QGlyphRun> runs = line.glyphRuns();
    for (const QGlyphRun &run : runs) {
        QRawFont font = run.rawFont();
        font.setPixelSize(font.pixelSize() / 2);
    }
}

double widthOf(const QTextLayout &line)
{
    return line.lineCount() > 0 ? line.lineAt(0).horizontalAdvance() : 0.0;
}

} // namespace

TextBlock::TextBlock(const QString &text, const QString &family)
{
    const QFont font = referenceFont(family);
    const QFontMetricsF metrics(font);
    m_ascent = metrics.ascent();
    m_lineHeight = m_ascent + metrics.descent();
    double width = 0.0;
    const QStringList lines = linesOf(text);
    for (const QString &line : lines) {
        m_lines.push_back(layOut(line, font));
        width = std::max(width, widthOf(*m_lines.back()));
    }
    m_size = QSizeF(width / m_lineHeight, lines.size());
}

void TextBlock::draw(QPainter *painter, const QRectF &box, const QColor &color,
                     double alignment) const
{
    const double scale = box.height() / (double(m_lines.size()) * m_lineHeight);
    const double width = m_size.width() * m_lineHeight;
    painter->save();
    painter->translate(box.topLeft());
    painter->scale(scale, scale);
    painter->setPen(color);
    double top = 0.0;
    for (const std::unique_ptr<QTextLayout> &line : m_lines) {
        if (scale * ReferenceSize >= OutlinedSize)
            straightenFaces(*line);
        // A fallback font may stand higher than the family; the baseline stays where it is.
        const double rise = line->lineCount() > 0 ? line->lineAt(0).ascent() - m_ascent : 0.0;
        line->draw(painter, QPointF(alignment * (width - widthOf(*line)), top - rise));
        top += m_lineHeight;
    }
    painter->restore();
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QTextLayout>

#include <memory>
#include <vector>

namespace viewer {

/// A text that is laid out: its lines, shaped in one font, in units of the line's height. It does
/// not depend on the size at which it is drawn, so that zooming and resizing lay nothing out anew.
/// Made and owned by the painter's cache; GUI thread only.
///
/// The height of a line is the ascent plus the descent of the family; lines stand one below the
/// other without further leading, and are never wrapped.
class TextBlock
{
public:
    TextBlock(const QString &text, const QString &family);

    /// Width of the longest line and number of lines, both in heights of a line.
    QSizeF size() const { return m_size; }

    /// Draws the lines into a box that has the block's proportions. `alignment` puts shorter lines
    /// to the left (0), the middle (0.5) or the right (1).
    void draw(QPainter *painter, const QRectF &box, const QColor &color, double alignment) const;

private:
    QSizeF m_size;
    double m_ascent = 0.0; // as the line height in the units of the layouts
    double m_lineHeight = 1.0;
    std::vector<std::unique_ptr<QTextLayout>> m_lines;
};

} // namespace viewer

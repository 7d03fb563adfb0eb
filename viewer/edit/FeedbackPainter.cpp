// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/FeedbackPainter.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

// In device-independent pixels.
constexpr double LineWidth = 1.5;
constexpr double SeamWidth = 1.0;
constexpr double DashLength = 6.0;
constexpr double MarkRadius = 3.5;
constexpr double ReadOutGap = 14.0;
constexpr double ReadOutPadding = 8.0;

const QRgb Selected = 0xff6cb8ff;
const QRgb Member = 0xa06cb8ff;
const QRgb Aligned = 0xffff6fb5;
const QRgb Seam = 0xb0080c12;
const QRgb FaintSeam = 0x60080c12;
const QRgb Ground = 0xee14181e;
const QRgb GroundEdge = 0xff6b7785;
const QRgb Text = 0xfff2f5f8;

/// Where a length begins that is to lie behind a stretch, or before it where there is no room.
double besides(double low, double high, double length, double most)
{
    const bool fits = high + ReadOutGap + length <= most;
    const double wanted = fits ? high + ReadOutGap : low - ReadOutGap - length;
    return std::floor(std::clamp(wanted, 0.0, std::max(0.0, most - length)));
}

QColor color(QRgb rgba)
{
    return QColor::fromRgba(rgba);
}

} // namespace

FeedbackPainter::FeedbackPainter(QPainter *painter, const EditView &view, const QFont &font)
    : m_painter(painter)
    , m_view(view)
    , m_font(font)
{
}

void FeedbackPainter::paint(const EditFeedback &feedback)
{
    m_painter->save();
    m_painter->setRenderHint(QPainter::Antialiasing, false);
    each(feedback.outlines.members, &FeedbackPainter::memberOutline);
    each(feedback.outlines.groups, &FeedbackPainter::groupOutline);
    each(feedback.outlines.overlays, &FeedbackPainter::outline);
    each(feedback.bandBoxes, &FeedbackPainter::outline);
    if (!feedback.band.isEmpty())
        band(feedback.band);
    guides(feedback.guides);
    if (feedback.tie)
        tie(*feedback.tie);
    if (!feedback.readOut.isEmpty())
        readOut(feedback.readOut, feedback.readOutBeside);
    m_painter->restore();
}

/// Outlines the boxes as far as they can be seen: one that is far larger than the view would be
/// counted in dashes.
void FeedbackPainter::each(const QVector<QRectF> &boxes,
                           void (FeedbackPainter::*draw)(const QRectF &))
{
    const double reach = m_view.pixels(2 * DashLength);
    const QRectF seen =
        QRectF(QPointF(), m_view.geometry.size).adjusted(-reach, -reach, reach, reach);
    for (const QRectF &box : boxes) {
        if (seen.intersects(box))
            (this->*draw)(box & seen);
    }
}

/// A width in whole pixels.
int FeedbackPainter::width(double independent) const
{
    return std::max(1, qRound(m_view.pixels(independent)));
}

/// The pixels around a box. Where it ends at the edge of the view they move into it, so that they
/// are seen.
QRect FeedbackPainter::outside(const QRectF &box, int margin) const
{
    const QRect pixels = box.toAlignedRect();
    const QRect view(QPoint(), m_view.geometry.size);
    QRect outer = pixels.adjusted(-margin, -margin, margin, margin);
    if (pixels.left() >= -1)
        outer.setLeft(std::max(outer.left(), view.left()));
    if (pixels.top() >= -1)
        outer.setTop(std::max(outer.top(), view.top()));
    if (pixels.right() <= view.right() + 1)
        outer.setRight(std::min(outer.right(), view.right()));
    if (pixels.bottom() <= view.bottom() + 1)
        outer.setBottom(std::min(outer.bottom(), view.bottom()));
    return outer;
}

void FeedbackPainter::ring(const QRect &outer, int width, const QColor &color)
{
    const QRect inner = outer.adjusted(width, width, -width, -width);
    m_painter->fillRect(QRect(outer.topLeft(), QPoint(outer.right(), inner.top() - 1)), color);
    m_painter->fillRect(QRect(QPoint(outer.left(), inner.bottom() + 1), outer.bottomRight()),
                        color);
    m_painter->fillRect(
        QRect(QPoint(outer.left(), inner.top()), QPoint(inner.left() - 1, inner.bottom())), color);
    m_painter->fillRect(
        QRect(QPoint(inner.right() + 1, inner.top()), QPoint(outer.right(), inner.bottom())),
        color);
}

void FeedbackPainter::line(Qt::Orientation orientation, double at, double from, double to,
                           int width, const QColor &color)
{
    const int across = int(std::floor(at)) - width / 2;
    const int begin = int(std::floor(from));
    const int length = std::max(width, int(std::ceil(to)) - begin);
    m_painter->fillRect(orientation == Qt::Vertical ? QRect(across, begin, width, length)
                                                    : QRect(begin, across, length, width),
                        color);
}

/// A ring in pieces, counted from the corners so that these are whole.
void FeedbackPainter::dashes(const QRect &outer, int width)
{
    QPen pen(color(Selected), width, Qt::CustomDashLine, Qt::FlatCap);
    const double dash = m_view.pixels(DashLength) / width;
    pen.setDashPattern({dash, dash * 0.75});
    m_painter->setPen(pen);
    const double half = width / 2.0;
    const QRectF middle = QRectF(outer).adjusted(half, half, -half, -half);
    m_painter->drawLine(middle.topLeft(), middle.topRight());
    m_painter->drawLine(middle.topLeft(), middle.bottomLeft());
    m_painter->drawLine(middle.bottomLeft(), middle.bottomRight());
    m_painter->drawLine(middle.topRight(), middle.bottomRight());
}

void FeedbackPainter::outline(const QRectF &box)
{
    const int bright = width(LineWidth);
    const int dark = width(SeamWidth);
    QRect outer = outside(box, bright + 2 * dark);
    ring(outer, dark, color(Seam));
    outer.adjust(dark, dark, -dark, -dark);
    ring(outer, bright, color(Selected));
    outer.adjust(bright, bright, -bright, -bright);
    ring(outer, dark, color(Seam));
}

void FeedbackPainter::memberOutline(const QRectF &box)
{
    const int thin = width(SeamWidth);
    const QRect outer = outside(box, 2 * thin);
    ring(outer, thin, color(FaintSeam));
    ring(outer.adjusted(thin, thin, -thin, -thin), thin, color(Member));
}

void FeedbackPainter::groupOutline(const QRectF &box)
{
    const int bright = width(LineWidth);
    const int dark = width(SeamWidth);
    const double gap = m_view.pixels(4.0); // beside the outlines of what lies in it
    const QRect outer = outside(box.adjusted(-gap, -gap, gap, gap), bright + 2 * dark);
    ring(outer, bright + 2 * dark, color(Seam));
    dashes(outer.adjusted(dark, dark, -dark, -dark), bright);
}

void FeedbackPainter::band(const QRectF &area)
{
    const int thin = width(SeamWidth);
    const QRect outer = area.toAlignedRect();
    QColor ground = color(Selected);
    ground.setAlphaF(0.14);
    m_painter->fillRect(outer, ground);
    ring(outer.adjusted(-thin, -thin, thin, thin), thin, color(Seam));
    ring(outer, thin, color(Selected));
}

void FeedbackPainter::guides(const QVector<Guide> &guides)
{
    const int thin = width(SeamWidth);
    for (const auto &[tint, broad] : {std::pair(Seam, 3 * thin), std::pair(Aligned, thin)}) {
        for (const Guide &guide : guides)
            line(guide.orientation, guide.at, guide.from, guide.to, broad, color(tint));
    }
}

/// A dot on the anchor and a line to it from the point that the offset has moved away.
void FeedbackPainter::tie(const EditFeedback::Tie &tie)
{
    m_painter->save();
    m_painter->setRenderHint(QPainter::Antialiasing);
    const double thin = m_view.pixels(SeamWidth);
    QPen dots(color(Member), thin, Qt::CustomDashLine);
    dots.setDashPattern({DashLength / 2, DashLength / 2});
    m_painter->setPen(dots);
    m_painter->drawLine(tie.anchor, tie.reference);
    m_painter->setPen(QPen(color(Seam), 1.5 * thin));
    m_painter->setBrush(color(Selected));
    const double radius = m_view.pixels(MarkRadius);
    m_painter->drawEllipse(tie.anchor, radius, radius);
    m_painter->drawEllipse(tie.reference, radius * 0.7, radius * 0.7);
    m_painter->restore();
}

/// Drawn in device-independent pixels, as a widget's text is.
void FeedbackPainter::readOut(const QStringList &lines, const QRectF &beside)
{
    const QFontMetricsF metrics(m_font);
    double widest = 0.0;
    for (const QString &text : lines)
        widest = std::max(widest, metrics.horizontalAdvance(text));
    const QSizeF size(std::ceil(widest) + 2 * ReadOutPadding,
                      std::ceil(metrics.lineSpacing() * lines.size()) + 1.5 * ReadOutPadding);
    const QSizeF view = QSizeF(m_view.geometry.size) / m_view.pixelRatio;
    const QPointF low = beside.topLeft() / m_view.pixelRatio;
    const QPointF high = beside.bottomRight() / m_view.pixelRatio;
    const QRectF box(QPointF(besides(low.x(), high.x(), size.width(), view.width()),
                             besides(low.y(), high.y(), size.height(), view.height())),
                     size);
    m_painter->save();
    m_painter->scale(m_view.pixelRatio, m_view.pixelRatio);
    m_painter->setRenderHint(QPainter::Antialiasing);
    m_painter->setPen(color(GroundEdge));
    m_painter->setBrush(color(Ground));
    m_painter->drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    m_painter->setPen(color(Text));
    m_painter->setFont(m_font);
    double baseline = box.top() + 0.75 * ReadOutPadding + metrics.ascent();
    for (const QString &text : lines) {
        m_painter->drawText(QPointF(box.left() + ReadOutPadding, baseline), text);
        baseline += metrics.lineSpacing();
    }
    m_painter->restore();
}

} // namespace viewer

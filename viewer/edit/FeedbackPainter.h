// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/edit/EditView.h"
#include "viewer/edit/SelectionShape.h"
#include "viewer/edit/Snapping.h"

#include <QFont>
#include <QStringList>

class QPainter;

namespace viewer {

/// What the user is shown over the overlays while he works on them; places in pixels of the view.
struct EditFeedback
{
    Outlines outlines;
    QRectF band;
    QVector<QRectF> bandBoxes; ///< of what the rubber band would select
    QVector<Guide> guides;

    /// Of an overlay that is moved: its anchor, and the point of it that belongs there.
    struct Tie
    {
        QPointF anchor;
        QPointF reference;
    };
    std::optional<Tie> tie;

    QStringList readOut;
    QRectF readOutBeside; ///< what it is not to cover
};

/// Draws feedback into a view: every line has a dark seam, so that it is seen on light and dark, and
/// lies on whole pixels at every density of the display. Knows no widget; never part of an export.
class FeedbackPainter
{
public:
    /// `painter` works in pixels of the view; `font` is that of the read-out, as a widget has it.
    FeedbackPainter(QPainter *painter, const EditView &view, const QFont &font);

    void paint(const EditFeedback &feedback);

private:
    void each(const QVector<QRectF> &boxes, void (FeedbackPainter::*draw)(const QRectF &));
    int width(double independent) const;
    QRect outside(const QRectF &box, int margin) const;
    void ring(const QRect &outer, int width, const QColor &color);
    void line(Qt::Orientation orientation, double at, double from, double to, int width,
              const QColor &color);
    void dashes(const QRect &outer, int width);
    void outline(const QRectF &box);
    void memberOutline(const QRectF &box);
    void groupOutline(const QRectF &box);
    void band(const QRectF &area);
    void guides(const QVector<Guide> &guides);
    void tie(const EditFeedback::Tie &tie);
    void readOut(const QStringList &lines, const QRectF &beside);

    QPainter *m_painter;
    const EditView m_view;
    const QFont m_font;
};

} // namespace viewer

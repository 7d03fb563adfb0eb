// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/ImageMarks.h"

#include "viewer/render/TextBlock.h"

#include <QFileInfo>
#include <QPainter>

#include <algorithm>

namespace viewer {

namespace {

struct Look
{
    QColor ground;
    QColor line;
    QColor name;
    Qt::PenStyle style;
    double linesAcross; ///< how often the line's width goes into the shorter side
    double namesAcross; ///< how often the name's height does
};

Look lookOf(ImageCache::State state)
{
    if (state == ImageCache::State::Loading)
        return {QColor(32, 34, 38, 120),
                QColor(170, 176, 186, 90),
                QColor(196, 201, 209),
                Qt::SolidLine,
                240.0,
                10.0};
    return {QColor(32, 34, 38, 200),
            QColor(240, 150, 60),
            QColor(240, 150, 60),
            Qt::DashLine,
            60.0,
            5.0};
}

} // namespace

void paintPlaceholder(QPainter *painter, const QString &path, const QRectF &box,
                      ImageCache::State state)
{
    const Look look = lookOf(state);
    const double unit = std::min(box.height(), box.width());
    const double line = std::max(1.0, unit / look.linesAcross);
    const QRectF frame = box.adjusted(line / 2, line / 2, -line / 2, -line / 2);
    painter->save();
    painter->setBrush(look.ground);
    painter->setPen(QPen(look.line, line, look.style));
    painter->drawRect(frame);
    painter->restore();

    const TextBlock name(QFileInfo(path).fileName(), QStringLiteral("DejaVu Sans"));
    const QSizeF size = name.size();
    const double lineHeight = std::min(unit / look.namesAcross, 0.9 * box.width() / size.width());
    QRectF place(QPointF(), size * lineHeight);
    place.moveCenter(box.center());
    name.draw(painter, place, look.name, 0.5);
}

void paintOutdatedMark(QPainter *painter, const QRectF &box, double dpi)
{
    constexpr double usualSide = 18.0; // in pixels at 96 dots per inch
    const double unit = std::min(box.height(), box.width());
    const double side = std::min(usualSide * dpi / 96.0, unit / 2.0);
    const double gap = std::min(side / 3.0, unit / 12.0);
    const QColor dark(40, 30, 12);
    const double line = side / 12.0;
    QRectF disc(0, 0, side - line, side - line);
    disc.moveBottomRight(box.bottomRight() - QPointF(gap + line / 2, gap + line / 2));
    painter->save();
    painter->setPen(QPen(dark, line));
    painter->setBrush(QColor(240, 170, 60));
    painter->drawEllipse(disc);
    // An exclamation mark.
    painter->setPen(QPen(dark, side / 7.0, Qt::SolidLine, Qt::RoundCap));
    const QPointF middle = disc.center();
    painter->drawLine(middle + QPointF(0, -0.26 * side), middle + QPointF(0, 0.06 * side));
    painter->drawPoint(middle + QPointF(0, 0.28 * side));
    painter->restore();
}

} // namespace viewer

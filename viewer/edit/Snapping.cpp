// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/Snapping.h"

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

constexpr double Same = 0.05; // what rounding an offset may leave between a shape and its line

} // namespace

bool Guide::operator==(const Guide &other) const
{
    return orientation == other.orientation && at == other.at && from == other.from
           && to == other.to;
}

Snapping::Snapping(const QSize &view)
{
    const double width = view.width();
    const double height = view.height();
    m_vertical = {{0, 0, height, Edge | Reference},
                  {width, 0, height, Edge | Reference},
                  {width / 2, 0, height, Any}};
    m_horizontal = {{0, 0, width, Edge | Reference},
                    {height, 0, width, Edge | Reference},
                    {height / 2, 0, width, Any}};
}

void Snapping::addOverlay(const QRectF &box, const QPointF &anchor)
{
    const QPointF middle = box.center();
    for (const double edge : {box.left(), box.right()})
        m_vertical.push_back({edge, box.top(), box.bottom(), Edge});
    m_vertical.push_back({middle.x(), box.top(), box.bottom(), Middle});
    for (const double edge : {box.top(), box.bottom()})
        m_horizontal.push_back({edge, box.left(), box.right(), Edge});
    m_horizontal.push_back({middle.y(), box.left(), box.right(), Middle});
    addAnchor(anchor);
}

void Snapping::addAnchor(const QPointF &anchor)
{
    m_vertical.push_back({anchor.x(), anchor.y(), anchor.y(), Any});
    m_horizontal.push_back({anchor.y(), anchor.x(), anchor.x(), Any});
}

Snap Snapping::snap(const MovedShape &shape, double distance) const
{
    const QRectF &box = shape.box;
    return {nearest(m_vertical, marks(box.left(), box.right(), shape.reference.x()), distance),
            nearest(m_horizontal, marks(box.top(), box.bottom(), shape.reference.y()), distance)};
}

QVector<Guide> Snapping::guides(const MovedShape &shape) const
{
    const QRectF &box = shape.box;
    return guidesOf(m_vertical, marks(box.left(), box.right(), shape.reference.x()),
                    {Qt::Vertical, 0, box.top(), box.bottom()})
           + guidesOf(m_horizontal, marks(box.top(), box.bottom(), shape.reference.y()),
                      {Qt::Horizontal, 0, box.left(), box.right()});
}

Snapping::MarkPlaces Snapping::marks(double low, double high, double reference)
{
    return {{low, Edge}, {(low + high) / 2, Middle}, {high, Edge}, {reference, Reference}};
}

std::optional<double> Snapping::nearest(const std::vector<Line> &lines, const MarkPlaces &places,
                                        double distance)
{
    std::optional<double> best;
    for (const Line &line : lines) {
        for (const MarkPlace &place : places) {
            const double way = line.at - place.at;
            const double limit = best ? std::abs(*best) : std::nextafter(distance, HUGE_VAL);
            if ((line.caught & place.mark) != 0 && std::abs(way) < limit)
                best = way;
        }
    }
    return best;
}

QVector<Guide> Snapping::guidesOf(const std::vector<Line> &lines, const MarkPlaces &places,
                                  const Guide &own)
{
    QVector<Guide> guides;
    for (const Line &line : lines) {
        const bool isMet = std::any_of(places.begin(), places.end(), [&](const MarkPlace &place) {
            return (line.caught & place.mark) != 0 && std::abs(line.at - place.at) < Same;
        });
        if (!isMet)
            continue;
        const auto known = std::find_if(guides.begin(), guides.end(), [&](const Guide &guide) {
            return std::abs(guide.at - line.at) < Same;
        });
        if (known == guides.end()) {
            guides.append({own.orientation, line.at, std::min(own.from, line.from),
                           std::max(own.to, line.to)});
        } else {
            known->from = std::min(known->from, line.from);
            known->to = std::max(known->to, line.to);
        }
    }
    return guides;
}

} // namespace viewer

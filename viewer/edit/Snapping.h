// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QVector>

#include <optional>

/// The lines that overlays keep to while they are moved: pure geometry, in pixels.
namespace viewer {

/// A line that shows what a moved box is in line with.
struct Guide
{
    Qt::Orientation orientation = Qt::Vertical;
    double at = 0.0;   ///< x of a vertical line, y of a horizontal one
    double from = 0.0; ///< its ends, in the other direction
    double to = 0.0;

    bool operator==(const Guide &other) const;
};

/// What is moved, as far as it snaps: its box, and the point of the one overlay under the mouse that
/// belongs on that overlay's anchor.
struct MovedShape
{
    QRectF box;
    QPointF reference;

    MovedShape translated(const QPointF &way) const
    {
        return {box.translated(way), reference + way};
    }
};

/// How far a moved shape is from the nearest lines; nothing where none is near.
struct Snap
{
    std::optional<double> x;
    std::optional<double> y;
};

/// The lines of a view and of the overlays that stand still in it. Made for one drag. Edges catch
/// edges and middles catch middles; anchors and the middle of the view catch both, and reference
/// points.
class Snapping
{
public:
    explicit Snapping(const QSize &view);

    /// Adds the edges and the middles of an overlay's box, and its anchor.
    void addOverlay(const QRectF &box, const QPointF &anchor);

    void addAnchor(const QPointF &anchor);

    /// How far a shape has to go to the nearest line in each direction, at most `distance`. Of
    /// lines that are equally near, the first that was added counts.
    Snap snap(const MovedShape &shape, double distance) const;

    /// The lines that a shape is on, each once, from end to end of all that is in line.
    QVector<Guide> guides(const MovedShape &shape) const;

private:
    enum Mark { Edge = 1, Middle = 2, Reference = 4, Any = Edge | Middle | Reference };

    struct Line
    {
        double at;
        double from;
        double to;
        int caught; // the marks
    };

    struct MarkPlace
    {
        double at;
        Mark mark;
    };
    using MarkPlaces = std::vector<MarkPlace>;

    static MarkPlaces marks(double low, double high, double reference);
    static std::optional<double> nearest(const std::vector<Line> &lines, const MarkPlaces &places,
                                         double distance);
    static QVector<Guide> guidesOf(const std::vector<Line> &lines, const MarkPlaces &places,
                                   const Guide &own);

    std::vector<Line> m_vertical;
    std::vector<Line> m_horizontal;
};

} // namespace viewer

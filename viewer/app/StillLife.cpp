// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/StillLife.h"

#include <QVector2D>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

using Profile = QVector<QVector2D>; // radius and height, from the axis below to the axis above

/// One turned piece: its outline and what it is made of.
struct Piece
{
    Profile profile;
    QVector3D color;
    float gloss;
    Footprint foot;
};

constexpr int Segments = 96;
constexpr int StepsPerSpan = 9;

// A cubic B-spline: its curvature has no jumps, which mirrored lights would show as kinks.
QVector2D splinePoint(const QVector2D &a, const QVector2D &b, const QVector2D &c,
                      const QVector2D &d, float t)
{
    const float s = 1 - t;
    return (s * s * s * a + (3 * t * t * t - 6 * t * t + 4) * b
            + (3 * s * s * s - 6 * s * s + 4) * c + t * t * t * d)
           / 6;
}

// The outline as a smooth curve that begins and ends at the outer points.
Profile smooth(const Profile &points)
{
    Profile curve;
    const int last = points.size() - 1;
    const auto at = [&points, last](int i) { return points.at(qBound(0, i, last)); };
    for (int i = -2; i < last; ++i) {
        for (int step = 0; step < StepsPerSpan; ++step)
            curve.append(
                splinePoint(at(i), at(i + 1), at(i + 2), at(i + 3), float(step) / StepsPerSpan));
    }
    curve.append(points.last());
    return curve;
}

Profile ball(float radius)
{
    Profile points;
    constexpr int steps = 40;
    for (int i = 0; i <= steps; ++i) {
        const float angle = float(M_PI) * i / steps;
        points.append({radius * std::sin(angle), radius - radius * std::cos(angle)});
    }
    return points;
}

// How much light reaches a row of the outline: less close to the floor, and less inside, the deeper
// below the edge. The inside begins where the outline is highest.
float opennessAt(const Profile &curve, int row)
{
    const auto isLower = [](const QVector2D &a, const QVector2D &b) { return a.y() < b.y(); };
    const auto edge = std::max_element(curve.cbegin(), curve.cend(), isLower);
    const float height = curve.at(row).y();
    if (row <= edge - curve.cbegin())
        return 0.55f + 0.45f * std::min(1.0f, height / 0.35f);
    const float depth = (edge->y() - height) / edge->x();
    return 1 / (1 + 1.6f * depth * depth);
}

Vertex cornerAt(const Piece &piece, int row, float openness, float angle)
{
    const Profile &curve = piece.profile;
    const QVector2D point = curve.at(row);
    const QVector2D along =
        (curve.at(qMin(row + 1, curve.size() - 1)) - curve.at(qMax(row - 1, 0))).normalized();
    const QVector3D outwards(std::cos(angle), 0, std::sin(angle));
    const QVector3D normal = outwards * along.y() - QVector3D(0, along.x(), 0);
    return {outwards * point.x() + QVector3D(piece.foot.x, point.y(), piece.foot.z),
            normal.normalized(), piece.color * openness, piece.gloss * openness};
}

void appendTurned(Mesh *mesh, const Piece &piece)
{
    const int base = mesh->vertices.size();
    constexpr int columns = Segments + 1;
    for (int row = 0; row < piece.profile.size(); ++row) {
        const float openness = opennessAt(piece.profile, row);
        for (int column = 0; column < columns; ++column) {
            const float angle = 2 * float(M_PI) * column / Segments;
            mesh->vertices.append(cornerAt(piece, row, openness, angle));
        }
    }
    for (int row = 0; row + 1 < piece.profile.size(); ++row) {
        for (int column = 0; column < Segments; ++column) {
            const int a = base + row * columns + column;
            const int b = a + columns;
            for (int corner : {a, b, a + 1, a + 1, b, b + 1})
                mesh->indices.append(quint16(corner));
        }
    }
}

// A vase with a lip: up the outside, over the edge, down the inside.
Profile vase()
{
    return smooth({{0.0f, 0.0f},
                   {0.36f, 0.0f},
                   {0.415f, 0.03f},
                   {0.46f, 0.16f},
                   {0.64f, 0.52f},
                   {0.72f, 0.92f},
                   {0.62f, 1.32f},
                   {0.38f, 1.66f},
                   {0.26f, 1.94f},
                   {0.28f, 2.12f},
                   {0.39f, 2.26f},
                   {0.41f, 2.29f},
                   {0.385f, 2.305f},
                   {0.34f, 2.27f},
                   {0.24f, 2.12f},
                   {0.22f, 1.9f},
                   {0.0f, 1.7f}});
}

Profile bowl()
{
    return smooth({{0.0f, 0.0f},
                   {0.24f, 0.0f},
                   {0.28f, 0.02f},
                   {0.3f, 0.08f},
                   {0.5f, 0.2f},
                   {0.68f, 0.42f},
                   {0.73f, 0.58f},
                   {0.715f, 0.605f},
                   {0.69f, 0.585f},
                   {0.62f, 0.42f},
                   {0.42f, 0.22f},
                   {0.0f, 0.14f}});
}

Profile bottle()
{
    return smooth({{0.0f, 0.0f},
                   {0.24f, 0.0f},
                   {0.27f, 0.03f},
                   {0.275f, 0.2f},
                   {0.275f, 0.6f},
                   {0.27f, 0.8f},
                   {0.2f, 0.94f},
                   {0.1f, 1.02f},
                   {0.08f, 1.14f},
                   {0.08f, 1.32f},
                   {0.105f, 1.37f},
                   {0.105f, 1.4f},
                   {0.075f, 1.4f},
                   {0.06f, 1.35f},
                   {0.05f, 1.2f},
                   {0.0f, 1.1f}});
}

QVector<Piece> pieces()
{
    return {
        {vase(), {0.035f, 0.17f, 0.20f}, 0.9f, {0.0f, 0.0f, 0.62f}},
        {bowl(), {0.62f, 0.22f, 0.09f}, 0.45f, {1.22f, 0.62f, 0.5f}},
        {bottle(), {0.16f, 0.175f, 0.2f}, 0.6f, {-1.3f, -0.1f, 0.27f}},
        {ball(0.3f), {0.78f, 0.70f, 0.56f}, 0.7f, {-0.82f, 0.82f, 0.26f}},
    };
}

} // namespace

Mesh StillLife::build()
{
    Mesh mesh;
    const QVector<Piece> all = pieces();
    for (const Piece &piece : all)
        appendTurned(&mesh, piece);
    return mesh;
}

QVector<Footprint> StillLife::footprints()
{
    QVector<Footprint> feet;
    const QVector<Piece> all = pieces();
    for (const Piece &piece : all)
        feet.append(piece.foot);
    return feet;
}

} // namespace viewer

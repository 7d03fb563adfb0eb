// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector3D>
#include <QVector>

namespace viewer {

/// One corner of the model's triangles, in the layout that the graphics card reads.
struct Vertex
{
    QVector3D position;
    QVector3D normal;
    QVector3D color; ///< linear light, 0 to 1
    float gloss;     ///< 0 dull to 1 polished
};
static_assert(sizeof(Vertex) == 10 * sizeof(float), "the vertex is uploaded as it stands");

/// Triangles with shared corners.
struct Mesh
{
    QVector<Vertex> vertices;
    QVector<quint16> indices;
};

/// Where an object stands on the ground, for its soft shadow.
struct Footprint
{
    float x;
    float z;
    float radius;
};

/// The model of the 3D view: a few turned pieces on a studio floor, built from profiles when the
/// viewport starts. Pure functions without a graphics context.
namespace StillLife {

Mesh build();
QVector<Footprint> footprints();

} // namespace StillLife
} // namespace viewer

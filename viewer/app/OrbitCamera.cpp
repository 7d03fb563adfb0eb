// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/OrbitCamera.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace viewer {

namespace {

constexpr float FieldOfView = 34.0f;
constexpr float FittingAspect = 1.35f;
constexpr float DegreesPerView = 360.0f;
constexpr float ZoomPerStep = 0.88f;
constexpr float PanRange = 3.0f;

// Half the height of what the view shows at distance 1. A view that is narrower than usual shows
// more above and below, so that the model still fits from side to side.
float halfHeight(float aspect)
{
    return std::tan(qDegreesToRadians(FieldOfView / 2)) * std::max(1.0f, FittingAspect / aspect);
}

} // namespace

void OrbitCamera::orbit(const QPointF &travel)
{
    m_yaw = std::remainder(m_yaw - float(travel.x()) * DegreesPerView, 360.0f);
    m_pitch = qBound(MinPitch, m_pitch + float(travel.y()) * DegreesPerView / 2, MaxPitch);
}

void OrbitCamera::zoom(float steps)
{
    m_distance = qBound(MinDistance, m_distance * std::pow(ZoomPerStep, steps), MaxDistance);
}

void OrbitCamera::pan(const QPointF &travel, float aspect)
{
    // The height of the plane through the target that the view shows.
    const float height = 2 * m_distance * halfHeight(aspect);
    const QVector3D forward = (m_target - eye()).normalized();
    const QVector3D right = QVector3D::crossProduct(forward, {0, 1, 0}).normalized();
    const QVector3D up = QVector3D::crossProduct(right, forward);
    m_target += (up * float(travel.y()) - right * float(travel.x()) * aspect) * height;
    for (int axis = 0; axis < 3; ++axis)
        m_target[axis] = qBound(-PanRange, m_target[axis], PanRange);
}

void OrbitCamera::reset()
{
    *this = OrbitCamera();
}

QVector3D OrbitCamera::eye() const
{
    const float yaw = qDegreesToRadians(m_yaw);
    const float pitch = qDegreesToRadians(m_pitch);
    const QVector3D direction(std::cos(pitch) * std::sin(yaw), std::sin(pitch),
                              std::cos(pitch) * std::cos(yaw));
    return m_target + direction * m_distance;
}

QMatrix4x4 OrbitCamera::view() const
{
    QMatrix4x4 matrix;
    matrix.lookAt(eye(), m_target, {0, 1, 0});
    return matrix;
}

QMatrix4x4 OrbitCamera::projection(float aspect)
{
    QMatrix4x4 matrix;
    matrix.perspective(2 * qRadiansToDegrees(std::atan(halfHeight(aspect))), aspect, 0.1f, 80.0f);
    return matrix;
}

} // namespace viewer

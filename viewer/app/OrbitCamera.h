// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QVector3D>

namespace viewer {

/// A camera that circles a point. A plain value without widgets: the viewport feeds it mouse travel
/// as fractions of the view, so that a gesture means the same at any window size.
class OrbitCamera
{
public:
    /// Limits of pitch (degrees above the horizon) and of the distance to the target.
    static constexpr float MinPitch = 2.0f;
    static constexpr float MaxPitch = 88.0f;
    static constexpr float MinDistance = 2.2f;
    static constexpr float MaxDistance = 16.0f;

    float yaw() const { return m_yaw; }
    float pitch() const { return m_pitch; }
    float distance() const { return m_distance; }
    QVector3D target() const { return m_target; }

    /// Turns by mouse travel in fractions of the view: one view width is one full turn.
    void orbit(const QPointF &travel);

    /// Comes nearer by `steps` notches of a wheel, or goes away when negative.
    void zoom(float steps);

    /// Shifts the target so that the picture follows the mouse; travel in fractions of the view.
    void pan(const QPointF &travel, float aspect);

    /// Back to the view of the start.
    void reset();

    QVector3D eye() const;
    QMatrix4x4 view() const;
    static QMatrix4x4 projection(float aspect);

private:
    float m_yaw = -24.0f;
    float m_pitch = 12.0f;
    float m_distance = 7.2f;
    QVector3D m_target{0.0f, 1.06f, 0.0f};
};

} // namespace viewer

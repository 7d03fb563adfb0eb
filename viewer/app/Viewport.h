// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/OrbitCamera.h"

#include <QOpenGLWidget>

#include <memory>

namespace viewer {

class StudioRenderer;

/// The 3D view: a lit model that the mouse moves around. Dragging orbits, with the middle button or
/// Ctrl it pans, the wheel zooms, a double click resets. Owned by the view area, which builds one
/// only where openGlFault() finds nothing wrong. It knows nothing of overlays.
class Viewport : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit Viewport(QWidget *parent = nullptr);
    ~Viewport() override;

    /// Why no 3D view can be had in this process, as a text for the user; empty when one can.
    static QString openGlFault();

    const OrbitCamera &camera() const { return m_camera; }

    /// The graphics card or program that draws, empty before the first frame.
    QString rendererName() const { return m_rendererName; }

    void resetCamera();

Q_SIGNALS:
    /// The first frame can be drawn: rendererName() is known.
    void started();

    /// The renderer could not be set up; sent at most once, while the first frame is prepared.
    void failed(const QString &reason);

protected:
    void initializeGL() override;
    void paintGL() override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void releaseRenderer();
    QPointF travelTo(const QPoint &position);

    OrbitCamera m_camera;
    std::unique_ptr<StudioRenderer> m_renderer;
    QString m_rendererName;
    QPoint m_lastPosition;
};

} // namespace viewer

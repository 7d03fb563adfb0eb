// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/StillLife.h"

#include <QOpenGLBuffer>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>

#include <memory>

namespace viewer {

class OrbitCamera;

/// Draws the studio: wall, floor and model. Owned by the viewport, which makes its graphics context
/// current for every call, the destructor included. Keeps to what OpenGL 2.1 and ES 2 both have.
class StudioRenderer : protected QOpenGLFunctions
{
public:
    StudioRenderer();
    ~StudioRenderer();
    Q_DISABLE_COPY(StudioRenderer)

    /// Builds programs and buffers in the current context. False when the driver refuses a program;
    /// Qt has then written its reasons to the log, and nothing may be drawn.
    bool initialize();

    /// Draws one frame into a framebuffer of `size` pixels.
    void draw(const OrbitCamera &camera, const QSize &size);

private:
    bool link(QOpenGLShaderProgram *program, const char *name);
    void upload(const Mesh &mesh);
    void drawBackdrop(float aspect);
    void drawFloor(const QMatrix4x4 &viewProjection);
    void drawModel(const OrbitCamera &camera, const QMatrix4x4 &viewProjection);
    void drawRectangle(QOpenGLShaderProgram *program);

    QOpenGLShaderProgram m_backdrop;
    QOpenGLShaderProgram m_floor;
    QOpenGLShaderProgram m_model;
    QOpenGLBuffer m_rectangle{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_vertices{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_indices{QOpenGLBuffer::IndexBuffer};
    QVector<QVector3D> m_feet;
    int m_indexCount = 0;
};

} // namespace viewer

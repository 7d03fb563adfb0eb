// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/Viewport.h"

#include "viewer/app/StudioRenderer.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QWheelEvent>

namespace viewer {

namespace {

constexpr float UnitsPerWheelStep = 120.0f;
constexpr int Samples = 4;

// Platforms without a window system may create a context, but cannot compose it with widgets.
bool platformComposesOpenGl()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

Viewport::Viewport(QWidget *parent) : QOpenGLWidget(parent)
{
    QSurfaceFormat wanted = format();
    wanted.setSamples(Samples);
    wanted.setDepthBufferSize(24);
    setFormat(wanted);
    setCursor(Qt::OpenHandCursor);
    setFocusPolicy(Qt::ClickFocus);
}

Viewport::~Viewport()
{
    // The base class destroys the context, which would call back into what is gone by then.
    if (context())
        context()->disconnect(this);
    releaseRenderer();
}

QString Viewport::openGlFault()
{
    if (!platformComposesOpenGl())
        return tr("the platform \"%1\" has no OpenGL").arg(QGuiApplication::platformName());
    QOpenGLContext context;
    QOffscreenSurface surface;
    surface.create();
    if (!context.create() || !context.makeCurrent(&surface))
        return tr("no OpenGL context can be created");
    const bool enough = context.format().majorVersion() >= 2;
    context.doneCurrent();
    return enough ? QString() : tr("OpenGL 2 is needed");
}

void Viewport::resetCamera()
{
    m_camera.reset();
    update();
}

void Viewport::initializeGL()
{
    // A window that is torn down takes its context along; the next one starts anew.
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &Viewport::releaseRenderer);
    m_rendererName = QString::fromLatin1(
        reinterpret_cast<const char *>(context()->functions()->glGetString(GL_RENDERER)));
    m_renderer = std::make_unique<StudioRenderer>();
    if (m_renderer->initialize()) {
        emit started();
        return;
    }
    m_renderer.reset();
    emit failed(tr("the graphics driver refuses the shaders"));
}

void Viewport::paintGL()
{
    if (m_renderer)
        m_renderer->draw(m_camera, size() * devicePixelRatioF());
}

void Viewport::releaseRenderer()
{
    if (!m_renderer)
        return;
    makeCurrent();
    m_renderer.reset();
    doneCurrent();
}

void Viewport::mousePressEvent(QMouseEvent *event)
{
    m_lastPosition = event->pos();
    setCursor(Qt::ClosedHandCursor);
}

void Viewport::mouseMoveEvent(QMouseEvent *event)
{
    const bool pans =
        event->buttons() & Qt::MiddleButton
        || (event->buttons() & Qt::LeftButton && event->modifiers() & Qt::ControlModifier);
    if (!pans && !(event->buttons() & Qt::LeftButton))
        return;
    const QPointF travel = travelTo(event->pos());
    if (pans)
        m_camera.pan(travel, float(width()) / float(qMax(1, height())));
    else
        m_camera.orbit(travel);
    update();
}

void Viewport::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::NoButton)
        setCursor(Qt::OpenHandCursor);
}

void Viewport::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        resetCamera();
}

void Viewport::wheelEvent(QWheelEvent *event)
{
    m_camera.zoom(float(event->angleDelta().y()) / UnitsPerWheelStep);
    update();
    event->accept();
}

QPointF Viewport::travelTo(const QPoint &position)
{
    const QPointF travel(qreal(position.x() - m_lastPosition.x()) / qMax(1, width()),
                         qreal(position.y() - m_lastPosition.y()) / qMax(1, height()));
    m_lastPosition = position;
    return travel;
}

} // namespace viewer

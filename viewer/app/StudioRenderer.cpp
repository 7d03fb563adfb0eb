// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/StudioRenderer.h"

#include "viewer/app/OrbitCamera.h"
#include "viewer/app/StudioColors.h"

#include <QSize>

// A library's resources are only there once they are asked for; the macro must stand outside of
// namespaces.
static void loadShaders()
{
    Q_INIT_RESOURCE(viewerapp);
}

namespace viewer {

namespace {

constexpr float FloorExtent = 9.0f;

struct Attribute
{
    const char *name;
    int offset;
    int size;
};

constexpr int Float = sizeof(float);
const Attribute s_attributes[] = {
    {"position", 0, 3},
    {"normal", 3 * Float, 3},
    {"color", 6 * Float, 3},
    {"gloss", 9 * Float, 1},
};

QVector3D toVector(const QColor &color)
{
    return {float(color.redF()), float(color.greenF()), float(color.blueF())};
}

QString shaderFile(const char *name, const char *suffix)
{
    return QStringLiteral(":/viewer/shaders/%1.%2").arg(QLatin1String(name), QLatin1String(suffix));
}

} // namespace

StudioRenderer::StudioRenderer()
{
    loadShaders();
}

StudioRenderer::~StudioRenderer() = default;

bool StudioRenderer::initialize()
{
    initializeOpenGLFunctions();
    if (!link(&m_backdrop, "backdrop") || !link(&m_floor, "floor") || !link(&m_model, "model"))
        return false;
    upload(StillLife::build());
    const QVector<Footprint> feet = StillLife::footprints();
    for (const Footprint &foot : feet)
        m_feet.append({foot.x, foot.z, foot.radius});
    return true;
}

bool StudioRenderer::link(QOpenGLShaderProgram *program, const char *name)
{
    return program->addShaderFromSourceFile(QOpenGLShader::Vertex, shaderFile(name, "vert"))
           && program->addShaderFromSourceFile(QOpenGLShader::Fragment, shaderFile(name, "frag"))
           && program->link();
}

void StudioRenderer::upload(const Mesh &mesh)
{
    const float corners[] = {-1, -1, 1, -1, -1, 1, 1, 1};
    m_rectangle.create();
    m_rectangle.bind();
    m_rectangle.allocate(corners, sizeof corners);
    m_vertices.create();
    m_vertices.bind();
    m_vertices.allocate(mesh.vertices.constData(), mesh.vertices.size() * int(sizeof(Vertex)));
    m_vertices.release();
    m_indices.create();
    m_indices.bind();
    m_indices.allocate(mesh.indices.constData(), mesh.indices.size() * int(sizeof(quint16)));
    m_indices.release();
    m_indexCount = mesh.indices.size();
}

void StudioRenderer::draw(const OrbitCamera &camera, const QSize &size)
{
    const float aspect = float(size.width()) / float(qMax(1, size.height()));
    const QMatrix4x4 viewProjection = OrbitCamera::projection(aspect) * camera.view();
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glDisable(GL_DEPTH_TEST);
    drawBackdrop(aspect);
    drawFloor(viewProjection);
    glEnable(GL_DEPTH_TEST);
    drawModel(camera, viewProjection);
    glDisable(GL_DEPTH_TEST);
}

void StudioRenderer::drawBackdrop(float aspect)
{
    m_backdrop.bind();
    m_backdrop.setUniformValue("above", toVector(StudioColors::above()));
    m_backdrop.setUniformValue("below", toVector(StudioColors::below()));
    m_backdrop.setUniformValue("glow", toVector(StudioColors::glow()));
    m_backdrop.setUniformValue("aspect", aspect);
    drawRectangle(&m_backdrop);
}

void StudioRenderer::drawFloor(const QMatrix4x4 &viewProjection)
{
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_floor.bind();
    m_floor.setUniformValue("viewProjection", viewProjection);
    m_floor.setUniformValue("extent", FloorExtent);
    m_floor.setUniformValueArray("feet", m_feet.constData(), m_feet.size());
    drawRectangle(&m_floor);
    glDisable(GL_BLEND);
}

void StudioRenderer::drawModel(const OrbitCamera &camera, const QMatrix4x4 &viewProjection)
{
    m_model.bind();
    m_model.setUniformValue("viewProjection", viewProjection);
    m_model.setUniformValue("eye", camera.eye());
    m_vertices.bind();
    m_indices.bind();
    for (const Attribute &attribute : s_attributes) {
        m_model.enableAttributeArray(attribute.name);
        m_model.setAttributeBuffer(attribute.name, GL_FLOAT, attribute.offset, attribute.size,
                                   sizeof(Vertex));
    }
    glDrawElements(GL_TRIANGLES, m_indexCount, GL_UNSIGNED_SHORT, nullptr);
    for (const Attribute &attribute : s_attributes)
        m_model.disableAttributeArray(attribute.name);
    m_indices.release();
    m_vertices.release();
    m_model.release();
}

void StudioRenderer::drawRectangle(QOpenGLShaderProgram *program)
{
    m_rectangle.bind();
    program->enableAttributeArray("corner");
    program->setAttributeBuffer("corner", GL_FLOAT, 0, 2);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
    program->disableAttributeArray("corner");
    m_rectangle.release();
    program->release();
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/StillLife.h"

#include "tests/support/KxTest.h"

#include <limits>

using namespace viewer;

class tst_StillLife : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFitShortIndices();
    void shouldHaveNormalsOfLengthOne();
    void shouldTurnItsFacesOutwards();
    void shouldStandOnTheFloor();
    void shouldStandOnItsFootprints();
    void shouldDarkenInsideTheVase();
};

void tst_StillLife::shouldFitShortIndices()
{
    const Mesh mesh = StillLife::build();
    QVERIFY(mesh.vertices.size() <= std::numeric_limits<quint16>::max());
    QCOMPARE(mesh.indices.size() % 3, 0);
    const auto highest = std::max_element(mesh.indices.cbegin(), mesh.indices.cend());
    QCOMPARE(int(*highest), mesh.vertices.size() - 1);
}

void tst_StillLife::shouldHaveNormalsOfLengthOne()
{
    const Mesh mesh = StillLife::build();
    for (const Vertex &vertex : mesh.vertices)
        QVERIFY(qAbs(vertex.normal.length() - 1) < 1e-4f);
}

void tst_StillLife::shouldTurnItsFacesOutwards()
{
    const Mesh mesh = StillLife::build();
    for (int i = 0; i < mesh.indices.size(); i += 3) {
        const Vertex &a = mesh.vertices.at(mesh.indices.at(i));
        const Vertex &b = mesh.vertices.at(mesh.indices.at(i + 1));
        const Vertex &c = mesh.vertices.at(mesh.indices.at(i + 2));
        const QVector3D face =
            QVector3D::crossProduct(b.position - a.position, c.position - a.position);
        // At the axis a triangle has no area.
        if (face.length() > 1e-7f)
            QVERIFY(QVector3D::dotProduct(face, a.normal + b.normal + c.normal) > 0);
    }
}

void tst_StillLife::shouldStandOnTheFloor()
{
    const Mesh mesh = StillLife::build();
    float lowest = 1;
    for (const Vertex &vertex : mesh.vertices)
        lowest = qMin(lowest, vertex.position.y());
    QCOMPARE(lowest, 0.0f);
}

void tst_StillLife::shouldStandOnItsFootprints()
{
    const Mesh mesh = StillLife::build();
    const QVector<Footprint> feet = StillLife::footprints();
    // As many as the floor's shader reckons with.
    QCOMPARE(feet.size(), 4);
    for (const Footprint &foot : feet) {
        const bool stands = std::any_of(mesh.vertices.cbegin(), mesh.vertices.cend(),
                                        [&foot](const Vertex &vertex) {
                                            return vertex.position == QVector3D(foot.x, 0, foot.z);
                                        });
        QVERIFY(stands);
    }
}

void tst_StillLife::shouldDarkenInsideTheVase()
{
    // The vase is the first piece; at the axis its outline begins outside below and ends inside.
    const Mesh mesh = StillLife::build();
    const QVector3D outside = mesh.vertices.constFirst().color;
    const auto inside =
        std::find_if(mesh.vertices.cbegin(), mesh.vertices.cend(), [](const Vertex &vertex) {
            return vertex.position.x() == 0 && vertex.position.z() == 0 && vertex.position.y() > 1;
        });
    QVERIFY(inside != mesh.vertices.cend());
    QVERIFY(inside->color.length() < outside.length());
}

KX_TEST_MAIN(tst_StillLife)
#include "tst_StillLife.moc"

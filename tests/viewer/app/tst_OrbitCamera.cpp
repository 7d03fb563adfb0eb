// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/OrbitCamera.h"

#include "tests/support/KxTest.h"

using viewer::OrbitCamera;

class tst_OrbitCamera : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTurnOnceForTheWidthOfTheView();
    void shouldFollowTheMouseWhenOrbiting();
    void shouldStopBetweenFloorAndZenith();
    void shouldKeepItsDistanceWhileOrbiting();
    void shouldComeNearerWithTheWheelWithinLimits();
    void shouldKeepTheTargetUnderTheMouseWhenPanning_data();
    void shouldKeepTheTargetUnderTheMouseWhenPanning();
    void shouldNotPanOutOfTheStudio();
    void shouldLookAtTheTarget();
    void shouldShowTheModelFromSideToSideInANarrowView();
    void shouldReturnToTheStart();
};

void tst_OrbitCamera::shouldTurnOnceForTheWidthOfTheView()
{
    OrbitCamera camera;
    const QVector3D before = camera.eye();
    camera.orbit({0.5, 0});
    QVERIFY((camera.eye() - before).length() > 1);
    camera.orbit({0.5, 0});
    QVERIFY((camera.eye() - before).length() < 1e-3f);
}

void tst_OrbitCamera::shouldFollowTheMouseWhenOrbiting()
{
    // What lies in front of the target moves to the right with the mouse: the eye goes to the left.
    OrbitCamera camera;
    const float yaw = camera.yaw();
    const float pitch = camera.pitch();
    camera.orbit({0.1, 0.05});
    QCOMPARE(camera.yaw(), yaw - 36);
    QCOMPARE(camera.pitch(), pitch + 9);
}

void tst_OrbitCamera::shouldStopBetweenFloorAndZenith()
{
    OrbitCamera camera;
    camera.orbit({0, 5});
    QCOMPARE(camera.pitch(), OrbitCamera::MaxPitch);
    camera.orbit({0, -5});
    QCOMPARE(camera.pitch(), OrbitCamera::MinPitch);
    QVERIFY(camera.eye().y() > 0);
}

void tst_OrbitCamera::shouldKeepItsDistanceWhileOrbiting()
{
    OrbitCamera camera;
    const float distance = camera.distance();
    for (int i = 0; i < 50; ++i)
        camera.orbit({0.037, 0.011});
    QVERIFY(qAbs((camera.eye() - camera.target()).length() - distance) < 1e-4f);
}

void tst_OrbitCamera::shouldComeNearerWithTheWheelWithinLimits()
{
    OrbitCamera camera;
    const float distance = camera.distance();
    camera.zoom(1);
    QVERIFY(camera.distance() < distance);
    camera.zoom(-1);
    QVERIFY(qAbs(camera.distance() - distance) < 1e-4f);
    camera.zoom(100);
    QCOMPARE(camera.distance(), OrbitCamera::MinDistance);
    camera.zoom(-100);
    QCOMPARE(camera.distance(), OrbitCamera::MaxDistance);
}

void tst_OrbitCamera::shouldKeepTheTargetUnderTheMouseWhenPanning_data()
{
    QTest::addColumn<float>("aspect");
    QTest::newRow("wide") << 1.6f;
    QTest::newRow("narrow") << 0.7f;
}

void tst_OrbitCamera::shouldKeepTheTargetUnderTheMouseWhenPanning()
{
    QFETCH(float, aspect);
    OrbitCamera camera;
    const QVector3D grabbed = camera.target();
    camera.pan({0.1, 0.2}, aspect);
    const QVector3D seen = OrbitCamera::projection(aspect) * camera.view() * grabbed;
    // From the middle, by a tenth of the width to the right and a fifth of the height downwards.
    QVERIFY2(qAbs(seen.x() - 0.2f) < 1e-3f, qPrintable(QString::number(seen.x())));
    QVERIFY2(qAbs(seen.y() + 0.4f) < 1e-3f, qPrintable(QString::number(seen.y())));
}

void tst_OrbitCamera::shouldNotPanOutOfTheStudio()
{
    OrbitCamera camera;
    for (int i = 0; i < 100; ++i)
        camera.pan({0.9, 0.9}, 1);
    for (int axis = 0; axis < 3; ++axis)
        QVERIFY(qAbs(camera.target()[axis]) <= 3);
}

void tst_OrbitCamera::shouldLookAtTheTarget()
{
    OrbitCamera camera;
    camera.orbit({0.2, 0.1});
    const QVector3D seen = OrbitCamera::projection(1) * camera.view() * camera.target();
    QVERIFY(qAbs(seen.x()) < 1e-4f && qAbs(seen.y()) < 1e-4f);
}

void tst_OrbitCamera::shouldShowTheModelFromSideToSideInANarrowView()
{
    const OrbitCamera camera;
    const auto placeIn = [&camera](float aspect) {
        return (OrbitCamera::projection(aspect) * camera.view() * QVector3D(1.9f, 0, 0.6f)).x();
    };
    QVERIFY(qAbs(placeIn(0.5f)) < 1);
    QVERIFY(qAbs(placeIn(0.5f) - placeIn(1.2f)) < 1e-4f);
    // A wider view shows more at its sides.
    QVERIFY(qAbs(placeIn(2.0f)) < qAbs(placeIn(1.2f)));
}

void tst_OrbitCamera::shouldReturnToTheStart()
{
    const OrbitCamera start;
    OrbitCamera camera;
    camera.orbit({0.3, 0.1});
    camera.zoom(3);
    camera.pan({0.1, 0.1}, 1);
    QVERIFY(camera.eye() != start.eye());
    camera.reset();
    QCOMPARE(camera.eye(), start.eye());
    QCOMPARE(camera.target(), start.target());
}

KX_TEST_MAIN(tst_OrbitCamera)
#include "tst_OrbitCamera.moc"

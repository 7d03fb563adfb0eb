// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxIconOptions.h"

#include <QCoreApplication>
#include <QIcon>
#include <QPixmap>
#include <QtTest>

/// The icon manager in a program without a window system, where drawing a pixmap would abort.
class tst_kxIconManagerHeadless : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGiveNoPixmapWithoutWindowSystem();
    void shouldStillMakeIcons();
};

void tst_kxIconManagerHeadless::shouldGiveNoPixmapWithoutWindowSystem()
{
    QVERIFY(kxIconManager::get("scenegraph/Overlay", kxIconOptions()).isNull());
    QVERIFY(kxIconManager::get("NoSuchIcon", kxIconOptions()).isNull());
    QCOMPARE(kxIconManager::renderingCount(), 0);
}

void tst_kxIconManagerHeadless::shouldStillMakeIcons()
{
    QVERIFY(!kxIconManager::getIcon("ModuleOverlay", std::string()).isNull());
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    tst_kxIconManagerHeadless test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_kxIconManagerHeadless.moc"

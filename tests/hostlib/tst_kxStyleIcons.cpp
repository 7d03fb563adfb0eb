// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxStyle.h"
#include "tests/support/KxTest.h"

class tst_kxStyleIcons : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeThePanelButtonsFromTheIconSet_data();
    void shouldTakeThePanelButtonsFromTheIconSet();
    void shouldLeaveOtherIconsAsTheyAre();
};

void tst_kxStyleIcons::shouldTakeThePanelButtonsFromTheIconSet_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("name");
    QTest::newRow("close window") << int(QStyle::SP_TitleBarCloseButton) << "Clear";
    QTest::newRow("close panel") << int(QStyle::SP_DockWidgetCloseButton) << "Clear";
    QTest::newRow("float") << int(QStyle::SP_TitleBarNormalButton) << "Float";
}

void tst_kxStyleIcons::shouldTakeThePanelButtonsFromTheIconSet()
{
    QFETCH(int, button);
    QFETCH(QString, name);
    const kxStyle style;
    const QIcon drawn = style.standardIcon(QStyle::StandardPixmap(button));
    const QIcon wanted = kxIconManager::getIcon(name.toStdString(), std::string());
    QVERIFY(!wanted.isNull());
    QCOMPARE(drawn.pixmap(16).toImage(), wanted.pixmap(16).toImage());
}

void tst_kxStyleIcons::shouldLeaveOtherIconsAsTheyAre()
{
    QVERIFY(!kxStyle().standardIcon(QStyle::SP_DirIcon).isNull());
}

KX_TEST_MAIN(tst_kxStyleIcons)
#include "tst_kxStyleIcons.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxStyle.h"
#include "tests/support/KxTest.h"

#include <QComboBox>
#include <QStyleOption>

class tst_kxStyleIcons : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldTakeThePanelButtonsFromTheIconSet_data();
    void shouldTakeThePanelButtonsFromTheIconSet();
    void shouldLeaveOtherIconsAsTheyAre();
    void shouldDrawArrowsAsLargeAsTheirPlace();
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

/// Columns of the image that differ from their neighbour at the left.
static int changingColumns(const QImage &image)
{
    int columns = 0;
    for (int x = 1; x < image.width(); ++x)
        columns += image.copy(x, 0, 1, image.height()) != image.copy(x - 1, 0, 1, image.height());
    return columns;
}

void tst_kxStyleIcons::shouldDrawArrowsAsLargeAsTheirPlace()
{
    QApplication::setStyle(new kxStyle);
    QComboBox box;
    box.resize(box.sizeHint().expandedTo({200, 0}));
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const QStyle *style = box.style();
    const QRect place =
        style->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, &box)
            .intersected(box.rect())
            .adjusted(0, 4, -6, -4);
    const int arrow = changingColumns(box.grab().toImage().copy(place));
    QVERIFY2(arrow * 5 >= place.width() * 2,
             qPrintable(QString("%1 of %2").arg(arrow).arg(place.width())));
}

KX_TEST_MAIN(tst_kxStyleIcons)
#include "tst_kxStyleIcons.moc"

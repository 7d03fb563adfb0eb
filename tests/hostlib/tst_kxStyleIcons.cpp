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
    void shouldTakeThemFromTheIconSet_data();
    void shouldTakeThemFromTheIconSet();
    void shouldLeaveOtherIconsAsTheyAre();
    void shouldNotTintTheIconsOfSelectedRows();
    void shouldDrawArrowsAsLargeAsTheirPlace();
};

void tst_kxStyleIcons::shouldTakeThemFromTheIconSet_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QString>("name");
    QTest::newRow("close window") << int(QStyle::SP_TitleBarCloseButton) << "Clear";
    QTest::newRow("close panel") << int(QStyle::SP_DockWidgetCloseButton) << "Clear";
    QTest::newRow("float") << int(QStyle::SP_TitleBarNormalButton) << "Float";
    QTest::newRow("information") << int(QStyle::SP_MessageBoxInformation) << "MessageInformation";
    QTest::newRow("warning") << int(QStyle::SP_MessageBoxWarning) << "MessageWarning";
    QTest::newRow("error") << int(QStyle::SP_MessageBoxCritical) << "MessageError";
    QTest::newRow("question") << int(QStyle::SP_MessageBoxQuestion) << "MessageQuestion";
}

void tst_kxStyleIcons::shouldTakeThemFromTheIconSet()
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

void tst_kxStyleIcons::shouldNotTintTheIconsOfSelectedRows()
{
    QApplication::setStyle(new kxStyle);
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::white);
    const QIcon icon(pixmap);
    QCOMPARE(icon.pixmap(16, QIcon::Selected).toImage().pixelColor(8, 8), QColor(Qt::white));
    QVERIFY(icon.pixmap(16, QIcon::Disabled).toImage().pixelColor(8, 8) != QColor(Qt::white));
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

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXColorManipulator.h"
#include "tests/hostlib/widgetInput.h"
#include "tests/support/KxTest.h"

#include <QAccessible>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPushButton>

#include <memory>

using widgetinput::drag;

/// One control of 300 by 16 pixels, and a host that answers each colour at once as it has stored it.
class tst_QKXColorManipulator : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldFitAStripOf16Pixels();
    void shouldShowAColorSilently();
    void shouldSendEachMoveOfADrag();
    void shouldKeepTheHueWhileDraggedThroughBlackAndGrey();
    void shouldSendOpaqueStepsOf255();
    void shouldEditByKeys_data();
    void shouldEditByKeys();
    void shouldChooseAnotherBarByKeys();
    void shouldLeaveOtherKeysToTheHost();
    void shouldOpenItsDialog_data();
    void shouldOpenItsDialog();
    void shouldSendTheDialogsColorsLive();
    void shouldBringTheFormerColorBackOnCancel();
    void shouldOpenOneDialogOnly();
    void shouldSendNothingBeforeOkWhileMixed();
    void shouldOpenTheDialogFromAnywhereWhileMixed_data();
    void shouldOpenTheDialogFromAnywhereWhileMixed();
    void shouldNotMoveABarWhileMixed();
    void shouldSendAnEditOfAMixedColorEvenWhenItIsTheOneShown();
    void shouldLookUnlikeWhenMixedDisabledAndFocused();
    void shouldShowWhereTheSaturationOfBlackLeads();
    void shouldTellAssistiveToolsItsColor();

private:
    void echo(float red, float green, float blue);
    QColorDialog *dialog() const { return m_control->findChild<QColorDialog *>(); }
    QImage picture() const { return m_control->grab().toImage(); }

    const QPoint m_swatch{10, 8};
    const QPoint m_hue{70, 8};
    const QPoint m_saturation{170, 8};
    const QPoint m_value{250, 8};
    const QPoint m_end{299, 8};

    std::unique_ptr<QKXColorManipulator> m_control;
    QVector<QColor> m_sent;
};

void tst_QKXColorManipulator::init()
{
    KxTest::init();
    m_control = std::make_unique<QKXColorManipulator>(nullptr, "_color_slider");
    m_control->setFixedSize(300, 16);
    m_control->setColor(QColor(51, 102, 51));
    connect(m_control.get(), &QKXColorManipulator::colorChanged, this,
            &tst_QKXColorManipulator::echo);
    QVERIFY(widgetinput::showActive(m_control.get()));
    m_control->setFocus();
    m_sent.clear();
}

void tst_QKXColorManipulator::cleanup()
{
    m_control.reset();
    KxTest::cleanup();
}

void tst_QKXColorManipulator::echo(float red, float green, float blue)
{
    const QColor stored = QColor::fromRgbF(double(red), double(green), double(blue), 1.0);
    m_sent.append(stored);
    const QSignalBlocker blocker(m_control.get());
    m_control->setColor(QKXColor(stored));
}

void tst_QKXColorManipulator::shouldFitAStripOf16Pixels()
{
    QCOMPARE(m_control->objectName(), QStringLiteral("_color_slider"));
    QVERIFY(m_control->minimumSizeHint().height() <= 16);
    QCOMPARE(picture().pixelColor(m_swatch), QColor(51, 102, 51));
}

void tst_QKXColorManipulator::shouldShowAColorSilently()
{
    m_control->setColor(QColor(10, 20, 30));
    QCOMPARE(m_control->color().toColor(), QColor(10, 20, 30));
    QCOMPARE(picture().pixelColor(m_swatch), QColor(10, 20, 30));
    QVERIFY(m_sent.isEmpty());
}

void tst_QKXColorManipulator::shouldSendEachMoveOfADrag()
{
    const QPoint right(8, 0);
    drag(m_control.get(), m_value, {m_value + right, m_value + 2 * right, m_end});
    QCOMPARE(m_sent.size(), 4);
    for (int i = 1; i < m_sent.size(); ++i)
        QVERIFY(m_sent.at(i).green() > m_sent.at(i - 1).green());
    QCOMPARE(m_sent.last(), QColor(128, 255, 128));
    QCOMPARE(m_control->color().hue, 120.0f);
}

void tst_QKXColorManipulator::shouldKeepTheHueWhileDraggedThroughBlackAndGrey()
{
    drag(m_control.get(), m_value, {QPoint(0, 8), m_value});
    QVERIFY(m_sent.contains(QColor(0, 0, 0)));
    QCOMPARE(m_control->color().hue, 120.0f);
    QCOMPARE(m_control->color().saturation, 0.5f);

    drag(m_control.get(), m_saturation, {QPoint(0, 8), QPoint(299, 8)});
    QCOMPARE(m_control->color().hue, 120.0f);
    QCOMPARE(m_control->color().saturation, 1.0f);
    QCOMPARE(m_sent.last().red(), 0);
}

void tst_QKXColorManipulator::shouldSendOpaqueStepsOf255()
{
    connect(m_control.get(), &QKXColorManipulator::colorChanged, this,
            [](float red, float green, float blue) {
                for (const float part : {red, green, blue})
                    QCOMPARE(part, float(qRound(part * 255.0f) / 255.0));
            });
    drag(m_control.get(), m_hue, {m_hue + QPoint(3, 0), m_hue + QPoint(7, 0)});
    QVERIFY(m_sent.size() >= 2);
    for (const QColor &color : qAsConst(m_sent))
        QCOMPARE(color, QColor(color.red(), color.green(), color.blue()));
}

void tst_QKXColorManipulator::shouldEditByKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<float>("hue");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers shift(Qt::ShiftModifier);
    QTest::newRow("right") << int(Qt::Key_Right) << none << 121.0f;
    QTest::newRow("left") << int(Qt::Key_Left) << none << 119.0f;
    QTest::newRow("ten to the right") << int(Qt::Key_Right) << shift << 130.0f;
    QTest::newRow("ten to the left") << int(Qt::Key_Left) << shift << 110.0f;
    QTest::newRow("first") << int(Qt::Key_Home) << none << 0.0f;
    QTest::newRow("last") << int(Qt::Key_End) << none << 360.0f;
}

void tst_QKXColorManipulator::shouldEditByKeys()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(float, hue);
    QTest::keyClick(m_control.get(), Qt::Key(key), modifiers);
    QVERIFY(qAbs(m_control->color().hue - hue) < 0.001f);
    QCOMPARE(m_sent.size(), 1);
}

void tst_QKXColorManipulator::shouldChooseAnotherBarByKeys()
{
    QTest::keyClick(m_control.get(), Qt::Key_Down);
    QTest::keyClick(m_control.get(), Qt::Key_End);
    QCOMPARE(m_control->color().saturation, 1.0f);
    QTest::keyClick(m_control.get(), Qt::Key_Down);
    QTest::keyClick(m_control.get(), Qt::Key_Down);
    QTest::keyClick(m_control.get(), Qt::Key_End);
    QCOMPARE(m_control->color().value, 1.0f);
    QTest::keyClick(m_control.get(), Qt::Key_Up);
    QTest::keyClick(m_control.get(), Qt::Key_Home);
    QCOMPARE(m_control->color().saturation, 0.0f);
    QCOMPARE(m_sent.last(), QColor(255, 255, 255));
}

void tst_QKXColorManipulator::shouldLeaveOtherKeysToTheHost()
{
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Right, modifier);
        QApplication::sendEvent(m_control.get(), &event);
        QVERIFY(!event.isAccepted());
    }
    QVERIFY(m_sent.isEmpty());
}

void tst_QKXColorManipulator::shouldOpenItsDialog_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("click on the swatch") << 0;
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void tst_QKXColorManipulator::shouldOpenItsDialog()
{
    QFETCH(int, key);
    if (key)
        QTest::keyClick(m_control.get(), Qt::Key(key));
    else
        QTest::mouseClick(m_control.get(), Qt::LeftButton, Qt::NoModifier, m_swatch);
    QVERIFY(dialog());
    QVERIFY(dialog()->isVisible());
    QCOMPARE(dialog()->currentColor(), QColor(51, 102, 51));
    QVERIFY(m_sent.isEmpty());
    dialog()->reject();
    QTRY_VERIFY(!dialog());
    QVERIFY(m_sent.isEmpty());
}

void tst_QKXColorManipulator::shouldSendTheDialogsColorsLive()
{
    QTest::mouseDClick(m_control.get(), Qt::LeftButton, Qt::NoModifier, m_hue);
    QVERIFY(dialog());
    m_sent.clear();
    dialog()->setCurrentColor(QColor(1, 2, 3));
    dialog()->setCurrentColor(QColor(200, 100, 50));
    QCOMPARE(m_sent, QVector<QColor>({QColor(1, 2, 3), QColor(200, 100, 50)}));
    dialog()->accept();
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_sent.size(), 2);
    QCOMPARE(m_control->color().toColor(), QColor(200, 100, 50));
}

void tst_QKXColorManipulator::shouldBringTheFormerColorBackOnCancel()
{
    QTest::keyClick(m_control.get(), Qt::Key_Return);
    dialog()->setCurrentColor(QColor(255, 0, 0));
    QTest::mouseClick(dialog()->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel),
                      Qt::LeftButton);
    QCOMPARE(m_sent, QVector<QColor>({QColor(255, 0, 0), QColor(51, 102, 51)}));
    QCOMPARE(m_control->color().hue, 120.0f);
    QTRY_VERIFY(!dialog());
}

void tst_QKXColorManipulator::shouldOpenOneDialogOnly()
{
    m_control->openDialog();
    m_control->openDialog();
    QCOMPARE(m_control->findChildren<QColorDialog *>().size(), 1);
}

void tst_QKXColorManipulator::shouldSendNothingBeforeOkWhileMixed()
{
    m_control->setProperty("multiselect", true);
    m_control->openDialog();
    dialog()->setCurrentColor(QColor(255, 0, 0));
    dialog()->reject();
    QTRY_VERIFY(!dialog());
    QVERIFY(m_sent.isEmpty());

    m_control->openDialog();
    dialog()->setCurrentColor(QColor(255, 0, 0));
    QVERIFY(m_sent.isEmpty());
    dialog()->accept();
    QCOMPARE(m_sent, QVector<QColor>({QColor(255, 0, 0)}));
}

void tst_QKXColorManipulator::shouldOpenTheDialogFromAnywhereWhileMixed_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("swatch") << m_swatch;
    QTest::newRow("hue") << m_hue;
    QTest::newRow("value") << m_value;
}

void tst_QKXColorManipulator::shouldOpenTheDialogFromAnywhereWhileMixed()
{
    QFETCH(QPoint, place);
    m_control->setProperty("multiselect", true);
    QTest::mouseClick(m_control.get(), Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY(dialog());
    QVERIFY(m_sent.isEmpty());
}

void tst_QKXColorManipulator::shouldNotMoveABarWhileMixed()
{
    m_control->setProperty("multiselect", true);
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End})
        QTest::keyClick(m_control.get(), key);
    QVERIFY(m_sent.isEmpty());
    QCOMPARE(m_control->color().toColor(), QColor(51, 102, 51));
}

void tst_QKXColorManipulator::shouldSendAnEditOfAMixedColorEvenWhenItIsTheOneShown()
{
    m_control->openDialog();
    dialog()->accept();
    QTRY_VERIFY(!dialog());
    QVERIFY(m_sent.isEmpty());
    m_control->setProperty("multiselect", true);
    m_control->openDialog();
    dialog()->accept();
    QCOMPARE(m_sent, QVector<QColor>({QColor(51, 102, 51)}));
}

void tst_QKXColorManipulator::shouldLookUnlikeWhenMixedDisabledAndFocused()
{
    const QImage focused = picture();
    m_control->clearFocus();
    const QImage plain = picture();
    m_control->setEnabled(false);
    const QImage disabled = picture();
    m_control->setEnabled(true);
    m_control->setProperty("multiselect", true);
    const QImage mixed = picture();
    QVERIFY(focused != plain);
    QVERIFY(disabled != plain);
    QVERIFY(mixed != plain);
    QVERIFY(mixed.pixelColor(m_swatch) != QColor(51, 102, 51));
    m_control->setColor(QColor(1, 2, 3));
    QCOMPARE(picture(), mixed); // the colour of one of several nodes does not shine through
}

void tst_QKXColorManipulator::shouldShowWhereTheSaturationOfBlackLeads()
{
    m_control->setColor(QKXColor(120.0f, 0.0f, 0.0f));
    const QColor pure = picture().pixelColor(m_saturation + QPoint(30, 0));
    QVERIFY(pure.green() > 80);
    QVERIFY(pure.red() < 40);
}

void tst_QKXColorManipulator::shouldTellAssistiveToolsItsColor()
{
    QAccessibleInterface *control = QAccessible::queryAccessibleInterface(m_control.get());
    QCOMPARE(control->role(), QAccessible::ColorChooser);
    QCOMPARE(control->text(QAccessible::Value), QStringLiteral("#336633"));
    control->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(dialog());
    m_control->setProperty("multiselect", true);
    QVERIFY(control->text(QAccessible::Value).isEmpty());
}

KX_TEST_MAIN(tst_QKXColorManipulator)
#include "tst_QKXColorManipulator.moc"

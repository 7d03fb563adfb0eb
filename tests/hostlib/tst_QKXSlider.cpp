// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXDoubleSpiner.h"
#include "host/QKXSlider.h"
#include "tests/hostlib/widgetInput.h"
#include "tests/support/KxTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QVBoxLayout>

#include <memory>

using widgetinput::drag;
using widgetinput::showActive;
using widgetinput::turnWheel;
using widgetinput::typeAtFocus;

/// One slider in a window with a neighbour that can take the focus, and a host that answers each
/// value at once with the float it has stored.
class tst_QKXSlider : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldSendTypedNumbersExactly_data();
    void shouldSendTypedNumbersExactly();
    void shouldSendTypedNumbersOutsideTheRange_data();
    void shouldSendTypedNumbersOutsideTheRange();
    void shouldLetTheHostCorrectATypedNumber();
    void shouldKeepAValueOutsideTheRange();
    void shouldKeepTheValueWhenTheRangeChanges();
    void shouldIgnoreWhatIsNotFinite();
    void shouldShowFloatsWithoutNoise();
    void shouldShowTheDecimalsOfTheStep();
    void shouldShowTheSuffix();
    void shouldSendEachStepOfADragAndItsReleaseOnce();
    void shouldBringTheHandleToAPressBesideIt();
    void shouldReachBothEndsByDragging();
    void shouldKeepItsValueWhenTheHandleIsOnlyClicked();
    void shouldStepByTheLineStepFromItsOwnValue();
    void shouldNotStepFartherOutOfTheRange();
    void shouldLeaveTheWheelToThePanelWithoutFocus();
    void shouldBeOneStopOfTheTabKey();
    void shouldBeSwitchedOffAsAWhole();
    void shouldAnnounceAValueThatIsSet();
    void shouldKeepWhatIsBeingTypedWhenAnEqualValueIsSet();
    void shouldGiveItsPartsTheNameOfItsLabel();
    void shouldHandTheMarkingToItsPartsOnChangeOnly();
    void shouldSendAnEditOfAMixedValueEvenWhenItIsTheOneShown();
    void shouldSendThePlaceOfAPressWhileMixed();

private:
    void echo(double value);
    QPoint handlePlace() const;

    std::unique_ptr<QWidget> m_window;
    QKXSlider *m_slider = nullptr;
    QSlider *m_handle = nullptr;
    QKXDoubleSpiner *m_field = nullptr;
    QLineEdit *m_neighbour = nullptr;
    QVector<double> m_sent;
};

void tst_QKXSlider::init()
{
    KxTest::init();
    m_window = std::make_unique<QWidget>();
    auto *layout = new QVBoxLayout(m_window.get());
    m_slider = new QKXSlider(m_window.get(), "_size");
    m_neighbour = new QLineEdit(m_window.get());
    layout->addWidget(m_slider);
    layout->addWidget(m_neighbour);
    m_handle = m_slider->findChild<QSlider *>();
    m_field = m_slider->findChild<QKXDoubleSpiner *>();
    m_slider->setLineStep(1.0);
    m_slider->setRange(0.0, 200.0);
    m_sent.clear();
    connect(m_slider, &QKXSlider::valueChanged, this, &tst_QKXSlider::echo);
    m_window->resize(600, 80);
    QVERIFY(showActive(m_window.get()));
    m_slider->setFocus();
    QVERIFY(m_field->hasFocus());
    m_field->selectAll();
}

void tst_QKXSlider::cleanup()
{
    m_window.reset();
    KxTest::cleanup();
}

void tst_QKXSlider::echo(double value)
{
    m_sent.append(value);
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(double(float(value)));
}

/// The middle of the handle, in its slider's coordinates.
QPoint tst_QKXSlider::handlePlace() const
{
    QStyleOptionSlider option;
    option.initFrom(m_handle);
    option.minimum = m_handle->minimum();
    option.maximum = m_handle->maximum();
    option.sliderPosition = m_handle->value();
    return m_handle->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, m_handle)
        .center();
}

void tst_QKXSlider::shouldSendTypedNumbersExactly_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<QString>("typed");
    QTest::newRow("half of a step") << 1.0 << QStringLiteral("12.5");
    QTest::newRow("two decimals") << 1.0 << QStringLiteral("12.75");
    QTest::newRow("three decimals at step 0.01") << 0.01 << QStringLiteral("0.333");
    QTest::newRow("noise as float") << 0.01 << QStringLiteral("12.70");
}

void tst_QKXSlider::shouldSendTypedNumbersExactly()
{
    QFETCH(double, step);
    QFETCH(QString, typed);
    m_slider->setLineStep(step);
    m_field->selectAll();
    typeAtFocus(typed);
    QVERIFY(m_sent.isEmpty());
    QTest::keyClick(m_field, Qt::Key_Return);
    QCOMPARE(m_sent.size(), 1);
    QVERIFY(m_sent.first() == typed.toDouble());
    QCOMPARE(m_field->text(), typed);
    m_neighbour->setFocus();
    QCOMPARE(m_sent.size(), 1);
}

void tst_QKXSlider::shouldSendTypedNumbersOutsideTheRange_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("handle");
    QTest::newRow("below") << QStringLiteral("-5") << -5.0 << 0;
    QTest::newRow("above") << QStringLiteral("350") << 350.0 << 200;
}

void tst_QKXSlider::shouldSendTypedNumbersOutsideTheRange()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    m_slider->setSuffix(QStringLiteral("pt"));
    m_field->selectAll();
    typeAtFocus(typed);
    QTest::keyClick(m_field, Qt::Key_Tab);
    QCOMPARE(m_sent, QVector<double>({value}));
    QCOMPARE(m_slider->value(), value);
    QTEST(m_handle->value(), "handle");
}

void tst_QKXSlider::shouldLetTheHostCorrectATypedNumber()
{
    connect(m_slider, &QKXSlider::valueChanged, this, [this](double value) {
        const QSignalBlocker blocker(m_slider);
        m_slider->setValue(std::max(value, 0.0));
    });
    typeAtFocus(QStringLiteral("-5"));
    QTest::keyClick(m_field, Qt::Key_Return);
    QCOMPARE(m_sent, QVector<double>({-5.0}));
    QCOMPARE(m_slider->value(), 0.0);
    QCOMPARE(m_field->text(), QStringLiteral("0"));
}

void tst_QKXSlider::shouldKeepAValueOutsideTheRange()
{
    m_slider->setValue(350.0);
    QCOMPARE(m_slider->value(), 350.0);
    QCOMPARE(m_field->text(), QStringLiteral("350"));
    QCOMPARE(m_handle->value(), m_handle->maximum());
    m_slider->setValue(200.0);
    QCOMPARE(m_handle->value(), m_handle->maximum());
}

void tst_QKXSlider::shouldKeepTheValueWhenTheRangeChanges()
{
    m_slider->setValue(150.0);
    m_sent.clear();
    m_slider->setLineStep(0.01);
    m_slider->setRange(0.0, 1.0);
    QCOMPARE(m_slider->value(), 150.0);
    QCOMPARE(m_handle->value(), m_handle->maximum());
    m_slider->setRange(100.0, 200.0);
    QCOMPARE(m_handle->value(), m_handle->maximum() / 2);
    QVERIFY(m_sent.isEmpty());
}

void tst_QKXSlider::shouldIgnoreWhatIsNotFinite()
{
    m_slider->setValue(12.0);
    m_slider->setValue(qQNaN());
    m_slider->setValue(qInf());
    m_slider->setRange(0.0, qInf());
    m_slider->setRange(5.0, 5.0);
    m_slider->setLineStep(0.0);
    QCOMPARE(m_slider->value(), 12.0);
    QCOMPARE(m_handle->value(), 12);
    QCOMPARE(m_handle->maximum(), 200);
}

void tst_QKXSlider::shouldShowFloatsWithoutNoise()
{
    m_slider->setValue(double(12.7f));
    QCOMPARE(m_field->text(), QStringLiteral("12.7"));
}

void tst_QKXSlider::shouldShowTheDecimalsOfTheStep()
{
    m_slider->setValue(0.5);
    QCOMPARE(m_field->text(), QStringLiteral("0.5"));
    m_slider->setLineStep(0.01);
    QCOMPARE(m_field->text(), QStringLiteral("0.50"));
    m_slider->setValue(3.0);
    QCOMPARE(m_field->text(), QStringLiteral("3.00"));
    m_slider->setLineStep(1.0);
    QCOMPARE(m_field->text(), QStringLiteral("3"));
}

void tst_QKXSlider::shouldShowTheSuffix()
{
    m_slider->setSuffix(QStringLiteral("pt"));
    QCOMPARE(m_field->text(), QStringLiteral("0pt"));
    m_slider->setSuffix(QString());
    QCOMPARE(m_field->text(), QStringLiteral("0"));
}

void tst_QKXSlider::shouldSendEachStepOfADragAndItsReleaseOnce()
{
    QSignalSpy releases(m_slider, &QKXSlider::sliderReleased);
    connect(m_slider, &QKXSlider::valueChanged, &releases,
            [&releases] { QVERIFY(releases.isEmpty()); });
    const QPoint start = handlePlace();
    drag(m_handle, start, {start + QPoint(40, 0), start + QPoint(80, 0), start + QPoint(120, 0)});
    QCOMPARE(m_sent.size(), 3);
    QVERIFY(m_sent.at(0) > 0.0 && m_sent.at(0) < m_sent.at(1) && m_sent.at(1) < m_sent.at(2));
    QCOMPARE(m_sent.last(), std::round(m_sent.last()));
    QCOMPARE(m_slider->value(), m_sent.last());
    QCOMPARE(m_field->value(), m_sent.last());
    QCOMPARE(releases.size(), 1);
}

void tst_QKXSlider::shouldBringTheHandleToAPressBesideIt()
{
    const QPoint middle = m_handle->rect().center();
    QTest::mousePress(m_handle, Qt::LeftButton, Qt::NoModifier, middle);
    QVERIFY(m_handle->isSliderDown());
    QVERIFY(qAbs(m_slider->value() - 100.0) <= 1.0);
    QTest::mouseRelease(m_handle, Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(m_sent.size(), 1);
}

void tst_QKXSlider::shouldReachBothEndsByDragging()
{
    m_slider->setLineStep(0.01);
    m_slider->setRange(0.0, 1.0);
    drag(m_handle, handlePlace(), {m_handle->rect().center(), QPoint(m_handle->width() + 50, 5)});
    QCOMPARE(m_slider->value(), 1.0);
    drag(m_handle, handlePlace(), {m_handle->rect().center(), QPoint(-50, 5)});
    QCOMPARE(m_slider->value(), 0.0);
}

void tst_QKXSlider::shouldKeepItsValueWhenTheHandleIsOnlyClicked()
{
    m_slider->setValue(12.4);
    m_sent.clear();
    QSignalSpy releases(m_slider, &QKXSlider::sliderReleased);
    QTest::mouseClick(m_handle, Qt::LeftButton, Qt::NoModifier, handlePlace());
    QCOMPARE(releases.size(), 1);
    QVERIFY(m_sent.isEmpty());
    QCOMPARE(float(m_slider->value()), 12.4f);
}

void tst_QKXSlider::shouldStepByTheLineStepFromItsOwnValue()
{
    m_slider->setValue(12.5);
    m_sent.clear();
    m_handle->setFocus();
    QTest::keyClick(m_handle, Qt::Key_Right);
    QTest::keyClick(m_handle, Qt::Key_Left);
    QTest::keyClick(m_handle, Qt::Key_End);
    QCOMPARE(m_sent, QVector<double>({13.5, 12.5, 200.0}));
}

void tst_QKXSlider::shouldNotStepFartherOutOfTheRange()
{
    m_slider->setValue(350.0);
    m_sent.clear();
    m_handle->setFocus();
    QTest::keyClick(m_handle, Qt::Key_Right);
    QVERIFY(m_sent.isEmpty());
    QTest::keyClick(m_handle, Qt::Key_Left);
    QTest::keyClick(m_handle, Qt::Key_End);
    QCOMPARE(m_sent, QVector<double>({349.0, 200.0}));
}

void tst_QKXSlider::shouldLeaveTheWheelToThePanelWithoutFocus()
{
    m_neighbour->setFocus();
    QVERIFY(!turnWheel(m_handle));
    QVERIFY(!turnWheel(m_field));
    QVERIFY(m_neighbour->hasFocus());
    QVERIFY(m_sent.isEmpty());
    m_handle->setFocus();
    QVERIFY(turnWheel(m_handle));
    QCOMPARE(m_sent.size(), 1);
}

void tst_QKXSlider::shouldBeOneStopOfTheTabKey()
{
    m_neighbour->setFocus();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        QTest::keyClick(m_neighbour, key);
        QVERIFY(m_field->hasFocus());
        QTest::keyClick(m_field, key);
        QVERIFY(m_neighbour->hasFocus());
    }
}

void tst_QKXSlider::shouldBeSwitchedOffAsAWhole()
{
    m_slider->setSliderEnabled(false);
    QVERIFY(!m_slider->isEnabled());
    QVERIFY(!m_handle->isEnabled());
    QVERIFY(!m_field->isEnabled());
    m_slider->setSliderEnabled(true);
    QVERIFY(m_handle->isEnabled() && m_field->isEnabled());
}

void tst_QKXSlider::shouldAnnounceAValueThatIsSet()
{
    m_slider->setValue(5.0);
    m_slider->setValue(5.0);
    QCOMPARE(m_sent, QVector<double>({5.0}));
}

void tst_QKXSlider::shouldKeepWhatIsBeingTypedWhenAnEqualValueIsSet()
{
    typeAtFocus(QStringLiteral("12."));
    m_slider->setLineStep(1.0);
    m_slider->setRange(0.0, 200.0);
    m_slider->setSuffix(QString());
    m_slider->setValue(0.0);
    typeAtFocus(QStringLiteral("5"));
    QTest::keyClick(m_field, Qt::Key_Return);
    QCOMPARE(m_sent, QVector<double>({12.5}));
}

void tst_QKXSlider::shouldGiveItsPartsTheNameOfItsLabel()
{
    QCOMPARE(m_field->accessibleName(), QString("Value"));
    m_window->hide();
    auto *label = new QLabel("Size", m_window.get());
    label->setBuddy(m_slider);
    m_window->show();
    QCOMPARE(m_field->accessibleName(), QString("Size"));
    QCOMPARE(m_handle->accessibleName(), QString("Size, slider"));
}

void tst_QKXSlider::shouldHandTheMarkingToItsPartsOnChangeOnly()
{
    widgetinput::PolishCounter style;
    m_handle->setStyle(&style);
    m_field->setStyle(&style);
    style.counts.clear();

    m_slider->propagateMultiselectProperty();
    QVERIFY(!m_field->property("multiselect").isValid());
    QCOMPARE(style.counts.value(m_field), 0);

    m_slider->setProperty("multiselect", true);
    m_slider->propagateMultiselectProperty();
    m_slider->propagateMultiselectProperty();
    QCOMPARE(m_field->property("multiselect"), QVariant(true));
    QCOMPARE(m_handle->property("multiselect"), QVariant(true));
    QCOMPARE(style.counts.value(m_field), 1);
    QCOMPARE(style.counts.value(m_handle), 1);

    m_slider->setProperty("multiselect", QVariant());
    m_slider->propagateMultiselectProperty();
    QVERIFY(!m_field->property("multiselect").isValid());
    QVERIFY(!m_handle->property("multiselect").isValid());
    QCOMPARE(style.counts.value(m_handle), 2);
    m_window.reset();
}

void tst_QKXSlider::shouldSendAnEditOfAMixedValueEvenWhenItIsTheOneShown()
{
    m_slider->setProperty("multiselect", true);
    m_slider->propagateMultiselectProperty();
    m_field->selectAll();
    typeAtFocus(QStringLiteral("0"));
    QTest::keyClick(m_field, Qt::Key_Return);
    m_handle->setFocus();
    QTest::keyClick(m_handle, Qt::Key_Home);
    QCOMPARE(m_sent, QVector<double>({0.0, 0.0}));
}

void tst_QKXSlider::shouldSendThePlaceOfAPressWhileMixed()
{
    m_slider->setValue(100.0);
    m_sent.clear();
    const QPoint beside = handlePlace() + QPoint(3, 0); // on the handle, if it were drawn
    QTest::mouseClick(m_handle, Qt::LeftButton, Qt::NoModifier, beside);
    QVERIFY(m_sent.isEmpty());

    m_slider->setProperty("multiselect", true);
    m_slider->propagateMultiselectProperty();
    QTest::mouseClick(m_handle, Qt::LeftButton, Qt::NoModifier, beside);
    QCOMPARE(m_sent.size(), 1);
    QVERIFY(m_sent.last() > 100.0 && m_sent.last() < 105.0);
    QTest::mouseClick(m_handle, Qt::LeftButton, Qt::NoModifier, handlePlace());
    QCOMPARE(m_sent.size(), 2);
    QCOMPARE(m_sent.last(), m_sent.first());
}

KX_TEST_MAIN(tst_QKXSlider)
#include "tst_QKXSlider.moc"

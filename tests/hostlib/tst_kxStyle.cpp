// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "hostlib/kxStyleColors.h"
#include "tests/support/KxTest.h"
#include "tests/support/contrast.h"

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleOption>
#include <QToolButton>
#include <QVBoxLayout>

#include <cmath>
#include <functional>

namespace {

/// One kind of control with two values that look different.
struct Kind
{
    const char *name;
    std::function<QWidget *()> create;
    std::function<void(QWidget *, bool)> setValue;
};

void setChecked(QWidget *widget, bool on)
{
    static_cast<QAbstractButton *>(widget)->setChecked(on);
}

QWidget *checkable(QAbstractButton *button)
{
    button->setText(QStringLiteral("Use it"));
    button->setCheckable(true);
    button->setAutoExclusive(false);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

const QVector<Kind> &kinds()
{
    static const QVector<Kind> all = {
        {"QLineEdit", [] { return new QLineEdit; },
         [](QWidget *w, bool second) {
             static_cast<QLineEdit *>(w)->setText(second ? "Back" : "Front title");
         }},
        {"QPlainTextEdit", [] { return new QPlainTextEdit; },
         [](QWidget *w, bool second) {
             static_cast<QPlainTextEdit *>(w)->setPlainText(second ? "Back" : "Front\ntitle");
         }},
        {"QComboBox",
         [] {
             auto *box = new QComboBox;
             box->addItems({"Bottom Left", "Top"});
             return box;
         },
         [](QWidget *w, bool second) { static_cast<QComboBox *>(w)->setCurrentIndex(second); }},
        {"QFontComboBox", [] { return new QFontComboBox; },
         [](QWidget *w, bool second) {
             static_cast<QFontComboBox *>(w)->setEditText(second ? "Sans" : "A serif");
         }},
        {"QSpinBox", [] { return new QSpinBox; },
         [](QWidget *w, bool second) { static_cast<QSpinBox *>(w)->setValue(second ? 7 : 42); }},
        {"QDoubleSpinBox", [] { return new QDoubleSpinBox; },
         [](QWidget *w, bool second) {
             static_cast<QDoubleSpinBox *>(w)->setValue(second ? 7.25 : 42.5);
         }},
        {"QRadioButton", [] { return checkable(new QRadioButton); }, setChecked},
        {"QCheckBox", [] { return checkable(new QCheckBox); }, setChecked},
        {"QSlider", [] { return new QSlider(Qt::Horizontal); },
         [](QWidget *w, bool second) { static_cast<QSlider *>(w)->setValue(second ? 70 : 20); }},
        {"QPushButton", [] { return checkable(new QPushButton); }, setChecked},
        {"QToolButton", [] { return checkable(new QToolButton); }, setChecked},
    };
    return all;
}

void addKinds()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < kinds().size(); ++i)
        QTest::newRow(kinds().at(i).name) << i;
}

/// What a module does when it sets or removes the marking.
void mark(QWidget *widget, bool mixed)
{
    widget->setProperty("multiselect", mixed ? QVariant(true) : QVariant());
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

/// A control in a window of its own, beside something else that can take the focus.
class Stage
{
public:
    explicit Stage(const Kind &kind) : m_kind(kind), control(kind.create())
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&other);
        layout->addWidget(control);
        other.setFocusPolicy(Qt::StrongFocus);
        window.resize(200, 120);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    QImage image(bool second)
    {
        m_kind.setValue(control, second);
        return control->grab().toImage();
    }

private:
    const Kind &m_kind;

public:
    QWidget window;
    QWidget other;
    QWidget *control;
};

double differentPart(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    return double(count) / (a.width() * a.height());
}

int countOf(const QImage &image, const QColor &color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color.rgb();
    return count;
}

/// The greatest contrast of any pixel with the control's ground.
double strongest(const QImage &image, const QColor &ground)
{
    double most = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            most = qMax(most, contrast::between(image.pixelColor(x, y), ground));
    return most;
}

} // namespace

class tst_kxStyle : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldMakeTheApplicationDark();
    void shouldKeepTextReadable_data();
    void shouldKeepTextReadable();
    void shouldKeepTheColorOfAnInactiveNameInASelectedRow();
    void shouldHideTheOldValueOfAMixedControl_data() { addKinds(); }
    void shouldHideTheOldValueOfAMixedControl();
    void shouldLookUnmistakablyMixed_data() { addKinds(); }
    void shouldLookUnmistakablyMixed();
    void shouldLookMixedAlsoWhenDisabled_data() { addKinds(); }
    void shouldLookMixedAlsoWhenDisabled();
    void shouldReturnToTheNormalLook_data() { addKinds(); }
    void shouldReturnToTheNormalLook();
    void shouldShowTheOldTextDimmedWhileItIsEdited_data();
    void shouldShowTheOldTextDimmedWhileItIsEdited();
    void shouldFrameTheFocusOnEveryKind_data() { addKinds(); }
    void shouldFrameTheFocusOnEveryKind();
    void shouldDimDisabledControls_data() { addKinds(); }
    void shouldDimDisabledControls();
    void shouldDescribeMixedControls_data() { addKinds(); }
    void shouldDescribeMixedControls();
    void shouldKeepADescriptionSetWhileMixed();
    void shouldSurviveRepeatedPolishing();
    void shouldDescribeAnewUnderAnotherStyleObject();
    void shouldShowNoChoiceInAGroupWithAMixedButton_data();
    void shouldShowNoChoiceInAGroupWithAMixedButton();
    void shouldGrowIndicatorsWithTheText();
    void shouldFallBackToADashWhereTheWordsDoNotFit();
};

void tst_kxStyle::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

void tst_kxStyle::shouldMakeTheApplicationDark()
{
    const QPalette palette = QApplication::palette();
    QCOMPARE(palette.color(QPalette::Window), kxStyle().standardPalette().color(QPalette::Window));
    QVERIFY(contrast::luminance(palette.color(QPalette::Window)) < 0.05);
    QVERIFY(contrast::luminance(palette.color(QPalette::Base)) < 0.05);
}

void tst_kxStyle::shouldKeepTextReadable_data()
{
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("ground");
    QTest::addColumn<double>("least");
    const QPalette p = kxStyle().standardPalette();
    const auto row = [&](const char *name, const QColor &text, QPalette::ColorGroup group,
                         QPalette::ColorRole ground, double least) {
        QTest::newRow(name) << text << p.color(group, ground) << least;
    };
    const auto active = QPalette::Active;
    const auto unfocused = QPalette::Inactive;
    const QColor text = p.color(QPalette::Text);
    row("text on window", p.color(QPalette::WindowText), active, QPalette::Window, 4.5);
    row("text on base", text, active, QPalette::Base, 4.5);
    row("text on alternate row", text, active, QPalette::AlternateBase, 4.5);
    row("text on selected row", text, active, QPalette::Highlight, 4.5);
    row("text on unfocused selected row", text, unfocused, QPalette::Highlight, 4.5);
    row("text on button", p.color(QPalette::ButtonText), active, QPalette::Button, 4.5);
    row("text on tool tip", p.color(QPalette::ToolTipText), active, QPalette::ToolTipBase, 4.5);
    row("placeholder", p.color(QPalette::PlaceholderText), active, QPalette::Base, 4.5);
    row("link on window", p.color(QPalette::Link), active, QPalette::Window, 4.5);
    row("active name on base", Qt::white, active, QPalette::Base, 4.5);
    row("active name on alternate row", Qt::white, active, QPalette::AlternateBase, 4.5);
    row("active name on selected row", Qt::white, active, QPalette::Highlight, 4.5);
    row("active name on unfocused row", Qt::white, unfocused, QPalette::Highlight, 4.5);
    const QColor inactive = kxStyle::getInactiveNodeColor();
    row("inactive name on base", inactive, active, QPalette::Base, 3);
    row("inactive name on alternate row", inactive, active, QPalette::AlternateBase, 3);
    row("inactive name on selected row", inactive, active, QPalette::Highlight, 3);
    row("inactive name on unfocused row", inactive, unfocused, QPalette::Highlight, 3);
    const QColor disabled = p.color(QPalette::Disabled, QPalette::Text);
    row("step that was undone", disabled, active, QPalette::Base, 3);
    QTest::newRow("mixed value") << QColor(kxStyleColors::mixedText)
                                 << QColor(kxStyleColors::mixedGround) << 4.5;
    row("accent on window", kxStyle::getAccentColor(), active, QPalette::Window, 3);
    row("mixed edge on window", kxStyle::getMixedColor(), active, QPalette::Window, 3);
    QTest::newRow("inactive against active name") << inactive << QColor(Qt::white) << 2.0;
}

void tst_kxStyle::shouldKeepTextReadable()
{
    QFETCH(QColor, text);
    QFETCH(QColor, ground);
    QFETCH(double, least);
    const double found = contrast::between(text, ground);
    QVERIFY2(found >= least, qPrintable(QString::number(found)));
}

void tst_kxStyle::shouldKeepTheColorOfAnInactiveNameInASelectedRow()
{
    QListWidget list;
    QFont font = list.font();
    font.setPixelSize(40);
    list.setFont(font);
    list.addItem(QStringLiteral("HHH"));
    list.item(0)->setForeground(kxStyle::getInactiveNodeColor());
    list.item(0)->setSelected(true);
    list.resize(300, 80);
    const QImage image = list.grab().toImage();
    QVERIFY(countOf(image, kxStyle::getInactiveNodeColor()) > 50);
    QCOMPARE(countOf(image, Qt::white), 0);
}

void tst_kxStyle::shouldHideTheOldValueOfAMixedControl()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    QVERIFY(stage.image(false) != stage.image(true));
    mark(stage.control, true);
    QCOMPARE(stage.image(false), stage.image(true));
}

void tst_kxStyle::shouldLookUnmistakablyMixed()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    const QImage normal = stage.image(true);
    mark(stage.control, true);
    const QImage mixed = stage.image(true);
    // Of check boxes and radio buttons only the indicator changes: their text is no value.
    const bool indicator =
        qobject_cast<QCheckBox *>(stage.control) || qobject_cast<QRadioButton *>(stage.control);
    QVERIFY(differentPart(normal, mixed) > (indicator ? 0.03 : 0.25));
    QCOMPARE(countOf(normal, kxStyle::getMixedColor()), 0);
    QVERIFY(countOf(mixed, kxStyle::getMixedColor()) > (indicator ? 3 : 20));
}

void tst_kxStyle::shouldLookMixedAlsoWhenDisabled()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    stage.control->setEnabled(false);
    const QImage normal = stage.image(true);
    mark(stage.control, true);
    QVERIFY(differentPart(normal, stage.image(true)) > 0.02);
    QCOMPARE(stage.image(false), stage.image(true));
    QCOMPARE(countOf(stage.image(true), kxStyle::getMixedColor()), 0);
}

void tst_kxStyle::shouldReturnToTheNormalLook()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    const QImage normal = stage.image(true);
    mark(stage.control, true);
    stage.image(false);
    mark(stage.control, false);
    QCOMPARE(stage.image(true), normal);
}

void tst_kxStyle::shouldShowTheOldTextDimmedWhileItIsEdited_data()
{
    QTest::addColumn<int>("kind");
    for (const int kind : {0, 1, 3, 4, 5})
        QTest::newRow(kinds().at(kind).name) << kind;
}

void tst_kxStyle::shouldShowTheOldTextDimmedWhileItIsEdited()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    stage.control->setFocus();
    const QImage edited = stage.image(true);
    mark(stage.control, true);
    const QImage mixed = stage.image(true);
    QVERIFY(mixed != stage.image(false));
    QVERIFY(differentPart(edited, mixed) > 0.25);
    const QColor text = QApplication::palette().color(QPalette::Text);
    QCOMPARE(countOf(mixed.copy(4, 4, 100, 16), text), 0);
}

void tst_kxStyle::shouldFrameTheFocusOnEveryKind()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    for (const bool mixed : {false, true}) {
        mark(stage.control, mixed);
        stage.other.setFocus();
        const int without = countOf(stage.image(false), kxStyle::getAccentColor());
        stage.control->setFocus();
        const int with = countOf(stage.image(false), kxStyle::getAccentColor());
        QVERIFY2(with > without + 40, qPrintable(QStringLiteral("%1 %2").arg(with).arg(without)));
    }
}

void tst_kxStyle::shouldDimDisabledControls()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    const QColor ground = QApplication::palette().color(QPalette::Window);
    const double enabled = strongest(stage.image(true), ground);
    stage.control->setEnabled(false);
    QVERIFY(strongest(stage.image(true), ground) < enabled * 0.7);
}

void tst_kxStyle::shouldDescribeMixedControls()
{
    QFETCH(int, kind);
    Stage stage(kinds().at(kind));
    stage.control->setAccessibleDescription(QStringLiteral("the name"));
    const QList<QByteArray> properties = stage.control->dynamicPropertyNames();
    mark(stage.control, true);
    QCOMPARE(stage.control->accessibleDescription(), QStringLiteral("several values"));
    mark(stage.control, false);
    QCOMPARE(stage.control->accessibleDescription(), QStringLiteral("the name"));
    QCOMPARE(stage.control->dynamicPropertyNames(), properties);
}

void tst_kxStyle::shouldKeepADescriptionSetWhileMixed()
{
    QLineEdit edit;
    mark(&edit, true);
    edit.setAccessibleDescription(QStringLiteral("set meanwhile"));
    mark(&edit, false);
    QCOMPARE(edit.accessibleDescription(), QStringLiteral("set meanwhile"));
}

void tst_kxStyle::shouldSurviveRepeatedPolishing()
{
    QPlainTextEdit edit;
    edit.setAccessibleDescription(QStringLiteral("the text"));
    edit.setProperty("multiselect", true);
    edit.style()->polish(&edit);
    edit.style()->polish(&edit);
    QCOMPARE(edit.accessibleDescription(), QStringLiteral("several values"));
    edit.setProperty("multiselect", QVariant());
    edit.style()->polish(&edit);
    QCOMPARE(edit.accessibleDescription(), QStringLiteral("the text"));
    edit.style()->unpolish(&edit);
    edit.style()->unpolish(&edit);
    QCOMPARE(edit.accessibleDescription(), QStringLiteral("the text"));
}

void tst_kxStyle::shouldDescribeAnewUnderAnotherStyleObject()
{
    QLineEdit edit;
    edit.setAccessibleDescription(QStringLiteral("the name"));
    mark(&edit, true);
    QApplication::setStyle(new kxStyle);
    QCOMPARE(edit.accessibleDescription(), QStringLiteral("several values"));
    mark(&edit, false);
    QCOMPARE(edit.accessibleDescription(), QStringLiteral("the name"));
}

void tst_kxStyle::shouldShowNoChoiceInAGroupWithAMixedButton_data()
{
    QTest::addColumn<bool>("grouped");
    QTest::newRow("button group") << true;
    QTest::newRow("siblings") << false;
}

void tst_kxStyle::shouldShowNoChoiceInAGroupWithAMixedButton()
{
    QFETCH(bool, grouped);
    QWidget window;
    auto *text = new QRadioButton(QStringLiteral("Text"), &window);
    auto *image = new QRadioButton(QStringLiteral("Image"), &window);
    QButtonGroup group;
    if (grouped) {
        group.addButton(text);
        group.addButton(image);
    }
    image->setChecked(true);
    const QImage chosen = image->grab().toImage();
    mark(text, true);
    const QImage mixed = image->grab().toImage();
    QVERIFY(mixed != chosen);
    QCOMPARE(image->accessibleDescription(), QStringLiteral("several values"));
    text->setChecked(true);
    QCOMPARE(image->grab().toImage(), mixed);
    image->setChecked(true);
    mark(text, false);
    QCOMPARE(image->grab().toImage(), chosen);
    QCOMPARE(image->accessibleDescription(), QString());
}

void tst_kxStyle::shouldGrowIndicatorsWithTheText()
{
    QCheckBox box(QStringLiteral("x"));
    const auto side = [&box](int pixels) {
        QFont font = box.font();
        font.setPixelSize(pixels);
        box.setFont(font);
        QStyleOptionButton option;
        option.initFrom(&box);
        return box.style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, &box);
    };
    QVERIFY(side(36) >= side(12) * 2);
}

void tst_kxStyle::shouldFallBackToADashWhereTheWordsDoNotFit()
{
    const auto drawn = [](int width) {
        QImage image(200, 20, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        kxStyle::drawMixedText(&painter, QRect(0, 0, width, 20), true);
        painter.end();
        return image;
    };
    const auto inked = [](const QImage &image) {
        return image.width() * image.height() - countOf(image, Qt::black);
    };
    QVERIFY(inked(drawn(40)) > 0);
    QCOMPARE(inked(drawn(40)), inked(drawn(60)));
    QVERIFY(inked(drawn(190)) > inked(drawn(60)) * 3);
}

KX_TEST_MAIN(tst_kxStyle)
#include "tst_kxStyle.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/e2e/ViewerTest.h"
#include "tests/support/RealInput.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>
#include <QTimer>

namespace {

const char *const SceneText = R"({"format": "overlay-scene", "version": 1, "overlays": [
    {"kind": "overlay", "name": "Title", "type": "text", "text": "First", "fontColor": "#ff4040",
     "size": 40.0, "position": [0.5, 0.75]},
    {"kind": "overlay", "name": "Subtitle", "type": "text", "text": "Second",
     "fontColor": "#ff4040", "size": 28.0, "position": [0.5, 0.5]},
    {"kind": "group", "name": "Others", "children": [
        {"kind": "overlay", "name": "Third", "type": "text", "text": "Untouched"}]}]})";

} // namespace

/// One sitting of a user at the property panel, by mouse and keys alone: after each step the scene is
/// what the user meant, and a picture of the screen is left in the build folder to look at.
class tst_viewer_panel : public ViewerTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldEditTheSelectionByHand();

private:
    void selectTwoTexts();
    void pickAColour();
    void typeAText();
    void dragTheSlider();
    void typeASize();
    void chooseAnAnchor();
    void typeOffsets();
    void switchTheSizeType();
    void switchTheType();
    void loadAnImage();
    void reloadTheImage();
    void clearTheImage();

    void click(const QString &widget, const QPoint &place = {});
    template<typename T>
    T *control(const QString &name) const;
    void showControl(QWidget *widget) const;

    QTemporaryDir m_folder;
    QRPC::NodeList m_edited;
};

/// Both edited overlays have the value, and the third one has not.
#define SHOULD_HOLD(getter, value)                                                                 \
    QTRY_COMPARE(service().getter(m_edited.at(0)), value);                                         \
    QCOMPARE(service().getter(m_edited.at(1)), value);                                             \
    QVERIFY(service().getter(nodeOf("Third")) != (value))

template<typename T>
T *tst_viewer_panel::control(const QString &name) const
{
    return session()->window()->findChild<T *>(name);
}

/// Scrolls the panel, as a user does before reaching for a control.
void tst_viewer_panel::showControl(QWidget *widget) const
{
    control<QScrollArea>("_property_scrollArea")->ensureWidgetVisible(widget);
}

void tst_viewer_panel::click(const QString &widget, const QPoint &place)
{
    auto *found = control<QWidget>(widget);
    QVERIFY(found);
    showControl(found);
    QTRY_VERIFY(found->isVisible() && found->isEnabled());
    realInput::click(*found, place.isNull() ? found->rect().center() : place);
}

void tst_viewer_panel::shouldEditTheSelectionByHand()
{
    QFile file(m_folder.filePath("scene.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(SceneText) > 0);
    file.close();
    QVERIFY(start({file.fileName()}));
    m_edited = {nodeOf("Title"), nodeOf("Subtitle")};

    selectTwoTexts();
    pickAColour();
    typeAText();
    dragTheSlider();
    typeASize();
    chooseAnAnchor();
    typeOffsets();
    switchTheSizeType();
    switchTheType();
    loadAnImage();
    reloadTheImage();
    clearTheImage();
}

void tst_viewer_panel::selectTwoTexts()
{
    const QModelIndex first = tree()->model()->index(0, 0);
    clickRow(first);
    clickRow(first.siblingAtRow(1), {"ctrl"});
    QTRY_COMPARE(tree()->selectionModel()->selectedRows().size(), 2);
    QVERIFY(control<QWidget>("_text_edit")->property("multiselect").toBool());
    QVERIFY(!control<QWidget>("_color_slider")->property("multiselect").isValid());
    photograph("two-texts-selected");
}

void tst_viewer_panel::pickAColour()
{
    const QColor before = service().getFontColor(m_edited.at(0));
    const QRect strip = control<QWidget>("_color_slider")->rect();
    click("_color_slider", QPoint(strip.width() * 2 / 5, strip.center().y()));
    QTRY_VERIFY(service().getFontColor(m_edited.at(0)) != before);
    SHOULD_HOLD(getFontColor, service().getFontColor(m_edited.at(0)));
    photograph("colour-picked");
}

void tst_viewer_panel::typeAText()
{
    click("_text_edit");
    QTRY_VERIFY(control<QWidget>("_text_edit")->hasFocus());
    realInput::key("ctrl+a");
    realInput::type("Hello, you two");
    SHOULD_HOLD(getText, QString("Hello, you two"));
    QVERIFY(!control<QWidget>("_text_edit")->property("multiselect").isValid());
    photograph("text-typed");
}

void tst_viewer_panel::dragTheSlider()
{
    auto *handle = control<QWidget>("_size_slider")->findChild<QSlider *>();
    showControl(handle);
    const QRect groove = handle->rect();
    realInput::startDrag(*handle, QPoint(groove.width() / 5, groove.center().y()),
                         QPoint(groove.width() / 2, groove.center().y()));
    QTRY_VERIFY(service().getSize(m_edited.at(1)) > 90.0F);
    QTRY_VERIFY(!handle->isSliderDown());
    SHOULD_HOLD(getSize, service().getSize(m_edited.at(0)));
    photograph("slider-dragged");
}

void tst_viewer_panel::typeASize()
{
    auto *field = control<QWidget>("_size_slider")->findChild<QAbstractSpinBox *>();
    realInput::click(*field, QPoint(12, field->height() / 2));
    QTRY_VERIFY(field->hasFocus());
    realInput::key("ctrl+a");
    realInput::type("-5");
    realInput::key("Return");
    SHOULD_HOLD(getSize, 0.0F);
    QCOMPARE(field->text(), QString("0pt"));
    realInput::key("ctrl+a");
    realInput::type("48.5");
    realInput::key("Return");
    SHOULD_HOLD(getSize, 48.5F);
    photograph("size-typed");
}

void tst_viewer_panel::chooseAnAnchor()
{
    auto *box = control<QComboBox>("_position_combo_box");
    click("_position_combo_box");
    QTRY_VERIFY(box->view()->isVisible());
    photograph("anchors-listed");
    realInput::key("End");
    realInput::key("Return");
    QTRY_VERIFY(!box->view()->isVisible());
    SHOULD_HOLD(getPosition, QPointF(1.0, 0.0));
    photograph("anchor-chosen");
}

void tst_viewer_panel::typeOffsets()
{
    auto *x = control<QWidget>("_offset_x_spin_box");
    click("_offset_x_spin_box", QPoint(12, x->height() / 2));
    QTRY_VERIFY(x->hasFocus());
    realInput::key("ctrl+a");
    realInput::type("-12.75");
    realInput::key("Tab");
    QTRY_VERIFY(control<QWidget>("_offset_y_spin_box")->hasFocus());
    realInput::type("1.5");
    realInput::key("Return");
    SHOULD_HOLD(getOffset, QPointF(-12.75, 1.5));
    photograph("offsets-typed");
}

void tst_viewer_panel::switchTheSizeType()
{
    click("_relative_radio_button", QPoint(10, 10));
    SHOULD_HOLD(getSizeType, 1);
    auto *field = control<QWidget>("_size_slider")->findChild<QAbstractSpinBox *>();
    realInput::click(*field, QPoint(12, field->height() / 2));
    QTRY_VERIFY(field->hasFocus());
    realInput::key("ctrl+a");
    realInput::type("0.25");
    realInput::key("Return");
    SHOULD_HOLD(getSize, 0.25F);
    photograph("relative-size");
}

void tst_viewer_panel::switchTheType()
{
    click("_image_radio_button", QPoint(10, 10));
    SHOULD_HOLD(getOverlayType, 1);
    QTRY_VERIFY(control<QWidget>("_image_edit")->isVisible());
    QVERIFY(!control<QWidget>("_text_edit")->isVisible());
    photograph("image-type");
}

void tst_viewer_panel::loadAnImage()
{
    const QString picture = QStringLiteral(EXAMPLES "/images/mark.svg");
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [&answer, picture] {
        if (!QApplication::activeModalWidget())
            return;
        answer.stop();
        realInput::type(picture);
        realInput::key("Return");
    });
    answer.start(50);
    click("loadTexture");
    SHOULD_HOLD(getImage, picture);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    photograph("image-loaded");
}

void tst_viewer_panel::reloadTheImage()
{
    const QString picture = service().getImage(m_edited.at(0));
    QSignalSpy announced(&service(), &kxOverlayService::imageChanged);
    click("reloadTexture");
    QTRY_COMPARE(announced.size(), 1);
    QCOMPARE(announced.first().first().value<QRPC::NodeList>(), m_edited);
    SHOULD_HOLD(getImage, picture);
    photograph("image-reloaded");
}

void tst_viewer_panel::clearTheImage()
{
    click("clearTexture");
    QTRY_COMPARE(service().getImage(m_edited.at(0)), QString());
    QCOMPARE(service().getImage(m_edited.at(1)), QString());
    photograph("image-cleared");
}

KX_TEST_MAIN(tst_viewer_panel)
#include "tst_viewer_panel.moc"

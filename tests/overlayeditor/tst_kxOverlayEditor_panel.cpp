// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "kit/FormMember.h"
#include "kit/MarkingTranslator.h"
#include "tests/overlayeditor/PanelTest.h"

#include <QButtonGroup>
#include <QSlider>
#include <QToolButton>

namespace {

using Form = kxOverlayEditorGUIW;

/// Notes the order in which widgets become enabled or disabled.
class EnabledProbe : public QObject
{
public:
    QStringList names;

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            names.append(object->objectName());
        return false;
    }
};

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage();
}

} // namespace

/// The property panel as it stands when the editor is built, before anything is selected.
class tst_kxOverlayEditor_panel : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldGroupItsRadioButtonsWithTheirNumbers();
    void shouldOfferNineAnchorsInOrder();
    void shouldTranslateTheAnchors();
    void shouldStartWithTheRangeAndUnitOfTheSlider();
    void shouldBoundTheOffsets_data();
    void shouldBoundTheOffsets();
    void shouldLeaveTheTextFieldByTab();
    void shouldShowItsIconsOnTheFileLine();
    void shouldShowOnlyTheFileLine();
    void shouldUseTheTextureAlways();
    void shouldHideTheImageControlAtFirst();
    void shouldStartDisabled();
    void shouldEnableItsInputsInOrder();
    void shouldSendNothingWhileItIsBuilt();
};

void tst_kxOverlayEditor_panel::shouldGroupItsRadioButtonsWithTheirNumbers()
{
    openEditor();
    const auto groups = editor().findChildren<QButtonGroup *>();
    QCOMPARE(groups.size(), 2);
    const Form &form = window();
    QCOMPARE(groups.at(0)->parent(), &editor());
    QCOMPARE(groups.at(1)->parent(), &editor());
    QCOMPARE(form._text_radio_button->group(), groups.at(0));
    QCOMPARE(form._absolute_radio_button->group(), groups.at(1));
    for (const auto *group : groups) {
        QCOMPARE(group->buttons().size(), 2);
        QVERIFY(group->exclusive());
    }
    QCOMPARE(groups.at(0)->id(form._text_radio_button), 0);
    QCOMPARE(groups.at(0)->id(form._image_radio_button), 1);
    QCOMPARE(groups.at(1)->id(form._absolute_radio_button), 0);
    QCOMPARE(groups.at(1)->id(form._relative_radio_button), 1);
}

void tst_kxOverlayEditor_panel::shouldOfferNineAnchorsInOrder()
{
    openEditor();
    const QVector<QPair<QString, QPointF>> anchors{
        {"Left", {0.0, 0.5}},      {"Right", {1.0, 0.5}},       {"Top", {0.5, 1.0}},
        {"Bottom", {0.5, 0.0}},    {"Center", {0.5, 0.5}},      {"Top Left", {0.0, 1.0}},
        {"Top Right", {1.0, 1.0}}, {"Bottom Left", {0.0, 0.0}}, {"Bottom Right", {1.0, 0.0}}};
    const QComboBox *box = window()._position_combo_box;
    QCOMPARE(box->count(), anchors.size());
    for (int i = 0; i < anchors.size(); ++i) {
        QCOMPARE(box->itemText(i), anchors.at(i).first);
        QCOMPARE(box->itemData(i, Qt::UserRole), QVariant(anchors.at(i).second));
        QVERIFY(box->itemIcon(i).isNull());
    }
}

void tst_kxOverlayEditor_panel::shouldTranslateTheAnchors()
{
    const MarkingTranslator translator("kxOverlayEditor");
    openEditor();
    QCOMPARE(window()._position_combo_box->itemText(0), QString("*Left"));
    QCOMPARE(window()._position_combo_box->itemText(8), QString("*Bottom Right"));
}

void tst_kxOverlayEditor_panel::shouldStartWithTheRangeAndUnitOfTheSlider()
{
    openEditor();
    QCOMPARE(sizeField().suffix(), QString("px"));
    QCOMPARE(sizeHandle().maximum(), 200);
    window()._size_slider->setValue(100.0);
    QCOMPARE(sizeHandle().value(), 100);
}

void tst_kxOverlayEditor_panel::shouldBoundTheOffsets_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("kept");
    QTest::newRow("lowest") << -2147483647.0 << -2147483647.0;
    QTest::newRow("highest") << 2147483647.0 << 2147483647.0;
    QTest::newRow("too low") << -2147483648.0 << -2147483647.0;
    QTest::newRow("too high") << 2147483648.0 << 2147483647.0;
}

void tst_kxOverlayEditor_panel::shouldBoundTheOffsets()
{
    QFETCH(double, value);
    openEditor();
    for (QDoubleSpinBox *box : {static_cast<QDoubleSpinBox *>(window()._offset_x_spin_box),
                                static_cast<QDoubleSpinBox *>(window()._offset_y_spin_box)}) {
        box->setValue(value);
        QTEST(box->value(), "kept");
        QString text = QString::number(value, 'f', 0);
        int cursor = 0;
        const bool isAcceptable = box->validate(text, cursor) == QValidator::Acceptable;
        QCOMPARE(isAcceptable, box->value() == value);
    }
}

void tst_kxOverlayEditor_panel::shouldLeaveTheTextFieldByTab()
{
    openEditor("a2");
    showWindow();
    select({2});
    QVERIFY(window()._text_edit->tabChangesFocus());
    focus(*window()._text_edit);
    QCOMPARE(commandsOf([] { press(Qt::Key_Tab); }), QStringList());
    QVERIFY(!window()._text_edit->hasFocus());
    QCOMPARE(window()._text_edit->toPlainText(), QString());
}

void tst_kxOverlayEditor_panel::shouldShowItsIconsOnTheFileLine()
{
    openEditor();
    const auto buttons = window()._image_edit->findChildren<QToolButton *>();
    QStringList shown;
    for (const QToolButton *button : buttons) {
        for (const char *name : {"FileOpen", "Reload", "Save", "ShowTextureInfo", "Delete"}) {
            const QImage icon = imageOf(kxIconManager::getIcon(name, ""));
            QVERIFY(!icon.isNull());
            if (imageOf(button->icon()) == icon)
                shown.append(name);
        }
    }
    QCOMPARE(shown, (QStringList{"FileOpen", "Reload", "Save", "ShowTextureInfo", "Delete"}));
}

void tst_kxOverlayEditor_panel::shouldShowOnlyTheFileLine()
{
    openEditor("a2");
    showWindow();
    suit(property(7));
    select({2});
    const auto inside = window()._image_edit->findChildren<QWidget *>();
    int toolButtons = 0;
    for (const QWidget *widget : inside) {
        if (!widget->isVisible())
            continue;
        toolButtons += int(widget->inherits("QToolButton"));
        QVERIFY2(!widget->inherits("QCheckBox") && !widget->inherits("QComboBox")
                     && !widget->inherits("QAbstractSpinBox") && !widget->inherits("QLabel"),
                 qPrintable(widget->objectName()));
    }
    QCOMPARE(toolButtons, 5);
}

void tst_kxOverlayEditor_panel::shouldUseTheTextureAlways()
{
    openEditor();
    QVERIFY(window()._image_edit->useTexture());
}

void tst_kxOverlayEditor_panel::shouldHideTheImageControlAtFirst()
{
    openEditor("a2");
    showWindow();
    QVERIFY(!window()._image_label->isVisible());
    QVERIFY(!window()._image_edit->isVisible());
    QVERIFY(window()._text_edit->isVisible());
    suit(property(7));
    select({2});
    QVERIFY(window()._image_label->isVisible());
    QVERIFY(window()._image_edit->isVisible());
    QVERIFY(!window()._text_edit->isVisible());
}

void tst_kxOverlayEditor_panel::shouldStartDisabled()
{
    openEditor("a2");
    for (const PanelProperty &shown : properties()) {
        if (shown.guard != PanelProperty::Images)
            QVERIFY2(!control(shown).isEnabled(), shown.name);
    }
    QVERIFY(!window()._image_radio_button->isEnabled());
    QVERIFY(!window()._relative_radio_button->isEnabled());
    QVERIFY(window()._image_edit->isEnabled());
    QVERIFY(tree().isEnabled());
}

void tst_kxOverlayEditor_panel::shouldEnableItsInputsInOrder()
{
    openEditor("a2");
    const auto &inputs = FormMember::inputs();
    const QStringList wanted(inputs.begin(), inputs.end());
    EnabledProbe probe;
    const auto widgets =
        window()._property_scrollArea->findChildren<QWidget *>(QRegularExpression("^_[a-z]"));
    for (QWidget *widget : widgets)
        widget->installEventFilter(&probe);
    for (const bool enabled : {true, false}) {
        probe.names.clear();
        editor().setInputEnabled(enabled);
        QCOMPARE(probe.names, wanted);
    }
}

void tst_kxOverlayEditor_panel::shouldSendNothingWhileItIsBuilt()
{
    service().build("a2");
    const kxOverlayEditor built;
    QCOMPARE(writes(), QStringList());
}

KX_TEST_MAIN(tst_kxOverlayEditor_panel)
#include "tst_kxOverlayEditor_panel.moc"

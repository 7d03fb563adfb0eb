// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include <QProxyStyle>

#include <algorithm>

namespace {

/// A style that notes what is asked of it for one widget.
class StyleSpy : public QProxyStyle
{
public:
    explicit StyleSpy(QWidget *watched) : m_watched(watched) {}

    QStringList calls;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QWidget *widget) override
    {
        note(widget, "polish");
        QProxyStyle::polish(widget);
    }
    void unpolish(QWidget *widget) override
    {
        note(widget, "unpolish");
        QProxyStyle::unpolish(widget);
    }

private:
    void note(const QWidget *widget, const char *call)
    {
        if (widget == m_watched)
            calls.append(call);
    }

    QWidget *m_watched;
};

} // namespace

/// The refreshes of the property panel: what a selection shows, marks and leaves alone.
class tst_kxOverlayEditor_sync : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldShowTheValueThatAllShare_data() { addProperties(); }
    void shouldShowTheValueThatAllShare();
    void shouldMarkDifferentValuesAndKeepWhatItShows_data() { addProperties(); }
    void shouldMarkDifferentValuesAndKeepWhatItShows();
    void shouldRemoveTheMarkingWhenTheValuesAgree_data() { addProperties(); }
    void shouldRemoveTheMarkingWhenTheValuesAgree();
    void shouldTellTheStyleOfAChangedMarkingOnly_data() { addProperties(); }
    void shouldTellTheStyleOfAChangedMarkingOnly();
    void shouldLeaveAnEmptySelectionUntouched_data() { addProperties(); }
    void shouldLeaveAnEmptySelectionUntouched();
    void shouldAskForSelectedNodesOnly_data() { addProperties(); }
    void shouldAskForSelectedNodesOnly();
    void shouldStopAtAGroup_data() { addProperties(); }
    void shouldStopAtAGroup();
    void shouldStopAtASwitch_data()
    {
        addProperties({PanelProperty::Overlays, PanelProperty::Texts, PanelProperty::Images});
    }
    void shouldStopAtASwitch();
    void shouldShowPropertiesOfOneTypeForThatTypeOnly_data()
    {
        addProperties({PanelProperty::Texts, PanelProperty::Images});
    }
    void shouldShowPropertiesOfOneTypeForThatTypeOnly();
    void shouldShowTypeAndSizeOfMixedTypes();
    void shouldShowTheEditorsOfTheType_data();
    void shouldShowTheEditorsOfTheType();
    void shouldKeepTheEditorsShownForMixedTypes();
    void shouldTakeEveryOtherNumberForAnImage();
    void shouldEnableInputsForOverlaysOnly_data();
    void shouldEnableInputsForOverlaysOnly();
    void shouldKeepCursorAndHistoryOfAnUnchangedText();
    void shouldHandTheMarkingOnInsideTheImageControl();

private:
    void selectTwoAlike(const PanelProperty &shown);
};

/// Opens two overlays that show the property, with its second value, and selects them.
void tst_kxOverlayEditor_sync::selectTwoAlike(const PanelProperty &shown)
{
    openEditor("a2 b3");
    suit(shown);
    for (const QRPC::NodeId id : {2, 3})
        shown.put(&node(id), 1);
    select({2, 3});
}

void tst_kxOverlayEditor_sync::shouldShowTheValueThatAllShare()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    openEditor("a2 b3 c4");
    suit(shown);
    select({2, 3});
    for (const int which : {1, 0, 1}) {
        shown.put(&node(2), which);
        shown.put(&node(3), which);
        log().clear();
        announce(shown.changed, {4});
        QCOMPARE(shown.shown(window()), QString(shown.values[which]));
        QVERIFY(!isMarked(control(shown)));
        QVERIFY(!control(shown).signalsBlocked());
        QCOMPARE(writes(), QStringList());
    }
}

void tst_kxOverlayEditor_sync::shouldMarkDifferentValuesAndKeepWhatItShows()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    selectTwoAlike(shown);
    QCOMPARE(shown.shown(window()), QString(shown.values[1]));
    for (const QRPC::NodeId other : {2, 3}) {
        shown.put(&node(2), 1);
        shown.put(&node(3), 1);
        shown.put(&node(other), 0);
        announce(shown.changed, {other});
        QVERIFY(isMarked(control(shown)));
        QCOMPARE(control(shown).property("multiselect").type(), QVariant::Bool);
        QCOMPARE(shown.shown(window()), QString(shown.values[1]));
    }
}

void tst_kxOverlayEditor_sync::shouldRemoveTheMarkingWhenTheValuesAgree()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    openEditor("a2 b3");
    suit(shown);
    shown.put(&node(2), 0);
    shown.put(&node(3), 1);
    select({2, 3});
    QVERIFY(isMarked(control(shown)));
    shown.put(&node(2), 1);
    announce(shown.changed, {2});
    QVERIFY(!control(shown).dynamicPropertyNames().contains("multiselect"));
    QCOMPARE(shown.shown(window()), QString(shown.values[1]));
}

void tst_kxOverlayEditor_sync::shouldTellTheStyleOfAChangedMarkingOnly()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    openEditor("a2 b3");
    suit(shown);
    select({2, 3});
    for (const QRPC::NodeId id : {2, 3})
        shown.put(&node(id), 0);
    announce(shown.changed, {2, 3});
    StyleSpy spy(&control(shown));
    control(shown).setStyle(&spy);
    const auto toldOf = [&](int which) {
        shown.put(&node(3), which);
        spy.calls.clear();
        announce(shown.changed, {3});
        return spy.calls;
    };
    const QStringList told{"unpolish", "polish"};
    QCOMPARE(toldOf(0), QStringList());
    QCOMPARE(toldOf(1), told);
    QCOMPARE(toldOf(1), QStringList());
    QCOMPARE(toldOf(0), told);
    QCOMPARE(toldOf(0), QStringList());
    control(shown).setStyle(nullptr);
}

void tst_kxOverlayEditor_sync::shouldLeaveAnEmptySelectionUntouched()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    openEditor("a2 b3");
    suit(shown);
    shown.put(&node(2), 1);
    select({2});
    select({});
    shown.put(&node(2), 0);
    const bool enabled = control(shown).isEnabled();
    announce(shown.changed, {});
    QCOMPARE(log().lines(), QStringList());
    QCOMPARE(shown.shown(window()), QString(shown.values[1]));
    QCOMPARE(control(shown).isEnabled(), enabled);
    QVERIFY(!isMarked(control(shown)));
}

void tst_kxOverlayEditor_sync::shouldAskForSelectedNodesOnly()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    openEditor("a2 b3 c4");
    suit(shown);
    select({3});
    announce(shown.changed, {});
    QVERIFY(log().count(shown.getter) > 0);
    for (const QString &line : log().lines())
        QVERIFY2(line.endsWith(" 3"), qPrintable(line));
}

void tst_kxOverlayEditor_sync::shouldStopAtAGroup()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    openEditor("a2 g3()");
    suit(shown);
    shown.put(&node(2), 1);
    shown.put(&node(3), 1);
    select({2});
    select({2, 3});
    shown.put(&node(2), 0);
    shown.put(&node(3), 0);
    log().clear();
    announce(shown.changed, {2});
    const bool isShown = shown.guard == PanelProperty::None;
    QCOMPARE(shown.shown(window()), QString(shown.values[isShown ? 0 : 1]));
    if (!isShown)
        QCOMPARE(log().lines(), (QStringList{"isOverlay 2", "isOverlay 3"}));
}

void tst_kxOverlayEditor_sync::shouldStopAtASwitch()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    openEditor("a2 b3 s4*()");
    suit(shown);
    shown.put(&node(2), 0);
    shown.put(&node(3), 1);
    select({2, 3});
    QVERIFY(isMarked(control(shown)));
    select({4, 2});
    announce(shown.changed, {2});
    QCOMPARE(log().lines(), QStringList("isOverlay 4"));
    QVERIFY(isMarked(control(shown)));
}

void tst_kxOverlayEditor_sync::shouldShowPropertiesOfOneTypeForThatTypeOnly()
{
    QFETCH(int, row);
    const PanelProperty &shown = property(row);
    selectTwoAlike(shown);
    node(3).type = 1 - node(2).type;
    for (const QRPC::NodeId id : {2, 3})
        shown.put(&node(id), 0);
    announce(shown.changed, {2, 3});
    QCOMPARE(shown.shown(window()), QString(shown.values[1]));
    QCOMPARE(log().count(shown.getter), 0);
}

void tst_kxOverlayEditor_sync::shouldShowTypeAndSizeOfMixedTypes()
{
    openEditor("a2 b3");
    node(3).type = 1;
    node(2).text = "old";
    for (const QRPC::NodeId id : {2, 3}) {
        node(id).size = 33.0F;
        node(id).position = {1.0, 1.0};
        node(id).offset = {4.0, -5.0};
    }
    select({2});
    select({2, 3});
    const kxOverlayEditorGUIW &form = window();
    QVERIFY(isMarked(*form._overlay_name));
    QVERIFY(isMarked(*form._text_radio_button));
    QVERIFY(!isMarked(*form._image_radio_button));
    const QList<const QWidget *> editors{form._text_edit,           form._font_combo_box,
                                         form._color_slider,        form._background_slider,
                                         form._transparency_slider, form._image_edit};
    for (const QWidget *editor : editors)
        QVERIFY2(!editor->isEnabled(), qPrintable(editor->objectName()));
    QCOMPARE(form._text_edit->toPlainText(), QString("old"));
    QCOMPARE(form._size_slider->value(), 33.0);
    QCOMPARE(form._position_combo_box->currentText(), QString("Top Right"));
    QCOMPARE(form._offset_x_spin_box->value(), 4.0);
    QCOMPARE(form._offset_y_spin_box->value(), -5.0);
}

void tst_kxOverlayEditor_sync::shouldShowTheEditorsOfTheType_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("text") << 0;
    QTest::newRow("image") << 1;
}

void tst_kxOverlayEditor_sync::shouldShowTheEditorsOfTheType()
{
    QFETCH(int, type);
    openEditor("a2 b3");
    node(2).type = type;
    node(3).type = 1 - type;
    select({3});
    select({2});
    const kxOverlayEditorGUIW &form = window();
    const QList<const QWidget *> ofText{form._text_label,         form._text_edit,
                                        form._font_label,         form._font_combo_box,
                                        form._font_color_label,   form._color_slider,
                                        form._background_label,   form._background_slider,
                                        form._transparency_label, form._transparency_slider};
    for (const QWidget *widget : ofText)
        QVERIFY2(widget->isHidden() == (type != 0), qPrintable(widget->objectName()));
    QCOMPARE(form._image_label->isHidden(), type == 0);
    QCOMPARE(form._image_edit->isHidden(), type == 0);
    QVERIFY(form._image_edit->isEnabled());
}

void tst_kxOverlayEditor_sync::shouldKeepTheEditorsShownForMixedTypes()
{
    openEditor("a2 b3");
    node(3).type = 1;
    for (const QRPC::NodeId first : {2, 3}) {
        select({first, first == 2 ? 3U : 2U});
        QCOMPARE(window()._image_edit->isHidden(), first == 2);
        QCOMPARE(window()._text_edit->isHidden(), first == 3);
        QCOMPARE(window()._text_radio_button->isChecked(), first == 2);
        QCOMPARE(window()._image_radio_button->isChecked(), first == 3);
    }
}

void tst_kxOverlayEditor_sync::shouldTakeEveryOtherNumberForAnImage()
{
    openEditor("a2 b3");
    node(2).type = 2;
    node(2).sizeType = 7;
    node(3).sizeType = 1;
    select({2});
    QVERIFY(window()._image_radio_button->isChecked());
    QVERIFY(!window()._image_edit->isHidden());
    QVERIFY(window()._relative_radio_button->isChecked());
    node(3).type = 1;
    select({2, 3});
    QVERIFY(!isMarked(*window()._text_radio_button));
    QVERIFY(!isMarked(*window()._absolute_radio_button));
    announce(&kxOverlayService::imageChanged, {2});
    // both are images, of types that differ
    QCOMPARE(log().count("getImage"), 0);
}

void tst_kxOverlayEditor_sync::shouldEnableInputsForOverlaysOnly_data()
{
    QTest::addColumn<QRPC::NodeList>("nodes");
    QTest::addColumn<bool>("name");
    QTest::addColumn<bool>("inputs");
    QTest::newRow("none") << QRPC::NodeList{} << false << false;
    QTest::newRow("one overlay") << QRPC::NodeList{2} << true << true;
    QTest::newRow("overlays") << QRPC::NodeList{2, 3} << true << true;
    QTest::newRow("group") << QRPC::NodeList{4} << true << false;
    QTest::newRow("switch") << QRPC::NodeList{5} << true << false;
    QTest::newRow("overlay and group") << QRPC::NodeList{2, 4} << true << false;
    QTest::newRow("switch and overlays") << QRPC::NodeList{5, 2, 3} << true << false;
}

void tst_kxOverlayEditor_sync::shouldEnableInputsForOverlaysOnly()
{
    QFETCH(QRPC::NodeList, nodes);
    QFETCH(bool, name);
    QFETCH(bool, inputs);
    openEditor("a2 b3 g4() s5*()");
    for (const QRPC::NodeId before : {2, 4}) {
        select({before});
        select(nodes);
        QCOMPARE(window()._overlay_name->isEnabled(), name);
        for (const PanelProperty &shown : properties()) {
            if (shown.guard != PanelProperty::Images && &control(shown) != window()._overlay_name)
                QVERIFY2(control(shown).isEnabled() == inputs, shown.name);
        }
        QCOMPARE(window()._image_radio_button->isEnabled(), inputs);
        QCOMPARE(window()._relative_radio_button->isEnabled(), inputs);
    }
}

void tst_kxOverlayEditor_sync::shouldKeepCursorAndHistoryOfAnUnchangedText()
{
    openEditor("a2 b3");
    select({2, 3});
    QPlainTextEdit *edit = window()._text_edit;
    edit->insertPlainText("abc");
    edit->insertPlainText("def");
    edit->moveCursor(QTextCursor::Start);
    edit->moveCursor(QTextCursor::Right);
    select({3, 2});
    announce(&kxOverlayService::textChanged, {2});
    QCOMPARE(edit->textCursor().position(), 1);
    QVERIFY(edit->document()->isUndoAvailable());
    node(3).text = "xyz";
    announce(&kxOverlayService::textChanged, {3});
    QCOMPARE(edit->textCursor().position(), 1);
    edit->undo();
    QCOMPARE(edit->toPlainText(), QString());
}

void tst_kxOverlayEditor_sync::shouldHandTheMarkingOnInsideTheImageControl()
{
    openEditor("a2 b3");
    suit(property(7));
    node(2).image = "/no/a.png";
    select({2, 3});
    const auto markedInside = [this] {
        const QList<QWidget *> inside = window()._image_edit->findChildren<QWidget *>();
        return std::count_if(inside.begin(), inside.end(),
                             [](const QWidget *widget) { return isMarked(*widget); });
    };
    QVERIFY(markedInside() > 0);
    node(2).image.clear();
    announce(&kxOverlayService::imageChanged, {2});
    QCOMPARE(int(markedInside()), 0);
}

KX_TEST_MAIN(tst_kxOverlayEditor_sync)
#include "tst_kxOverlayEditor_sync.moc"

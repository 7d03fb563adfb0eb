// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/FormMember.h"
#include "kit/MarkingTranslator.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "tests/support/KxTest.h"

namespace {

using Form = Ui::kxOverlayEditorGUI;

/// One member of the form, and where it is.
struct Member : FormMember
{
    const QObject *object;
    quintptr place; ///< of the member in the form
};

/// All members in the order of their declaration: a table, long as it has a row for each.
QVector<Member> membersOf(const Form &form) // NOLINT(readability-function-size)
{
#define KX_MEMBER(name)                                                                            \
    {                                                                                              \
#name, form.name, quintptr(&form.name)                                                     \
    }
    const struct
    {
        const char *name;
        const QObject *object;
        quintptr place;
    } found[] = {
        KX_MEMBER(centralwidget),
        KX_MEMBER(gridLayout),
        KX_MEMBER(splitter),
        KX_MEMBER(_tree_frame_layout),
        KX_MEMBER(verticalLayout_3),
        KX_MEMBER(_overlay_tree_frame),
        KX_MEMBER(_property_scrollArea),
        KX_MEMBER(scrollAreaWidgetContents),
        KX_MEMBER(verticalLayout),
        KX_MEMBER(_property_frame),
        KX_MEMBER(page),
        KX_MEMBER(gridLayout_2),
        KX_MEMBER(_overlay_name),
        KX_MEMBER(_font_color_label),
        KX_MEMBER(_background_slider),
        KX_MEMBER(_name_label),
        KX_MEMBER(_type_label),
        KX_MEMBER(_transparency_slider),
        KX_MEMBER(_color_slider),
        KX_MEMBER(_image_radio_button),
        KX_MEMBER(_text_radio_button),
        KX_MEMBER(_font_combo_box),
        KX_MEMBER(_text_label),
        KX_MEMBER(_text_edit),
        KX_MEMBER(_transparency_label),
        KX_MEMBER(_background_label),
        KX_MEMBER(_font_label),
        KX_MEMBER(_image_label),
        KX_MEMBER(_image_edit),
        KX_MEMBER(_size_position_frame),
        KX_MEMBER(page_2),
        KX_MEMBER(gridLayout_4),
        KX_MEMBER(horizontalLayout),
        KX_MEMBER(_offset_x_spin_box),
        KX_MEMBER(_offset_y_spin_box),
        KX_MEMBER(_offset_spacer_frame),
        KX_MEMBER(_offset_label),
        KX_MEMBER(_type_label_2),
        KX_MEMBER(_position_label),
        KX_MEMBER(_size_label),
        KX_MEMBER(_absolute_radio_button),
        KX_MEMBER(_position_combo_box),
        KX_MEMBER(_relative_radio_button),
        KX_MEMBER(_size_slider),
        KX_MEMBER(_offset_spacer_frame2),
        KX_MEMBER(statusbar),
    };
#undef KX_MEMBER
    QVector<Member> members;
    for (int i = 0; i < FormMember::all().size(); ++i)
        members.append({FormMember::all().at(i), found[i].object, found[i].place});
    return members;
}

/// The cell of an object in the grid that holds it.
QVector<int> cellOf(const QObject *object, const QList<QGridLayout *> &grids)
{
    for (const QGridLayout *grid : grids) {
        for (int i = 0; i < grid->count(); ++i) {
            QLayoutItem *item = grid->itemAt(i);
            if (item->widget() != object && item->layout() != object)
                continue;
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            return {row, column, rows, columns};
        }
    }
    return {};
}

QString captionOf(const QWidget *frame)
{
    return frame->property("caption").toString();
}

} // namespace

/// The form of the editor's window: every member by name, class, place, text and setting.
class tst_kxOverlayEditorForm : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldDeclareItsMembersInOrder();
    void shouldBuildEveryMemberWithItsClass();
    void shouldGiveEveryMemberItsParent();
    void shouldCreateMembersInOrderWithinTheirParents();
    void shouldPlaceMembersInTheirCells();
    void shouldNestItsContainers();
    void shouldShowItsTexts_data();
    void shouldShowItsTexts();
    void shouldShowItsCaptions();
    void shouldApplyItsSettings();
    void shouldCheckTheFirstOfEachPairOfButtons();
    void shouldSizeAndNameTheWindow();
    void shouldKeepTheNameOfTheWindow();
    void shouldTranslateInItsOwnContext();

private:
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<Form> m_form;
};

void tst_kxOverlayEditorForm::init()
{
    KxTest::init();
    m_window = std::make_unique<QMainWindow>();
    m_form = std::make_unique<Form>();
    m_form->setupUi(m_window.get());
}

void tst_kxOverlayEditorForm::cleanup()
{
    m_form.reset();
    m_window.reset();
    KxTest::cleanup();
}

void tst_kxOverlayEditorForm::shouldDeclareItsMembersInOrder()
{
    const QVector<Member> members = membersOf(*m_form);
    QCOMPARE(members.size(), 46);
    for (int i = 1; i < members.size(); ++i)
        QVERIFY2(members.at(i - 1).place < members.at(i).place, members.at(i).name);
    QCOMPARE(sizeof(Form), size_t(members.size()) * sizeof(void *));
}

void tst_kxOverlayEditorForm::shouldBuildEveryMemberWithItsClass()
{
    const QVector<Member> members = membersOf(*m_form);
    for (const Member &member : members) {
        QVERIFY2(member.object, member.name);
        QCOMPARE(member.object->objectName(), QString(member.name));
        QCOMPARE(QByteArray(member.object->metaObject()->className()),
                 QByteArray(member.className));
    }
}

void tst_kxOverlayEditorForm::shouldGiveEveryMemberItsParent()
{
    const QVector<Member> members = membersOf(*m_form);
    for (const Member &member : members) {
        const QByteArray parent = member.parent;
        const QObject *actual = member.object->parent();
        QVERIFY2(actual, member.name);
        if (parent == "window")
            QCOMPARE(actual, m_window.get());
        else if (!parent.isEmpty())
            QVERIFY2(actual->objectName() == parent, member.name);
    }
    QVERIFY(m_form->_property_frame->isAncestorOf(m_form->page));
    QVERIFY(m_form->_size_position_frame->isAncestorOf(m_form->page_2));
    QVERIFY(m_form->_property_scrollArea->isAncestorOf(m_form->scrollAreaWidgetContents));
}

void tst_kxOverlayEditorForm::shouldCreateMembersInOrderWithinTheirParents()
{
    const QVector<Member> members = membersOf(*m_form);
    for (const QWidget *parent : {m_form->page, m_form->page_2, m_form->scrollAreaWidgetContents}) {
        QStringList wanted;
        for (const Member &member : members) {
            if (member.object->parent() == parent && member.object->isWidgetType())
                wanted.append(member.name);
        }
        QStringList made;
        for (const QObject *child : parent->children()) {
            if (child->isWidgetType() && wanted.contains(child->objectName()))
                made.append(child->objectName());
        }
        QCOMPARE(made, wanted);
    }
}

void tst_kxOverlayEditorForm::shouldPlaceMembersInTheirCells()
{
    const QList<QGridLayout *> grids{m_form->gridLayout, m_form->gridLayout_2,
                                     m_form->gridLayout_4};
    const QVector<Member> members = membersOf(*m_form);
    for (const Member &member : members) {
        const QVector<int> wanted =
            member.row < 0 ? QVector<int>() : QVector<int>{member.row, member.column, 1, 1};
        QVERIFY2(cellOf(member.object, grids) == wanted, member.name);
    }
}

void tst_kxOverlayEditorForm::shouldNestItsContainers()
{
    QCOMPARE(m_window->centralWidget(), m_form->centralwidget);
    QCOMPARE(m_window->statusBar(), m_form->statusbar);
    QCOMPARE(m_form->splitter->count(), 2);
    QCOMPARE(m_form->splitter->widget(0), m_form->_tree_frame_layout);
    QCOMPARE(m_form->splitter->widget(1), m_form->_property_scrollArea);
    QCOMPARE(m_form->verticalLayout_3->itemAt(0)->widget(), m_form->_overlay_tree_frame);
    QCOMPARE(m_form->_property_scrollArea->widget(), m_form->scrollAreaWidgetContents);
    QCOMPARE(m_form->verticalLayout->itemAt(0)->widget(), m_form->_property_frame);
    QCOMPARE(m_form->verticalLayout->itemAt(1)->widget(), m_form->_size_position_frame);
    QCOMPARE(m_form->verticalLayout->itemAt(2)->widget(), m_form->_offset_spacer_frame2);
    QCOMPARE(m_form->horizontalLayout->itemAt(0)->widget(), m_form->_offset_x_spin_box);
    QCOMPARE(m_form->horizontalLayout->itemAt(1)->widget(), m_form->_offset_y_spin_box);
    QCOMPARE(m_form->horizontalLayout->itemAt(2)->widget(), m_form->_offset_spacer_frame);
    QCOMPARE(m_form->page->layout(), m_form->gridLayout_2);
    QCOMPARE(m_form->page_2->layout(), m_form->gridLayout_4);
}

void tst_kxOverlayEditorForm::shouldShowItsTexts_data()
{
    QTest::addColumn<QString>("text");
    for (const auto &[name, text] : FormMember::texts())
        QTest::newRow(name) << text;
}

void tst_kxOverlayEditorForm::shouldShowItsTexts()
{
    QFETCH(QString, text);
    const auto *widget = m_window->findChild<QWidget *>(QTest::currentDataTag());
    QVERIFY(widget);
    QCOMPARE(widget->property("text").toString(), text);
}

void tst_kxOverlayEditorForm::shouldShowItsCaptions()
{
    QCOMPARE(captionOf(m_form->_property_frame), QString("Properties"));
    QCOMPARE(captionOf(m_form->_size_position_frame), QString("Size and Position"));
}

void tst_kxOverlayEditorForm::shouldApplyItsSettings()
{
    QCOMPARE(m_form->splitter->orientation(), Qt::Horizontal);
    QCOMPARE(m_form->_tree_frame_layout->frameShape(), QFrame::NoFrame);
    QCOMPARE(m_form->_overlay_tree_frame->frameShape(), QFrame::NoFrame);
    QCOMPARE(m_form->_property_scrollArea->frameShape(), QFrame::NoFrame);
    QVERIFY(m_form->_property_scrollArea->widgetResizable());
    QCOMPARE(m_form->verticalLayout_3->spacing(), 0);
    QCOMPARE(m_form->verticalLayout_3->contentsMargins(), QMargins());
    QCOMPARE(m_form->verticalLayout->contentsMargins(), QMargins());
    for (const QWidget *strip : {static_cast<QWidget *>(m_form->_background_slider),
                                 static_cast<QWidget *>(m_form->_transparency_slider),
                                 static_cast<QWidget *>(m_form->_color_slider)})
        QCOMPARE(strip->minimumSize(), QSize(0, 16));
    QCOMPARE(m_form->_name_label->minimumWidth(), 150);
    QCOMPARE(m_form->_type_label_2->minimumWidth(), 150);
    QCOMPARE(m_form->_position_combo_box->minimumWidth(), 188);
    QCOMPARE(m_form->_offset_x_spin_box->minimum(), 0.0);
    QCOMPARE(m_form->_offset_y_spin_box->minimum(), 0.0);
    QCOMPARE(m_form->_offset_x_spin_box->value(), 0.0);
    QCOMPARE(m_form->_offset_y_spin_box->value(), 0.0);
}

void tst_kxOverlayEditorForm::shouldCheckTheFirstOfEachPairOfButtons()
{
    QVERIFY(m_form->_text_radio_button->isChecked());
    QVERIFY(!m_form->_image_radio_button->isChecked());
    QVERIFY(m_form->_absolute_radio_button->isChecked());
    QVERIFY(!m_form->_relative_radio_button->isChecked());
}

void tst_kxOverlayEditorForm::shouldSizeAndNameTheWindow()
{
    QCOMPARE(m_window->size(), QSize(556, 1346));
    QCOMPARE(m_window->windowTitle(), QString("Overlay Editor"));
    QCOMPARE(m_window->toolTip(), QString());
    QCOMPARE(m_window->objectName(), QString("kxOverlayEditorGUI"));
}

void tst_kxOverlayEditorForm::shouldKeepTheNameOfTheWindow()
{
    QMainWindow named;
    named.setObjectName("Module");
    Form form;
    form.setupUi(&named);
    QCOMPARE(named.objectName(), QString("Module"));
}

void tst_kxOverlayEditorForm::shouldTranslateInItsOwnContext()
{
    m_window->setToolTip("old");
    auto translator = std::make_unique<MarkingTranslator>("kxOverlayEditorGUI");
    m_form->retranslateUi(m_window.get());
    translator.reset();
    QCOMPARE(m_window->windowTitle(), QString("*Overlay Editor"));
    QCOMPARE(m_window->toolTip(), QString());
    QCOMPARE(captionOf(m_form->_property_frame), QString("*Properties"));
    QCOMPARE(captionOf(m_form->_size_position_frame), QString("*Size and Position"));
    QCOMPARE(m_form->_type_label_2->text(), QString("*Scale"));
    QCOMPARE(m_form->_relative_radio_button->text(), QString("*Relative"));
    m_form->retranslateUi(m_window.get());
    QCOMPARE(m_window->windowTitle(), QString("Overlay Editor"));
}

KX_TEST_MAIN(tst_kxOverlayEditorForm)
#include "tst_kxOverlayEditorForm.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXColorManipulator.h"
#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/viewer/whole/WholeViewer.h"

#include <QAbstractButton>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionSlider>
#include <QTreeView>

using namespace viewer;

/// What a user does in the panel and the tree of the editor, from the press of a button or key to the
/// moment when it is done, is one step of the history with the name of what was done.
class tst_panelSteps : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldMakeOneStepOfEachGesture();

private:
    /// Something that a user does with the selected overlay, and the names of the steps it leaves.
    struct Gesture
    {
        QString what;
        std::function<void()> act;
        QStringList steps;
    };

    QVector<Gesture> gestures();
    template<typename T>
    T *child(const char *name) const;
    void select(const QStringList &names);
    void tryOut(const Gesture &gesture);
    void dragBar(const char *name, int distance);
    void chooseColours(const char *name, QDialogButtonBox::StandardButton end);
    void dragSlider();

    MainWindow *m_window = nullptr;
    OverlayService *m_service = nullptr;
    SceneDocument *m_document = nullptr;
    QTreeView *m_tree = nullptr;
};

void tst_panelSteps::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

template<typename T>
T *tst_panelSteps::child(const char *name) const
{
    return m_window->findChild<T *>(name);
}

void tst_panelSteps::select(const QStringList &names)
{
    m_tree->clearSelection();
    const QAbstractItemModel *model = m_tree->model();
    for (const QString &name : names) {
        const QModelIndexList found = model->match(model->index(0, 0), Qt::DisplayRole, name, 1,
                                                   Qt::MatchExactly | Qt::MatchRecursive);
        m_tree->selectionModel()->setCurrentIndex(found.value(0), QItemSelectionModel::Select);
    }
}

void tst_panelSteps::dragBar(const char *name, int distance)
{
    auto *bar = child<QKXColorManipulator>(name);
    const QPoint start(bar->width() - 10, bar->height() / 2); // in the part that darkens
    QTest::mousePress(bar, Qt::LeftButton, {}, start);
    for (int x = 0; x < distance; x += 4) {
        QMouseEvent move(QEvent::MouseMove, start - QPoint(x, 0), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(bar, &move);
    }
    QTest::mouseRelease(bar, Qt::LeftButton, {}, start - QPoint(distance, 0));
}

/// Tries several colours by hand before the dialog is left.
void tst_panelSteps::chooseColours(const char *name, QDialogButtonBox::StandardButton end)
{
    QTest::keyClick(child<QKXColorManipulator>(name), Qt::Key_Space);
    auto *dialog = child<QColorDialog>("");
    QVERIFY(dialog && becomesActive(dialog));
    const QList<QSpinBox *> parts = dialog->findChildren<QSpinBox *>();
    for (int i = 0; i < 3; ++i) {
        parts.at(i)->setFocus();
        QTest::mouseClick(parts.at(i), Qt::LeftButton);
        parts.at(i)->setValue(100 + i);
        QCoreApplication::processEvents();
    }
    auto *buttons = dialog->findChild<QDialogButtonBox *>();
    QTest::mouseClick(buttons->button(end), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
    QVERIFY(becomesActive(m_window));
}

void tst_panelSteps::dragSlider()
{
    auto *slider = child<QWidget>("_size_slider")->findChild<QSlider *>();
    QStyleOptionSlider option;
    option.initFrom(slider);
    const QPoint start(slider->width() * slider->value() / slider->maximum(), slider->height() / 2);
    QTest::mousePress(slider, Qt::LeftButton, {}, start);
    for (int x = 0; x < 60; x += 10) {
        QMouseEvent move(QEvent::MouseMove, start + QPoint(x, 0), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(slider, &move);
    }
    QTest::mouseRelease(slider, Qt::LeftButton, {}, start + QPoint(60, 0));
}

// One table, long as it has a row for each gesture.
QVector<tst_panelSteps::Gesture> tst_panelSteps::gestures() // NOLINT(readability-function-size)
{
    const auto type = [this](const char *name, const QString &text, int key) {
        if (name)
            child<QWidget>(name)->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(QApplication::focusWidget(), text);
        if (key != 0)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
    };
    const auto press = [this](int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(m_tree, Qt::Key(key), modifiers);
    };
    const auto takeBack = [this] {
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    };
    const auto rename = [=](int key) {
        press(Qt::Key_R);
        type(nullptr, "New", key);
    };
    return {
        {"type a name",
         [=] { type("_overlay_name", "New", Qt::Key_Return); },
         {"Rename to \"New\""}},
        {"type a text", [=] { type("_text_edit", "abc", 0); }, {"Set text of \"1\""}},
        {"take a text back",
         [=] {
             type("_text_edit", "abc", 0);
             takeBack();
         },
         {}},
        {"drag a colour", [=] { dragBar("_color_slider", 20); }, {"Set font colour of \"1\""}},
        {"choose a colour",
         [=] { chooseColours("_color_slider", QDialogButtonBox::Ok); },
         {"Set font colour of \"1\""}},
        {"choose no colour", [=] { chooseColours("_color_slider", QDialogButtonBox::Cancel); }, {}},
        {"drag after a dialog",
         [=] {
             dragBar("_color_slider", 20);
             dragBar("_color_slider", 30);
         },
         {"Set font colour of \"1\"", "Set font colour of \"1\""}},
        {"drag the size", [=] { dragSlider(); }, {"Set size of \"1\""}},
        {"type a size", [=] { type("_size_slider", "55", Qt::Key_Return); }, {"Set size of \"1\""}},
        {"type an offset",
         [=] { type("_offset_x_spin_box", "12", Qt::Key_Tab); },
         {"Set horizontal offset of \"1\""}},
        {"choose an anchor",
         [=] { type("_position_combo_box", "Bottom R", 0); },
         {"Set anchor of \"1\""}},
        {"choose a size type",
         [=] { child<QAbstractButton>("_relative_radio_button")->click(); },
         {"Set size type of \"1\""}},
        {"choose a type",
         [=] { child<QAbstractButton>("_image_radio_button")->click(); },
         {"Set type of \"1\""}},
        {"rename in the tree", [=] { rename(Qt::Key_Return); }, {"Rename to \"New\""}},
        {"rename in the tree and save",
         [=] {
             rename(0);
             m_document->save();
         },
         {"Rename to \"New\""}},
        {"toggle", [=] { press(Qt::Key_T); }, {"Switch off \"1\""}},
        {"duplicate", [=] { press(Qt::Key_D); }, {"Duplicate \"1\""}},
        {"group",
         [=] { press(Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier); },
         {"Group \"1\""}},
        {"delete", [=] { press(Qt::Key_Delete, {}); }, {"Delete \"1\""}},
    };
}

void tst_panelSteps::tryOut(const Gesture &gesture)
{
    const QUndoStack *stack = m_service->history().stack();
    select({"1"});
    m_tree->setFocus();
    const int before = stack->index();
    gesture.act();
    QCoreApplication::processEvents(); // an editor in the tree hands its text over behind the key
    QStringList steps;
    for (int i = before; i < stack->index(); ++i)
        steps.append(stack->command(i)->actionText());
    QVERIFY2(steps == gesture.steps, qPrintable(gesture.what + ": " + steps.join(" | ")));
    m_tree->setFocus();
    while (stack->index() > before)
        m_service->undo();
}

void tst_panelSteps::shouldMakeOneStepOfEachGesture()
{
    WholeViewer viewer;
    m_window = viewer.session().window();
    m_service = viewer.session().overlays();
    m_document = viewer.session().document();
    m_tree = m_window->findChild<QTreeView *>();
    QVERIFY(becomesActive(m_window));
    const QVector<Gesture> all = gestures();
    for (const Gesture &gesture : all) {
        tryOut(gesture);
        if (QTest::currentTestFailed())
            return;
    }
}

KX_TEST_MAIN(tst_panelSteps)
#include "tst_panelSteps.moc"

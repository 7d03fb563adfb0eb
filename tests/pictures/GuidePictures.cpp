// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/pictures/GuidePictures.h"

#include "host/QKXSearchBox.h"
#include "tests/support/RealDrag.h"
#include "tests/support/RealInput.h"
#include "viewer/app/NoticeArea.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QFile>
#include <QListView>
#include <QTreeView>

using namespace viewer;

namespace {

constexpr int Margin = 12; // around what a picture shows

QStringList groups()
{
    return {"Heading", "Credits", "Brand", "Guides"};
}

} // namespace

void GuidePictures::takeAll(const QStringList &wanted)
{
    const struct
    {
        const char *name;
        void (GuidePictures::*take)(const char *);
    } pictures[] = {
        {"title_sheet.png", &GuidePictures::takeWindow},
        {"tree.png", &GuidePictures::takeTree},
        {"switch.png", &GuidePictures::takeSwitch},
        {"context_menu.png", &GuidePictures::takeContextMenu},
        {"dragged_row.png", &GuidePictures::takeDraggedRow},
        {"search.png", &GuidePictures::takeSearch},
        {"text_properties.png", &GuidePictures::takeText},
        {"image_properties.png", &GuidePictures::takeImage},
        {"several_values.png", &GuidePictures::takeSeveral},
        {"rubber_band.png", &GuidePictures::takeBand},
        {"move.png", &GuidePictures::takeMove},
        {"image_signs.png", &GuidePictures::takeSigns},
        {"history.png", &GuidePictures::takeHistory},
        {"unsaved_changes.png", &GuidePictures::takeUnsaved},
        {"recover_work.png", &GuidePictures::takeRecovery},
        {"script_error.png", &GuidePictures::takeScript},
        {"shortcuts.png", &GuidePictures::takeShortcuts},
    };
    for (const auto &picture : pictures) {
        if (!wanted.isEmpty() && !wanted.contains(picture.name))
            continue;
        m_stage.open("title_sheet.json");
        (this->*picture.take)(picture.name);
    }
}

/// From the search field down to the last row and the empty room of `rows` more.
QRect GuidePictures::treePane(int rows)
{
    m_stage.settle();
    const QTreeView *tree = m_stage.tree();
    QModelIndex last = tree->model()->index(tree->model()->rowCount() - 1, 0);
    while (tree->isExpanded(last))
        last = tree->model()->index(tree->model()->rowCount(last) - 1, 0, last);
    const QRect row = tree->visualRect(last);
    QRect place = PictureStage::placeOf(m_stage.widget("_overlay_tree_frame"));
    place.setBottom(tree->viewport()->mapToGlobal(row.bottomLeft()).y() + rows * row.height());
    return place.adjusted(-Margin / 2, -Margin / 2, 2, 0);
}

/// From the head of the panel's right side down to the control of that name.
QRect GuidePictures::properties(const char *last)
{
    m_stage.settle();
    const QRect end = PictureStage::placeOf(m_stage.widget(last));
    QRect place = PictureStage::placeOf(m_stage.widget("_property_scrollArea"));
    place.setBottom(end.bottom() + Margin);
    return place.adjusted(0, -Margin / 2, Margin / 2, 0);
}

QRect GuidePictures::inView(const QRect &part)
{
    const QRect whole = PictureStage::placeOf(m_stage.view());
    return part.translated(whole.topLeft()) & whole;
}

/// Takes the dialog that opens next, and closes it.
void GuidePictures::takeModal(const char *name)
{
    const auto dialog = [] {
        QWidget *widget = QApplication::activeModalWidget();
        return widget && widget->isActiveWindow() ? widget : nullptr;
    };
    PictureStage::whenever([dialog] { return dialog() != nullptr; },
                           [this, dialog, name] {
                               m_stage.take(name, dialog());
                               realInput::key("Escape");
                           });
}

void GuidePictures::takeWindow(const char *name)
{
    m_stage.expand({"Heading"});
    m_stage.select({"Title"});
    m_stage.take(name, m_stage.window());
}

void GuidePictures::takeTree(const char *name)
{
    m_stage.expand(groups());
    m_stage.select({"Subtitle"});
    m_stage.take(name, treePane(1));
}

void GuidePictures::takeSwitch(const char *name)
{
    m_stage.open("variants.json");
    m_stage.expand({"Language", "Trim", "Touring"});
    m_stage.take(name, treePane(1));
}

void GuidePictures::takeContextMenu(const char *name)
{
    m_stage.expand({"Heading"});
    m_stage.select({"Title"});
    bool taken = false;
    PictureStage::whenever(
        [] { return QApplication::activePopupWidget() != nullptr; },
        [&] {
            const QRect menu = PictureStage::placeOf(QApplication::activePopupWidget());
            m_stage.take(name, menu.adjusted(0, 0, Margin, Margin).united(treePane(1)));
            realInput::key("Escape");
            taken = true;
        });
    const QRect row = m_stage.rowPlace("Title");
    realInput::rightClick(*m_stage.tree()->viewport(), {row.left() + 90, row.center().y()});
    PictureStage::wait([&] { return taken && !QApplication::activePopupWidget(); },
                       "the context menu");
}

void GuidePictures::takeDraggedRow(const char *name)
{
    m_stage.expand({"Heading", "Brand"});
    const auto edge = [this] {
        const QRect row = m_stage.rowPlace("Rule");
        return QPoint(row.left() + 170, row.top());
    };
    RealDrag drag(m_stage.tree()->viewport(), edge);
    drag.setBeforeDrop([&] { m_stage.take(name, treePane(1)); });
    const QRect row = m_stage.rowPlace("Draft");
    if (!drag.runFrom(m_stage.tree()->viewport(), {row.left() + 24, row.center().y()}))
        PictureStage::wait([] { return false; }, "the drag of a row");
}

void GuidePictures::takeSearch(const char *name)
{
    m_stage.expand(groups());
    m_stage.select({"Title"});
    realInput::key("ctrl+f");
    realInput::type("S");
    PictureStage::wait([this] { return m_stage.widget("searchGuide")->isVisible(); },
                       "the result of the search");
    m_stage.take(name, treePane(1));
}

void GuidePictures::takeText(const char *name)
{
    m_stage.expand({"Heading"});
    m_stage.select({"Subtitle"});
    m_stage.take(name, properties("_offset_x_spin_box"));
}

void GuidePictures::takeImage(const char *name)
{
    m_stage.expand({"Brand"});
    m_stage.select({"Mark"});
    m_stage.take(name, properties("_offset_x_spin_box"));
}

void GuidePictures::takeSeveral(const char *name)
{
    m_stage.expand({"Heading"});
    m_stage.select({"Series", "Title", "Subtitle"});
    m_stage.take(name, properties("_offset_x_spin_box"));
}

void GuidePictures::takeBand(const char *name)
{
    const QRect studio = m_stage.boxOf("Studio");
    const QPoint end(studio.right() - 30, m_stage.boxOf("Place").bottom() + 20);
    realInput::keyDown("shift");
    m_stage.dragInView({20, 20}, end);
    m_stage.take(name, inView({0, 0, m_stage.view()->width(), end.y() + 40}));
    realInput::release();
    realInput::keyUp("shift");
    PictureStage::wait([this] { return m_stage.selected().size() == 3; }, "the rubber band");
}

void GuidePictures::takeMove(const char *name)
{
    const QRect draft = m_stage.boxOf("Draft");
    const QPoint aim(m_stage.view()->width() / 2 + 4, m_stage.boxOf("Studio").center().y() + 3);
    m_stage.dragInView(draft.center(), aim);
    m_stage.take(name, inView({0, 0, m_stage.view()->width(), aim.y() + 150}));
    realInput::key("Escape");
    realInput::release();
    PictureStage::wait([&] { return m_stage.boxOf("Draft") == draft; }, "Draft back in its place");
}

void GuidePictures::takeSigns(const char *name)
{
    m_stage.settle();
    QFile::remove(m_stage.scenes().filePath("images/mark.svg"));
    m_stage.select({"Draft"});
    OverlayService *overlays = m_stage.overlays();
    const QRPC::NodeList draft{overlays->getChild(overlays->getRootNode(), 4)};
    overlays->setOverlayType(draft, 1);
    overlays->setSize(draft, 48);
    overlays->setImage(draft, "images/stamp.png");
    m_stage.take(name, inView({0, 0, m_stage.view()->width(), 150}));
}

void GuidePictures::takeHistory(const char *name)
{
    const QUndoStack *stack = m_stage.overlays()->history().stack();
    m_stage.select({"Draft"});
    int steps = 0;
    for (const char *key : {"alt+Up", "ctrl+d", "alt+Down", "ctrl+t", "Delete"}) {
        realInput::key(key);
        PictureStage::wait([&] { return stack->count() == steps + 1; }, QLatin1String(key));
        if (++steps == 2) {
            realInput::key("ctrl+s");
            PictureStage::wait([&] { return stack->isClean(); }, "the scene saved");
        }
    }
    realInput::key("ctrl+z");
    PictureStage::wait([&] { return stack->canRedo(); }, "the last step undone");
    m_stage.action("showHistory")->trigger();
    m_stage.settle();
    const auto *list = static_cast<QListView *>(m_stage.widget("historyList"));
    QRect place = PictureStage::placeOf(m_stage.widget("history"));
    const QRect last = list->visualRect(list->model()->index(steps, 0));
    place.setBottom(list->viewport()->mapToGlobal(last.bottomLeft()).y() + Margin);
    m_stage.take(name, place);
    m_stage.action("showHistory")->trigger();
}

void GuidePictures::takeUnsaved(const char *name)
{
    m_stage.select({"Draft"});
    realInput::key("Delete");
    PictureStage::wait([this] { return m_stage.session().document()->isModified(); },
                       "Draft deleted");
    takeModal(name);
    m_stage.action("newScene")->trigger();
}

void GuidePictures::takeRecovery(const char *name)
{
    takeModal(name);
    FileQuestions(m_stage.window()).aboutRecovery("/home/mira/title_sheet.json", "3/14/26 3:09 PM");
}

void GuidePictures::takeScript(const char *name)
{
    QFile script(m_stage.scenes().filePath("titles.js"));
    script.open(QIODevice::WriteOnly);
    script.write("const title = overlays.getChild(1, 1);\n"
                 "overlays.setText(title, \"Evening\");\n");
    script.close();
    m_stage.session().runScript("titles.js");
    m_stage.take(name, m_stage.widget("notices"));
}

void GuidePictures::takeShortcuts(const char *name)
{
    m_stage.action("keyboardShortcutsEntry")->trigger();
    QWidget *dialog = m_stage.widget("keyboardShortcuts");
    PictureStage::wait([&] { return dialog->isActiveWindow(); }, "the list of shortcuts");
    m_stage.take(name, dialog);
    dialog->close();
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/ViewerSession.h"

#include <QDir>
#include <QSettings>

#include <functional>
#include <memory>

class QTreeView;

/// The running viewer with the plug-in on a display of its own, worked by real mouse and keys, and the
/// camera before it. Whatever does not happen in time ends the program with a line that says what was
/// waited for. A process has the editor once and so makes one of these.
class PictureStage
{
public:
    using Condition = std::function<bool()>;

    /// Pictures are written to `folder`.
    explicit PictureStage(const QString &folder);
    ~PictureStage();
    Q_DISABLE_COPY(PictureStage)

    /// Opens an example as it is in its file, with nothing selected, searched or open.
    void open(const char *example);

    /// Waits until it holds.
    static void wait(const Condition &condition, const QString &what);

    /// Menus, dialogs and drags have event loops of their own: does `act` in the one that runs once
    /// the condition holds. To be called before whatever opens it.
    static void whenever(const Condition &condition, const std::function<void()> &act);

    /// Waits until the screen stands still, and so all that is on it has its place.
    void settle() const;

    /// Writes what is on the screen there, once it stands still.
    void take(const char *name, const QRect &place) const;
    void take(const char *name, const QWidget *widget) const;

    /// Where a widget is on the screen.
    static QRect placeOf(const QWidget *widget);

    viewer::ViewerSession &session() { return *m_session; }
    viewer::OverlayService *overlays() { return m_session->overlays(); }
    viewer::MainWindow *window() { return m_session->window(); }
    QTreeView *tree() { return m_tree; }
    QWidget *view() { return window()->viewArea()->background(); }

    /// The child of this name; ends the program where there is none.
    QWidget *widget(const char *name);
    QAction *action(const char *name);

    /// A row of the tree by its name, the first of them.
    QModelIndex row(const QString &name);

    /// Its place in the tree's viewport.
    QRect rowPlace(const QString &name);
    void expand(const QStringList &names);

    /// Selects rows of the tree by clicks.
    void select(const QStringList &names);
    QStringList selected() const;

    /// The box of an overlay in the view.
    QRect boxOf(const QString &name);

    /// Drags in the view; the button stays down.
    void dragInView(const QPoint &from, const QPoint &to);

    /// The folder of the opened examples, which a picture may change. It is the current one.
    QDir scenes() const { return QDir(m_place.filePath("Northlight Studio/Still Life in Grey")); }

private:
    void copyExamples() const;
    QRPC::NodeId node(const QString &name);
    QImage whenStill(const QRect &place) const;

    QDir m_folder;
    const QDir m_place; // the same each time, because paths are seen
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<viewer::ViewerSession> m_session;
    QTreeView *m_tree = nullptr;
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>
#include <QWidget>

namespace viewer {

class Backdrop;
class NoticeArea;
class Viewport;

/// The middle of the main window: the 3D view, or a painted backdrop where there is none, below the
/// overlays, below the notices. The layers are siblings, so that turning the model redraws the model
/// only. Owned by the main window.
class ViewArea : public QWidget
{
    Q_OBJECT

public:
    /// What stands behind the overlays: a 3D view wherever one can be had, or the backdrop in any
    /// case.
    enum class Background { OpenGl, Painted };

    explicit ViewArea(Background background, QWidget *parent = nullptr);
    ~ViewArea() override;

    /// Puts a widget between all that lies below the notices and the notices, and owns it: first
    /// what draws the overlays, then what lies over them.
    void addLayer(QWidget *layer);

    /// Has an object filter the events of whatever is the background, which then follows the mouse
    /// without a button too.
    void setInputFilter(QObject *filter);

    /// The widget behind the layers, which has the size of all of them: the 3D view or the backdrop.
    QWidget *background() const;

    /// The shape of the mouse over the background where nothing else gives it one.
    Qt::CursorShape ownCursor() const;

    /// The 3D view; null when the backdrop stands in.
    Viewport *viewport() const { return m_viewport; }
    NoticeArea *notices() const { return m_notices; }

    /// One line for the status bar on what draws the background.
    QString backgroundText() const;

    void resetView();

Q_SIGNALS:
    /// A frame of the background has been drawn.
    void framePainted();

    /// The answer of backgroundText() is another one now.
    void backgroundChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showViewport();
    void showBackdrop(const QString &reason);
    void takeInput();
    void arrange();

    Viewport *m_viewport = nullptr;
    Backdrop *m_backdrop = nullptr;
    QVector<QWidget *> m_layers; // the lowest first
    QObject *m_inputFilter = nullptr;
    NoticeArea *m_notices;
    QString m_fault;
};

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QKXColor.h"
#include "host/kxHostExport.h"

#include <QPointer>
#include <QWidget>

class QColorDialog;

namespace hostlib {
enum class ColorPart;
} // namespace hostlib

/// A colour in a strip as low as 16 pixels: a swatch and three bars for hue, saturation and value.
///
/// Owner: its parent widget. Called by modules; GUI thread only. The bars are dragged, or worked by
/// keys: Left and Right change the chosen one (ten times as far with Shift), Home and End go to its
/// ends, Up and Down choose another. A click on the swatch, a double click, Space or Return open the
/// full colour dialog. Every edit is live; leaving the dialog with Cancel brings the colour back that
/// was there before it.
///
/// While the control is marked "multiselect" it shows the mixed look in place of the colour, and a
/// click anywhere, Space or Return open the dialog: a bar would change one part of a colour that
/// nobody sees. The dialog then sends its colour with OK, even the one last shown, and nothing
/// before, since Cancel could not bring the different colours back.
class KXHOST_EXPORT QKXColorManipulator : public QWidget
{
    Q_OBJECT

public:
    /// A control that shows black.
    /// @param parent becomes the owner; null for none
    /// @param name   the object name; null for none
    explicit QKXColorManipulator(QWidget *parent = nullptr, const char *name = nullptr);
    ~QKXColorManipulator() override;

    /// Shows a colour and announces nothing. A colour that has the same 8 bit red, green and blue as
    /// the one shown changes nothing: the echo of an edit keeps the hue of a colour that has become
    /// grey or black on the way.
    /// @param color parts outside their ranges count as the nearest end
    void setColor(const QKXColor &color);

    /// The colour shown.
    /// @return with the hue that the user has chosen also where it is grey
    QKXColor color() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Opens the full colour dialog, or raises the one that is open; returns at once.
    void openDialog();

Q_SIGNALS:
    /// The user has chosen another colour: with each move of the mouse in a bar or in the dialog and
    /// with each key.
    /// @param red   from 0 to 1, a multiple of 1/255, as are the others
    /// @param green from 0 to 1
    /// @param blue  from 0 to 1
    void colorChanged(float red, float green, float blue);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    hostlib::ColorPart partAt(const QPoint &point) const;
    bool handleKey(int key, int steps);
    bool handleBarKey(int key, int steps);
    void choose(int distance);
    void edit(const QKXColor &color);
    void editPart(hostlib::ColorPart part, float share);
    void takeFromDialog(const QColor &color);

    QKXColor m_color;
    hostlib::ColorPart m_chosen{};
    hostlib::ColorPart m_pressed{}; ///< none
    QPointer<QColorDialog> m_dialog;
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionSlider;
class QStyleOptionSpinBox;
class QWidget;

/// The parts of kxStyle that draw single controls. `mixed` asks for the look of a control whose
/// value is not one. Used by kxStyle only.
namespace kxStyleControls {

/// True when `widget`, the control that it is a part of, or a radio button of its group is marked.
bool isMixed(const QWidget *widget);

/// The radio buttons of which only one can be on together with `widget`, itself left out.
QList<QWidget *> groupMates(const QWidget *widget);

void drawField(const QStyleOption *option, QPainter *painter, bool mixed);
void drawButton(const QStyleOption *option, QPainter *painter, bool mixed);
void drawFocusFrame(const QStyleOption *option, QPainter *painter);
void drawCheckIndicator(const QStyleOption *option, QPainter *painter, bool mixed);
void drawRadioIndicator(const QStyleOption *option, QPainter *painter, bool mixed);
void drawComboBox(const QStyleOptionComboBox *option, QPainter *painter, const QStyle *style,
                  const QWidget *widget, bool mixed);
void drawSpinBox(const QStyleOptionSpinBox *option, QPainter *painter, const QStyle *style,
                 const QWidget *widget, bool mixed);
void drawSlider(const QStyleOptionSlider *option, QPainter *painter, const QStyle *style,
                const QWidget *widget, bool mixed);

} // namespace kxStyleControls

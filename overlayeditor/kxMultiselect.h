// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

class QLineEdit;
class QWidget;

/// The marking of a control whose selected nodes disagree on its value: the dynamic property
/// "multiselect", true or absent. The control's content is stale then, and the host's style draws
/// it as mixed. GUI thread only.
namespace kxMultiselect {

/// Marks or unmarks a control and has the style take note; nothing happens when nothing changes.
/// A null control is ignored.
void setControlMultiselect(QWidget *control, bool mixed);

/// True when the control is marked.
bool isMarked(const QWidget *control);

/// Remembers the text that a line edit shows; called when it becomes marked.
void rememberStaleText(QLineEdit *edit);

/// True when the line edit is marked and still shows the text that was remembered.
bool showsStaleText(const QLineEdit *edit);

} // namespace kxMultiselect

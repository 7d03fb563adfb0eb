// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QWidget>

class QLineEdit;

namespace viewer {

/// A widget into which text is typed, as the edit menu sees it: a line, a box with a line in it, or
/// a field of several lines. A small value; the widget may go at any time. GUI thread only.
class TextField
{
public:
    TextField() = default;

    /// The field that a widget is; none when no text is typed into it.
    explicit TextField(QObject *widget);

    bool isNull() const { return !m_widget; }
    bool canUndo() const;
    bool canRedo() const;
    bool canCopy() const;
    bool canCut() const;
    bool canPaste() const;

    void copy() { call("copy"); }
    void cut() { call("cut"); }
    void paste() { call("paste"); }

private:
    template<typename Answer>
    bool ask(Answer answer) const;
    void call(const char *command);

    QPointer<QWidget> m_widget; // the part that takes the text
};

} // namespace viewer

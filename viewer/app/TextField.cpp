// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/TextField.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextEdit>

namespace viewer {

namespace {

bool hasSelection(const QLineEdit &line)
{
    return line.hasSelectedText();
}

template<typename Edit>
bool hasSelection(const Edit &edit)
{
    return edit.textCursor().hasSelection();
}

bool isUndoAvailable(const QLineEdit &line)
{
    return line.isUndoAvailable();
}

template<typename Edit>
bool isUndoAvailable(const Edit &edit)
{
    return edit.document()->isUndoAvailable();
}

bool isRedoAvailable(const QLineEdit &line)
{
    return line.isRedoAvailable();
}

template<typename Edit>
bool isRedoAvailable(const Edit &edit)
{
    return edit.document()->isRedoAvailable();
}

} // namespace

TextField::TextField(QObject *widget)
{
    if (const auto *box = qobject_cast<QAbstractSpinBox *>(widget))
        widget = box->findChild<QLineEdit *>();
    if (qobject_cast<QLineEdit *>(widget) || qobject_cast<QTextEdit *>(widget)
        || qobject_cast<QPlainTextEdit *>(widget))
        m_widget = static_cast<QWidget *>(widget);
}

template<typename Answer>
bool TextField::ask(Answer answer) const
{
    if (const auto *line = qobject_cast<const QLineEdit *>(m_widget))
        return answer(*line);
    if (const auto *edit = qobject_cast<const QTextEdit *>(m_widget))
        return answer(*edit);
    const auto *edit = qobject_cast<const QPlainTextEdit *>(m_widget);
    return edit && answer(*edit);
}

bool TextField::canUndo() const
{
    return ask([](const auto &field) { return isUndoAvailable(field); });
}

bool TextField::canRedo() const
{
    return ask([](const auto &field) { return isRedoAvailable(field); });
}

bool TextField::canCopy() const
{
    return ask([](const auto &field) { return hasSelection(field); });
}

bool TextField::canCut() const
{
    return canCopy() && canPaste();
}

bool TextField::canPaste() const
{
    return ask([](const auto &field) { return !field.isReadOnly(); });
}

/// Slots that all three kinds have, without a base class of theirs.
void TextField::call(const char *command)
{
    if (m_widget)
        QMetaObject::invokeMethod(m_widget, command);
}

} // namespace viewer

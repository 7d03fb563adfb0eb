// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/TexturePathEdit.h"

#include "host/kxStyle.h"

#include <QKeyEvent>
#include <QUrl>

// File managers copy paths as addresses, shells with quotation marks.
static QString cleaned(const QString &typed)
{
    QString path = typed.trimmed();
    const QLatin1Char quote('"');
    if (path.size() > 1 && path.startsWith(quote) && path.endsWith(quote))
        path = path.mid(1, path.size() - 2);
    if (path.startsWith(QLatin1String("file://")))
        path = QUrl(path).toLocalFile();
    return path;
}

hostlib::TexturePathEdit::TexturePathEdit(QWidget *parent) : QLineEdit(parent)
{
    // A dropped file is a new texture, not a piece of text: the control around takes it.
    setAcceptDrops(false);
    setPlaceholderText(tr("No image"));
    setAccessibleName(tr("Image file"));
}

hostlib::TexturePathEdit::~TexturePathEdit() = default;

void hostlib::TexturePathEdit::setPath(const QString &path)
{
    if (path == m_path && isModified())
        return;
    display(path);
}

void hostlib::TexturePathEdit::display(const QString &path)
{
    m_path = path;
    if (text() != path)
        setText(path);
    setModified(false);
    setToolTip(path);
    if (!hasFocus())
        end(false);
}

// The path of a mixed field is not that of all nodes: typed or confirmed, it is sent though it equals
// the one shown.
void hostlib::TexturePathEdit::commit(bool byKey)
{
    const QString typed = isModified() ? cleaned(text()) : m_path;
    const bool confirmed = kxStyle::isMultiselect(this) && (byKey || isModified());
    const bool send = typed != m_path || confirmed;
    display(typed);
    if (send)
        Q_EMIT pathTyped(typed);
}

void hostlib::TexturePathEdit::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        commit(true);
        break;
    case Qt::Key_Escape:
        if (!isModified()) {
            event->ignore();
            return;
        }
        display(m_path);
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void hostlib::TexturePathEdit::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    // The menu of the field and another window are no end of typing.
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    commit(false);
    end(false);
}

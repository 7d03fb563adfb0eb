// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXSearchBox.h"

#include "host/kxIconManager.h"

#include <QAction>
#include <QKeyEvent>
#include <QLayout>

/// What follows `widget` in the layout it stands in and can take the focus now; null for none.
static QWidget *focusableAfter(QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    QLayout *layout = parent ? parent->layout() : nullptr;
    const int own = layout ? layout->indexOf(widget) : -1;
    for (int i = own + 1; own >= 0 && i < layout->count(); ++i) {
        QWidget *candidate = layout->itemAt(i)->widget();
        if (candidate && candidate->isVisible() && candidate->isEnabled()
            && candidate->focusPolicy() & Qt::TabFocus)
            return candidate;
    }
    return nullptr;
}

QKXSearchBox::QKXSearchBox(QWidget *parent) : QLineEdit(parent)
{
    setPlaceholderText(tr("Search"));
    setAccessibleName(tr("Search"));
    addAction(kxIconManager::getIcon("Search", ""), LeadingPosition)->setText(tr("Search"));
    QAction *clearing = addAction(kxIconManager::getIcon("Clear", ""), TrailingPosition);
    clearing->setText(tr("Clear the search"));
    clearing->setVisible(false);
    connect(clearing, &QAction::triggered, this, &QLineEdit::clear);
    connect(this, &QLineEdit::textChanged, clearing,
            [clearing](const QString &text) { clearing->setVisible(!text.isEmpty()); });
    connect(this, &QLineEdit::textChanged, this, &QKXSearchBox::searchChanged);
}

QKXSearchBox::~QKXSearchBox() = default;

void QKXSearchBox::beginSearch()
{
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void QKXSearchBox::searchAgain()
{
    Q_EMIT searchChanged(text());
}

bool QKXSearchBox::event(QEvent *event)
{
    // While there is a text to clear, Escape must not reach a shortcut of the window.
    if (event->type() == QEvent::ShortcutOverride && clearsOn(static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void QKXSearchBox::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (clearsOn(event))
        clear();
    else if (key == Qt::Key_Escape)
        event->ignore();
    else if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter)
        handFocusOn();
    else
        QLineEdit::keyPressEvent(event);
}

bool QKXSearchBox::clearsOn(const QKeyEvent *event) const
{
    return event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier
           && !text().isEmpty();
}

void QKXSearchBox::handFocusOn()
{
    if (QWidget *next = focusableAfter(this))
        next->setFocus(Qt::TabFocusReason);
    else
        focusNextChild();
}

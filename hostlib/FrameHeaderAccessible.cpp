// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/FrameHeaderAccessible.h"

#include "hostlib/FrameHeader.h"

namespace hostlib {

static QAccessibleInterface *makeForHeader(const QString &, QObject *object)
{
    auto *header = qobject_cast<FrameHeader *>(object);
    return header ? new FrameHeaderAccessible(header) : nullptr;
}

FrameHeaderAccessible::FrameHeaderAccessible(QWidget *header)
    : QAccessibleWidget(header, QAccessible::Button)
{
}

FrameHeaderAccessible::~FrameHeaderAccessible() = default;

void FrameHeaderAccessible::install()
{
    // Qt keeps a factory once, however often it is installed.
    QAccessible::installFactory(makeForHeader);
}

QAccessible::State FrameHeaderAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    const bool expanded = static_cast<FrameHeader *>(object())->isChecked();
    state.expandable = true;
    state.expanded = expanded;
    state.collapsed = !expanded;
    return state;
}

QStringList FrameHeaderAccessible::actionNames() const
{
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void FrameHeaderAccessible::doAction(const QString &action)
{
    if (action == pressAction())
        static_cast<FrameHeader *>(object())->click();
    else
        QAccessibleWidget::doAction(action);
}

} // namespace hostlib

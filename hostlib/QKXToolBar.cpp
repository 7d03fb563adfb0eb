// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXToolBar.h"

#include <QEvent>
#include <QStyle>
#include <QToolButton>

QKXToolBar::QKXToolBar(const QString &title, QWidget *parent) : QToolBar(title, parent)
{
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setContentsMargins(0, 0, 0, 0);
    takeIconSizeFromStyle();
    // The button for what has no room, which the base class leaves without a name.
    if (auto *more = findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button")))
        more->setAccessibleName(tr("More actions"));
}

QKXToolBar::~QKXToolBar() = default;

void QKXToolBar::changeEvent(QEvent *event)
{
    QToolBar::changeEvent(event);
    if (event->type() == QEvent::StyleChange && iconSize() == m_styledIconSize)
        takeIconSizeFromStyle();
}

void QKXToolBar::takeIconSizeFromStyle()
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    m_styledIconSize = QSize(side, side);
    setIconSize(m_styledIconSize);
}

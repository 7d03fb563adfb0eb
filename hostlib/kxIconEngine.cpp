// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/kxIconEngine.h"

#include "hostlib/kxIconRenderer.h"

#include <QPainter>

kxIconEngine::kxIconEngine(const QString &name, const QString &onName)
    : m_name(name)
    , m_onName(onName.isEmpty() ? name : onName)
{
}

QPixmap kxIconEngine::drawing(int pixels, QIcon::Mode mode, QIcon::State state) const
{
    const auto look = mode == QIcon::Disabled ? kxIconRenderer::Dimmed : kxIconRenderer::Normal;
    return kxIconRenderer::pixmap(state == QIcon::On ? m_onName : m_name, look, pixels);
}

void kxIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const int side = qMin(rect.width(), rect.height());
    const int pixels = qRound(side * painter->device()->devicePixelRatioF());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    painter->drawPixmap(square, drawing(pixels, mode, state));
}

QPixmap kxIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return drawing(qMin(size.width(), size.height()), mode, state);
}

QSize kxIconEngine::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    const int side = qMin(size.width(), size.height());
    return {side, side};
}

QString kxIconEngine::key() const
{
    return QStringLiteral("kx");
}

QString kxIconEngine::iconName() const
{
    return m_name;
}

QIconEngine *kxIconEngine::clone() const
{
    return new kxIconEngine(*this);
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIconEngine>

/// Draws one icon of the host's set at exactly the size and pixel density that is asked for.
/// Created by kxIconManager, owned by the QIcon. GUI thread only.
class kxIconEngine : public QIconEngine
{
public:
    /// `onName` is the drawing of the "on" state; empty when it is the same.
    kxIconEngine(const QString &name, const QString &onName);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QString key() const override;
    QString iconName() const override;
    QIconEngine *clone() const override;

private:
    QPixmap drawing(int pixels, QIcon::Mode mode, QIcon::State state) const;

    QString m_name;
    QString m_onName;
};

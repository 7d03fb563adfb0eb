// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace viewer {

/// What stands behind the overlays where no 3D view can be had: the studio's wall and floor, painted.
/// Owned by the view area.
class Backdrop : public QWidget
{
    Q_OBJECT

public:
    explicit Backdrop(QWidget *parent = nullptr);

    /// Paints what the widget shows into an area at the painter's origin; for exports.
    static void paint(QPainter *painter, const QRect &area);

Q_SIGNALS:
    /// One frame is painted.
    void painted();

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace viewer

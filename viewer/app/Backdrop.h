// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QWidget>

namespace viewer {

/// What stands behind the overlays where no 3D view can be had: the studio's wall and floor, painted.
/// Owned by the view area.
class Backdrop : public QWidget
{
    Q_OBJECT

public:
    explicit Backdrop(QWidget *parent = nullptr);

    /// What the widget shows in a view of `size` pixels; for exports too. Null without the memory.
    static QImage picture(const QSize &size);

Q_SIGNALS:
    /// One frame is painted.
    void painted();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_picture; // of the size that was shown last
};

} // namespace viewer

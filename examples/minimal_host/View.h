// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "Overlays.h"

#include <QWidget>

namespace minimal {

//! [class]
/// What an application draws its overlays on: here nothing but the overlays. Child of the main window;
/// the overlays outlive it.
class View : public QWidget
{
    Q_OBJECT

public:
    explicit View(Overlays *overlays);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void draw(QPainter *painter, NodeId node);

    Overlays *m_overlays;
};
//! [class]

} // namespace minimal

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "View.h"

#include <QPainter>

namespace minimal {

//! [view]
View::View(Overlays *overlays) : m_overlays(overlays)
{
    connect(overlays, &Overlays::changed, this, QOverload<>::of(&View::update));
}

void View::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), QColor(40, 60, 80));
    const NodeList nodes = m_overlays->subtree(m_overlays->getRootNode());
    for (const NodeId node : nodes) {
        // Pictures are left to a host that reads them beside its window.
        const bool isText = m_overlays->isOverlay(node) && m_overlays->getOverlayType(node) == 0;
        if (isText && m_overlays->isActive(node))
            draw(&painter, node);
    }
}
//! [view]

//! [draw]
/// Draws the text alone, on its box.
void View::draw(QPainter *painter, NodeId node)
{
    const double point = logicalDpiY() / 72.0;
    const double unit = m_overlays->getSizeType(node) == 0 ? point : height();
    QFont font(m_overlays->getFont(node));
    font.setPixelSize(qBound(1, qRound(double(m_overlays->getSize(node)) * unit), 10000));
    const QString text = m_overlays->getText(node);
    const QSizeF box = QFontMetricsF(font).size(0, text);

    // The point of the box with the coordinates of the anchor lies on it; y goes upwards.
    const QPointF anchor = m_overlays->getPosition(node);
    const QPointF offset = m_overlays->getOffset(node) * point;
    const double x = anchor.x() * (width() - box.width()) + offset.x();
    const double y = (1 - anchor.y()) * (height() - box.height()) - offset.y();
    const QRectF place(QPointF(x, y), box);

    QColor background = m_overlays->getBackgroundColor(node);
    const QColor through = m_overlays->getBackgroundTransparency(node);
    background.setAlphaF(1 - (through.redF() + through.greenF() + through.blueF()) / 3);
    painter->fillRect(place, background);
    painter->setFont(font);
    painter->setPen(m_overlays->getFontColor(node));
    painter->drawText(place, 0, text);
}
//! [draw]

} // namespace minimal

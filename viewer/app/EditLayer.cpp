// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/EditLayer.h"

#include "viewer/app/OverlayLayer.h"

#include <QPainter>

namespace viewer {

EditLayer::EditLayer(Feedback feedback, QWidget *parent)
    : QWidget(parent)
    , m_feedback(std::move(feedback))
{
    setObjectName(QStringLiteral("editLayer"));
    setAccessibleName(tr("Outlines of what is selected"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

EditView EditLayer::view() const
{
    return {OverlayLayer::geometryOf(*this), devicePixelRatioF()};
}

void EditLayer::paintEvent(QPaintEvent *)
{
    const EditView shown = view();
    QPainter painter(this);
    painter.scale(1 / shown.pixelRatio, 1 / shown.pixelRatio);
    FeedbackPainter(&painter, shown, font()).paint(m_feedback());
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/OverlayLayer.h"
#include "viewer/app/ViewerSession.h"

#include <QImage>

/// What a session shows of its overlays, on a transparent ground.
inline QImage overlayPicture(const viewer::ViewerSession &session)
{
    auto *layer = session.window()->findChild<viewer::OverlayLayer *>();
    QImage image(layer->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    layer->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/render/ImageCache.h"

class QPainter;

/// What the painter draws of image overlays that are not what their files hold.
namespace viewer {

/// Stands for a picture that is not there: a quiet field while it is being read, a dashed frame when
/// it cannot be, with the file's name in both.
void paintPlaceholder(QPainter *painter, const QString &path, const QRectF &box,
                      ImageCache::State state);

/// A sign in the lower right corner of a picture whose file is gone or broken. It has the same size
/// on all pictures that can hold it.
void paintOutdatedMark(QPainter *painter, const QRectF &box, double dpi);

} // namespace viewer

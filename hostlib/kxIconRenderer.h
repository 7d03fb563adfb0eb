// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QString>

/// Draws the host's icons from their vectors and remembers each drawing until the application ends.
/// Used by kxIconManager and its icon engine only. GUI thread only.
namespace kxIconRenderer {

/// How an icon is to be drawn.
enum Look {
    Normal,
    Dimmed,      ///< disabled, or for a node that does not show
    Highlighted, ///< all strokes in the accent colour of the style
};

/// True when the set holds `name`; the first question for a name that it lacks leaves a warning.
bool isKnown(const QString &name);

/// The icon `name`, `pixels` device pixels wide and high, to be shown at the pixel ratio `ratio`. A
/// null pixmap for an unknown name. All callers share one pixmap: a tree of many rows needs no
/// more.
QPixmap pixmap(const QString &name, Look look, int pixels, qreal ratio = 1);

/// How many drawings were made so far.
int renderingCount();

} // namespace kxIconRenderer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

/// Compares drawings with pictures that were looked at and kept. A picture may differ in a few faint
/// pixels, as the rounding of another processor makes them; a line that moved by a pixel is told.
namespace golden {

/// Nothing when the drawing equals the kept picture `name`, else how much differs, and where the
/// drawing and a picture of the differences were written. With KX_RENEW_GOLDEN set the drawing is kept instead; it is to be looked at then.
QString fault(const QImage &drawn, const QString &name);

/// How many pixels differ by more than a trace in any channel; all of them when the sizes differ.
int differingPixels(const QImage &drawn, const QImage &kept);

/// The kept picture, faint, with each pixel in red that differs by more than a trace.
QImage difference(const QImage &drawn, const QImage &kept);

/// How many of them are let pass.
constexpr int Tolerated = 12;

/// Makes the font that lies beside the pictures known; its family, empty when it cannot be read.
QString loadFont();

} // namespace golden

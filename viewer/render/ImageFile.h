// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace viewer {

/// Reads a picture, ready to be drawn. A null image when the file is missing, cannot be read, ends
/// too early (it may still be being written) or is larger than memory and painter can bear.
///
/// A picture of more than 8192 pixels in a direction, or that would take more than `mostBytes`, is
/// read smaller. Called by the image cache, from any thread.
QImage readImageFile(const QString &path, qint64 mostBytes);

} // namespace viewer

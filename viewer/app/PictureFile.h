// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

class QImage;
class QString;

namespace viewer {

/// Writes a picture into a file, in the format that its ending names; empty when that is done, else
/// what went wrong. The file is replaced as a whole: a failure leaves what was there.
QString savePicture(const QImage &picture, const QString &path);

} // namespace viewer

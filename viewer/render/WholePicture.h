// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QIODevice;

namespace viewer {

/// Whether a picture file is there to its end. Some formats are decoded as far as they go, so that a
/// file that is still being written would pass for a picture whose lower part is grey; others
/// complain on standard error. Looks at the formats that need it and takes all others for whole:
/// their decoders refuse what ends too early. `file` is open at its beginning, `format` is what the
/// image reader calls it. Any thread.
bool isWholePicture(QIODevice *file, const QByteArray &format);

} // namespace viewer

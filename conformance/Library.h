// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace conformance {

/// Loads a library for good, with local binding, and gives its function of this name. Throws
/// std::runtime_error with the reason when that cannot be done.
QFunctionPointer entryOf(const QString &file, const char *function);

} // namespace conformance

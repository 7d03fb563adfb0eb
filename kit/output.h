// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>

namespace output {

/// What `action` writes to the standard output, by whatever way.
QByteArray of(const std::function<void()> &action);

/// The same for the standard error output.
QByteArray errorsOf(const std::function<void()> &action);

} // namespace output

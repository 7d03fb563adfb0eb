// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

/// The OpenGL driver of the process, for tests that draw with it.
namespace graphicsDriver {

/// Keeps the driver in memory to the end of the process. It is unloaded with the display's
/// connection otherwise, and the leak checker can no longer tell its caches from leaks of ours. To
/// be called while a context is there.
void keepLoaded();

} // namespace graphicsDriver

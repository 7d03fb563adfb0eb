// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Part of sanitized builds only. The leak checker looks at the end of the process, when drivers that
// a system library loaded are gone: it could no longer name them, and so not forgive their leaks.
// With libraries that stay it can.
extern "C" __attribute__((visibility("default"))) int dlclose(void * /*library*/)
{
    return 0;
}

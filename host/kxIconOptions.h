// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QtGlobal>

/// Which variant of an icon is wanted. A plain value, free of any thread.
class KXHOST_EXPORT kxIconOptions
{
public:
    /// What the host's icon manager knows; other bits are kept and change nothing.
    enum Option : unsigned int {
        Inactive = 2,    ///< dimmed, for a node that does not show
        Highlighted = 4, ///< in the accent colour of the style
    };

    /// No option set.
    kxIconOptions();

    /// Turns every bit of `option` on or off.
    void setOption(unsigned int option, bool on);

    /// True when every bit of `option` is on.
    bool option(unsigned int option) const;

    /// All bits, as a key for caches.
    unsigned int bits() const { return m_bits; }

private:
    unsigned int m_bits = 0;
};

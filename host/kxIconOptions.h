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

    /// Turns options on or off.
    /// @param option any bits
    /// @param on     what every one of them becomes
    void setOption(unsigned int option, bool on);

    /// Whether options are on.
    /// @param option any bits
    /// @return true when every one of them is on, and for no bit
    bool option(unsigned int option) const;

    /// The options as a key for caches.
    /// @return all bits; 0 for no option
    unsigned int bits() const { return m_bits; }

private:
    unsigned int m_bits = 0;
};

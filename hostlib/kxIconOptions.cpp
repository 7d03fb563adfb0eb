// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconOptions.h"

kxIconOptions::kxIconOptions() = default;

void kxIconOptions::setOption(unsigned int option, bool on)
{
    m_bits = on ? m_bits | option : m_bits & ~option;
}

bool kxIconOptions::option(unsigned int option) const
{
    return (m_bits & option) == option;
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/CallCounter.h"

CallCounter::CallCounter(const QObject *sender, const char *signal)
{
    connect(sender, signal, this, SLOT(note()));
}

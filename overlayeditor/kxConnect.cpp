// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxConnect.h"

#include <QObject>

void kxConnect(const QObject *sender, const char *signal, const QObject *receiver, const char *slot)
{
    const bool connected = QObject::connect(sender, signal, receiver, slot);
    Q_ASSERT_X(connected, signal, slot);
    Q_UNUSED(connected)
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

class QObject;

/// A signal and a slot as text, by Qt's macros.
struct kxConnection
{
    const char *signal;
    const char *slot;
};

/// Connects by text, as the contract with the host asks. A text that does not match is a mistake in
/// this module or a host built against another interface: Qt prints it, debug builds stop.
void kxConnect(const QObject *sender, const char *signal, const QObject *receiver,
               const char *slot);

/// Makes all connections of a table, in its order.
template<int Size>
void kxConnectAll(const QObject *sender, const QObject *receiver,
                  const kxConnection (&connections)[Size])
{
    for (const kxConnection &connection : connections)
        kxConnect(sender, connection.signal, receiver, connection.slot);
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/script/ScriptCall.h"

namespace viewer {

/// An operation that scripts can call.
struct ScriptOperation
{
    ScriptSignature signature;
    std::function<QJSValue(ScriptCall &)> run;
};

/// All of them: every operation of the overlay service as `overlays`, and the steps of the script
/// as `history`.
const std::vector<ScriptOperation> &scriptOperations();

/// A signal of the overlay service, which carries up to three parallel lists of nodes.
struct ScriptSignal
{
    using Receive = std::function<void(const QVector<QRPC::NodeList> &)>;

    const char *name;
    std::function<QMetaObject::Connection(kxOverlayService *, const QObject *, const Receive &)>
        connect;
};

const std::vector<ScriptSignal> &scriptSignals();

} // namespace viewer

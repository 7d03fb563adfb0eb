// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxOverlayService.h"

#include <QPair>
#include <QVector>

/// The signals of an overlay service that carry one list of nodes, by name and in the order of the
/// interface: all but nodesMoved() and modelReset().
using NodesSignal = void (kxOverlayService::*)(const QRPC::NodeList &nodes);
QVector<QPair<const char *, NodesSignal>> nodeSignals();

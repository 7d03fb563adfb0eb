// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <map>

class QStandardItem;

/// The cache from node to tree item, one for the process, kept by kxOverlayQtModel and
/// kxOverlayItem. It is not the truth: an entry may be missing, null, or point to an item that was
/// taken out of the tree. It never points to a destroyed item. GUI thread only.
extern std::map<QRPC::NodeId, QStandardItem *> s_itemMap;

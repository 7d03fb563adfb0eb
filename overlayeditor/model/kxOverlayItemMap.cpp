// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxOverlayItemMap.h"

// Shared by all items and models of the process, so it has to outlive each of them.
std::map<QRPC::NodeId, QStandardItem *> s_itemMap; // clazy:exclude=non-pod-global-static

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxAbsentOverlayService.h"

kxAbsentOverlayService::~kxAbsentOverlayService() = default;

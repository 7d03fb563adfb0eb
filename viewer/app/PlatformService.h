// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxPlatformService.h"

namespace viewer {

/// The display's measures: the factors are the primary screen's logical dots per inch over 96, the
/// density at which sizes are stated; an icon in a tree row is 16 pixels high at that density. Where
/// Qt itself scales, a screen has 96 and the factors are 1. Owned by the host services.
class PlatformService : public kxPlatformService
{
    Q_OBJECT

public:
    using kxPlatformService::kxPlatformService;

    double getScaleFactorX() override;
    double getScaleFactorY() override;
    int getIconWidth() override;
    int getIconHeight() override;
};

} // namespace viewer

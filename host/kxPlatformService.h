// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxBaseService.h"

/// Measures of the display that modules scale their windows by. Implemented and owned by the host;
/// GUI thread only. No operation has an error; none is asked in a headless host.
class KXHOST_EXPORT kxPlatformService : public kxBaseService
{
    Q_OBJECT

public:
    using kxBaseService::kxBaseService;
    ~kxPlatformService() override;

    /// Factor for widths stated in pixels.
    /// @return above 0; 1.0 on a display of usual density
    virtual double getScaleFactorX() = 0;

    /// Factor for heights stated in pixels.
    /// @return above 0; 1.0 on a display of usual density
    virtual double getScaleFactorY() = 0;

    /// Width of an icon in a tree row.
    /// @return pixels, the scale factor included; above 0
    virtual int getIconWidth() = 0;

    /// Height of an icon in a tree row.
    /// @return pixels, the scale factor included; above 0
    virtual int getIconHeight() = 0;
};

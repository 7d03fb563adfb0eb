// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxBaseService.h"

/// Tells how the host runs. Implemented and owned by the host; GUI thread only.
class KXHOST_EXPORT kxControllerService : public kxBaseService
{
    Q_OBJECT

public:
    using kxBaseService::kxBaseService;
    ~kxControllerService() override;

    /// Whether the host runs without a user interface. Asked once, while a module starts; the answer
    /// must not change in the life of the process. Has no error.
    /// @return true: modules build no window, and no main window or platform service need be
    ///         registered
    virtual bool isHeadless() = 0;
};

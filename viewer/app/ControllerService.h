// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxControllerService.h"

namespace viewer {

/// Tells modules whether this run has windows. Owned by the host services.
class ControllerService : public kxControllerService
{
    Q_OBJECT

public:
    explicit ControllerService(bool headless) : m_headless(headless) {}

    bool isHeadless() override { return m_headless; }

private:
    const bool m_headless;
};

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxFileIOService.h"

namespace viewer {

/// The image files that this installation of Qt reads. Owned by the host services.
class FileIOService : public kxFileIOService
{
    Q_OBJECT

public:
    using kxFileIOService::kxFileIOService;

    QString getImageFileFilter() override;
};

} // namespace viewer

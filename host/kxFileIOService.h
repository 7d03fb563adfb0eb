// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxBaseService.h"

class QString;

/// What the host can read and write. Implemented and owned by the host; GUI thread only.
class KXHOST_EXPORT kxFileIOService : public kxBaseService
{
    Q_OBJECT

public:
    using kxBaseService::kxBaseService;
    ~kxFileIOService() override;

    /// The image files that the host can load. Asked by modules each time they open an image dialog;
    /// has no error.
    /// @return a name filter of Qt's file dialogs, for example "Images (*.png *.jpg);;All files (*)";
    ///         empty for no restriction
    virtual QString getImageFileFilter() = 0;
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/GraphicsDriver.h"

#include <QByteArrayList>

#include <dlfcn.h>
#include <link.h>

namespace {

int collect(dl_phdr_info *library, size_t, void *drivers)
{
    const QByteArray file(library->dlpi_name);
    if (file.endsWith("_dri.so"))
        static_cast<QByteArrayList *>(drivers)->append(file);
    return 0;
}

} // namespace

void graphicsDriver::keepLoaded()
{
    QByteArrayList drivers;
    dl_iterate_phdr(collect, &drivers);
    for (const QByteArray &driver : qAsConst(drivers))
        dlopen(driver.constData(), RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"

namespace conformance {

ModuleChecks moduleChecks()
{
    return joined<ModuleBench>({entryChecks(), formChecks(), textChecks(), wiringChecks(),
                                treeChecks(), itemChecks(), dropChecks(), mouseChecks(),
                                foreignChecks(), randomChecks(), restlessChecks(),
                                selectionChecks(), commandChecks(), keyChecks(), searchChecks(),
                                panelChecks(), refreshChecks(), editChecks(), careChecks()});
}

} // namespace conformance

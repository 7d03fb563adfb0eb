// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/module/moduleChecks.h"

namespace conformance {

ModuleChecks moduleChecks()
{
    return joined<ModuleBench>({entryChecks(), formChecks(), textChecks(), wiringChecks(),
                                treeChecks(), itemChecks(), dropChecks(), selectionChecks(),
                                commandChecks(), keyChecks(), searchChecks(), panelChecks(),
                                refreshChecks(), editChecks()});
}

} // namespace conformance

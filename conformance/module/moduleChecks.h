// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "conformance/Check.h"
#include "conformance/module/ModuleBench.h"

namespace conformance {

using ModuleChecks = Checks<ModuleBench>;

/// Every check of a module, in the order in which they are run.
ModuleChecks moduleChecks();

/// The checks of one subject each.
ModuleChecks entryChecks();
ModuleChecks formChecks();
ModuleChecks textChecks();
ModuleChecks treeChecks();
ModuleChecks itemChecks();
ModuleChecks selectionChecks();
ModuleChecks commandChecks();
ModuleChecks keyChecks();
ModuleChecks searchChecks();
ModuleChecks panelChecks();
ModuleChecks refreshChecks();
ModuleChecks editChecks();
ModuleChecks dropChecks();
ModuleChecks mouseChecks();
ModuleChecks foreignChecks();
ModuleChecks randomChecks();
ModuleChecks restlessChecks();
ModuleChecks wiringChecks();
ModuleChecks careChecks();

} // namespace conformance

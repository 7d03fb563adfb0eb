// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

/// How the number fields decide on decimals. Free of any thread.
namespace hostlib {

/// How many decimals, at most six, show `value` without a trailing zero. A value that a float can
/// hold counts as the shortest number that gives this float: 1 for 12.7f, though it
/// is 12.699999809.
int neededDecimals(double value);

} // namespace hostlib

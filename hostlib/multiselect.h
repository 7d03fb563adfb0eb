// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <initializer_list>

class QWidget;

/// What the host's own widgets share about the marking "multiselect". GUI thread only.
namespace hostlib {

/// Gives every widget of `inner` the marking that `outer` carries: the property is set to true or
/// removed, never set to false. Only a widget whose marking changes is polished again.
void handOnMultiselect(const QWidget *outer, std::initializer_list<QWidget *> inner);

} // namespace hostlib

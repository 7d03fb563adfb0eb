// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

/// The signatures of the editor's slots, in their order.
QStringList editorSlots();

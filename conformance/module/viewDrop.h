// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <Qt>

class QMimeData;
class QPoint;
class QTreeView;

namespace conformance {

/// Drops data of another application on the view, as its window would hand them on.
void dropOnView(const QTreeView &view, const QPoint &place, const QMimeData &data,
                Qt::DropAction action);

} // namespace conformance

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QItemSelection>

/// Selections of rows of a one-column tree, kept in as few ranges as possible: the selection model
/// compares every range with every other, which makes thousands of single rows take minutes.
namespace kxSelectionRanges {

/// Adds a row behind the rows that the selection holds, in the last range where it continues that.
void append(QItemSelection *selection, const QModelIndex &index);

/// The rows of `all` that are not in `removed`, in the order of `all`.
QItemSelection subtract(const QItemSelection &all, const QItemSelection &removed);

/// The rows of `indexes`, in their order, that neither are nor lie in one of `tops`.
QItemSelection outside(const QModelIndexList &indexes, const QModelIndexList &tops);

} // namespace kxSelectionRanges

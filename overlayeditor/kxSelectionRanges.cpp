// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxSelectionRanges.h"

#include <QHash>
#include <QVector>

#include <algorithm>

namespace {

struct Rows
{
    int top;
    int bottom;
};

using RowsByParent = QHash<QModelIndex, QVector<Rows>>;

/// Ascending ranges without a common row: a selection may name a row more than once.
QVector<Rows> merged(QVector<Rows> ranges)
{
    std::sort(ranges.begin(), ranges.end(),
              [](const Rows &a, const Rows &b) { return a.top < b.top; });
    QVector<Rows> result;
    for (const Rows &next : qAsConst(ranges)) {
        if (!result.isEmpty() && next.top <= result.constLast().bottom)
            result.last().bottom = std::max(result.constLast().bottom, next.bottom);
        else
            result.append(next);
    }
    return result;
}

RowsByParent mergedByParent(const QItemSelection &selection)
{
    RowsByParent rows;
    for (const QItemSelectionRange &range : selection)
        rows[range.parent()].append({range.top(), range.bottom()});
    for (QVector<Rows> &siblings : rows)
        siblings = merged(siblings);
    return rows;
}

void appendRows(QItemSelection *selection, const QItemSelectionRange &range, int top, int bottom)
{
    if (top > bottom)
        return;
    const QModelIndex first = range.topLeft();
    selection->append(QItemSelectionRange(first.sibling(top, 0), first.sibling(bottom, 0)));
}

} // namespace

void kxSelectionRanges::append(QItemSelection *selection, const QModelIndex &index)
{
    if (!selection->isEmpty()) {
        const QItemSelectionRange &last = selection->constLast();
        if (last.parent() == index.parent() && last.bottom() + 1 == index.row()) {
            selection->last() = QItemSelectionRange(last.topLeft(), index);
            return;
        }
    }
    selection->append(QItemSelectionRange(index));
}

QItemSelection kxSelectionRanges::subtract(const QItemSelection &all, const QItemSelection &removed)
{
    const RowsByParent holes = mergedByParent(removed);
    QItemSelection rest;
    for (const QItemSelectionRange &range : all) {
        const QVector<Rows> siblings = holes.value(range.parent());
        int top = range.top();
        auto hole = std::lower_bound(siblings.begin(), siblings.end(), top,
                                     [](const Rows &rows, int row) { return rows.bottom < row; });
        for (; hole != siblings.end() && hole->top <= range.bottom(); ++hole) {
            appendRows(&rest, range, top, hole->top - 1);
            top = hole->bottom + 1;
        }
        appendRows(&rest, range, top, range.bottom());
    }
    return rest;
}

QItemSelection kxSelectionRanges::outside(const QModelIndexList &indexes,
                                          const QModelIndexList &tops)
{
    // Each row is climbed from once: chains of selected rows share their ancestors.
    QHash<QModelIndex, bool> lies;
    for (const QModelIndex &top : tops)
        lies.insert(top, true);
    QItemSelection rest;
    for (const QModelIndex &index : indexes) {
        QModelIndexList path;
        QModelIndex at = index;
        for (; at.isValid() && !lies.contains(at); at = at.parent())
            path.append(at);
        const bool inside = lies.value(at, false);
        for (const QModelIndex &step : qAsConst(path))
            lies.insert(step, inside);
        if (!inside)
            append(&rest, index);
    }
    return rest;
}

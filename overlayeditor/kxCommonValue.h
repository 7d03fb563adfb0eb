// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <algorithm>
#include <functional>
#include <optional>

/// The value that all nodes share; none when one differs. `nodes` must not be empty.
///
/// Each node is asked until the first difference, the first node once more than the others: a value
/// that is not equal to itself (NaN) is no common value, even of a single node.
template<class T, class Equal = std::equal_to<T>>
std::optional<T> kxCommonValue(const QRPC::NodeList &nodes,
                               const std::function<T(QRPC::NodeId)> &getter, Equal equal = Equal())
{
    const T reference = getter(nodes.first());
    const bool same = std::all_of(nodes.begin(), nodes.end(), [&](QRPC::NodeId node) {
        return equal(getter(node), reference);
    });
    return same ? std::optional<T>(reference) : std::nullopt;
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class QStandardItemModel;
class RecordingService;

/// Trees written on one line, so that one comparison tells all: `g2(a3 b4- c5~) s6()`.
///
/// Each row is its name, `#id` when the name does not end in the id, `-` when it is unchecked, `~`
/// when it is checked and yet not active, and its children in brackets when it may hold any. What a
/// row of the model should never show is appended behind an exclamation mark: `a3!colour`.
QString dumpTree(const RecordingService &service);
QString dumpTree(const QStandardItemModel &model);

/// Empty when the model shows the service's tree; else both dumps from their first difference on.
QString treeDifference(const QStandardItemModel &model, const RecordingService &service);

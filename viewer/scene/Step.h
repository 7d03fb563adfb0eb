// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/SceneChange.h"

namespace viewer {

Q_NAMESPACE

/// The operations of the service that leave a step. Each has its words in the table of stepText().
enum class Operation {
    CreateOverlay,
    CreateGroup,
    CreateSwitch,
    Duplicate,
    Paste,
    Delete,
    Cut,
    Group,
    Move,
    MoveInView,
    Rename,
    Enable,
    Disable,
    Toggle,
    SetType,
    SetText,
    SetFont,
    SetFontColor,
    SetBackgroundColor,
    SetBackgroundTransparency,
    SetImage,
    SetSizeType,
    SetSize,
    SetPosition,
    SetOffset,
    SetOffsetX,
    SetOffsetY
};
Q_ENUM_NS(Operation)

/// One step of the history: what the user did, to which nodes, and the changes that it came to, in
/// order. Made by the service, kept by the history.
struct Step
{
    Step() = default;
    Step(Step &&) = default;
    Step &operator=(Step &&) = default;

    Operation operation = Operation::Move;
    QRPC::NodeList nodes; ///< that the operation was asked to change
    QString subject;      ///< the name of the node when it was a single one
    int count = 0;        ///< of nodes that the step is said to concern
    QString text;         ///< empty: stepText() of the above
    std::vector<SceneChange> changes;
};

/// Makes one change of each run of changes that only write values, and none of what came back to
/// where it was.
void mergeValueRuns(std::vector<SceneChange> *changes);

/// Consecutive changes of a step that can be announced as one: besides values they only add, only
/// remove or only move nodes. In the order in which they are carried out.
using StepPart = std::vector<SceneChange *>;

/// The part that comes next on the way through a step of which `done` changes are behind; empty at
/// the end.
StepPart nextPart(Step *step, SceneChange::Direction direction, std::size_t done);

/// What is done, for a list: "Set font colour of 3 overlays". Names are shortened to one short line.
QString stepText(const Step &step);

/// Whether consecutive steps of this kind on the same nodes are one gesture: typing into one text,
/// dragging one control, a run of nudges.
bool isContinuous(Operation operation);

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/SceneChange.h"

namespace viewer {

/// The operations of the service that leave a step.
enum class Operation {
    CreateOverlay,
    CreateGroup,
    CreateSwitch,
    Duplicate,
    Delete,
    Group,
    Move,
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

/// One step of the history: what the user did, to which nodes, and the changes that it came to, in
/// order. A plain value; made by the service, kept by the history.
struct Step
{
    Operation operation = Operation::Move;
    QRPC::NodeList nodes; ///< that the operation was asked to change
    QString subject;      ///< the name of the node when it was a single one
    int count = 0;        ///< of nodes that the step is said to concern
    QString text;         ///< empty: stepText() of the above
    std::vector<SceneChange> changes;
};

/// What is done, for a list: "Set font colour of 3 overlays". Names are shortened to one short line.
QString stepText(const Step &step);

/// Whether consecutive steps of this kind on the same nodes are one gesture: typing into one text,
/// dragging one control, a run of nudges.
bool isContinuous(Operation operation);

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/Step.h"

#include <QCoreApplication>

namespace viewer {

namespace {

/// The words for one node, with %1 for its name, and for several.
struct Words
{
    Operation operation;
    const char *one;
    const char *several;
};

// clang-format off
constexpr Words WordTable[] = {
    {Operation::CreateOverlay, QT_TRANSLATE_NOOP("Step", "Create \"%1\""), QT_TRANSLATE_NOOP("Step", "Create %1 overlays")},
    {Operation::CreateGroup, QT_TRANSLATE_NOOP("Step", "Create \"%1\""), QT_TRANSLATE_NOOP("Step", "Create %1 groups")},
    {Operation::CreateSwitch, QT_TRANSLATE_NOOP("Step", "Create \"%1\""), QT_TRANSLATE_NOOP("Step", "Create %1 switches")},
    {Operation::Duplicate, QT_TRANSLATE_NOOP("Step", "Duplicate \"%1\""), QT_TRANSLATE_NOOP("Step", "Duplicate %1 items")},
    {Operation::Paste, QT_TRANSLATE_NOOP("Step", "Paste \"%1\""), QT_TRANSLATE_NOOP("Step", "Paste %1 items")},
    {Operation::Delete, QT_TRANSLATE_NOOP("Step", "Delete \"%1\""), QT_TRANSLATE_NOOP("Step", "Delete %1 items")},
    {Operation::Cut, QT_TRANSLATE_NOOP("Step", "Cut \"%1\""), QT_TRANSLATE_NOOP("Step", "Cut %1 items")},
    {Operation::Group, QT_TRANSLATE_NOOP("Step", "Group \"%1\""), QT_TRANSLATE_NOOP("Step", "Group %1 items")},
    {Operation::Move, QT_TRANSLATE_NOOP("Step", "Move \"%1\""), QT_TRANSLATE_NOOP("Step", "Move %1 items")},
    {Operation::MoveInView, QT_TRANSLATE_NOOP("Step", "Move \"%1\" in the view"), QT_TRANSLATE_NOOP("Step", "Move %1 overlays in the view")},
    {Operation::Rename, QT_TRANSLATE_NOOP("Step", "Rename to \"%1\""), QT_TRANSLATE_NOOP("Step", "Rename %1 items")},
    {Operation::Enable, QT_TRANSLATE_NOOP("Step", "Switch on \"%1\""), QT_TRANSLATE_NOOP("Step", "Switch on %1 items")},
    {Operation::Disable, QT_TRANSLATE_NOOP("Step", "Switch off \"%1\""), QT_TRANSLATE_NOOP("Step", "Switch off %1 items")},
    {Operation::Toggle, QT_TRANSLATE_NOOP("Step", "Toggle \"%1\""), QT_TRANSLATE_NOOP("Step", "Toggle %1 items")},
    {Operation::SetType, QT_TRANSLATE_NOOP("Step", "Set type of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set type of %1 overlays")},
    {Operation::SetText, QT_TRANSLATE_NOOP("Step", "Set text of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set text of %1 overlays")},
    {Operation::SetFont, QT_TRANSLATE_NOOP("Step", "Set font of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set font of %1 overlays")},
    {Operation::SetFontColor, QT_TRANSLATE_NOOP("Step", "Set font colour of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set font colour of %1 overlays")},
    {Operation::SetBackgroundColor, QT_TRANSLATE_NOOP("Step", "Set background colour of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set background colour of %1 overlays")},
    {Operation::SetBackgroundTransparency, QT_TRANSLATE_NOOP("Step", "Set background transparency of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set background transparency of %1 overlays")},
    {Operation::SetImage, QT_TRANSLATE_NOOP("Step", "Set image of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set image of %1 overlays")},
    {Operation::SetSizeType, QT_TRANSLATE_NOOP("Step", "Set size type of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set size type of %1 overlays")},
    {Operation::SetSize, QT_TRANSLATE_NOOP("Step", "Set size of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set size of %1 overlays")},
    {Operation::SetPosition, QT_TRANSLATE_NOOP("Step", "Set anchor of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set anchor of %1 overlays")},
    {Operation::SetOffset, QT_TRANSLATE_NOOP("Step", "Set offset of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set offset of %1 overlays")},
    {Operation::SetOffsetX, QT_TRANSLATE_NOOP("Step", "Set horizontal offset of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set horizontal offset of %1 overlays")},
    {Operation::SetOffsetY, QT_TRANSLATE_NOOP("Step", "Set vertical offset of \"%1\""), QT_TRANSLATE_NOOP("Step", "Set vertical offset of %1 overlays")},
};
// clang-format on

QString shortened(const QString &name)
{
    constexpr int longest = 40;
    const QString line = name.left(4 * longest).simplified();
    return line.size() <= longest ? line : line.left(longest - 1) + QChar(0x2026);
}

} // namespace

void mergeValueRuns(std::vector<SceneChange> *changes)
{
    std::vector<SceneChange> merged;
    merged.reserve(changes->size());
    for (std::size_t i = 0; i < changes->size(); ++i) {
        SceneChange &first = (*changes)[i];
        std::size_t end = i + 1;
        if (first.kind() == SceneChange::Kind::Values) {
            while (end < changes->size() && (*changes)[end].kind() == SceneChange::Kind::Values)
                ++end;
            first.mergeValues(changes->data() + i + 1, end - i - 1);
        }
        if (!first.isEmpty())
            merged.push_back(std::move(first));
        i = end - 1;
    }
    *changes = std::move(merged);
}

StepPart nextPart(Step *step, SceneChange::Direction direction, std::size_t done)
{
    StepPart part;
    SceneChange::Kind kind = SceneChange::Kind::Values;
    const std::size_t count = step->changes.size();
    for (std::size_t i = done; i < count; ++i) {
        const bool isForth = direction == SceneChange::Direction::Forth;
        SceneChange &change = step->changes[isForth ? i : count - 1 - i];
        if (change.kind() != SceneChange::Kind::Values) {
            if (kind != SceneChange::Kind::Values && kind != change.kind())
                break;
            kind = change.kind();
        }
        part.push_back(&change);
    }
    return part;
}

QString stepText(const Step &step)
{
    if (!step.text.isEmpty())
        return step.text;
    const auto *const words =
        std::find_if(std::begin(WordTable), std::end(WordTable),
                     [&step](const Words &entry) { return entry.operation == step.operation; });
    const bool isOne = step.count == 1;
    return QCoreApplication::translate("Step", isOne ? words->one : words->several)
        .arg(isOne ? shortened(step.subject) : QString::number(step.count));
}

bool isContinuous(Operation operation)
{
    switch (operation) {
    case Operation::MoveInView:
    case Operation::SetText:
    case Operation::SetFontColor:
    case Operation::SetBackgroundColor:
    case Operation::SetBackgroundTransparency:
    case Operation::SetSize:
    case Operation::SetPosition:
    case Operation::SetOffset:
    case Operation::SetOffsetX:
    case Operation::SetOffsetY:
        return true;
    default:
        return false;
    }
}

} // namespace viewer

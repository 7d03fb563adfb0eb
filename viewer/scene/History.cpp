// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/History.h"

#include <QSet>
#include <QTimer>
#include <QUndoCommand>

#include <algorithm>

namespace viewer {

using Direction = SceneChange::Direction;

namespace {

constexpr qint64 LongestPause = 2000;

bool isEmpty(const Step &step)
{
    return std::all_of(step.changes.begin(), step.changes.end(),
                       [](const SceneChange &change) { return change.isEmpty(); });
}

bool switches(const Step &step)
{
    return step.operation == Operation::Enable || step.operation == Operation::Disable;
}

bool isToggle(const Step &first, const Step &second)
{
    if (!switches(first) || !switches(second) || first.operation == second.operation)
        return false;
    const QSet<QRPC::NodeId> named(first.nodes.begin(), first.nodes.end());
    return !named.intersects({second.nodes.begin(), second.nodes.end()});
}

/// A step on the stack. It does nothing by itself: the history takes the scene back and forth, in
/// parts, and then has the stack follow.
class StepCommand : public QUndoCommand
{
public:
    StepCommand(Step step, bool continues, bool mayToggle)
        : m_step(std::move(step))
        , m_continues(continues)
        , m_mayToggle(mayToggle)
    {
        showText();
    }

    // The stack gives its commands away for reading only, but records go in and out of a step.
    Step &step() const { return m_step; }

    int id() const override { return switches(m_step) || isContinuous(m_step.operation) ? 0 : -1; }

    bool mergeWith(const QUndoCommand *other) override
    {
        const auto *later = static_cast<const StepCommand *>(other);
        const bool toggles = later->m_mayToggle && isToggle(m_step, later->m_step);
        const bool continues = later->m_continues && m_step.operation == later->m_step.operation
                               && m_step.nodes == later->m_step.nodes;
        if (!toggles && !continues)
            return false;
        take(later->m_step, toggles);
        setObsolete(isEmpty(m_step));
        return true;
    }

private:
    void take(const Step &later, bool toggles)
    {
        m_step.changes.front().mergeValues(&later.changes.front());
        if (toggles) {
            m_step.operation = Operation::Toggle;
            m_step.nodes += later.nodes;
            m_step.count += later.count;
        } else {
            m_step.count = std::max(m_step.count, later.count);
        }
        showText();
    }

    void showText()
    {
        // A menu takes an ampersand for the mark of a key.
        const QString text = stepText(m_step);
        QString entry = text;
        setText(text + QLatin1Char('\n') + entry.replace(QLatin1Char('&'), QLatin1String("&&")));
    }

    mutable Step m_step;
    bool m_continues;
    bool m_mayToggle;
};

} // namespace

History::History(Scene *scene) : m_scene(scene) {}

History::~History() = default;

void History::record(Step step)
{
    if (!isEmpty(step))
        emit recorded(take(std::move(step)));
}

/// Puts a step where it belongs. True when it became part of another one.
bool History::take(Step step)
{
    return m_open.empty() ? push(std::move(step)) : addTo(&m_open.back(), std::move(step));
}

bool History::push(Step step)
{
    const bool continues = mayMerge(step.operation);
    auto *command = new StepCommand(std::move(step), continues, m_sameTurn);
    m_gestureEnded = false;
    m_sinceLast.start();
    if (!m_sameTurn)
        QTimer::singleShot(0, this, [this] { m_sameTurn = false; });
    m_sameTurn = true;
    const int before = m_stack.index();
    m_stack.push(command);
    // What follows a step that vanished must not go on with the one before it.
    if (m_stack.index() < before)
        endGesture();
    return m_stack.index() <= before;
}

bool History::addTo(OpenGroup *group, Step step)
{
    group->undone.clear();
    const bool joins = group->joinNext && !group->done.empty();
    group->joinNext = false;
    if (!joins) {
        group->done.push_back(std::move(step));
        return false;
    }
    std::vector<SceneChange> &changes = group->done.back().changes;
    std::move(step.changes.begin(), step.changes.end(), std::back_inserter(changes));
    mergeValueRuns(&changes);
    if (changes.empty())
        group->done.pop_back();
    return true;
}

bool History::mayMerge(Operation operation) const
{
    if (m_gestureEnded || !isContinuous(operation))
        return false;
    return m_held || operation == Operation::SetText || m_sinceLast.elapsed() < LongestPause;
}

void History::open(Step first, Group group)
{
    m_open.push_back({std::move(first), group, {}, {}});
    emit opened();
}

/// All that was done in a group and not taken back.
Step History::sumOf(OpenGroup group)
{
    for (Step &step : group.done)
        std::move(step.changes.begin(), step.changes.end(), std::back_inserter(group.sum.changes));
    mergeValueRuns(&group.sum.changes);
    return std::move(group.sum);
}

void History::close()
{
    Step sum = sumOf(std::move(m_open.back()));
    m_open.pop_back();
    if (!isEmpty(sum))
        take(std::move(sum));
    emit closed();
}

void History::joinNext()
{
    m_open.back().joinNext = true;
}

/// The step that is one back or forth; null when there is none.
Step *History::next(Direction direction)
{
    const bool isBack = direction == Direction::Back;
    if (m_open.empty()) {
        const int index = m_stack.index() - (isBack ? 1 : 0);
        const QUndoCommand *command = m_stack.command(index);
        return command ? &static_cast<const StepCommand *>(command)->step() : nullptr;
    }
    OpenGroup &group = m_open.back();
    std::vector<Step> &steps = isBack ? group.done : group.undone;
    return group.kind == Group::Plain || steps.empty() ? nullptr : &steps.back();
}

bool History::canRestore(Direction direction)
{
    return next(direction) != nullptr;
}

bool History::startRestoring(Direction direction)
{
    Step *step = next(direction);
    endGesture();
    if (!step)
        return false;
    m_restoring = {step, direction, false};
    emit restoring(direction);
    return true;
}

void History::startRollBack()
{
    m_rolledBack = sumOf(std::move(m_open.back()));
    m_open.pop_back();
    if (!m_rolledBack.changes.empty())
        m_restoring = {&m_rolledBack, Direction::Back, true};
    emit rolledBack();
}

StepPart History::nextPart() const
{
    return viewer::nextPart(m_restoring->step, m_restoring->direction, m_restoring->done);
}

void History::restorePart()
{
    const StepPart part = nextPart();
    for (SceneChange *change : part)
        change->apply(m_scene, m_restoring->direction);
    m_restoring->done += part.size();
    if (m_restoring->done == m_restoring->step->changes.size())
        arrive();
}

/// The scene is where it was to go; the steps follow.
void History::arrive()
{
    const Restoring way = *m_restoring;
    m_restoring.reset();
    const bool isBack = way.direction == Direction::Back;
    if (way.isRollBack) {
        m_rolledBack = {};
    } else if (m_open.empty()) {
        isBack ? m_stack.undo() : m_stack.redo();
    } else {
        OpenGroup &group = m_open.back();
        std::vector<Step> &from = isBack ? group.done : group.undone;
        std::vector<Step> &to = isBack ? group.undone : group.done;
        to.push_back(std::move(from.back()));
        from.pop_back();
    }
}

void History::endGesture()
{
    m_gestureEnded = true;
    m_sameTurn = false;
}

void History::clear()
{
    endGesture();
    for (OpenGroup &group : m_open)
        group = {std::move(group.sum), group.kind, {}, {}};
    m_stack.clear();
    m_stack.setClean();
    emit cleared();
}

void History::setSaved()
{
    endGesture();
    m_stack.setClean();
}

} // namespace viewer

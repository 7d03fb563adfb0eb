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

/// A step on the stack. The service has done it already when it is pushed.
class StepCommand : public QUndoCommand
{
public:
    StepCommand(Scene *scene, Step step, bool continues, bool mayToggle)
        : m_step(std::move(step))
        , m_scene(scene)
        , m_continues(continues)
        , m_mayToggle(mayToggle)
    {
        showText();
    }

    const Step &step() const { return m_step; }

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

    void undo() override
    {
        for (auto change = m_step.changes.rbegin(); change != m_step.changes.rend(); ++change)
            change->apply(m_scene, Direction::Back);
    }

    void redo() override
    {
        if (m_isNew) {
            m_isNew = false;
            return;
        }
        for (SceneChange &change : m_step.changes)
            change.apply(m_scene, Direction::Forth);
    }

private:
    void take(const Step &later, bool toggles)
    {
        m_step.changes.front().mergeValues(later.changes.front());
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

    Step m_step;
    Scene *m_scene;
    bool m_continues;
    bool m_mayToggle;
    bool m_isNew = true;
};

} // namespace

History::History(Scene *scene) : m_scene(scene) {}

History::~History() = default;

void History::record(Step step)
{
    if (isEmpty(step))
        return;
    if (m_openCount == 0) {
        push(std::move(step));
        return;
    }
    std::move(step.changes.begin(), step.changes.end(), std::back_inserter(m_open->changes));
}

void History::push(Step step)
{
    const bool continues = mayMerge(step.operation);
    auto *command = new StepCommand(m_scene, std::move(step), continues, m_sameTurn);
    m_gestureEnded = false;
    m_sinceLast.start();
    if (!m_sameTurn)
        QTimer::singleShot(0, this, [this] { m_sameTurn = false; });
    m_sameTurn = true;
    m_stack.push(command);
}

bool History::mayMerge(Operation operation) const
{
    if (m_gestureEnded || !isContinuous(operation))
        return false;
    return m_held || operation == Operation::SetText || m_sinceLast.elapsed() < LongestPause;
}

void History::open(const Step &first)
{
    if (m_openCount++ == 0)
        m_open = first;
}

void History::close()
{
    if (--m_openCount != 0)
        return;
    Step step = std::move(*m_open);
    m_open.reset();
    record(std::move(step));
}

const Step *History::next(Direction direction) const
{
    const int index = m_stack.index() - (direction == Direction::Back ? 1 : 0);
    const QUndoCommand *command = m_openCount == 0 ? m_stack.command(index) : nullptr;
    return command ? &static_cast<const StepCommand *>(command)->step() : nullptr;
}

const Step *History::undo()
{
    const Step *step = next(Direction::Back);
    endGesture();
    if (step)
        m_stack.undo();
    return step;
}

const Step *History::redo()
{
    const Step *step = next(Direction::Forth);
    endGesture();
    if (step)
        m_stack.redo();
    return step;
}

void History::endGesture()
{
    m_gestureEnded = true;
    m_sameTurn = false;
}

void History::clear()
{
    endGesture();
    m_stack.clear();
    m_stack.setClean();
}

void History::setSaved()
{
    endGesture();
    m_stack.setClean();
}

} // namespace viewer

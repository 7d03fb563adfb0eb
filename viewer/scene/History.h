// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/Step.h"

#include <QElapsedTimer>
#include <QUndoStack>

#include <optional>

namespace viewer {

/// The steps by which the open scene came to be what it is, and the way back. Part of the overlay
/// service, which records each operation after it changed the scene and announces what undo() and
/// redo() bring about; whoever shows the history reads stack(). GUI thread only.
///
/// A step is a gesture. Continuous changes of one property of the same nodes are merged until the
/// gesture ends: with another step, with undo, redo and saving, when the host says so
/// (endGesture()), and, unless a text is typed or the gesture is held, after a pause. Two calls
/// that switch different nodes to opposite states, one right after the other, are one toggle. A
/// step that has come back to where it started vanishes.
class History : public QObject
{
    Q_OBJECT

public:
    explicit History(Scene *scene);
    ~History() override;

    /// The steps, oldest first; for reading. Its index changes with every step, also a merged one.
    const QUndoStack *stack() const { return &m_stack; }

    /// Takes in what has just been done. Nothing happens when nothing changed.
    void record(Step step);

    /// Until the matching close(), all that is recorded belongs to one step with this text; when
    /// nothing comes of it there is none. Such groups may lie in each other. `first` may name the
    /// step by operation and nodes instead of by a text. In a group that is a history of its own,
    /// undo and redo take the records of the group back and forth; in any other one there is none.
    enum class Group { Plain, OwnHistory };
    void open(Step first, Group group = Group::Plain);
    void close();

    /// In a group: the next record goes on with the last one.
    void joinNext();

    /// @name Taking the scene back and forth
    /// In parts, so that each of them can be announced while the scene is as the part left it. Once
    /// started, the way is to be gone to its end before anything else is recorded.
    /// @{

    bool canRestore(SceneChange::Direction direction);

    /// Starts on the way one step back or forth. False when there is no such step.
    bool startRestoring(SceneChange::Direction direction);

    /// Leaves the innermost group, as close() does, and starts on the way back to where it began.
    void startRollBack();

    bool isRestoring() const { return m_restoring.has_value(); }

    /// The changes that restorePart() carries out.
    StepPart nextPart() const;
    void restorePart();

    /// @}

    /// The next change begins a step of its own.
    void endGesture();

    /// While a gesture is held, such as by a mouse button, pauses do not end it.
    void setHeld(bool held) { m_held = held; }

    /// Forgets all steps, those of open groups too, for another scene.
    void clear();

    /// The scene is now what the file holds.
    void setSaved();

    /// The scene is unlike any file, whatever is undone.
    void setUnsaved() { m_stack.resetClean(); }

Q_SIGNALS:
    /// An operation was taken in, as a step of its own or as part of the last one.
    void recorded(bool joined);

    /// Groups, which may have come to nothing.
    void opened();
    void closed();
    void rolledBack();

    /// All steps are forgotten, for another scene.
    void cleared();

    /// The scene is about to go one step back or forth.
    void restoring(viewer::SceneChange::Direction direction);

private:
    /// An open group: its records, and those of them that were taken back.
    struct OpenGroup
    {
        Step sum;
        Group kind;
        std::vector<Step> done;
        std::vector<Step> undone;
        bool joinNext = false;
    };

    /// The way on which the scene is being taken.
    struct Restoring
    {
        Step *step;
        SceneChange::Direction direction;
        bool isRollBack;
        std::size_t done = 0; // changes that are behind
    };

    bool take(Step step);
    bool push(Step step);
    bool addTo(OpenGroup *group, Step step);
    static Step sumOf(OpenGroup group);
    bool mayMerge(Operation operation) const;
    Step *next(SceneChange::Direction direction);
    void arrive();

    Scene *m_scene;
    QUndoStack m_stack;
    std::vector<OpenGroup> m_open;
    std::optional<Restoring> m_restoring;
    Step m_rolledBack;
    QElapsedTimer m_sinceLast;
    bool m_gestureEnded = false;
    bool m_held = false;
    bool m_sameTurn = false; // the event loop has not been reached since the last step
};

} // namespace viewer

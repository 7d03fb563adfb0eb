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
    /// nothing is recorded there is none. Only the outermost pair counts. `first` may name it by
    /// operation and nodes instead of by a text.
    void open(const Step &first);
    void close();

    /// Takes the scene one step back or forth. Gives the step, null when there is none; it stays
    /// valid until the next one is recorded.
    const Step *undo();
    const Step *redo();

    /// The step that undo() or redo() would take; null when there is none.
    const Step *next(SceneChange::Direction direction) const;

    /// The next change begins a step of its own.
    void endGesture();

    /// While a gesture is held, such as by a mouse button, pauses do not end it.
    void setHeld(bool held) { m_held = held; }

    /// Forgets all steps, for another scene.
    void clear();

    /// The scene is now what the file holds.
    void setSaved();

    /// The scene is unlike any file, whatever is undone.
    void setUnsaved() { m_stack.resetClean(); }

private:
    void push(Step step);
    bool mayMerge(Operation operation) const;

    Scene *m_scene;
    QUndoStack m_stack;
    std::optional<Step> m_open;
    int m_openCount = 0;
    QElapsedTimer m_sinceLast;
    bool m_gestureEnded = false;
    bool m_held = false;
    bool m_sameTurn = false; // the event loop has not been reached since the last step
};

} // namespace viewer

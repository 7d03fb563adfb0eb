// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/scene/OverlayService.h"

#include <memory>
#include <vector>

namespace viewer {

/// The steps of one running script. All that it does becomes one step of the scene's history; within
/// it the script has a history of its own, in which each operation is a step, and may group steps,
/// take them back and do them again. Also keeps how far the ids in the script are from those of the
/// nodes. Made for each run, on the thread of the service, where all but the ids is used.
class ScriptSteps
{
public:
    ScriptSteps(OverlayService *service, const QString &text);
    Q_DISABLE_COPY(ScriptSteps)

    OverlayService *service() const { return m_service; }

    /// Takes back all that the script did, as if it had not run.
    void rollBack();

    /// @name What scripts call
    /// Answers that are false mean that there was nothing to do it to.
    /// @{

    bool undo();
    bool redo();

    /// What follows is one step, until the matching end() or cancel(), which takes it back.
    void begin();
    bool end();
    bool cancel();

    /// The next operation that changes something belongs to the last step.
    void join();

    /// Puts the overlays of a scene, given as the text of its file, before the child at a row.
    bool paste(const QString &scene, QRPC::NodeId parent, int row);

    /// The ids in the script are those of a run in which `next` was the id of the next new node.
    void recordedAt(QRPC::NodeId next);

    /// @}

    QRPC::NodeId toService(double id) const;
    double toScript(QRPC::NodeId node) const;

private:
    bool restore(SceneChange::Direction direction);

    OverlayService *m_service;
    std::vector<std::unique_ptr<StepGroup>> m_groups; // the script itself is the first
    qint64 m_shift = 0;
};

} // namespace viewer

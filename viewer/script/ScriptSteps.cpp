// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptSteps.h"

#include "viewer/scene/SceneReader.h"

#include <QDir>

namespace viewer {

using QRPC::NodeId;

ScriptSteps::ScriptSteps(OverlayService *service, const QString &text) : m_service(service)
{
    m_groups.push_back(std::make_unique<StepGroup>(service, text, History::Group::OwnHistory));
}

void ScriptSteps::rollBack()
{
    while (cancel()) {
    }
    m_groups.front()->rollBack();
}

bool ScriptSteps::restore(SceneChange::Direction direction)
{
    if (!m_service->history().canRestore(direction))
        return false;
    if (direction == SceneChange::Direction::Back)
        m_service->undo();
    else
        m_service->redo();
    return true;
}

bool ScriptSteps::undo()
{
    return restore(SceneChange::Direction::Back);
}

bool ScriptSteps::redo()
{
    return restore(SceneChange::Direction::Forth);
}

void ScriptSteps::begin()
{
    m_groups.push_back(
        std::make_unique<StepGroup>(m_service, QString(), History::Group::OwnHistory));
}

bool ScriptSteps::end()
{
    if (m_groups.size() == 1)
        return false;
    m_groups.pop_back();
    return true;
}

bool ScriptSteps::cancel()
{
    if (m_groups.size() == 1)
        return false;
    m_groups.back()->rollBack();
    m_groups.pop_back();
    return true;
}

void ScriptSteps::join()
{
    m_service->history().joinNext();
}

bool ScriptSteps::paste(const QString &scene, NodeId parent, int row)
{
    const QString place = QDir(m_service->imageFolder()).filePath(QStringLiteral("pasted"));
    const SceneReading reading = SceneReader::parse(scene.toUtf8(), place);
    return reading.scene && !m_service->insertScene(*reading.scene, parent, row).isEmpty();
}

void ScriptSteps::recordedAt(NodeId next)
{
    m_shift = qint64(m_service->scene().nextId()) - qint64(next);
}

// The root has the same id in every run.
NodeId ScriptSteps::toService(double id) const
{
    const double shifted = id > Scene::RootId ? id + double(m_shift) : id;
    const bool isPossible = id <= Scene::RootId || shifted > Scene::RootId;
    return isPossible && shifted <= 4294967295.0 ? NodeId(shifted) : 0;
}

double ScriptSteps::toScript(NodeId node) const
{
    return node > Scene::RootId ? double(node) - double(m_shift) : double(node);
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/KxTest.h"
#include "tests/viewer/scene/SceneText.h"

#include <functional>
#include <optional>

/// What the row of a table does to a service; the second argument gives the nodes of some names.
using Operate = std::function<void(viewer::OverlayService &,
                                   const std::function<QRPC::NodeList(const char *)> &)>;
Q_DECLARE_METATYPE(Operate)

/// Base of the tests of the service: a fresh service for each test function, opened on a scene that
/// is written as text, with every signal recorded.
class ServiceTest : public KxTest
{
    Q_OBJECT

protected:
    /// Opens a scene; the recorder starts afterwards.
    void open(const QString &text)
    {
        m_recorder.reset();
        m_service.emplace();
        m_service->setScene(scenetext::build(text));
        m_recorder.emplace(&*m_service);
    }

    QRPC::NodeId id(const QString &name) const { return scenetext::id(scene(), name); }
    QRPC::NodeList ids(const QString &names) const { return scenetext::ids(scene(), names); }
    QString dump() const { return scenetext::dump(scene()); }
    const viewer::Scene &scene() const { return m_service->scene(); }
    viewer::OverlayService &service() { return *m_service; }

    const QUndoStack &stack() { return *service().history().stack(); }

    /// What the steps of the history are called, the oldest first.
    QStringList stepNames()
    {
        QStringList names;
        for (int i = 0; i < stack().count(); ++i)
            names.append(stack().text(i));
        return names;
    }

    bool sawSignals() const { return !m_recorder->isEmpty(); }

    /// The signals since the last call, one line each, and faults found in them.
    QStringList signalLines() { return m_recorder->take() + m_recorder->faults(); }

protected Q_SLOTS:
    void cleanup() override
    {
        m_recorder.reset();
        m_service.reset();
        KxTest::cleanup();
    }

private:
    std::optional<viewer::OverlayService> m_service;
    std::optional<SignalRecorder> m_recorder;
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/RecordingService.h"

#include <QObject>
#include <QVector>

#include <functional>

class QTreeView;

/// Something that a service does by itself and announces.
struct HostDeed
{
    const char *name;
    void (*run)(RecordingService &service);

    /// The scene, in tree notation, that the deeds are made for.
    static QString scene();

    /// One of each that a module has to follow.
    static const QVector<HostDeed> &announced();

    /// What is worst to happen while a module is at work. Some of the nodes may be gone by then.
    static const QVector<HostDeed> &meanwhile();
};

/// A host that changes its tree while a module is at work: inside a question of the service, or from
/// a slot that is connected to a signal of the module's tree or of its selection. Each of these is a
/// moment of the work. Made by a test or a check, for one window; GUI thread only.
class RestlessHost : public QObject
{
public:
    /// Both must outlive it. The service's hook for calls is its own.
    RestlessHost(RecordingService *service, QTreeView *tree);
    ~RestlessHost() override;

    /// Runs `work`, and `deed` inside it, at a moment of it that is counted from 1. False when the
    /// work was over before that moment.
    bool run(const std::function<void()> &work, const std::function<void()> &deed, int moment);

private:
    void pass();

    RecordingService *m_service;
    std::function<void()> m_deed; // none once it is done
    int m_left = 0;               // moments until the deed
};

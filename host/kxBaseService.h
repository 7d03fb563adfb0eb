// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QObject>

/// Base of all host services, and itself a service: the object registered under kxBaseService
/// announces the host's own life cycle.
///
/// Role: gives the registry one polymorphic type to hold. Owner: the host, which keeps a service
/// alive from its registration to its removal from the registry. Threading: GUI thread only, for
/// calls and for signals.
class KXHOST_EXPORT kxBaseService : public QObject
{
    Q_OBJECT

public:
    /// A service that is not registered yet.
    /// @param parent destroys the service with itself; null for none
    explicit kxBaseService(QObject *parent = nullptr);
    ~kxBaseService() override;

Q_SIGNALS:
    /// Emitted by the host, on the object registered under kxBaseService only, once all modules
    /// are loaded and the application is ready for use.
    void init();
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxBaseService.h"
#include "host/kxHostExport.h"

#include <QHash>

#include <cstdio>
#include <typeinfo>

/// The registry through which modules reach the services of the host.
///
/// Role: maps a service class to the object that implements it. Owner: the host library; the one
/// object lives as long as the process. It never owns a service: the host unregisters a service
/// before it destroys it. Threading: GUI thread only, there is no lock.
///
/// The key of a class is the address of its run-time type name. It is the same everywhere only for
/// classes that one shared library exports and that have an out-of-line destructor there, as all
/// service classes of this interface are and do.
class KXHOST_EXPORT kxKernelServiceFactory
{
public:
    /// The one registry of the process.
    /// @return never null
    static kxKernelServiceFactory *the();

    /// The service registered for a class. Called by modules at every use: services may be exchanged.
    /// @tparam T class of the service
    /// @return null, with one line on standard error, when nothing is registered for T or when the
    ///         registered pointer is null; null without a message when the registered object is not
    ///         a T
    template<class T>
    T *getService();

    /// Registers a service, in place of an earlier one for the same class. Called by the host.
    /// @tparam T class under which it is found
    /// @param service stays the host's; null is kept and makes every look-up of T report it
    template<class T>
    void registerService(T *service);

    /// The same for a class known at run time only. Called by hosts that wire services from a table.
    /// @param type    class under which it is found; any type is kept
    /// @param service stays the host's; null is kept and reported. One that is not of that class is
    ///                not found, silently
    void registerService(const std::type_info &type, kxBaseService *service);

    /// Forgets a service; nothing happens when there is none. Called by the host, before the service
    /// is destroyed.
    /// @tparam T class under which it was registered
    template<class T>
    void unregisterService();

private:
    kxKernelServiceFactory();
    ~kxKernelServiceFactory();
    Q_DISABLE_COPY(kxKernelServiceFactory)

    static unsigned long keyOf(const std::type_info &type);

    QHash<unsigned long, kxBaseService *> m_services;
};

template<class T>
T *kxKernelServiceFactory::getService()
{
    const char *name = typeid(T).name();
    const auto found = m_services.find(keyOf(typeid(T)));
    if (found == m_services.end()) {
        std::fprintf(stderr, "kxKernelServiceFactory: couldn't find class '%s'!\n", name);
        return nullptr;
    }
    if (!found.value()) {
        std::fprintf(stderr, "kxKernelServiceFactory: service '%s' is NULL!\n", name);
        return nullptr;
    }
    return dynamic_cast<T *>(found.value());
}

template<class T>
void kxKernelServiceFactory::registerService(T *service)
{
    registerService(typeid(T), service);
}

template<class T>
void kxKernelServiceFactory::unregisterService()
{
    m_services.remove(keyOf(typeid(T)));
}

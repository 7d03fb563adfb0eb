// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxKernelServiceFactory.h"

kxKernelServiceFactory::kxKernelServiceFactory() = default;
kxKernelServiceFactory::~kxKernelServiceFactory() = default;

kxKernelServiceFactory *kxKernelServiceFactory::the()
{
    static kxKernelServiceFactory factory;
    return &factory;
}

unsigned long kxKernelServiceFactory::keyOf(const std::type_info &type)
{
    return reinterpret_cast<unsigned long>(type.name());
}

void kxKernelServiceFactory::registerService(const std::type_info &type, kxBaseService *service)
{
    m_services.insert(keyOf(type), service);
}

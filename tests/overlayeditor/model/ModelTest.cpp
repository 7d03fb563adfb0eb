// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/model/ModelTest.h"

int CountingItem::s_alive = 0;

QVariant CountingItem::data(int role) const
{
    ++reads;
    return QStandardItem::data(role);
}

void ModelTest::fill(const QString &line)
{
    service().build(line);
    Q_EMIT service().modelReset();
    log().clear();
}

void ModelTest::eraseInsideTheNextCall(QRPC::NodeId id, bool asReset)
{
    service().setHook([this, id, asReset](const QString &) {
        service().setHook({});
        service().erase({id});
        if (asReset)
            Q_EMIT service().modelReset();
        else
            Q_EMIT service().nodesRemoved({id});
    });
}

void ModelTest::dropModel()
{
    m_tester.reset();
    m_model.reset();
}

void ModelTest::init()
{
    KxTest::init();
    m_host = std::make_unique<HostFixture>();
    m_model = std::make_unique<kxOverlayQtModel>();
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_model.get(), QAbstractItemModelTester::FailureReportingMode::Warning);
}

void ModelTest::cleanup()
{
    dropModel();
    m_host.reset();
    KxTest::cleanup();
}

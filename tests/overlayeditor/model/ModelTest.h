// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/HostFixture.h"
#include "kit/TreeDump.h"
#include "overlayeditor/model/kxOverlayItemMap.h"
#include "overlayeditor/model/kxOverlayQtModel.h"
#include "tests/support/KxTest.h"

#include <QAbstractItemModelTester>

#include <functional>

constexpr int idRole = Qt::UserRole + 1;
constexpr int activeRole = Qt::UserRole + 2;

/// An item that counts how often it is read and how many of its kind are alive: it shows walks over
/// the tree, and rows that are never freed.
class CountingItem : public QStandardItem
{
public:
    CountingItem() { ++s_alive; }
    ~CountingItem() override { --s_alive; }
    Q_DISABLE_COPY(CountingItem)

    QVariant data(int role) const override;

    static int s_alive;
    mutable int reads = 0;
};

/// Base of the tests of the tree model: a host with a recording service, the model over it, and a
/// model tester that reports through the message guard.
class ModelTest : public KxTest
{
    Q_OBJECT

protected:
    /// Makes the service's tree the one of `line`, resets the model to it and empties the log.
    void fill(const QString &line);

    HostFixture &host() { return *m_host; }
    RecordingService &service() { return m_host->service(); }
    CallLog &log() { return m_host->log(); }
    kxOverlayQtModel &model() { return *m_model; }

    QStandardItem *item(QRPC::NodeId id) { return m_model->itemFromId(id); }
    QModelIndex index(QRPC::NodeId id) { return m_model->indexFromId(id); }

    /// The model's tree on one line.
    QString shown() const { return dumpTree(*m_model); }

    /// What `action` made the model ask of the service.
    QStringList callsOf(const std::function<void()> &action) { return log().callsOf(action); }

    /// The next command has the service lose a node while it runs, announced as a reset or a removal.
    void eraseInsideTheNextCall(QRPC::NodeId id, bool asReset);

    /// Large trees go without the tester, which walks the tree at each change.
    void dropTester() { m_tester.reset(); }

    /// Ends the model before its host.
    void dropModel();

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

private:
    std::unique_ptr<HostFixture> m_host;
    std::unique_ptr<kxOverlayQtModel> m_model;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
};

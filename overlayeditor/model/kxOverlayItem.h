// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QStandardItem>

/// One row of the overlay tree. It reads its node's name and states from the overlay service when it
/// is built, turns the active state into icon and text colour, and keeps s_itemMap from pointing at
/// destroyed items. All its state is in its data roles. Made and owned by kxOverlayQtModel; GUI
/// thread only. It never writes to the service.
class kxOverlayItem : public QStandardItem
{
public:
    enum Role {
        NodeIdRole = Qt::UserRole + 1, ///< QRPC::NodeId; written once in the life of an item
        ActiveRole = Qt::UserRole + 2, ///< bool; decides icon and text colour
    };

    /// The prototype of the model: shows no node.
    kxOverlayItem();

    /// The row of a node.
    explicit kxOverlayItem(QRPC::NodeId id);

    ~kxOverlayItem() override;

    void setData(const QVariant &value, int role) override;
    QStandardItem *clone() const override;
    int type() const override;

protected:
    /// A copy shows the same values and is not entered into s_itemMap.
    kxOverlayItem(const kxOverlayItem &other);
    kxOverlayItem &operator=(const kxOverlayItem &) = delete;

private:
    void updateLook(bool active);
    void updateItemMap(QRPC::NodeId before, bool hasId);
};

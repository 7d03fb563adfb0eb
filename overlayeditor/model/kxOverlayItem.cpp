// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxOverlayItem.h"

#include "host/kxIconManager.h"
#include "host/kxIconOptions.h"
#include "host/kxOverlayService.h"
#include "host/kxStyle.h"
#include "overlayeditor/kxServices.h"
#include "overlayeditor/model/kxOverlayItemIndex.h"
#include "overlayeditor/model/kxOverlayItemMap.h"

#include <QBrush>
#include <QIcon>
#include <QPixmap>

namespace {

const char *iconNameOf(QRPC::NodeId id)
{
    if (kxService<kxOverlayService>()->isOverlay(id))
        return "scenegraph/Overlay";
    if (kxService<kxOverlayService>()->isSwitch(id))
        return "scenegraph/Switch";
    return "scenegraph/GroupNode";
}

/// Drops the map's entry for the id when it points to the item. A missing entry becomes a null one,
/// which look-ups treat as missing.
void releaseEntry(QRPC::NodeId id, const QStandardItem *item)
{
    const auto entry = s_itemMap.try_emplace(id, nullptr).first;
    if (entry->second == item)
        s_itemMap.erase(entry);
}

} // namespace

kxOverlayItem::kxOverlayItem()
{
    kxOverlayItemIndex::the().addUnread(this);
}

kxOverlayItem::kxOverlayItem(QRPC::NodeId id)
{
    const QString name = kxService<kxOverlayService>()->getName(id);
    const bool enabled = kxService<kxOverlayService>()->isEnabled(id);
    const bool overlay = kxService<kxOverlayService>()->isOverlay(id);

    kxOverlayItem::setData(id, NodeIdRole);
    kxOverlayItem::setData(name, Qt::DisplayRole);
    setDropEnabled(!overlay);
    setCheckable(true);
    // As int: a variant of the enumeration's own type does not convert to bool.
    kxOverlayItem::setData(int(enabled ? Qt::Checked : Qt::Unchecked), Qt::CheckStateRole);
    kxOverlayItem::setData(kxService<kxOverlayService>()->isActive(id), ActiveRole);
}

kxOverlayItem::kxOverlayItem(const kxOverlayItem &other) : QStandardItem(other)
{
    kxOverlayItemIndex::the().addUnread(this);
}

kxOverlayItem::~kxOverlayItem()
{
    const QVariant id = QStandardItem::data(NodeIdRole);
    if (id.isValid())
        releaseEntry(id.toUInt(), this);
    kxOverlayItemIndex::the().remove(this, id.toUInt());
}

void kxOverlayItem::setData(const QVariant &value, int role)
{
    const QRPC::NodeId before = role == NodeIdRole ? data(NodeIdRole).toUInt() : 0;
    QStandardItem::setData(value, role);
    if (role == ActiveRole)
        updateLook(value.toBool());
    else if (role == NodeIdRole)
        updateItemMap(before, value.isValid());
}

void kxOverlayItem::updateLook(bool active)
{
    kxIconOptions options;
    options.setOption(2, !active);
    options.setOption(4, false);
    const char *name = iconNameOf(data(NodeIdRole).toUInt());
    setData(QIcon(kxIconManager::get(name, options)), Qt::DecorationRole);
    const QColor color = active ? QColor(255, 255, 255, 255) : kxStyle::getInactiveNodeColor();
    setData(QBrush(color, Qt::SolidPattern), Qt::ForegroundRole);
}

void kxOverlayItem::updateItemMap(QRPC::NodeId before, bool hasId)
{
    const QVariant stored = data(NodeIdRole);
    const QRPC::NodeId id = stored.toUInt();
    if (stored.isValid())
        releaseEntry(id, this);
    if (hasId)
        s_itemMap.try_emplace(id, this); // keeps an entry that is there, a null one included
    kxOverlayItemIndex::the().changeId(this, before, id);
}

QStandardItem *kxOverlayItem::clone() const
{
    return new kxOverlayItem(*this);
}

int kxOverlayItem::type() const
{
    return QStandardItem::UserType;
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"
#include "overlayeditor/model/kxTurns.h"

#include <QSet>
#include <QStandardItemModel>

class kxDropTrace;

/// Mirrors the node tree of the overlay service into an item model, so that a view can show it.
///
/// It follows the service's signals and holds nothing but ids and display values. It writes to the
/// service only what the user does to its items: a rename, a check box, a drop. The editor creates
/// one and owns it; GUI thread only. It knows no view and no selection, and never changes the tree
/// by itself. No operation reports an error: what cannot be placed is left out. What is announced
/// while it changes its rows is followed afterwards.
class kxOverlayQtModel : public QStandardItemModel
{
    Q_OBJECT

public:
    /// Connects itself to the overlay service, which must be registered; stays empty until the
    /// service announces modelReset().
    kxOverlayQtModel();

    /// Destroys all items, those that were taken out of the tree included.
    ~kxOverlayQtModel() override;

    /// The node that a row shows; 0 for none.
    QRPC::NodeId getNodeId(const QModelIndex &index) const;
    QRPC::NodeId getNodeId(const QStandardItem *item) const;

    /// The item that shows a node, the invisible root item for the service's root, or null. An item
    /// that was taken out of the tree is still found until the next modelReset().
    QStandardItem *itemFromId(QRPC::NodeId id) const;

    /// The row that shows a node; an invalid index when no row of the tree does.
    QModelIndex indexFromId(QRPC::NodeId id) const;

    /// The item's parent, which is the invisible root item for a top-level item.
    QStandardItem *getParent(QStandardItem *item) const;

    /// The item for a node, built with its whole subtree when there was none. The caller inserts
    /// the new item and so gives it an owner.
    QStandardItem *createItem(QRPC::NodeId id);

    /// Takes the item out of the tree without destroying it: it stays known by its id, and lives
    /// until the next modelReset() unless it is inserted again.
    void removeFromParent(QStandardItem *item);

    /// The path of the user's edits: sends a new name or check state to the service. False when the
    /// row did not outlive the service's answer.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

    /// Removes rows with their items, as the view does after a drag.
    bool removeRows(int row, int count, const QModelIndex &parent = QModelIndex()) override;

    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;

    /// The dragged nodes, as their ids and in Qt's own encoding; null for an empty list. The caller
    /// owns it.
    QMimeData *mimeData(const QModelIndexList &indexes) const override;

    /// Has the service move the dragged nodes, once, and lets the base insert copies of their rows,
    /// which the dragging view removes. True when the drop was taken.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

    /// What to do with the rows that the toolkit's drop has inserted.
    enum class Copies {
        Keep,    ///< they stand for rows that were dragged here and are gone
        Discard, ///< they came from elsewhere, with whatever they looked like there
    };

    /// Makes the rows that a drag has touched equal to the service again, mending only those that
    /// differ, so that expansion and selection elsewhere survive. Called by the view, once it has
    /// removed the rows that it takes for the dragged ones.
    void settle(const kxDropTrace &trace, Copies copies = Copies::Keep);

Q_SIGNALS:
    /// The service was asked to move the nodes of a drop, and their rows are still where they were.
    /// `target` is the row that was dropped on or into, invalid for the root.
    void nodesDropped(const QRPC::NodeList &nodes, const QModelIndex &target);

    /// The service has removed or moved the nodes of these rows, and the rows leave their places
    /// next, one by one. Whoever keeps a selection of rows takes leave of them all at once here.
    void nodesAboutToGo(const QModelIndexList &rows);

public Q_SLOTS:
    /// Inserts the node with all ancestors that have no row yet, in one insertion. A node that has
    /// a row already is left alone.
    void nodeAddedUpdate(QRPC::NodeId id);
    void nodeRemovedUpdate(QRPC::NodeId id);
    void nodesAddedUpdate(const QRPC::NodeList &list);
    void nodesRemovedUpdate(const QRPC::NodeList &list);

    /// Entry i puts nodes[i] under parents[i], directly behind afters[i], or first when afters[i]
    /// has no item. An entry whose place cannot be found takes its item out of the tree.
    void nodesMoved(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                    const QRPC::NodeList &afters);
    void updateName(const QRPC::NodeList &list);
    void updateEnabledState(const QRPC::NodeList &list);

    /// Reads the whole tree anew. Not the signal of the same name that the base class has.
    void modelReset();

private:
    /// What to do with an item that was taken out of the tree and whose node comes back.
    enum class Detached {
        Reuse,  ///< take it as it is
        Forget, ///< build a new one: its name, kind and children are of the past
    };
    using ItemSet = QSet<const QStandardItem *>;
    using NodeSet = QSet<QRPC::NodeId>;

    void add(const QRPC::NodeList &list);
    void remove(const QRPC::NodeList &list);
    void move(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
              const QRPC::NodeList &afters);
    void refreshStates(const QRPC::NodeList &list);
    void fill();
    void catchUp(kxTurns::Missed missed);

    bool isInTree(const QStandardItem *item) const;
    QStandardItem *knownItem(QRPC::NodeId id, Detached detached) const;
    QStandardItem *obtainItem(QRPC::NodeId id, Detached detached);
    void appendChildren(QStandardItem *item, QRPC::NodeId id, Detached detached);
    void addNode(QRPC::NodeId id, ItemSet *incomplete);
    int rowBehindEarlierSibling(const QStandardItem *parent, QRPC::NodeId parentId, int row) const;
    void announceLeaving(const QRPC::NodeList &nodes);
    /// Keeps the nodes findable in the map while rows that hold their rows are taken out.
    void rememberItems(const QRPC::NodeList &nodes) const;
    bool place(QStandardItem *item, QRPC::NodeId parentId, QRPC::NodeId afterId);
    void updateCheckState(QStandardItem *item, QRPC::NodeId id);
    void updateActiveStates(QVector<QStandardItem *> stack, ItemSet *refreshed);
    bool isInPlace(QStandardItem *item) const;
    void settleSubtree(QStandardItem *item, const NodeSet &dropped);
    void settleChildren(QStandardItem *parent, const NodeSet &dropped);
    void makeWay(QStandardItem *parent, int row, QRPC::NodeId id, const NodeSet &dropped);
    int rowOf(const QStandardItem *parent, int from, QRPC::NodeId id) const;
    QStandardItem *takeForRow(QStandardItem *parent, int row, QRPC::NodeId id);

    /// True while the model itself calls the service, whose echo then changes nothing twice.
    bool m_updating = false;
    kxTurns m_turns;
};

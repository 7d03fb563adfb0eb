// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"
#include "host/kxBaseService.h"

#include <QColor>
#include <QPointF>
#include <QString>

/// The tree of overlay nodes and every property of an overlay. The service owns all data; modules
/// know nodes by their ids only. Implemented and owned by the host; GUI thread only. Operations are
/// not const, since a host may fetch or cache while it answers.
///
/// **Nodes.** A node is the root, a group, a switch (a group that shows at most one child) or an
/// overlay (text or image, a leaf). Ids start above the root's, grow, and are never given to another
/// node; a node that returns when its deletion is undone keeps its id.
///
/// **Reading.** Every getter accepts 0 and unknown ids and answers neutrally: no node, no children,
/// not an overlay, not enabled, an empty text, an invalid colour, 0. Signals may reach a module
/// while nodes of the same list are already gone.
///
/// **Writing.** Every setter and command skips 0, unknown ids and repetitions, and does nothing at
/// all, signal included, when nothing changes or the list is empty. No operation reports an error.
///
/// **Signals.** The state is complete before a signal leaves; one operation sends at most one signal
/// of each kind, with all nodes concerned, parents before children. Nothing that adds, removes,
/// resets or selects nodes is announced from inside moveNodes(): it is queued until that returned.
class KXHOST_EXPORT kxOverlayService : public kxBaseService
{
    Q_OBJECT

public:
    using kxBaseService::kxBaseService;
    ~kxOverlayService() override;

    /// @name The tree
    /// Called by modules whenever they mirror the tree.
    /// @{

    /// The root: always there, active, not an overlay, not a switch; not shown as a row.
    virtual QRPC::NodeId getRootNode() = 0;

    /// The parent of a node; 0 for the root, 0 and unknown ids.
    virtual QRPC::NodeId getParent(QRPC::NodeId node) = 0;

    /// Number of children; 0 for overlays, 0 and unknown ids.
    virtual int getChildCount(QRPC::NodeId node) = 0;

    /// The child at an index from 0 up to the child count; 0 for any other index or an unknown node.
    virtual QRPC::NodeId getChild(QRPC::NodeId node, int index) = 0;

    /// The index of `child` among the children of `parent`; -1 when it is none of them.
    virtual int getChildIndex(QRPC::NodeId parent, QRPC::NodeId child) = 0;

    /// True for an overlay; false for the root, groups, switches, 0 and unknown ids.
    virtual bool isOverlay(QRPC::NodeId node) = 0;

    /// True for a switch; false for any other node, 0 and unknown ids.
    virtual bool isSwitch(QRPC::NodeId node) = 0;

    /// The node's name exactly as it was given; empty for 0 and unknown ids.
    virtual QString getName(QRPC::NodeId node) = 0;

    /// The node's own enabled state exactly as it was given; false for 0 and unknown ids.
    virtual bool isEnabled(QRPC::NodeId node) = 0;

    /// True when the node and all its ancestors are enabled, so that it shows; the root is active.
    /// False for 0 and unknown ids.
    virtual bool isActive(QRPC::NodeId node) = 0;

    /// @}
    /// @name Properties of an overlay
    /// Called by modules for overlays; any other id is answered with the value for "none".
    /// @{

    /// 0 for a text overlay, any other value for an image overlay. None: 0.
    virtual int getOverlayType(QRPC::NodeId node) = 0;

    /// The text; lines are separated by a line feed. None: empty.
    virtual QString getText(QRPC::NodeId node) = 0;

    /// The font's family name. None: empty.
    virtual QString getFont(QRPC::NodeId node) = 0;

    /// The colour of the text. None: an invalid colour.
    virtual QColor getFontColor(QRPC::NodeId node) = 0;

    /// The colour of the box behind the text. None: an invalid colour.
    virtual QColor getBackgroundColor(QRPC::NodeId node) = 0;

    /// Transparency of the box behind the text as a colour, by the average of its channels: black
    /// is opaque, white invisible. None: an invalid colour.
    virtual QColor getBackgroundTransparency(QRPC::NodeId node) = 0;

    /// Path of the image file. None: empty.
    virtual QString getImage(QRPC::NodeId node) = 0;

    /// 0 when the size is absolute, any other value when it is relative. None: 0.
    virtual int getSizeType(QRPC::NodeId node) = 0;

    /// Height of a text line or of the picture. Absolute: in points (1/72 inch), 0 to 200. Relative:
    /// as a fraction of the view's height, 0 to 1. None: 0.
    virtual float getSize(QRPC::NodeId node) = 0;

    /// The anchor in the view, x from 0 (left) to 1 (right), y from 0 (bottom) to 1 (top); the same
    /// relative point of the overlay's own box is put there. None: (0, 0).
    virtual QPointF getPosition(QRPC::NodeId node) = 0;

    /// Distance from the anchor in points, x to the right, y upwards. None: (0, 0).
    virtual QPointF getOffset(QRPC::NodeId node) = 0;

    /// @}
    /// @name Commands on nodes
    /// Called by modules on behalf of the user.
    /// @{

    /// Appends a new text overlay to `parent`, a group, switch or the root, and announces it with
    /// nodesAdded() and nodesCreated(). Returns its id; 0, and nothing happens, when `parent` cannot
    /// hold it.
    virtual QRPC::NodeId createOverlay(QRPC::NodeId parent) = 0;

    /// The same for a group.
    virtual QRPC::NodeId createGroup(QRPC::NodeId parent) = 0;

    /// The same for a switch.
    virtual QRPC::NodeId createSwitch(QRPC::NodeId parent) = 0;

    /// Copies each node with all that lies in it, and announces the copies with nodesAdded() and
    /// nodesCreated(). A copy stands directly behind its original; the copies of neighbours stand
    /// together, in their order, behind the last of them. A node that lies in another one of the
    /// list is copied with that one only.
    virtual void duplicateNodes(const QRPC::NodeList &nodes) = 0;

    /// Deletes each node with all that lies in it. The list may hold a node and its descendant; the
    /// root cannot be deleted.
    virtual void deleteNodes(const QRPC::NodeList &nodes) = 0;

    /// Puts nodes, ordered as moveNodes() orders them, into a new group at the place of the first of
    /// them in the order of the tree. Announced as: the empty group by nodesAdded(), the move by nodesMoved(), then nodesCreated().
    virtual void groupNodes(const QRPC::NodeList &nodes) = 0;

    /// Moves nodes under `newParent`, before the child that stands at `row` when the call is made;
    /// -1 and any row that does not exist mean behind the last child. Nodes that lie in another one
    /// of the list travel inside it; a node that is `newParent` or holds it stays. The moved nodes
    /// are ordered by the rows that they come from.
    virtual void moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row) = 0;

    /// @}
    /// @name Property writes
    /// Each writes one value to every listed node, for which the matching getter states meaning and
    /// unit, and announces the nodes that changed. Nodes that do not have the property are skipped.
    /// Values outside the stated range are stored as given; whoever draws them copes.
    /// Called by modules, with the whole selection.
    /// @{

    virtual void setOverlayType(const QRPC::NodeList &nodes, int type) = 0;

    /// Groups and switches have a name too; the root has not.
    virtual void setName(const QRPC::NodeList &nodes, const QString &name) = 0;

    /// Groups and switches can be enabled too; the root always is. Enabling a child of a switch
    /// disables the sibling that was enabled; of several in one list the last wins.
    virtual void setEnabled(const QRPC::NodeList &nodes, bool enabled) = 0;

    virtual void setText(const QRPC::NodeList &nodes, const QString &text) = 0;
    virtual void setFont(const QRPC::NodeList &nodes, const QString &family) = 0;
    virtual void setFontColor(const QRPC::NodeList &nodes, const QColor &color) = 0;
    virtual void setBackgroundColor(const QRPC::NodeList &nodes, const QColor &color) = 0;
    virtual void setBackgroundTransparency(const QRPC::NodeList &nodes, const QColor &color) = 0;

    /// An empty path clears the image. The path that an overlay already has makes the file be read
    /// anew and is announced; it is the one write of an unchanged value that does something.
    virtual void setImage(const QRPC::NodeList &nodes, const QString &path) = 0;

    virtual void setSizeType(const QRPC::NodeList &nodes, int sizeType) = 0;
    virtual void setSize(const QRPC::NodeList &nodes, float size) = 0;
    virtual void setPosition(const QRPC::NodeList &nodes, const QPointF &position) = 0;

    /// Both coordinates at once; for hosts and scripts, the editor writes one at a time.
    virtual void setOffset(const QRPC::NodeList &nodes, const QPointF &offset) = 0;

    virtual void setOffsetX(const QRPC::NodeList &nodes, float x) = 0;
    virtual void setOffsetY(const QRPC::NodeList &nodes, float y) = 0;

    /// @}

Q_SIGNALS:
    /// New nodes that are to become the user's selection; each was announced with nodesAdded()
    /// before, which may be in the same operation.
    void nodesCreated(const QRPC::NodeList &nodes);

    /// The tops of new subtrees, ascending by row within one parent: modules place a node behind the
    /// siblings that they know, so that another order shows another order.
    void nodesAdded(const QRPC::NodeList &nodes);

    /// Nodes that are gone; only the tops of the removed subtrees need be listed.
    void nodesRemoved(const QRPC::NodeList &nodes);

    /// Three parallel lists: nodes[i] now lies under parents[i], directly after afters[i], which is
    /// 0 for the first row. In pre-order of the final tree, a new parent before what lies in it.
    void nodesMoved(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                    const QRPC::NodeList &afters);

    /// Nodes of another type now. Followed by textChanged(), fontChanged(), the three colour signals
    /// and imageChanged() of the same nodes, whose values the new type reveals.
    void overlayTypeChanged(const QRPC::NodeList &nodes);

    void nameChanged(const QRPC::NodeList &nodes);
    void textChanged(const QRPC::NodeList &nodes);
    void fontChanged(const QRPC::NodeList &nodes);
    void fontColorChanged(const QRPC::NodeList &nodes);
    void backgroundColorChanged(const QRPC::NodeList &nodes);
    void backgroundTransparencyChanged(const QRPC::NodeList &nodes);
    void imageChanged(const QRPC::NodeList &nodes);
    void sizeTypeChanged(const QRPC::NodeList &nodes);
    void sizeChanged(const QRPC::NodeList &nodes);
    void positionChanged(const QRPC::NodeList &nodes);

    /// One signal for both coordinates.
    void offsetChanged(const QRPC::NodeList &nodes);

    /// Every node whose own enabled state changed, switched-off siblings included. After a move, for
    /// each moved node its highest disabled ancestor-or-self (the node itself when all are enabled),
    /// because modules stop at an inactive parent. A change at the root names the root's children.
    void enabledStateChanged(const QRPC::NodeList &nodes);

    /// Everything may have changed: modules read the whole tree anew. Sent once after the modules
    /// were loaded too, since they show nothing before the first.
    void modelReset();
};

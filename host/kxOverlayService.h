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
/// of each kind, with all nodes concerned, parents before children; its lists are never empty. Nothing
/// that adds, removes, resets or selects nodes is announced from inside moveNodes(): it is queued until
/// that returned.
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
    /// @return its id, never 0
    virtual QRPC::NodeId getRootNode() = 0;

    /// The node that a node lies in.
    /// @param node any id
    /// @return 0 for the root, 0 and unknown ids
    virtual QRPC::NodeId getParent(QRPC::NodeId node) = 0;

    /// Number of children.
    /// @param node any id
    /// @return 0 for overlays, 0 and unknown ids
    virtual int getChildCount(QRPC::NodeId node) = 0;

    /// One of the children of a node, in their order.
    /// @param node  any id
    /// @param index row of the child, from 0 up to the child count
    /// @return 0 for any other index and for an unknown node
    virtual QRPC::NodeId getChild(QRPC::NodeId node, int index) = 0;

    /// The row in which a node stands.
    /// @param parent any id
    /// @param child  any id
    /// @return index of `child` among the children of `parent`; -1 when it is none of them
    virtual int getChildIndex(QRPC::NodeId parent, QRPC::NodeId child) = 0;

    /// Whether a node is an overlay.
    /// @param node any id
    /// @return false for the root, groups, switches, 0 and unknown ids
    virtual bool isOverlay(QRPC::NodeId node) = 0;

    /// Whether a node is a switch.
    /// @param node any id
    /// @return false for any other node, 0 and unknown ids
    virtual bool isSwitch(QRPC::NodeId node) = 0;

    /// The node's name exactly as it was given.
    /// @param node any id
    /// @return empty for 0 and unknown ids
    virtual QString getName(QRPC::NodeId node) = 0;

    /// The node's own enabled state exactly as it was given.
    /// @param node any id
    /// @return false for 0 and unknown ids
    virtual bool isEnabled(QRPC::NodeId node) = 0;

    /// Whether the node and all its ancestors are enabled, so that it shows; the root is active.
    /// @param node any id
    /// @return false for 0 and unknown ids
    virtual bool isActive(QRPC::NodeId node) = 0;

    /// @}
    /// @name Properties of an overlay
    /// Called by modules for overlays; any other id is answered with the value for "none".
    /// @{

    /// What the overlay shows.
    /// @param node any id
    /// @return 0 for a text, any other value for an image; none: 0
    virtual int getOverlayType(QRPC::NodeId node) = 0;

    /// The text, with a line feed between its lines.
    /// @param node any id
    /// @return none: empty
    virtual QString getText(QRPC::NodeId node) = 0;

    /// The font of the text.
    /// @param node any id
    /// @return family name; none: empty
    virtual QString getFont(QRPC::NodeId node) = 0;

    /// The colour of the text.
    /// @param node any id
    /// @return none: an invalid colour
    virtual QColor getFontColor(QRPC::NodeId node) = 0;

    /// The colour of the box behind the text.
    /// @param node any id
    /// @return none: an invalid colour
    virtual QColor getBackgroundColor(QRPC::NodeId node) = 0;

    /// How much of what lies behind shows through the box behind the text.
    /// @param node any id
    /// @return a colour that counts by the average of its channels: black is opaque, white
    ///         invisible; none: an invalid colour
    virtual QColor getBackgroundTransparency(QRPC::NodeId node) = 0;

    /// The image that the overlay shows.
    /// @param node any id
    /// @return path of the file; none: empty
    virtual QString getImage(QRPC::NodeId node) = 0;

    /// What the size is measured by.
    /// @param node any id
    /// @return 0 when the size is absolute, any other value when it is relative; none: 0
    virtual int getSizeType(QRPC::NodeId node) = 0;

    /// Height of a text line or of the picture.
    /// @param node any id
    /// @return absolute: points (1/72 inch), 0 to 200; relative: fraction of the view's height,
    ///         0 to 1; none: 0
    virtual float getSize(QRPC::NodeId node) = 0;

    /// The anchor in the view. The same relative point of the overlay's own box is put there.
    /// @param node any id
    /// @return x from 0 (left) to 1 (right), y from 0 (bottom) to 1 (top); none: (0, 0)
    virtual QPointF getPosition(QRPC::NodeId node) = 0;

    /// Distance of that point from the anchor.
    /// @param node any id
    /// @return points (1/72 inch), x to the right, y upwards; none: (0, 0)
    virtual QPointF getOffset(QRPC::NodeId node) = 0;

    /// @}
    /// @name Commands on nodes
    /// Called by modules on behalf of the user.
    /// @{

    /// Appends a new text overlay and announces it with nodesAdded() and nodesCreated().
    /// @param parent a group, a switch or the root
    /// @return the new id; 0, and nothing happens, when `parent` is none of these
    virtual QRPC::NodeId createOverlay(QRPC::NodeId parent) = 0;

    /// Appends a new group, as createOverlay() an overlay.
    /// @param parent a group, a switch or the root
    /// @return the new id; 0, and nothing happens, when `parent` is none of these
    virtual QRPC::NodeId createGroup(QRPC::NodeId parent) = 0;

    /// Appends a new switch, as createOverlay() an overlay.
    /// @param parent a group, a switch or the root
    /// @return the new id; 0, and nothing happens, when `parent` is none of these
    virtual QRPC::NodeId createSwitch(QRPC::NodeId parent) = 0;

    /// Copies each node with all that lies in it, and announces the copies with nodesAdded() and
    /// nodesCreated(). A copy stands directly behind its original; the copies of neighbours stand
    /// together, in their order, behind the last of them. A node that lies in another one of the
    /// list is copied with that one only.
    /// @param nodes originals in any order; the root is skipped
    virtual void duplicateNodes(const QRPC::NodeList &nodes) = 0;

    /// Deletes each node with all that lies in it.
    /// @param nodes in any order, also a node and its descendant; the root is skipped
    virtual void deleteNodes(const QRPC::NodeList &nodes) = 0;

    /// Puts nodes, ordered as moveNodes() orders them, into a new group at the place of the first of
    /// them in the order of the tree. Announced as: the empty group by nodesAdded(), the move by
    /// nodesMoved(), then the group by nodesCreated().
    /// @param nodes in any order; the root is skipped, and what lies in another one travels inside it
    virtual void groupNodes(const QRPC::NodeList &nodes) = 0;

    /// Moves nodes to another place. The moved nodes are ordered by the rows that they come from.
    /// @param nodes     those that lie in another one of the list travel inside it; one that is
    ///                  `newParent` or holds it stays
    /// @param newParent a group, a switch or the root; nothing happens when it is none of these
    /// @param row       before the child that stands in this row when the call is made; -1 and any
    ///                  row that does not exist mean behind the last child
    virtual void moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row) = 0;

    /// @}
    /// @name Property writes
    /// Each writes one value to every listed node, for which the matching getter states meaning and
    /// unit, and announces the nodes that changed. Nodes that do not have the property are skipped.
    /// Values outside the stated range are stored as given; whoever draws them copes.
    /// Called by modules, with the whole selection.
    /// @{

    /// Makes overlays show texts or images.
    /// @param nodes overlays
    /// @param type  0 for a text, any other value for an image
    virtual void setOverlayType(const QRPC::NodeList &nodes, int type) = 0;

    /// Names nodes.
    /// @param nodes overlays, groups and switches; the root has no name
    /// @param name  may be empty and need not be unique
    virtual void setName(const QRPC::NodeList &nodes, const QString &name) = 0;

    /// Switches nodes on or off. Enabling a child of a switch disables the sibling that was enabled;
    /// of several in one list the last wins.
    /// @param nodes   overlays, groups and switches; the root is always enabled
    /// @param enabled the nodes' own state, whatever that of their ancestors
    virtual void setEnabled(const QRPC::NodeList &nodes, bool enabled) = 0;

    /// Writes texts.
    /// @param nodes overlays
    /// @param text  with a line feed between its lines; empty for none
    virtual void setText(const QRPC::NodeList &nodes, const QString &text) = 0;

    /// Gives texts another font.
    /// @param nodes  overlays
    /// @param family its name; one that the system does not have is kept too
    virtual void setFont(const QRPC::NodeList &nodes, const QString &family) = 0;

    /// Colours texts.
    /// @param nodes overlays
    /// @param color of the letters; an invalid colour is kept too
    virtual void setFontColor(const QRPC::NodeList &nodes, const QColor &color) = 0;

    /// Colours the boxes behind texts.
    /// @param nodes overlays
    /// @param color of the box; an invalid colour is kept too
    virtual void setBackgroundColor(const QRPC::NodeList &nodes, const QColor &color) = 0;

    /// Makes the boxes behind texts more or less transparent.
    /// @param nodes overlays
    /// @param color by the average of its channels: black is opaque, white invisible
    virtual void setBackgroundTransparency(const QRPC::NodeList &nodes, const QColor &color) = 0;

    /// Gives overlays another image. The path that an overlay already has makes the file be read
    /// anew and is announced; it is the one write of an unchanged value that does something.
    /// @param nodes overlays
    /// @param path  of the file, which need not exist; empty clears the image
    virtual void setImage(const QRPC::NodeList &nodes, const QString &path) = 0;

    /// Says what sizes are measured by; the sizes keep their numbers.
    /// @param nodes    overlays
    /// @param sizeType 0 for absolute, any other value for relative
    virtual void setSizeType(const QRPC::NodeList &nodes, int sizeType) = 0;

    /// Sizes overlays.
    /// @param nodes overlays
    /// @param size  points (1/72 inch) or fraction of the view's height, as getSizeType() says
    virtual void setSize(const QRPC::NodeList &nodes, float size) = 0;

    /// Anchors overlays at another place of the view.
    /// @param nodes    overlays
    /// @param position x from 0 (left) to 1 (right), y from 0 (bottom) to 1 (top)
    virtual void setPosition(const QRPC::NodeList &nodes, const QPointF &position) = 0;

    /// Moves overlays away from their anchors. For hosts and scripts; the editor writes one
    /// coordinate at a time.
    /// @param nodes  overlays
    /// @param offset points (1/72 inch), x to the right, y upwards
    virtual void setOffset(const QRPC::NodeList &nodes, const QPointF &offset) = 0;

    /// Writes the horizontal offset and leaves the vertical one.
    /// @param nodes overlays
    /// @param x     points (1/72 inch) to the right of the anchor
    virtual void setOffsetX(const QRPC::NodeList &nodes, float x) = 0;

    /// Writes the vertical offset and leaves the horizontal one.
    /// @param nodes overlays
    /// @param y     points (1/72 inch) above the anchor
    virtual void setOffsetY(const QRPC::NodeList &nodes, float y) = 0;

    /// @}

Q_SIGNALS:
    /// New nodes are to become the user's selection.
    /// @param nodes each was announced with nodesAdded() before, which may be in the same operation
    void nodesCreated(const QRPC::NodeList &nodes);

    /// Nodes came in, new ones or those of an undone deletion.
    /// @param nodes the tops of the subtrees, ascending by row within one parent: modules place a
    ///              node behind the siblings that they know, so that another order shows another
    ///              order
    void nodesAdded(const QRPC::NodeList &nodes);

    /// Nodes are gone.
    /// @param nodes at least the tops of the removed subtrees
    void nodesRemoved(const QRPC::NodeList &nodes);

    /// Nodes lie elsewhere now. Three parallel lists in pre-order of the final tree, a new parent
    /// before what lies in it.
    /// @param nodes   those that were moved, without what travelled inside them
    /// @param parents where each lies now
    /// @param afters  the sibling directly before each; 0 for the first row
    void nodesMoved(const QRPC::NodeList &nodes, const QRPC::NodeList &parents,
                    const QRPC::NodeList &afters);

    /// Overlays are of another type now. Followed by textChanged(), fontChanged(), the three colour
    /// signals and imageChanged() of the same nodes, whose values the new type reveals.
    /// @param nodes those whose getOverlayType() has changed
    void overlayTypeChanged(const QRPC::NodeList &nodes);

    /// Nodes have other names.
    /// @param nodes those whose getName() has changed
    void nameChanged(const QRPC::NodeList &nodes);

    /// Overlays have other texts, or show theirs now that their type has changed.
    /// @param nodes those whose getText() is to be read again
    void textChanged(const QRPC::NodeList &nodes);

    /// Overlays have other fonts, or show theirs now that their type has changed.
    /// @param nodes those whose getFont() is to be read again
    void fontChanged(const QRPC::NodeList &nodes);

    /// Texts have another colour, or show theirs now that their type has changed.
    /// @param nodes those whose getFontColor() is to be read again
    void fontColorChanged(const QRPC::NodeList &nodes);

    /// Boxes have another colour, or show theirs now that their type has changed.
    /// @param nodes those whose getBackgroundColor() is to be read again
    void backgroundColorChanged(const QRPC::NodeList &nodes);

    /// Boxes let more or less through, or show it now that their type has changed.
    /// @param nodes those whose getBackgroundTransparency() is to be read again
    void backgroundTransparencyChanged(const QRPC::NodeList &nodes);

    /// Overlays have other images, show theirs now that their type has changed, or had the file of
    /// an unchanged path written again.
    /// @param nodes those whose getImage() is to be read again, and the file with it
    void imageChanged(const QRPC::NodeList &nodes);

    /// Sizes are measured by something else.
    /// @param nodes those whose getSizeType() has changed
    void sizeTypeChanged(const QRPC::NodeList &nodes);

    /// Overlays have other sizes.
    /// @param nodes those whose getSize() has changed
    void sizeChanged(const QRPC::NodeList &nodes);

    /// Overlays are anchored elsewhere.
    /// @param nodes those whose getPosition() has changed
    void positionChanged(const QRPC::NodeList &nodes);

    /// Overlays have other offsets; one signal for both coordinates.
    /// @param nodes those whose getOffset() has changed
    void offsetChanged(const QRPC::NodeList &nodes);

    /// Nodes may show or not, now.
    /// @param nodes every node whose own enabled state changed, switched-off siblings included. After
    ///              a move, for each moved node its highest disabled ancestor-or-self (the node
    ///              itself when all are enabled), because modules stop at an inactive parent. A
    ///              change at the root names the root's children
    void enabledStateChanged(const QRPC::NodeList &nodes);

    /// Everything may have changed: modules read the whole tree anew. Sent once after the modules
    /// were loaded too, since they show nothing before the first.
    void modelReset();
};

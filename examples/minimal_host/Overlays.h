// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxOverlayService.h"

#include <QSet>
#include <QVector>

#include <functional>
#include <unordered_map>

namespace minimal {

//! [node]
using QRPC::NodeId;
using QRPC::NodeList;

enum class Kind { Group, Switch, Overlay };

/// One node. What it begins with are the values for "none", so that a group, whose overlay values are
/// never written, answers all of them rightly.
struct Node
{
    Kind kind = Kind::Group;
    NodeId parent = 0; ///< 0 for the root
    NodeList children; ///< in row order
    QString name;
    bool enabled = true;

    int type = 0;
    QString text;
    QString font;
    QColor fontColor;
    QColor backgroundColor;
    QColor transparency;
    QString image;
    int sizeType = 0;
    float size = 0;
    QPointF position;
    double offsetX = 0; // apart, because they are written apart
    double offsetY = 0;
};
//! [node]

//! [same]
template<class Value>
bool isSame(const Value &a, const Value &b)
{
    return a == b;
}

// What is no number is not even equal to itself, but writing it twice changes nothing.
inline bool isSame(double a, double b)
{
    return a == b || (qIsNaN(a) && qIsNaN(b));
}

inline bool isSame(float a, float b)
{
    return isSame(double(a), double(b));
}

// Points have a comparison that takes near ones for the same.
inline bool isSame(const QPointF &a, const QPointF &b)
{
    return isSame(a.x(), b.x()) && isSame(a.y(), b.y());
}
//! [same]

//! [class]
/// The overlay service of this host: the nodes in memory, in one table by id. Wherever the simple way
/// costs a walk over all nodes it takes that way: lists are brought into the order of the tree by
/// walking it, and what an operation enabled or disabled is found by comparing before and after.
/// Owned by Services. GUI thread only.
class Overlays : public kxOverlayService
{
    Q_OBJECT

public:
    /// A node and all that lies in it, parents before children, siblings by row: the order of the
    /// tree. Later ones are drawn above earlier ones.
    NodeList subtree(NodeId top);
    //! [class]

    //! [getters]
    NodeId getRootNode() override { return Root; }
    NodeId getParent(NodeId id) override { return ask(id, &Node::parent); }
    int getChildCount(NodeId id) override { return ask(id, &Node::children).size(); }
    NodeId getChild(NodeId id, int row) override { return ask(id, &Node::children).value(row); }
    int getChildIndex(NodeId parent, NodeId child) override
    {
        return ask(parent, &Node::children).indexOf(child);
    }
    bool isOverlay(NodeId id) override { return find(id) && find(id)->kind == Kind::Overlay; }
    bool isSwitch(NodeId id) override { return find(id) && find(id)->kind == Kind::Switch; }
    QString getName(NodeId id) override { return ask(id, &Node::name); }
    bool isEnabled(NodeId id) override { return find(id) && find(id)->enabled; }
    bool isActive(NodeId id) override;
    //! [getters]

    //! [values]
    QString getText(NodeId id) override { return ask(id, &Node::text); }
    void setText(const NodeList &nodes, const QString &text) override
    {
        write(nodes, &Node::text, text, &S::textChanged);
    }
    //! [values]

    //! [others]
    QString getFont(NodeId id) override { return ask(id, &Node::font); }
    void setFont(const NodeList &nodes, const QString &family) override
    {
        write(nodes, &Node::font, family, &S::fontChanged);
    }
    QColor getFontColor(NodeId id) override { return ask(id, &Node::fontColor); }
    void setFontColor(const NodeList &nodes, const QColor &color) override
    {
        write(nodes, &Node::fontColor, color, &S::fontColorChanged);
    }
    QColor getBackgroundColor(NodeId id) override { return ask(id, &Node::backgroundColor); }
    void setBackgroundColor(const NodeList &nodes, const QColor &color) override
    {
        write(nodes, &Node::backgroundColor, color, &S::backgroundColorChanged);
    }
    QColor getBackgroundTransparency(NodeId id) override { return ask(id, &Node::transparency); }
    void setBackgroundTransparency(const NodeList &nodes, const QColor &color) override
    {
        write(nodes, &Node::transparency, color, &S::backgroundTransparencyChanged);
    }
    int getSizeType(NodeId id) override { return ask(id, &Node::sizeType); }
    void setSizeType(const NodeList &nodes, int sizeType) override
    {
        write(nodes, &Node::sizeType, sizeType, &S::sizeTypeChanged);
    }
    float getSize(NodeId id) override { return ask(id, &Node::size); }
    void setSize(const NodeList &nodes, float size) override
    {
        write(nodes, &Node::size, size, &S::sizeChanged);
    }
    QPointF getPosition(NodeId id) override { return ask(id, &Node::position); }
    void setPosition(const NodeList &nodes, const QPointF &position) override
    {
        write(nodes, &Node::position, position, &S::positionChanged);
    }
    QPointF getOffset(NodeId id) override
    {
        return {ask(id, &Node::offsetX), ask(id, &Node::offsetY)};
    }
    void setOffset(const NodeList &nodes, const QPointF &offset) override;
    void setOffsetX(const NodeList &nodes, float x) override
    {
        write(nodes, &Node::offsetX, double(x), &S::offsetChanged);
    }
    void setOffsetY(const NodeList &nodes, float y) override
    {
        write(nodes, &Node::offsetY, double(y), &S::offsetChanged);
    }
    int getOverlayType(NodeId id) override { return ask(id, &Node::type); }
    void setOverlayType(const NodeList &nodes, int type) override;
    QString getImage(NodeId id) override { return ask(id, &Node::image); }
    void setImage(const NodeList &nodes, const QString &path) override;
    //! [others]

    //! [operations]
    NodeId createOverlay(NodeId parent) override { return create(Kind::Overlay, parent); }
    NodeId createGroup(NodeId parent) override { return create(Kind::Group, parent); }
    NodeId createSwitch(NodeId parent) override { return create(Kind::Switch, parent); }
    void duplicateNodes(const NodeList &nodes) override;
    void deleteNodes(const NodeList &nodes) override;
    void groupNodes(const NodeList &nodes) override;
    void moveNodes(const NodeList &nodes, NodeId newParent, int row) override;
    void setName(const NodeList &nodes, const QString &name) override;
    void setEnabled(const NodeList &nodes, bool enabled) override;
    //! [operations]

    //! [names]
Q_SIGNALS:
    /// Anything changed. For the host's own view, which draws everything anew.
    void changed();

private:
    static constexpr NodeId Root = 1;
    using S = kxOverlayService;
    using Signal = void (S::*)(const NodeList &);
    using Announcement = std::function<void()>;
    //! [names]

    //! [ask]
    Node *find(NodeId id)
    {
        const auto found = m_nodes.find(id);
        return found == m_nodes.end() ? nullptr : &found->second;
    }

    template<class Value>
    Value ask(NodeId id, Value Node::*member)
    {
        return find(id) ? find(id)->*member : Value();
    }
    //! [ask]

    //! [tools]
    // The lists that modules hand in, made fit for use.
    NodeList known(const NodeList &nodes);
    NodeList overlaysIn(const NodeList &nodes);
    NodeList tops(const NodeList &nodes);
    NodeList inTreeOrder(const NodeList &nodes);
    NodeList inBlockOrder(const NodeList &nodes);

    // Structure.
    void walk(NodeId top, NodeList *nodes);
    NodeId create(Kind kind, NodeId parent);
    NodeId insert(const Node &node, NodeId parent, int row);
    NodeId copy(NodeId original, NodeId parent, int row);
    void admit(NodeId parent, const NodeList &newcomers);

    // Enabled states.
    QSet<NodeId> enabledNodes();
    NodeList changedSince(const QSet<NodeId> &enabledBefore);
    NodeId highestDisabled(NodeId id);
    //! [tools]

    //! [write]
    /// Gives known nodes a value; returns those that had another one.
    template<class Value>
    NodeList store(const NodeList &nodes, Value Node::*member, const Value &value)
    {
        NodeList changed;
        for (const NodeId id : nodes) {
            if (isSame(find(id)->*member, value))
                continue;
            find(id)->*member = value;
            changed.append(id);
        }
        return changed;
    }

    template<class Value>
    void write(const NodeList &nodes, Value Node::*member, const Value &value, Signal signal)
    {
        announce(signal, store(overlaysIn(nodes), member, value));
    }
    //! [write]

    //! [members]
    void announce(Signal signal, const NodeList &nodes);
    void announce(const Announcement &announcement);
    void announceMove(const Announcement &announcement);
    void send(Signal signal, const NodeList &nodes);
    void sendWaiting();

    // A node keeps its address while others come and go.
    std::unordered_map<NodeId, Node> m_nodes{{Root, Node()}};
    NodeId m_lastId = Root;
    QVector<Announcement> m_waiting;
    bool m_isMoving = false; // a move is being announced
};
//! [members]

} // namespace minimal

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxOverlayService.h"
#include "kit/CallLog.h"
#include "kit/TreeNotation.h"

#include <QVector>

#include <functional>
#include <memory>
#include <unordered_map>

/// An overlay service for tests: a tree in memory that keeps the rules of the host contract and
/// notes every call in a log.
///
/// Role: the host that the module talks to in tests; independent of the viewer's scene. Owner: the
/// test. Threading: GUI thread only, but its signals may be emitted from anywhere.
///
/// The operations of the interface are logged, change the tree and announce the change. What stands
/// under "For tests" is not logged and announces nothing: a test changes the tree with it and emits
/// the signals itself, in the order that it wants to see handled.
class RecordingService : public kxOverlayService
{
    Q_OBJECT

public:
    struct Node
    {
        QRPC::NodeId id = 0;
        notation::Kind kind = notation::Kind::Overlay;
        QString name;
        bool enabled = true;
        Node *parent = nullptr;
        QVector<Node *> children;
        bool claimsToBeSwitch = false; ///< makes an overlay answer isSwitch with true

        int type = 0;
        QString text;
        QString font;
        QColor fontColor = Qt::white;
        QColor backgroundColor = Qt::black;
        QColor transparency = Qt::white;
        QString image;
        int sizeType = 0;
        float size = 12.0F;
        QPointF position;
        QPointF offset;
    };

    /// Notes its calls in `log`, which must outlive it.
    explicit RecordingService(CallLog *log, QObject *parent = nullptr);
    ~RecordingService() override;

    /// @name For tests
    /// @{

    static constexpr QRPC::NodeId rootId = 1;

    using QObject::receivers;

    /// Makes the tree the one of the line. Ids that the line leaves open grow from the highest.
    void build(const QString &line);

    /// Puts the nodes of the line into `parent` from `row` on (-1: at the end); their top ids.
    QRPC::NodeList insert(QRPC::NodeId parent, int row, const QString &line);

    /// Puts a chain of `depth` groups, each in the one before, at the end of `parent`; the top id.
    QRPC::NodeId insertChain(QRPC::NodeId parent, int depth);

    /// Takes nodes out for good, with all that lies in them.
    void erase(const QRPC::NodeList &nodes);

    /// Puts a node under `parent` so that it ends up at `row` (-1: at the end).
    void place(QRPC::NodeId node, QRPC::NodeId parent, int row);

    bool has(QRPC::NodeId node) const { return m_nodes.count(node) > 0; }

    /// The data of a node that is there; free to be changed.
    Node &node(QRPC::NodeId node) const { return *m_nodes.at(node); }

    /// A node and what lies in it, as a line that build() and insert() read. Its ids come back as
    /// long as the names end in them.
    QString lineOf(QRPC::NodeId node) const;

    /// All ids but the root's, parents before children.
    QRPC::NodeList allIds() const;

    static bool isActiveNode(const Node &node);

    /// Commands and writes are logged but change nothing when this is off.
    void setApplies(bool applies) { m_applies = applies; }

    /// Called at the end of each command and write, with its line in the log.
    void setHook(const std::function<void(const QString &)> &hook) { m_hook = hook; }

    /// Called with the line of each call, questions included, before it is answered.
    void setCallHook(const std::function<void(const QString &)> &hook) { m_callHook = hook; }

    /// @}

    QRPC::NodeId getRootNode() override;
    QRPC::NodeId getParent(QRPC::NodeId node) override;
    int getChildCount(QRPC::NodeId node) override;
    QRPC::NodeId getChild(QRPC::NodeId node, int index) override;
    int getChildIndex(QRPC::NodeId parent, QRPC::NodeId child) override;
    bool isOverlay(QRPC::NodeId node) override;
    bool isSwitch(QRPC::NodeId node) override;
    QString getName(QRPC::NodeId node) override;
    bool isEnabled(QRPC::NodeId node) override;
    bool isActive(QRPC::NodeId node) override;

    int getOverlayType(QRPC::NodeId node) override;
    QString getText(QRPC::NodeId node) override;
    QString getFont(QRPC::NodeId node) override;
    QColor getFontColor(QRPC::NodeId node) override;
    QColor getBackgroundColor(QRPC::NodeId node) override;
    QColor getBackgroundTransparency(QRPC::NodeId node) override;
    QString getImage(QRPC::NodeId node) override;
    int getSizeType(QRPC::NodeId node) override;
    float getSize(QRPC::NodeId node) override;
    QPointF getPosition(QRPC::NodeId node) override;
    QPointF getOffset(QRPC::NodeId node) override;

    QRPC::NodeId createOverlay(QRPC::NodeId parent) override;
    QRPC::NodeId createGroup(QRPC::NodeId parent) override;
    QRPC::NodeId createSwitch(QRPC::NodeId parent) override;
    void duplicateNodes(const QRPC::NodeList &nodes) override;
    void deleteNodes(const QRPC::NodeList &nodes) override;
    void groupNodes(const QRPC::NodeList &nodes) override;
    void moveNodes(const QRPC::NodeList &nodes, QRPC::NodeId newParent, int row) override;

    void setOverlayType(const QRPC::NodeList &nodes, int type) override;
    void setName(const QRPC::NodeList &nodes, const QString &name) override;
    void setEnabled(const QRPC::NodeList &nodes, bool enabled) override;
    void setText(const QRPC::NodeList &nodes, const QString &text) override;
    void setFont(const QRPC::NodeList &nodes, const QString &family) override;
    void setFontColor(const QRPC::NodeList &nodes, const QColor &color) override;
    void setBackgroundColor(const QRPC::NodeList &nodes, const QColor &color) override;
    void setBackgroundTransparency(const QRPC::NodeList &nodes, const QColor &color) override;
    void setImage(const QRPC::NodeList &nodes, const QString &path) override;
    void setSizeType(const QRPC::NodeList &nodes, int sizeType) override;
    void setSize(const QRPC::NodeList &nodes, float size) override;
    void setPosition(const QRPC::NodeList &nodes, const QPointF &position) override;
    void setOffset(const QRPC::NodeList &nodes, const QPointF &offset) override;
    void setOffsetX(const QRPC::NodeList &nodes, float x) override;
    void setOffsetY(const QRPC::NodeList &nodes, float y) override;

private:
    using Change = void (kxOverlayService::*)(const QRPC::NodeList &);

    Node *find(QRPC::NodeId node) const;
    QVector<Node *> known(const QRPC::NodeList &nodes) const;
    QVector<Node *> tops(const QRPC::NodeList &nodes) const;
    QVector<Node *> inOrder(QVector<Node *> nodes) const;
    static QRPC::NodeList idsOf(const QVector<Node *> &nodes);
    Node *adopt(Node *parent, int row, const notation::Node &source);
    Node *addNode(QRPC::NodeId id, notation::Kind kind, const QString &name);
    void release(Node *node);
    Node *copyOf(const Node &source);

    QRPC::NodeId create(const char *operation, QRPC::NodeId parent, notation::Kind kind);
    void applyMove(const QRPC::NodeList &nodes, Node *target, int row);
    void announceMove(const QVector<Node *> &block, const QRPC::NodeList &switchedOff);
    void applyEnabled(const QRPC::NodeList &nodes, bool enabled);
    static void enterDisabled(const QVector<Node *> &entered, QRPC::NodeList *changed);

    void announceCreated(const QRPC::NodeList &nodes);
    void announce(const std::function<void()> &signal, bool isStructural);
    void sendQueued();

    void note(const QString &line);
    QString noteWrite(const char *operation, const QRPC::NodeList &nodes, const QString &value);
    void finish(const QString &line);

    template<class V>
    V ask(const char *operation, QRPC::NodeId node, V Node::*member, const V &none);
    template<class Setter>
    void write(const QString &line, const QRPC::NodeList &nodes,
               std::initializer_list<Change> changes, Setter setter);

    CallLog *m_log;
    std::unordered_map<QRPC::NodeId, std::unique_ptr<Node>> m_nodes;
    Node *m_root = nullptr;
    QRPC::NodeId m_nextId = rootId + 1;
    bool m_applies = true;
    bool m_announcesMove = false;
    QVector<std::function<void()>> m_queued; // what must not be announced inside a move
    std::function<void(const QString &)> m_hook;
    std::function<void(const QString &)> m_callHook;
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxOverlayService.h"
#include "viewer/scene/History.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <queue>

namespace viewer {

struct MovePlan;
struct NodeFates;

/// An offset of one overlay, in points, y upwards.
struct NodeOffset
{
    QRPC::NodeId node = 0;
    QPointF offset;
};

/// The viewer's overlay service: owns the open scene, answers and changes it, and announces every
/// change. The application creates it, registers it under kxOverlayService and keeps it as long as
/// modules live; GUI thread only.
///
/// Beyond the contract it states:
/// - New nodes become the last child, named by kind and counted ("Text 3") on from the highest number
///   that a node of the kind has had; copies are named "Name Copy" and stand behind their originals,
///   those of neighbours together behind the last of them.
/// - A node that enters a switch which already shows a child enters disabled.
/// - Nodes are grouped at the place of the topmost one. When they include the child that a switch
///   shows, the group takes over from it and is shown.
/// - Within one operation structural signals leave first, then values, then enabled states; nodes
///   are listed in pre-order of the tree.
///
/// What slots do to the scene while a move is being announced happens at once, but additions,
/// removals, resets and creations, and whatever follows them, are announced after that move has
/// returned: with the next operation or from the event loop, whichever comes first.
class OverlayService : public kxOverlayService
{
    Q_OBJECT

public:
    explicit OverlayService(QObject *parent = nullptr);
    ~OverlayService() override;

    /// The open scene. The reference stays valid as long as the service; whoever keeps pointers
    /// into it gives them up with nodesRemoved() and modelReset().
    const Scene &scene() const { return m_scene; }

    /// Replaces the open scene and announces modelReset(). The nodes get ids that no node had before.
    /// The history starts anew, with the scene taken for saved.
    void setScene(Scene scene);

    /// The folder that relative image paths mean, which setImage() makes absolute; empty for the
    /// current one. So a path means one file to whoever draws, shows or writes it, wherever the scene
    /// is saved later.
    void setImageFolder(const QString &folder) { m_imageFolder = folder; }
    QString imageFolder() const { return m_imageFolder; }

    /// Puts copies of all nodes of another scene before the child at `row`, or to the end where there
    /// is none. They get new ids, keep their names and values, and are announced as created. Gives
    /// the tops of the copies; none, and nothing happens, where `parent` cannot hold nodes.
    virtual QRPC::NodeList insertScene(const Scene &scene, QRPC::NodeId parent, int row);

    /// What can be undone, and whether the scene is saved.
    History &history() { return m_history; }

    /// Takes back the last step, or does the one again that was taken back last. What it comes to is
    /// announced when all of it is done, values and enabled states after the nodes; a step that adds,
    /// moves and removes nodes in turn is announced in parts that do one of it, each as soon as it
    /// is done. Nodes that come back have their old ids and are announced by nodesAdded() alone.
    /// Ignored where there is no step, and while one is being made. A slot that changes the scene
    /// between two parts finds the whole step done, and modelReset() stands for the rest of it.
    void undo();
    void redo();

    /// Leaves the innermost step that is being made, and takes back what was done in it.
    void rollBack();

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

    /// Gives overlays an offset each, as moving several of them in the view does: one announcement,
    /// and one step for as long as the same overlays are moved on.
    virtual void setOffsets(const QVector<NodeOffset> &offsets);

Q_SIGNALS:
    /// An image file is to be read anew, since its path was set; sent before imageChanged().
    void imageFileSet(const QString &path);

protected:
    /// The absolute path that a path given to setImage() means.
    QString imageFile(const QString &path) const;

private:
    friend class StepGroup;
    using NodeSignal = void (kxOverlayService::*)(const QRPC::NodeList &);

    const Overlay *findOverlay(QRPC::NodeId id) const;
    template<class Value>
    Value read(QRPC::NodeId id, Value Overlay::*member) const;

    // announcing
    void announce(std::function<void()> signal);
    void announce(NodeSignal signal, const QRPC::NodeList &nodes);
    void announceStructure(std::function<void()> signal);
    void announceStructure(NodeSignal signal, const QRPC::NodeList &nodes);
    void postpone(std::function<void()> signal);
    void sendPostponed();

    // history
    Step stepOf(Operation operation, const QRPC::NodeList &nodes) const;
    void record(Operation operation, const QRPC::NodeList &nodes, SceneChange change);
    void record(Operation operation, const QRPC::NodeList &nodes, SceneChange change,
                const QRPC::NodeList &named);
    void recordAdded(Operation operation, const QRPC::NodeList &tops);
    void recordAdded(Operation operation, const QRPC::NodeList &tops, const QRPC::NodeList &named);
    void restore(SceneChange::Direction direction);
    void restoreParts();
    void finishRestoring();
    void announceRestored(const NodeFates &fates);

    // values
    using ValueFor = std::function<PropertyValue(const Node &)>;
    QRPC::NodeList change(Operation operation, Property property, const QRPC::NodeList &nodes,
                          const ValueFor &valueFor);
    void write(Operation operation, Property property, const QRPC::NodeList &nodes,
               const PropertyValue &value);
    void announceValue(Property property, const QRPC::NodeList &nodes);

    // nodes
    Node newNode(NodeKind kind);
    void countName(NodeKind kind, const QString &name);
    void announceCreated(const QRPC::NodeList &nodes);
    QRPC::NodeId create(NodeKind kind, QRPC::NodeId parent);
    QRPC::NodeList copyBehind(QRPC::NodeId parent, const QSet<QRPC::NodeId> &originals);
    void announceMove(const QRPC::NodeList &block, const QRPC::NodeList &enabledChanged);
    void announcePlaces(const QRPC::NodeList &block);
    QRPC::NodeList reachedBy(const QRPC::NodeList &block) const;
    SceneChange relinked(MovePlan plan, QRPC::NodeId newParent);
    void fillGroup(QRPC::NodeId group, const QRPC::NodeList &nodes, bool takesOver);
    QHash<QRPC::NodeId, QSet<QRPC::NodeId>> byParent(const QRPC::NodeList &nodes) const;
    void removeFromParents(const QRPC::NodeList &nodes);

    Scene m_scene;
    History m_history{&m_scene};
    QString m_imageFolder;
    QHash<int, int> m_highestNumbers; // by kind: the highest number that a counted name has had
    int m_announcedMoves = 0;         // moves that are being announced, one inside the other
    std::queue<std::function<void()>> m_postponed;
};

/// Makes one step of all that is done to a service during its life.
class StepGroup
{
public:
    StepGroup(OverlayService *service, const QString &text,
              History::Group group = History::Group::Plain);

    /// The step is named as one of this operation on these nodes.
    StepGroup(OverlayService *service, Operation operation, const QRPC::NodeList &nodes);
    ~StepGroup();
    Q_DISABLE_COPY(StepGroup)

    /// Takes back all of it and makes no step.
    void rollBack();

private:
    OverlayService *m_service;
    bool m_isRolledBack = false;
};

} // namespace viewer

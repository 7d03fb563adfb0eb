// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QFont>
#include <QModelIndex>
#include <QObject>
#include <QString>

#include <optional>

class QKXSearchBox;
class QKeyEvent;
class QMenu;
class QTreeView;
class QWidget;
class kxOverlayEditorGUIW;
class kxOverlayQtModel;

/// The controller of the module: builds the editor's window, sends what the user does to the overlay
/// service and shows what the service announces. It holds no overlay data: commands and edits take
/// their targets from the selection when they run, refreshes read the service.
///
/// initPlugin() creates the one editor, which lives until the process exits. It owns the model; the
/// host's main window owns the window and with it every widget. GUI thread only.
class kxOverlayEditor : public QObject
{
    Q_OBJECT

public:
    /// The one editor; null before it exists. Set before the window is built and never reset.
    static kxOverlayEditor *_the;

    /// Builds the model and, unless the host is headless, the window. All services must be
    /// registered. An exception leaves nothing behind.
    kxOverlayEditor();
    ~kxOverlayEditor() override;

    /// @name Builders, called once each by the constructor
    /// @{
    void createTreeView();
    void createPropertiesView();
    void createQuickActionBar();
    void createImageEdit();
    void createContextMenu();
    void connectToService();
    /// @}

    /// @name The selection of the tree
    /// @{

    /// The selected nodes in the order of the selection; empty for none.
    QRPC::NodeList getSelectedNodes() const;

    /// The first selected row; invalid for none.
    QModelIndex getFirstSelected() const;

    /// The node that takes new nodes: the first selected one or its nearest ancestor that is no
    /// overlay, else the root.
    QRPC::NodeId getFirstGroup() const;

    /// True when a node of the list is a group or switch; false for an empty list.
    bool containsGroup(const QRPC::NodeList &nodes);
    /// @}

    /// @name The property panel
    /// @{

    /// Shows the properties of the whole selection.
    void updateAll();

    /// The nodes that a refresh shows: the selection, which a full refresh reads once for all of its
    /// parts.
    QRPC::NodeList refreshedNodes() const;

    /// Enables or disables all controls that edit overlays. The name, the image and the tree have
    /// rules of their own.
    void setInputEnabled(bool enabled);

    /// True when all nodes are overlays, at least one, and, with `sameType`, all of one type.
    bool shouldUpdate(const QRPC::NodeList &nodes, bool sameType);
    /// @}

    /// The keys and the context menu of the tree view.
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    // The host's life cycle
    void init();
    void show();

    // Nodes that come and go
    void nodesCreated(const QRPC::NodeList &nodes);
    void nodeRemovedUpdate(QRPC::NodeId node);
    void nodesRemovedUpdate(const QRPC::NodeList &nodeList);

    // Edits in the property panel, each sent to the whole selection
    void nameChanged();
    void typeChanged(int type);
    void textChanged();
    void fontChanged(const QFont &font);
    void fontColorChanged(float r, float g, float b);
    void fontBackgroundChanged(float r, float g, float b);
    void fontTransparencyChanged(float r, float g, float b);
    void loadImage();
    void reloadImage();
    void writeImage();
    void showTextureInfo();
    void clearImage();
    void changedImage();
    void setImage(const QString &path);
    void sizeTypeChanged(int sizeType);
    void sizeChanged(double size);
    void sizeSliderChanged();
    void positionChanged(int index);
    void offsetXChanged(double x);
    void offsetYChanged(double y);

    // Search and selection
    void searchChanged(const QString &text);
    void selectionChanged();

    // Commands
    void createOverlay();
    void deleteOverlays();
    void duplicateOverlays();
    void renameOverlay();
    void find();
    void selectAll();
    void deselectAll();
    void invertSelection();
    void createGroupFromSelection();
    void createOverlayGroup();
    void createSwitch();
    void toggle();
    void switchOn();
    void switchOff();

    // Refreshes of the property panel; the argument is what the service reports, the selection is
    // what is shown
    void updateOverlayType(const QRPC::NodeList &changed);
    void updateName(const QRPC::NodeList &changed);
    void updateText(const QRPC::NodeList &changed);
    void updateFont(const QRPC::NodeList &changed);
    void updateFontColor(const QRPC::NodeList &changed);
    void updateBackgroundColor(const QRPC::NodeList &changed);
    void updateBackgroundTransparency(const QRPC::NodeList &changed);
    void updateImage(const QRPC::NodeList &changed);
    void updateSizeType(const QRPC::NodeList &changed);
    void updateSize(const QRPC::NodeList &changed);
    void updatePosition(const QRPC::NodeList &changed);
    void updateOffset(const QRPC::NodeList &changed);

private:
    void createUserInterface();
    void createWindow();
    void deselect(const QModelIndexList &rows);
    void applySizeConstraints();
    void createSizeAndPositionView();
    void orderFocus();
    void takeRepeatedChoices();
    void registerShortcuts();
    bool handleKey(const QKeyEvent *event);
    bool isEditingName() const;
    void showTypeControls(bool text);

    kxOverlayQtModel *m_model = nullptr;
    kxOverlayEditorGUIW *m_window = nullptr;
    QTreeView *m_treeView = nullptr;
    QKXSearchBox *m_searchBox = nullptr;
    QMenu *m_contextMenu = nullptr;
    std::optional<QRPC::NodeList> m_refreshedNodes; ///< while a full refresh runs
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "bench/FloorTree.h"
#include "bench/TreeCase.h"
#include "kit/HostFixture.h"
#include "overlayeditor/kxOverlayEditor.h"

#include <QTreeView>

#include <memory>

enum class Picked { None, Half, All };

/// How the tree stands before a command.
struct Start
{
    Shape shape = Shape::Flat;
    bool expanded = false;
    Picked picked = Picked::None;
};

/// A host, the viewer's service and the editor's window over it. Owned by one measurement.
struct Editor
{
    Editor(const Start &start, int size);

    void call(const char *slot) { QMetaObject::invokeMethod(&editor, slot); }

    HostFixture host;
    TreeCase tree;
    kxOverlayEditor editor;
    QTreeView *view = nullptr;
};

/// The plain tree in the same state, beside a service that nobody listens to.
struct Plain
{
    Plain(const Start &start, int size);

    HostFixture host;
    TreeCase tree;
    FloorTree floor;
    std::unique_ptr<QTreeView> view;
};

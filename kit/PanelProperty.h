// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/RecordingService.h"

class QWidget;

/// A property of overlays that the panel shows in one control, with two values to tell apart. A plain
/// value; the list of all of them is what tests and checks of the panel walk over.
struct PanelProperty
{
    using Signal = void (kxOverlayService::*)(const QRPC::NodeList &);

    /// Which selections show it: those of overlays, or only of one type.
    enum Guard { None, Overlays, Texts, Images };

    const char *name;
    const char *getter;
    Signal changed;
    const char *control; ///< object name
    Guard guard;
    void (*put)(RecordingService::Node *node, int which);
    QString (*shown)(const QWidget &window);
    const char *values[2];

    /// Every property of the panel; the offset has an entry for each coordinate.
    static const QVector<PanelProperty> &all();
};

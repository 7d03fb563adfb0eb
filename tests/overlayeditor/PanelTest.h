// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/overlayeditor/EditorTest.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QRegularExpression>

/// A property of overlays that the panel shows in one control, with two values to tell apart.
struct PanelProperty
{
    using Signal = void (kxOverlayService::*)(const QRPC::NodeList &);

    /// Which selections show it: those of overlays, or only of one type.
    enum Guard { None, Overlays, Texts, Images };

    const char *name;
    const char *getter;
    Signal changed;
    const char *control;
    Guard guard;
    void (*put)(RecordingService::Node *node, int which);
    QString (*shown)(const kxOverlayEditorGUIW &form);
    const char *values[2];
};

/// Base of the tests of the property panel.
class PanelTest : public EditorTest
{
    Q_OBJECT

protected:
    /// Every property of the panel; the offset has a row for each coordinate.
    static const QVector<PanelProperty> &properties();

    /// Adds a row for each property, by its place in the list; of the named guards when there are
    /// any.
    static void addProperties(const QVector<PanelProperty::Guard> &guards = {});

    /// The property of the row.
    static const PanelProperty &property(int row) { return properties().at(row); }

    RecordingService::Node &node(QRPC::NodeId id) { return service().node(id); }
    QWidget &control(const PanelProperty &property);

    /// Gives every overlay of the tree the type that shows the property.
    void suit(const PanelProperty &property);

    void announce(PanelProperty::Signal signal, const QRPC::NodeList &nodes);

    /// What the service was told since the log was emptied.
    QStringList writes() { return log().lines().filter(QRegularExpression("^set")); }

    /// Marked as mixed: by the value true, which is the only one that is ever set.
    static bool isMarked(const QWidget &control);

    QAbstractSlider &sizeHandle();
    QDoubleSpinBox &sizeField();

    /// Gives a control the focus as Tab does.
    void focus(QWidget &control);

    /// Types each character at whatever has the focus.
    static void type(const QString &text);

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/PanelProperty.h"
#include "kit/widgets.h"
#include "tests/overlayeditor/EditorTest.h"

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QRegularExpression>

/// Base of the tests of the property panel.
class PanelTest : public EditorTest
{
    Q_OBJECT

protected:
    /// Every property of the panel; the offset has a row for each coordinate.
    static const QVector<PanelProperty> &properties() { return PanelProperty::all(); }

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

    static bool isMarked(const QWidget &control) { return widgets::isMarked(control); }

    QAbstractSlider &sizeHandle();
    QDoubleSpinBox &sizeField();

    /// Gives a control the focus as Tab does.
    void focus(QWidget &control);

    /// Types each character at whatever has the focus.
    static void type(const QString &text);

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
};

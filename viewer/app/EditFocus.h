// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/TextField.h"
#include "viewer/app/ViewSelection.h"

#include <QObject>

namespace viewer {

/// The widget that the commands of the edit menu act on: the one that has the focus, or had it
/// before the menu was opened or another window came to the front. Owned by the menu; its commands
/// ask it when they are enabled and when they run.
class EditFocus : public QObject
{
    Q_OBJECT

public:
    explicit EditFocus(QObject *parent = nullptr);

    /// Counts what is in `area` as the module's view whose selection is seen and made there.
    void includeArea(const QWidget *area, const ViewSelection *selection);

    /// The view of nodes that has the focus; none for any other widget.
    NodeView nodeView() const;

    /// The text field that has it.
    TextField textField() const { return TextField(m_widget); }

Q_SIGNALS:
    /// Another widget is concerned.
    void changed();

private:
    void follow(const QWidget *old, QWidget *now);

    QPointer<QWidget> m_widget;
    QPointer<const QWidget> m_area;
    QPointer<const ViewSelection> m_selection;
};

} // namespace viewer

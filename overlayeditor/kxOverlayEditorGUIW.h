// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ui_kxOverlayEditorGUI.h"

#include <QMainWindow>

/// The editor's window: the form, and a signal that tells of each showing. Created by the editor,
/// owned by the host's main window, which shows and hides it. GUI thread only. It decides nothing:
/// the editor fills it and handles its controls.
///
/// The signal hides the slot of the base class: whoever shows the window does so through a QWidget
/// pointer.
class kxOverlayEditorGUIW : public QMainWindow, public Ui::kxOverlayEditorGUI
{
    Q_OBJECT

public:
    explicit kxOverlayEditorGUIW(QWidget *parent);
    ~kxOverlayEditorGUIW() override;

Q_SIGNALS:
    /// The window is about to be shown.
    void show(); // clazy:exclude=overridden-signal

protected:
    void showEvent(QShowEvent *event) override;
};

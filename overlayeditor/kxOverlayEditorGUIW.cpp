// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxOverlayEditorGUIW.h"

kxOverlayEditorGUIW::kxOverlayEditorGUIW(QWidget *parent) : QMainWindow(parent, Qt::WindowFlags())
{
    setObjectName(QStringLiteral("Module")); // before setupUi(), which keeps a name that is there
    setupUi(this);
}

kxOverlayEditorGUIW::~kxOverlayEditorGUIW() = default;

void kxOverlayEditorGUIW::showEvent(QShowEvent *event)
{
    Q_EMIT show();
    QMainWindow::showEvent(event);
}

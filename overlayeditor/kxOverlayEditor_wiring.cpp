// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How the editor learns of changes in the overlay service. The model connects itself.

#include "overlayeditor/kxOverlayEditor.h"

#include "host/kxOverlayService.h"
#include "overlayeditor/kxConnect.h"
#include "overlayeditor/kxOverlayEditorGUIW.h"
#include "overlayeditor/kxServices.h"
#include "overlayeditor/model/kxOverlayQtModel.h"

#include <QPointer>

void kxOverlayEditor::connectToService()
{
    const kxConnection connections[] = {
        {SIGNAL(nodesCreated(const QRPC::NodeList &)), SLOT(nodesCreated(const QRPC::NodeList &))},
        {SIGNAL(nodesRemoved(const QRPC::NodeList &)),
         SLOT(nodesRemovedUpdate(const QRPC::NodeList &))},
        {SIGNAL(overlayTypeChanged(const QRPC::NodeList &)),
         SLOT(updateOverlayType(const QRPC::NodeList &))},
        {SIGNAL(nameChanged(const QRPC::NodeList &)), SLOT(updateName(const QRPC::NodeList &))},
        {SIGNAL(textChanged(const QRPC::NodeList &)), SLOT(updateText(const QRPC::NodeList &))},
        {SIGNAL(fontChanged(const QRPC::NodeList &)), SLOT(updateFont(const QRPC::NodeList &))},
        {SIGNAL(fontColorChanged(const QRPC::NodeList &)),
         SLOT(updateFontColor(const QRPC::NodeList &))},
        {SIGNAL(backgroundColorChanged(const QRPC::NodeList &)),
         SLOT(updateBackgroundColor(const QRPC::NodeList &))},
        {SIGNAL(backgroundTransparencyChanged(const QRPC::NodeList &)),
         SLOT(updateBackgroundTransparency(const QRPC::NodeList &))},
        {SIGNAL(imageChanged(const QRPC::NodeList &)), SLOT(updateImage(const QRPC::NodeList &))},
        {SIGNAL(sizeTypeChanged(const QRPC::NodeList &)),
         SLOT(updateSizeType(const QRPC::NodeList &))},
        {SIGNAL(sizeChanged(const QRPC::NodeList &)), SLOT(updateSize(const QRPC::NodeList &))},
        {SIGNAL(positionChanged(const QRPC::NodeList &)),
         SLOT(updatePosition(const QRPC::NodeList &))},
        {SIGNAL(offsetChanged(const QRPC::NodeList &)), SLOT(updateOffset(const QRPC::NodeList &))},
    };
    auto *service = kxService<kxOverlayService>();
    kxConnectAll(service, this, connections);

    // A host that closes destroys its main window, and the editor's with it, while services and
    // model still live: from then on there is nothing left to refresh.
    connect(m_window, &QObject::destroyed, this,
            [this, service = QPointer<kxOverlayService>(service)] {
                if (service)
                    disconnect(service, nullptr, this, nullptr);
                disconnect(m_model, nullptr, this, nullptr);
            });
}

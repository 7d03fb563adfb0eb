// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/editorSlots.h"

QStringList editorSlots()
{
    QStringList all{"init()",
                    "show()",
                    "nodesCreated(QRPC::NodeList)",
                    "nodeRemovedUpdate(QRPC::NodeId)",
                    "nodesRemovedUpdate(QRPC::NodeList)",
                    "nameChanged()",
                    "typeChanged(int)",
                    "textChanged()",
                    "fontChanged(QFont)",
                    "fontColorChanged(float,float,float)",
                    "fontBackgroundChanged(float,float,float)",
                    "fontTransparencyChanged(float,float,float)",
                    "loadImage()",
                    "reloadImage()",
                    "writeImage()",
                    "showTextureInfo()",
                    "clearImage()",
                    "changedImage()",
                    "setImage(QString)",
                    "sizeTypeChanged(int)",
                    "sizeChanged(double)",
                    "sizeSliderChanged()",
                    "positionChanged(int)",
                    "offsetXChanged(double)",
                    "offsetYChanged(double)",
                    "searchChanged(QString)",
                    "selectionChanged()",
                    "createOverlay()",
                    "deleteOverlays()",
                    "duplicateOverlays()",
                    "renameOverlay()",
                    "find()",
                    "selectAll()",
                    "deselectAll()",
                    "invertSelection()",
                    "createGroupFromSelection()",
                    "createOverlayGroup()",
                    "createSwitch()",
                    "toggle()",
                    "switchOn()",
                    "switchOff()"};
    for (const char *property :
         {"OverlayType", "Name", "Text", "Font", "FontColor", "BackgroundColor",
          "BackgroundTransparency", "Image", "SizeType", "Size", "Position", "Offset"})
        all.append(QStringLiteral("update%1(QRPC::NodeList)").arg(property));
    return all;
}

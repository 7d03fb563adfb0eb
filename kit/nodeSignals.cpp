// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "kit/nodeSignals.h"

QVector<QPair<const char *, NodesSignal>> nodeSignals()
{
    using S = kxOverlayService;
    return {
        {"nodesCreated", &S::nodesCreated},
        {"nodesAdded", &S::nodesAdded},
        {"nodesRemoved", &S::nodesRemoved},
        {"overlayTypeChanged", &S::overlayTypeChanged},
        {"nameChanged", &S::nameChanged},
        {"textChanged", &S::textChanged},
        {"fontChanged", &S::fontChanged},
        {"fontColorChanged", &S::fontColorChanged},
        {"backgroundColorChanged", &S::backgroundColorChanged},
        {"backgroundTransparencyChanged", &S::backgroundTransparencyChanged},
        {"imageChanged", &S::imageChanged},
        {"sizeTypeChanged", &S::sizeTypeChanged},
        {"sizeChanged", &S::sizeChanged},
        {"positionChanged", &S::positionChanged},
        {"offsetChanged", &S::offsetChanged},
        {"enabledStateChanged", &S::enabledStateChanged},
    };
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "bench/PanelQuestions.h"

void questions::askAll(const QRPC::NodeList &nodes)
{
    using S = kxOverlayService;
    ask(&S::isOverlay, nodes, 11);
    ask(&S::getOverlayType, nodes, 7);
    ask(&S::getName, nodes, 1);
    ask(&S::getText, nodes, 1);
    ask(&S::getFont, nodes, 1);
    ask(&S::getFontColor, nodes, 1);
    ask(&S::getBackgroundColor, nodes, 1);
    ask(&S::getBackgroundTransparency, nodes, 1);
    ask(&S::getSizeType, nodes, 1);
    ask(&S::getSize, nodes, 2);
    ask(&S::getPosition, nodes, 1);
    ask(&S::getOffset, nodes, 2);
}

void questions::askFontColor(const QRPC::NodeList &nodes)
{
    using S = kxOverlayService;
    ask(&S::isOverlay, nodes, 1);
    ask(&S::getOverlayType, nodes, 1);
    ask(&S::getFontColor, nodes, 1);
}

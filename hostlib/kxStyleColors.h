// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

/// The colours of the host's style. Text stands on `base`, `alternateBase` and the two selections
/// with a contrast of at least 4.5, the name of an inactive node with at least 3.
namespace kxStyleColors {

constexpr QRgb window = 0xff2b2d30;
constexpr QRgb base = 0xff1e1f22;
constexpr QRgb alternateBase = 0xff242629;
constexpr QRgb button = 0xff3c3f43;
constexpr QRgb buttonHover = 0xff484c51;
constexpr QRgb buttonDown = 0xff25282b;
constexpr QRgb border = 0xff5c6167;
constexpr QRgb borderDisabled = 0xff3f4246;
constexpr QRgb text = 0xffe2e5e9;
constexpr QRgb textDisabled = 0xff70757b;
constexpr QRgb placeholder = 0xff9da2a8;
constexpr QRgb bright = 0xffffffff;
constexpr QRgb selection = 0xff264f78;
constexpr QRgb selectionUnfocused = 0xff3a4350;
constexpr QRgb selectionDisabled = 0xff34373b;
constexpr QRgb accent = 0xff5aa9f5;
constexpr QRgb mixed = 0xffe5a33b;
constexpr QRgb mixedGround = 0xff33291a;
constexpr QRgb mixedText = 0xffe9cf9f;
constexpr QRgb inactiveNode = 0xffa0a4aa;
constexpr QRgb toolTip = 0xff45494e;

} // namespace kxStyleColors

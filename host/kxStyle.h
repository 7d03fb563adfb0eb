// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QProxyStyle>

class QPalette;

/// The host's dark widget style. It also draws every control that carries the dynamic property
/// "multiselect" as mixed: one whose selected nodes disagree on the value that it shows. Created by
/// the host and given to the application, which owns it. GUI thread only.
class KXHOST_EXPORT kxStyle : public QProxyStyle
{
    Q_OBJECT

public:
    kxStyle();
    ~kxStyle() override;

    /// The colour of the name of a node that does not show; names of nodes that do are opaque white.
    static QColor getInactiveNodeColor();

    /// The colour that marks what is selected, focused or live.
    static QColor getAccentColor();

    /// True when `widget` carries the marking "multiselect"; false for null.
    static bool isMultiselect(const QWidget *widget);

    QPalette standardPalette() const override;
};

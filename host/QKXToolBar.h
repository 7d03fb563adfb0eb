// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QToolBar>

/// A tool bar with the host's look: small icons with their texts beside them, so that a bar of few
/// commands can be read; an action without an icon shows its text alone.
///
/// Owner: its parent, or the window that it is added to. Called by modules; GUI thread only. The icon
/// size follows the style when that changes, unless it is set on the bar.
class KXHOST_EXPORT QKXToolBar : public QToolBar
{
    Q_OBJECT

public:
    /// A bar without actions.
    /// @param title  translated name under which a window lists the bar; empty for none
    /// @param parent becomes the owner; null for none
    explicit QKXToolBar(const QString &title, QWidget *parent = nullptr);
    ~QKXToolBar() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void takeIconSizeFromStyle();

    QSize m_styledIconSize;
};

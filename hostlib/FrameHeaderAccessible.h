// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>

namespace hostlib {

/// Shows a frame's header to assistive tools as a button that is expanded or collapsed and can be
/// pressed. Made and owned by Qt's accessibility cache.
class FrameHeaderAccessible : public QAccessibleWidget
{
public:
    explicit FrameHeaderAccessible(QWidget *header);
    ~FrameHeaderAccessible() override;

    /// Makes Qt use this class for headers, from the first call on.
    static void install();

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;
};

} // namespace hostlib

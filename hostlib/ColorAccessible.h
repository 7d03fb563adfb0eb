// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>

namespace hostlib {

/// Shows a colour control to assistive tools: its colour as text, and the opening of its dialog as
/// its action. Made and owned by Qt's accessibility cache.
class ColorAccessible : public QAccessibleWidget
{
public:
    explicit ColorAccessible(QWidget *control);
    ~ColorAccessible() override;

    /// Makes Qt use this class for colour controls, from the first call on.
    static void install();

    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;
};

} // namespace hostlib

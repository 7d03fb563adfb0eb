// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/HelpId.h"

#include <QVariant>
#include <QWidget>

namespace viewer {

namespace {

constexpr char Property[] = "helpId";

} // namespace

void setHelpId(QWidget *widget, const QString &helpId)
{
    widget->setProperty(Property, helpId);
}

QString helpIdOf(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const QString helpId = widget->property(Property).toString();
        if (!helpId.isEmpty())
            return helpId;
    }
    return {};
}

} // namespace viewer

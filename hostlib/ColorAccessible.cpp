// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/ColorAccessible.h"

#include "host/QKXColorManipulator.h"
#include "host/kxStyle.h"

#include <QColor>

namespace hostlib {

static QAccessibleInterface *makeForColor(const QString &, QObject *object)
{
    auto *control = qobject_cast<QKXColorManipulator *>(object);
    return control ? new ColorAccessible(control) : nullptr;
}

ColorAccessible::ColorAccessible(QWidget *control)
    : QAccessibleWidget(control, QAccessible::ColorChooser)
{
}

ColorAccessible::~ColorAccessible() = default;

void ColorAccessible::install()
{
    // Qt keeps a factory once, however often it is installed.
    QAccessible::installFactory(makeForColor);
}

QString ColorAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Value || kxStyle::isMultiselect(widget()))
        return QAccessibleWidget::text(kind);
    return static_cast<QKXColorManipulator *>(object())->color().toColor().name();
}

QStringList ColorAccessible::actionNames() const
{
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
}

void ColorAccessible::doAction(const QString &action)
{
    if (action == pressAction())
        static_cast<QKXColorManipulator *>(object())->openDialog();
    else
        QAccessibleWidget::doAction(action);
}

} // namespace hostlib

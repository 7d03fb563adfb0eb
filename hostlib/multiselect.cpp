// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/multiselect.h"

#include "host/kxStyle.h"

#include <QStyle>
#include <QVariant>
#include <QWidget>

static const char s_multiselect[] = "multiselect";

static void mark(QWidget *widget, const QVariant &marking)
{
    if (widget->property(s_multiselect) == marking)
        return;
    widget->setProperty(s_multiselect, marking);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

void hostlib::handOnMultiselect(const QWidget *outer, std::initializer_list<QWidget *> inner)
{
    const QVariant marking = kxStyle::isMultiselect(outer) ? QVariant(true) : QVariant();
    for (QWidget *widget : inner)
        mark(widget, marking);
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxMultiselect.h"

#include <QLineEdit>
#include <QStyle>
#include <QVariant>

namespace {

const char s_marking[] = "multiselect";
const char s_staleText[] = "multiselectStaleText";

} // namespace

void kxMultiselect::setControlMultiselect(QWidget *control, bool mixed)
{
    if (!control)
        return;
    const QVariant wanted = mixed ? QVariant(true) : QVariant();
    const QVariant current = control->property(s_marking);
    if (current.isValid() ? current == wanted : !wanted.isValid())
        return;
    control->setProperty(s_marking, wanted);
    control->style()->unpolish(control);
    control->style()->polish(control);
    control->update();
}

bool kxMultiselect::isMarked(const QWidget *control)
{
    return control->property(s_marking).toBool();
}

void kxMultiselect::rememberStaleText(QLineEdit *edit)
{
    edit->setProperty(s_staleText, edit->text());
}

bool kxMultiselect::showsStaleText(const QLineEdit *edit)
{
    const QVariant stale = edit->property(s_staleText);
    return isMarked(edit) && stale.isValid() && stale.toString() == edit->text();
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"

#include "host/kxIconManager.h"
#include "hostlib/kxStyleColors.h"
#include "hostlib/kxStyleControls.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QEvent>
#include <QLabel>
#include <QStyleOption>

namespace {

// Keeps the description that a control had before it was marked.
const char formerDescription[] = "_kx_formerDescription";

QAbstractScrollArea *textEditor(QWidget *widget)
{
    auto *area = qobject_cast<QAbstractScrollArea *>(widget);
    return area && !qobject_cast<QAbstractItemView *>(area) ? area : nullptr;
}

void restoreDescription(QWidget *widget)
{
    const QVariant former = widget->property(formerDescription);
    if (!former.isValid())
        return;
    widget->setProperty(formerDescription, QVariant());
    if (widget->accessibleDescription() == kxStyle::mixedText())
        widget->setAccessibleDescription(former.toString());
}

void describe(QWidget *widget)
{
    if (!kxStyleControls::isMixed(widget)) {
        restoreDescription(widget);
        return;
    }
    if (!widget->property(formerDescription).isValid())
        widget->setProperty(formerDescription, widget->accessibleDescription());
    widget->setAccessibleDescription(kxStyle::mixedText());
}

// The toolkit's file dialog has two list boxes that only look as if their labels named them.
void nameByLabel(QWidget *widget)
{
    const struct
    {
        QLatin1String control;
        QLatin1String label;
    } pairs[] = {
        {QLatin1String("lookInCombo"), QLatin1String("lookInLabel")},
        {QLatin1String("fileTypeCombo"), QLatin1String("fileTypeLabel")},
    };
    for (const auto &pair : pairs) {
        if (widget->objectName() != pair.control || !widget->parentWidget())
            continue;
        if (auto *label = widget->parentWidget()->findChild<QLabel *>(pair.label))
            label->setBuddy(widget);
    }
}

} // namespace

kxStyle::kxStyle() : QProxyStyle(QStringLiteral("Fusion"))
{
    setObjectName(QStringLiteral("kx"));
}

kxStyle::~kxStyle() = default;

QColor kxStyle::getInactiveNodeColor()
{
    return kxStyleColors::inactiveNode;
}

QColor kxStyle::getAccentColor()
{
    return kxStyleColors::accent;
}

QColor kxStyle::getMixedColor()
{
    return kxStyleColors::mixed;
}

void kxStyle::polish(QPalette &palette)
{
    palette = standardPalette();
}

void kxStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    nameByLabel(widget);
    describe(widget);
    const QList<QWidget *> mates = kxStyleControls::groupMates(widget);
    for (QWidget *mate : mates) {
        describe(mate);
        mate->update();
    }
    QAbstractScrollArea *area = textEditor(widget);
    if (area && isMultiselect(area)) {
        area->viewport()->installEventFilter(this);
        area->viewport()->update();
    }
}

void kxStyle::unpolish(QWidget *widget)
{
    if (QAbstractScrollArea *area = textEditor(widget)) {
        area->viewport()->removeEventFilter(this);
        area->viewport()->update();
    }
    restoreDescription(widget);
    QProxyStyle::unpolish(widget);
}

int kxStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                         const QWidget *widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: {
        // Indicators stand beside text: they grow with it.
        const int height = option ? option->fontMetrics.height() : QFontMetrics(QFont()).height();
        return qMax(QProxyStyle::pixelMetric(metric, option, widget), height - 1) | 1;
    }
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon kxStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                            const QWidget *widget) const
{
    switch (icon) {
    case SP_TitleBarCloseButton:
    case SP_DockWidgetCloseButton:
        return kxIconManager::getIcon("Clear", std::string());
    case SP_TitleBarNormalButton:
        return kxIconManager::getIcon("Float", std::string());
    case SP_MessageBoxInformation:
        return kxIconManager::getIcon("MessageInformation", std::string());
    case SP_MessageBoxWarning:
        return kxIconManager::getIcon("MessageWarning", std::string());
    case SP_MessageBoxCritical:
        return kxIconManager::getIcon("MessageError", std::string());
    case SP_MessageBoxQuestion:
        return kxIconManager::getIcon("MessageQuestion", std::string());
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

QPixmap kxStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                     const QStyleOption *option) const
{
    return mode == QIcon::Selected ? pixmap
                                   : QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

int kxStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                       QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_ComboBox_Popup: // off: a list below the box, with the box still in sight
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QPalette kxStyle::standardPalette() const
{
    struct Role
    {
        QPalette::ColorRole role;
        QRgb color;
        QRgb disabled;
    };
    using namespace kxStyleColors;
    static constexpr Role roles[] = {
        {QPalette::Window, window, window},
        {QPalette::WindowText, text, textDisabled},
        {QPalette::Base, base, window},
        {QPalette::AlternateBase, alternateBase, window},
        {QPalette::Text, text, textDisabled},
        {QPalette::PlaceholderText, placeholder, textDisabled},
        {QPalette::Button, button, window},
        {QPalette::ButtonText, text, textDisabled},
        {QPalette::BrightText, bright, textDisabled},
        {QPalette::Highlight, selection, selectionDisabled},
        {QPalette::HighlightedText, bright, textDisabled},
        {QPalette::Link, accent, textDisabled},
        {QPalette::LinkVisited, accent, textDisabled},
        {QPalette::ToolTipBase, toolTip, toolTip},
        {QPalette::ToolTipText, bright, bright},
        {QPalette::Light, buttonHover, borderDisabled},
        {QPalette::Midlight, button, window},
        {QPalette::Mid, borderDisabled, borderDisabled},
        {QPalette::Dark, base, base},
        {QPalette::Shadow, base, base},
    };
    QPalette palette;
    for (const Role &entry : roles) {
        palette.setColor(entry.role, entry.color);
        palette.setColor(QPalette::Disabled, entry.role, entry.disabled);
    }
    palette.setColor(QPalette::Inactive, QPalette::Highlight, selectionUnfocused);
    return palette;
}

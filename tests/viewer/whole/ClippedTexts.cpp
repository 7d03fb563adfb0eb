// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/whole/ClippedTexts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>

namespace {

/// The clipped texts of one window, as they are found.
class Collector
{
public:
    void addWidget(const QWidget *widget)
    {
        checkPlace(widget);
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            checkLabel(label);
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            checkButton(button);
        else if (const auto *box = qobject_cast<const QComboBox *>(widget))
            checkChoices(box);
        else if (const auto *line = qobject_cast<const QLineEdit *>(widget))
            checkLine(line);
        else if (const auto *header = qobject_cast<const QHeaderView *>(widget))
            checkHeader(header);
        else if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
            checkTabs(tabs);
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            check(group, group->title(), group->minimumSizeHint().width(), group->width());
        else if (const auto *menu = qobject_cast<const QMenu *>(widget))
            checkMenu(menu);
        else if (const auto *pane = qobject_cast<const QScrollArea *>(widget))
            checkPane(pane);
    }

    QStringList faults;

private:
    void check(const QWidget *widget, const QString &text, int needed, int given)
    {
        if (needed <= given)
            return;
        faults.append(
            QStringLiteral("%1 \"%2\": \"%3\" needs %4, has %5")
                .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(), text)
                .arg(needed)
                .arg(given));
    }

    /// Nothing may reach out of what it lies in, but downwards out of a pane that scrolls.
    void checkPlace(const QWidget *widget)
    {
        const QWidget *parent = widget->parentWidget();
        if (widget->isWindow() || !parent || !hasText(widget))
            return;
        check(widget, "right edge", widget->geometry().right(), parent->width());
        const bool scrolls = qobject_cast<const QScrollArea *>(parent->parentWidget());
        if (!scrolls)
            check(widget, "lower edge", widget->geometry().bottom(), parent->height());
    }

    static bool hasText(const QWidget *widget)
    {
        return qobject_cast<const QLabel *>(widget) || qobject_cast<const QAbstractButton *>(widget)
               || qobject_cast<const QComboBox *>(widget)
               || qobject_cast<const QLineEdit *>(widget);
    }

    void checkLabel(const QLabel *label)
    {
        if (label->text().isEmpty())
            return;
        if (label->wordWrap())
            return check(label, label->text(), label->heightForWidth(label->width()),
                         label->height());
        check(label, label->text(), label->sizeHint().width(), label->width());
        check(label, label->text(), label->sizeHint().height(), label->height());
    }

    void checkButton(const QAbstractButton *button)
    {
        const auto *tool = qobject_cast<const QToolButton *>(button);
        const bool isIcon =
            button->text().isEmpty() || (tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly);
        const bool isOwnDrawing = button->text().isEmpty() && !button->accessibleName().isEmpty()
                                  && button->icon().isNull();
        if (isIcon && !isOwnDrawing)
            return;
        check(button, button->text() + button->accessibleName(), button->sizeHint().width(),
              button->width());
        check(button, button->text(), button->sizeHint().height(), button->height());
    }

    void checkChoices(const QComboBox *box)
    {
        // Families and folders are shortened; they are written out in the list.
        if (qobject_cast<const QFontComboBox *>(box) || box->isEditable()
            || box->objectName() == "lookInCombo" || box->objectName() == "fileTypeCombo")
            return;
        QStyleOptionComboBox option;
        option.initFrom(box);
        option.subControls = QStyle::SC_All;
        option.frame = box->hasFrame();
        const int room =
            box->style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box)
                .width();
        for (int i = 0; i < box->count(); ++i)
            check(box, box->itemText(i), textWidth(box, box->itemText(i)), room);
    }

    void checkLine(const QLineEdit *line)
    {
        const bool isNumber = qobject_cast<const QAbstractSpinBox *>(line->parentWidget());
        const QString text = isNumber ? line->displayText() : line->placeholderText();
        if (isNumber || line->text().isEmpty())
            check(line, text, textWidth(line, text), line->contentsRect().width());
    }

    void checkHeader(const QHeaderView *header)
    {
        const int margins =
            2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
        for (int i = 0; i < header->count(); ++i) {
            const QString text = header->model()->headerData(i, header->orientation()).toString();
            if (!header->isSectionHidden(i) && header->orientation() == Qt::Horizontal)
                check(header, text, textWidth(header, text) + margins, header->sectionSize(i));
        }
    }

    void checkTabs(const QTabBar *tabs)
    {
        for (int i = 0; i < tabs->count(); ++i)
            check(tabs, tabs->tabText(i), textWidth(tabs, tabs->tabText(i)),
                  tabs->tabRect(i).width());
    }

    void checkMenu(const QMenu *menu)
    {
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions) {
            const QString text =
                action->text().remove('&').remove('\t') + action->shortcut().toString();
            check(menu, text, textWidth(menu, text), menu->width());
        }
    }

    void checkPane(const QScrollArea *pane)
    {
        const QScrollBar *bar = pane->horizontalScrollBar();
        if (bar->isVisible())
            check(pane, "pane", pane->viewport()->width() + bar->maximum(),
                  pane->viewport()->width());
    }

    static int textWidth(const QWidget *widget, const QString &text)
    {
        return widget->fontMetrics().horizontalAdvance(text);
    }
};

} // namespace

QStringList clippedTexts::of(const QWidget *window)
{
    Collector collector;
    collector.addWidget(window);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        if (widget->isVisible() && widget->window() == window)
            collector.addWidget(widget);
    }
    return collector.faults;
}

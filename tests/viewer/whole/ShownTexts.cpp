// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/whole/ShownTexts.h"

#include <QAction>
#include <QComboBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTabBar>
#include <QTextEdit>
#include <QTreeView>

namespace {

using shownTexts::Text;

/// The texts of one window, as they are found.
class Collector
{
public:
    void addObject(const QObject *object)
    {
        const QMetaObject *meta = object->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (speaks(object, property.name()) && property.type() == QVariant::String)
                add(property.read(object).toString(), object, property.name());
        }
    }

    void addWidget(const QWidget *widget)
    {
        addObject(widget);
        const QList<QAction *> actions = widget->actions();
        for (const QAction *action : actions)
            addObject(action);
        if (const auto *bar = qobject_cast<const QStatusBar *>(widget))
            add(bar->currentMessage(), bar, "message");
        if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
            addTabs(tabs);
        if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
            addItems(view);
        const auto *box = qobject_cast<const QComboBox *>(widget);
        if (box && !qobject_cast<const QFontComboBox *>(box) && !isInFileDialog(box))
            addChoices(box);
    }

    QVector<Text> texts;

private:
    static bool isInFileDialog(const QWidget *widget)
    {
        return qobject_cast<const QFileDialog *>(widget->window());
    }

    /// The value of a field is the user's; everything else of these names is the program's.
    static bool speaks(const QObject *object, const QByteArray &property)
    {
        static const QByteArrayList all{"text",
                                        "title",
                                        "caption",
                                        "suffix",
                                        "prefix",
                                        "specialValueText",
                                        "placeholderText",
                                        "windowTitle",
                                        "toolTip",
                                        "statusTip",
                                        "whatsThis",
                                        "accessibleName",
                                        "accessibleDescription"};
        if (property == "text" && qobject_cast<const QLineEdit *>(object))
            return false;
        return all.contains(property);
    }

    void add(const QString &text, const QObject *object, const QByteArray &what)
    {
        if (text.isEmpty())
            return;
        texts.append({text, QStringLiteral("%1 \"%2\", %3")
                                .arg(QLatin1String(object->metaObject()->className()),
                                     object->objectName(), QString::fromLatin1(what))});
    }

    void addTabs(const QTabBar *tabs)
    {
        for (int i = 0; i < tabs->count(); ++i)
            add(tabs->tabText(i), tabs, "tab");
    }

    void addChoices(const QComboBox *box)
    {
        for (int i = 0; i < box->count(); ++i)
            add(box->itemText(i), box, "choice");
    }

    void addItems(const QAbstractItemView *view)
    {
        const auto *tree = qobject_cast<const QTreeView *>(view);
        const QAbstractItemModel *model = view->model();
        if (!model)
            return;
        for (int i = 0; tree && !tree->isHeaderHidden() && i < model->columnCount(); ++i)
            add(model->headerData(i, Qt::Horizontal).toString(), view, "header");
        // The guide is a document of its own.
        if (view->objectName() != "guideContents" && !isInFileDialog(view)
            && !qobject_cast<const QFontComboBox *>(view->parentWidget()->parentWidget()))
            addRows(view, QModelIndex());
    }

    void addRows(const QAbstractItemView *view, const QModelIndex &parent)
    {
        const QAbstractItemModel *model = view->model();
        for (int row = 0; row < model->rowCount(parent); ++row) {
            for (int column = 0; column < model->columnCount(parent); ++column) {
                const QModelIndex index = model->index(row, column, parent);
                for (const int role : {Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole,
                                       Qt::AccessibleDescriptionRole})
                    add(index.data(role).toString(), view, "row");
            }
            addRows(view, model->index(row, 0, parent));
        }
    }
};

} // namespace

QVector<Text> shownTexts::of(const QWidget *window)
{
    Collector collector;
    collector.addWidget(window);
    const QList<QWidget *> widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets)
        collector.addWidget(widget);
    return collector.texts;
}

QString shownTexts::untranslated(const QString &text, const QStringList &names)
{
    // Innermost first: a translated text may stand in another one.
    static const QRegularExpression translated(QStringLiteral("\\[[^\\[\\]]*~\\]"));
    static const QRegularExpression neutral(QStringLiteral("<[^>]*>|\\(\\*[^)]*\\)|\\[\\*\\]|&"));
    // Two letters or more; one alone is a key or an axis, and the units are the same everywhere.
    static const QRegularExpression word(QStringLiteral("\\b(?!(?:pt|px)\\b)[^\\W\\d_]{2,}"));
    QString left = text;
    for (const QString &name : names)
        left.remove(name);
    left.remove(neutral);
    while (left.contains(translated))
        left.remove(translated);
    return left.contains(word) ? left : QString();
}

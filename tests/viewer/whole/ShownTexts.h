// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

class QWidget;

/// The texts by which a window speaks to its user.
namespace shownTexts {

/// A text and where it stands: class, object name and property.
struct Text
{
    QString text;
    QString place;
};

/// Every text of a window's widgets, shown or hidden, with those of their actions, items and
/// headers. Not the values of fields, which are the user's.
QVector<Text> of(const QWidget *window);

/// What is left of a text of the pseudo language when everything that was translated is taken away,
/// with the names that the user gave; empty where it was translated wholly.
QString untranslated(const QString &text, const QStringList &names);

} // namespace shownTexts

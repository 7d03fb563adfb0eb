// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QObject>

class QAbstractItemModel;

/// Counts what is done, by name: what a test adds itself, every signal of the objects that it watches
/// ("model.dataChanged"), rows that come and go, and the events of the application by which the
/// toolkit styles widgets and lays them out ("event.LayoutRequest"). Owned by the test; GUI thread
/// only.
class WorkCounter : public QObject
{
    Q_OBJECT

public:
    WorkCounter();

    void add(const char *name) { ++m_counts[QByteArray(name)]; }

    /// Counts the signals of an object from now on, under "prefix.signal". A signal that only
    /// repeats another one or announces it is left out.
    void watch(const QObject *sender, const char *prefix);

    /// Counts the rows too, as "rows inserted" and "rows removed".
    void watchRows(const QAbstractItemModel *model);

    void clear() { m_counts.clear(); }

    /// What was done since the counter was last emptied, "name count", in order of the names.
    QStringList lines() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void noteSignal();

private:
    QMap<QByteArray, int> m_counts;
    QMap<const QObject *, QByteArray> m_prefixes;
};

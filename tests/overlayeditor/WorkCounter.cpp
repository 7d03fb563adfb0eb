// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/WorkCounter.h"

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QEvent>
#include <QMetaMethod>
#include <QStringList>

namespace {

bool isCounted(const QMetaMethod &method)
{
    const QByteArray name = method.name();
    const bool repeats = method.attributes() & QMetaMethod::Cloned; // without its default arguments
    return method.methodType() == QMetaMethod::Signal && !repeats && !name.contains("AboutTo")
           && name != "itemChanged" && name != "destroyed" && name != "objectNameChanged";
}

} // namespace

WorkCounter::WorkCounter()
{
    QCoreApplication::instance()->installEventFilter(this);
}

void WorkCounter::watch(const QObject *sender, const char *prefix)
{
    m_prefixes.insert(sender, prefix);
    const QMetaObject *type = sender->metaObject();
    const int slot = metaObject()->indexOfSlot("noteSignal()");
    for (int i = 0; i < type->methodCount(); ++i) {
        if (isCounted(type->method(i)))
            QMetaObject::connect(sender, i, this, slot);
    }
}

void WorkCounter::watchRows(const QAbstractItemModel *model)
{
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) {
                m_counts["rows inserted"] += last - first + 1;
            });
    connect(model, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex &, int first, int last) {
                m_counts["rows removed"] += last - first + 1;
            });
}

void WorkCounter::noteSignal()
{
    const QMetaMethod method = sender()->metaObject()->method(senderSignalIndex());
    ++m_counts[m_prefixes.value(sender()) + '.' + method.name()];
}

QStringList WorkCounter::lines() const
{
    QStringList found;
    for (auto count = m_counts.begin(); count != m_counts.end(); ++count)
        found.append(QStringLiteral("%1: %2").arg(QLatin1String(count.key())).arg(count.value()));
    return found;
}

bool WorkCounter::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Polish:
        add("event Polish");
        break;
    case QEvent::PolishRequest:
        add("event PolishRequest");
        break;
    case QEvent::LayoutRequest:
        add("event LayoutRequest");
        break;
    case QEvent::DynamicPropertyChange: // a marking, for which the style polishes the control anew
        add("event DynamicPropertyChange");
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/RandomEditorTest.h"

#include "overlayeditor/model/kxDropTrace.h"

#include <QAbstractItemModelTester>
#include <QLineEdit>
#include <QMimeData>

#include <memory>

void RandomEditorTest::run(quint32 seed)
{
    m_scene = std::make_unique<RandomScene>(
        &mirrored(), [this] { return allNodes(); }, seed);
    const QAbstractItemModelTester tester(&model(),
                                          QAbstractItemModelTester::FailureReportingMode::Warning);
    QStringList told;
    for (int i = 0; i < 70; ++i) {
        told.append(step());
        QCoreApplication::processEvents();
        const QString found = fault();
        const QString story = QStringLiteral("seed %1:\n%2\n").arg(seed).arg(told.join('\n'));
        QVERIFY2(found.isEmpty(), qPrintable(story + found));
    }
}

QString RandomEditorTest::selectSome()
{
    const QRPC::NodeList nodes = anyNodes();
    select(nodes);
    return QStringLiteral("select %1 rows").arg(nodes.size());
}

QString RandomEditorTest::command()
{
    const bool isLarge = m_scene->isLarge();
    const char *slot = isLarge ? "deleteOverlays" : m_scene->anyCommand();
    if (isLarge)
        call("selectAll");
    call(slot);
    return slot;
}

QString RandomEditorTest::edit()
{
    const QModelIndex row = index(anyNode());
    const QString name = QStringLiteral("e%1").arg(random(100));
    switch (random(3)) {
    case 0:
        model().setData(row, name, Qt::EditRole);
        return "rename to " + name;
    case 1:
        model().setData(row, random(2) ? int(Qt::Checked) : int(Qt::Unchecked), Qt::CheckStateRole);
        return QStringLiteral("check");
    default:
        window()._overlay_name->setText(name);
        window()._overlay_name->setModified(true);
        call("nameChanged");
        return "name field " + name;
    }
}

QString RandomEditorTest::filter()
{
    const QString text = m_scene->anyPattern();
    static_cast<QLineEdit &>(searchBox()).setText(text);
    return "filter " + text;
}

/// What the toolkit's view does with a drag of its own, which needs a mouse: it takes the selected
/// rows that are not hidden, and removes what is selected after the drop.
QString RandomEditorTest::dropOwn()
{
    const QRPC::NodeId target = anyContainer();
    const QModelIndexList dragged = tree().selectionModel()->selectedIndexes();
    for (QModelIndex at = index(target); at.isValid(); at = at.parent()) {
        if (dragged.contains(at))
            return "a view drops nothing into itself";
    }
    if (dragged.isEmpty())
        return "nothing to drag";
    const kxDropTrace trace(&model());
    const std::unique_ptr<QMimeData> data(model().mimeData(dragged));
    const QString change = random(3) == 0 ? changeOutside() : QString();
    const QModelIndex parent = index(target);
    if (target != mirrored().getRootNode() && !parent.isValid())
        return change + ", and the target is gone";
    const int row = int(random(model().rowCount(parent) + 2)) - 1;
    const QModelIndexList left = tree().selectionModel()->selectedIndexes();
    const QVector<QPersistentModelIndex> sources(left.begin(), left.end());
    model().dropMimeData(data.get(), Qt::MoveAction, row, row < 0 ? -1 : 0, parent);
    for (const QPersistentModelIndex &source : sources) {
        if (source.isValid())
            model().removeRow(source.row(), source.parent());
    }
    model().settle(trace);
    return QStringLiteral("%1 drop of %2 rows on %3 at %4")
        .arg(change)
        .arg(dragged.size())
        .arg(target)
        .arg(row);
}

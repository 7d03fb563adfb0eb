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
    m_random.seed(seed);
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

QRPC::NodeId RandomEditorTest::anyNode()
{
    const QRPC::NodeList all = allNodes();
    return all.isEmpty() ? 0 : all.at(int(random(all.size())));
}

QRPC::NodeId RandomEditorTest::anyContainer()
{
    QRPC::NodeList containers{mirrored().getRootNode()};
    const QRPC::NodeList all = allNodes();
    for (const QRPC::NodeId id : all) {
        if (!mirrored().isOverlay(id))
            containers.append(id);
    }
    return containers.at(int(random(containers.size())));
}

QRPC::NodeList RandomEditorTest::anyNodes()
{
    QRPC::NodeList nodes;
    for (quint32 i = random(5); i > 0; --i)
        nodes.append(anyNode());
    nodes.removeAll(0);
    return nodes;
}

QString RandomEditorTest::selectSome()
{
    const QRPC::NodeList nodes = anyNodes();
    select(nodes);
    return QStringLiteral("select %1 rows").arg(nodes.size());
}

QString RandomEditorTest::command()
{
    static constexpr const char *commands[] = {"createOverlay",
                                               "createOverlayGroup",
                                               "createSwitch",
                                               "deleteOverlays",
                                               "toggle",
                                               "switchOn",
                                               "switchOff",
                                               "selectAll",
                                               "deselectAll",
                                               "invertSelection",
                                               "createGroupFromSelection",
                                               "duplicateOverlays"};
    // A tree that doubles at each second step would soon be too large to be compared.
    const bool isLarge = allNodes().size() > 60;
    const char *slot = isLarge ? "deleteOverlays" : commands[random(int(std::size(commands)))];
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
    const QStringList texts{"", "", "e", "o1", "[a-f]", "*", "nothing of that name"};
    const QString &text = texts.at(int(random(texts.size())));
    static_cast<QLineEdit &>(searchBox()).setText(text);
    return "filter " + text;
}

/// A value is drawn before the nodes that get it, so that a seed means the same with each compiler.
QString RandomEditorTest::changeOutside()
{
    kxOverlayService &service = mirrored();
    switch (random(6)) {
    case 0: {
        const int row = int(random(6)) - 1;
        const QRPC::NodeId parent = anyContainer();
        service.moveNodes(anyNodes(), parent, row);
        return QStringLiteral("outside: move to %1 at %2").arg(parent).arg(row);
    }
    case 1:
        service.deleteNodes(anyNodes());
        return "outside: delete";
    case 2: {
        const QString name = QStringLiteral("o%1").arg(random(100));
        service.setName(anyNodes(), name);
        return "outside: rename to " + name;
    }
    case 3: {
        const bool enabled = random(2) == 0;
        service.setEnabled(anyNodes(), enabled);
        return QStringLiteral("outside: enable %1").arg(enabled);
    }
    case 4:
        service.groupNodes(anyNodes());
        return "outside: group";
    default:
        if (random(4) > 0)
            return "outside: nothing";
        Q_EMIT service.modelReset();
        return "outside: reset";
    }
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

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "kit/RecordingService.h"
#include "kit/TreeDump.h"
#include "tests/support/KxTest.h"

#include <QBrush>
#include <QStandardItemModel>

namespace {

QStandardItem *makeRow(const char *name, uint id, bool enabled, bool active, bool isGroup)
{
    auto *item = new QStandardItem(name);
    item->setData(id, Qt::UserRole + 1);
    item->setData(active, Qt::UserRole + 2);
    item->setData(QBrush(active ? QColor(255, 255, 255) : kxStyle::getInactiveNodeColor()),
                  Qt::ForegroundRole);
    item->setCheckable(true);
    item->setData(enabled ? 2 : 0, Qt::CheckStateRole);
    item->setDropEnabled(isGroup);
    return item;
}

} // namespace

class tst_TreeDump : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteTheSameLineForTheSameTree();
    void shouldMarkStatesAndForeignIds();
    void shouldShowWhatARowMustNotShow();
    void shouldTellWhereTreesDiffer();
};

void tst_TreeDump::shouldWriteTheSameLineForTheSameTree()
{
    CallLog log;
    RecordingService service(&log);
    service.build("g2-(a3 b4-) c5");
    QStandardItemModel model;
    QStandardItem *group = makeRow("g2", 2, false, false, true);
    group->appendRow(makeRow("a3", 3, true, false, false));
    group->appendRow(makeRow("b4", 4, false, false, false));
    model.appendRow(group);
    model.appendRow(makeRow("c5", 5, true, true, false));
    QCOMPARE(dumpTree(model), QString("g2-(a3~ b4-) c5"));
    QCOMPARE(dumpTree(service), QString("g2-(a3~ b4-) c5"));
    QCOMPARE(treeDifference(model, service), QString());
    QCOMPARE(log.lines(), QStringList());
}

void tst_TreeDump::shouldMarkStatesAndForeignIds()
{
    QStandardItemModel model;
    model.appendRow(makeRow("a3", 7, true, true, false));
    model.appendRow(makeRow("b4", 4, false, true, false));
    QCOMPARE(dumpTree(model), QString("a3#7 b4-!active"));
}

void tst_TreeDump::shouldShowWhatARowMustNotShow()
{
    QStandardItemModel model;
    QStandardItem *wrong = makeRow("a3", 3, true, false, false);
    wrong->setData(QBrush(Qt::red), Qt::ForegroundRole);
    wrong->setEditable(false);
    model.appendRow(wrong);
    QStandardItem *typed = makeRow("b4", 4, true, true, false);
    typed->setData(QVariant::fromValue(Qt::Checked), Qt::CheckStateRole);
    model.appendRow(typed);
    QCOMPARE(dumpTree(model).left(16), QString("a3~!colour!flags"));
    QVERIFY(dumpTree(model).endsWith("!check"));
    model.insertRow(0);
    QVERIFY(dumpTree(model).startsWith("!null"));
}

void tst_TreeDump::shouldTellWhereTreesDiffer()
{
    CallLog log;
    RecordingService service(&log);
    service.build("a2 b3");
    QStandardItemModel model;
    model.appendRow(makeRow("a2", 2, true, true, false));
    model.appendRow(makeRow("x3", 3, true, true, false));
    QCOMPARE(treeDifference(model, service),
             QString("the tree differs from position 3 on\n   shown:  a2 x3\n   wanted: a2 b3"));
}

KX_TEST_MAIN(tst_TreeDump)
#include "tst_TreeDump.moc"

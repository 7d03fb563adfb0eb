// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"
#include "host/kxIconOptions.h"
#include "host/kxStyle.h"
#include "overlayeditor/model/kxOverlayItem.h"
#include "tests/overlayeditor/model/ModelTest.h"

#include <QBrush>
#include <QIcon>

namespace {

QImage iconNamed(const char *name, bool inactive)
{
    kxIconOptions options;
    options.setOption(2, inactive);
    options.setOption(4, false);
    return QIcon(kxIconManager::get(name, options)).pixmap(QSize(64, 64)).toImage();
}

QImage shownIcon(const QStandardItem &item)
{
    return item.data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(64, 64)).toImage();
}

} // namespace

class tst_kxOverlayItem : public ModelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldReadNothingWhenItIsAPrototype();
    void shouldReadTheNodeInTheStatedOrder();
    void shouldReadTheKindOfAGroupInTheStatedOrder();
    void shouldShowNameAndStates();
    void shouldBeOfTypeThousand();
    void shouldAcceptDropsUnlessItIsAnOverlay_data();
    void shouldAcceptDropsUnlessItIsAnOverlay();
    void shouldShowTheIconOfItsKind_data();
    void shouldShowTheIconOfItsKind();
    void shouldAskForTheOverlayFirst();
    void shouldColourItsNameByTheActiveState();
    void shouldStoreCheckStatesAsNumbers();
    void shouldLeaveANullEntryForANewId();
    void shouldKeepAnotherItemsEntry();
    void shouldKeepItsOwnEntryWhenItsIdIsSetAgain();
    void shouldEnterNothingForAnIdWithoutValue();
    void shouldEraseItsOwnEntryWhenDestroyed();
    void shouldLeaveOtherEntriesWhenDestroyed();
    void shouldCloneAllRolesAndFlagsWithoutAnEntry();
    void shouldAskNothingForOtherRoles();
};

void tst_kxOverlayItem::shouldReadNothingWhenItIsAPrototype()
{
    const QStringList calls = callsOf([] {
        const kxOverlayItem item;
        QVERIFY(!item.data(idRole).isValid());
        QVERIFY(!item.data(Qt::DisplayRole).isValid());
        QCOMPARE(item.type(), 1000);
    });
    QCOMPARE(calls, QStringList());
}

void tst_kxOverlayItem::shouldReadTheNodeInTheStatedOrder()
{
    service().build("a2");
    QCOMPARE(callsOf([] { const kxOverlayItem item(2); }),
             (QStringList{"getName 2", "isEnabled 2", "isOverlay 2", "isActive 2", "isOverlay 2"}));
}

void tst_kxOverlayItem::shouldReadTheKindOfAGroupInTheStatedOrder()
{
    service().build("g2()");
    QCOMPARE(callsOf([] { const kxOverlayItem item(2); }),
             (QStringList{"getName 2", "isEnabled 2", "isOverlay 2", "isActive 2", "isOverlay 2",
                          "isSwitch 2"}));
}

void tst_kxOverlayItem::shouldShowNameAndStates()
{
    service().build("g2-(a3)");
    const kxOverlayItem group(2);
    QCOMPARE(group.data(idRole).toUInt(), 2u);
    QCOMPARE(group.data(Qt::DisplayRole).toString(), QString("g2"));
    QCOMPARE(group.checkState(), Qt::Unchecked);
    QCOMPARE(group.data(activeRole), QVariant(false));
    const kxOverlayItem child(3);
    QCOMPARE(child.checkState(), Qt::Checked);
    QCOMPARE(child.data(activeRole), QVariant(false));
    service().node(2).enabled = true;
    QCOMPARE(kxOverlayItem(3).data(activeRole), QVariant(true));
}

void tst_kxOverlayItem::shouldBeOfTypeThousand()
{
    service().build("a2");
    QCOMPARE(kxOverlayItem(2).type(), 1000);
    QCOMPARE(kxOverlayItem().type(), 1000);
}

void tst_kxOverlayItem::shouldAcceptDropsUnlessItIsAnOverlay_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<bool>("accepts");
    QTest::newRow("overlay") << "a2" << false;
    QTest::newRow("group") << "a2()" << true;
    QTest::newRow("switch") << "a2*()" << true;
}

void tst_kxOverlayItem::shouldAcceptDropsUnlessItIsAnOverlay()
{
    QFETCH(QString, tree);
    QFETCH(bool, accepts);
    service().build(tree);
    const kxOverlayItem item(2);
    Qt::ItemFlags wanted = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable
                           | Qt::ItemIsDragEnabled | Qt::ItemIsUserCheckable;
    wanted.setFlag(Qt::ItemIsDropEnabled, accepts);
    QCOMPARE(item.flags(), wanted);
}

void tst_kxOverlayItem::shouldShowTheIconOfItsKind_data()
{
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QByteArray>("icon");
    QTest::newRow("overlay") << "a2" << QByteArray("scenegraph/Overlay");
    QTest::newRow("switch") << "a2*()" << QByteArray("scenegraph/Switch");
    QTest::newRow("group") << "a2()" << QByteArray("scenegraph/GroupNode");
}

void tst_kxOverlayItem::shouldShowTheIconOfItsKind()
{
    QFETCH(QString, tree);
    QFETCH(QByteArray, icon);
    service().build(tree);
    kxOverlayItem item(2);
    QVERIFY(!shownIcon(item).isNull());
    QCOMPARE(shownIcon(item), iconNamed(icon.constData(), false));
    item.setData(false, activeRole);
    QCOMPARE(shownIcon(item), iconNamed(icon.constData(), true));
    QVERIFY(iconNamed(icon.constData(), true) != iconNamed(icon.constData(), false));
    item.setData(true, activeRole);
    QCOMPARE(shownIcon(item), iconNamed(icon.constData(), false));
}

void tst_kxOverlayItem::shouldAskForTheOverlayFirst()
{
    service().build("a2");
    service().node(2).claimsToBeSwitch = true;
    const kxOverlayItem item(2);
    QCOMPARE(shownIcon(item), iconNamed("scenegraph/Overlay", false));
    QVERIFY(!item.isDropEnabled());
}

void tst_kxOverlayItem::shouldColourItsNameByTheActiveState()
{
    service().build("g2()");
    kxOverlayItem item(2);
    const QBrush active = item.data(Qt::ForegroundRole).value<QBrush>();
    QCOMPARE(active.color(), QColor(255, 255, 255, 255));
    QCOMPARE(active.style(), Qt::SolidPattern);
    item.setData(false, activeRole);
    const QBrush inactive = item.data(Qt::ForegroundRole).value<QBrush>();
    QCOMPARE(inactive.color(), kxStyle::getInactiveNodeColor());
    QCOMPARE(inactive.style(), Qt::SolidPattern);
    QCOMPARE(item.data(activeRole), QVariant(false));
}

void tst_kxOverlayItem::shouldStoreCheckStatesAsNumbers()
{
    service().build("a2 b3-");
    QCOMPARE(kxOverlayItem(2).data(Qt::CheckStateRole), QVariant(2));
    QCOMPARE(kxOverlayItem(3).data(Qt::CheckStateRole), QVariant(0));
    QCOMPARE(kxOverlayItem(2).data(Qt::CheckStateRole).type(), QVariant::Int);
    QVERIFY(kxOverlayItem(2).data(Qt::CheckStateRole).toBool());
}

void tst_kxOverlayItem::shouldLeaveANullEntryForANewId()
{
    service().build("a2");
    s_itemMap.clear();
    const kxOverlayItem item(2);
    QCOMPARE(s_itemMap.size(), size_t(1));
    QCOMPARE(s_itemMap.count(2), size_t(1));
    QCOMPARE(s_itemMap[2], nullptr);
}

void tst_kxOverlayItem::shouldKeepAnotherItemsEntry()
{
    service().build("a2");
    QStandardItem other;
    s_itemMap[2] = &other;
    {
        const kxOverlayItem item(2);
        QCOMPARE(s_itemMap[2], &other);
    }
    QCOMPARE(s_itemMap[2], &other);
    s_itemMap.clear();
}

void tst_kxOverlayItem::shouldKeepItsOwnEntryWhenItsIdIsSetAgain()
{
    service().build("a2");
    kxOverlayItem item(2);
    s_itemMap[2] = &item;
    item.setData(2u, idRole);
    QCOMPARE(s_itemMap[2], &item);
}

void tst_kxOverlayItem::shouldEnterNothingForAnIdWithoutValue()
{
    s_itemMap.clear();
    kxOverlayItem item;
    item.setData(QVariant(), idRole);
    QVERIFY(s_itemMap.empty());
}

void tst_kxOverlayItem::shouldEraseItsOwnEntryWhenDestroyed()
{
    service().build("a2");
    auto item = std::make_unique<kxOverlayItem>(2);
    s_itemMap[2] = item.get();
    item.reset();
    QCOMPARE(s_itemMap.count(2), size_t(0));
}

void tst_kxOverlayItem::shouldLeaveOtherEntriesWhenDestroyed()
{
    service().build("a2");
    kxOverlayItem shown(2);
    s_itemMap[2] = &shown;
    delete shown.clone();
    {
        const kxOverlayItem second(2);
    }
    QCOMPARE(s_itemMap[2], &shown);
    s_itemMap.clear();
    delete shown.clone();
    QCOMPARE(s_itemMap.count(2), size_t(1));
    QCOMPARE(s_itemMap[2], nullptr);
}

void tst_kxOverlayItem::shouldCloneAllRolesAndFlagsWithoutAnEntry()
{
    service().build("a2-");
    const kxOverlayItem item(2);
    s_itemMap.clear();
    std::unique_ptr<QStandardItem> copy;
    QCOMPARE(callsOf([&] { copy.reset(item.clone()); }), QStringList());
    QVERIFY(s_itemMap.empty());
    QVERIFY(dynamic_cast<kxOverlayItem *>(copy.get()));
    QCOMPARE(copy->flags(), item.flags());
    for (const int role : {int(Qt::DisplayRole), int(Qt::CheckStateRole), idRole, activeRole})
        QCOMPARE(copy->data(role), item.data(role));
    QCOMPARE(copy->data(Qt::ForegroundRole).value<QBrush>(),
             item.data(Qt::ForegroundRole).value<QBrush>());
}

void tst_kxOverlayItem::shouldAskNothingForOtherRoles()
{
    service().build("a2");
    kxOverlayItem item(2);
    const QStringList calls = callsOf([&item] {
        item.setData("x", Qt::DisplayRole);
        item.setData(0, Qt::CheckStateRole);
        item.setData("tip", Qt::ToolTipRole);
    });
    QCOMPARE(calls, QStringList());
    QCOMPARE(item.text(), QString("x"));
    QCOMPARE(item.checkState(), Qt::Unchecked);
}

KX_TEST_MAIN(tst_kxOverlayItem)
#include "tst_kxOverlayItem.moc"

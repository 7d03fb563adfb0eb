// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconOptions.h"
#include "host/kxShortcut.h"
#include "tests/support/KxTest.h"

class tst_kxShortcut : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void shouldKeepKeysInTheOrderOfRegistration();
    void shouldKeepWhatIsNoKey();
    void shouldGiveTheTextOfAKey_data();
    void shouldGiveTheTextOfAKey();
    void shouldKeepIconOptionsAsBits();
};

void tst_kxShortcut::cleanup()
{
    kxShortcut::clear();
    KxTest::cleanup();
}

void tst_kxShortcut::shouldKeepKeysInTheOrderOfRegistration()
{
    kxShortcut::addKey(QStringLiteral("B"), Qt::Key_G, Qt::ControlModifier, QStringLiteral("two"));
    kxShortcut::addKey(QStringLiteral("A"), Qt::Key_G, Qt::ControlModifier, QStringLiteral("one"));
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    QCOMPARE(keys.size(), 2);
    QCOMPARE(keys.at(0).category, QStringLiteral("B"));
    QCOMPARE(keys.at(1).description, QStringLiteral("one"));
    QCOMPARE(keys.at(1).key, int(Qt::Key_G));
    QCOMPARE(keys.at(1).modifiers, int(Qt::ControlModifier));
    kxShortcut::clear();
    QVERIFY(kxShortcut::registeredKeys().isEmpty());
}

void tst_kxShortcut::shouldKeepWhatIsNoKey()
{
    kxShortcut::addKey(QString(), 0, -1, QString());
    const QVector<kxShortcut::Entry> keys = kxShortcut::registeredKeys();
    QCOMPARE(keys.size(), 1);
    QCOMPARE(keys.first().key, 0);
    QCOMPARE(keys.first().modifiers, -1);
}

void tst_kxShortcut::shouldGiveTheTextOfAKey_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::newRow("letter") << int(Qt::Key_G) << int(Qt::ControlModifier)
                            << QStringLiteral("Ctrl+G");
    QTest::newRow("two modifiers") << int(Qt::Key_A) << int(Qt::ControlModifier | Qt::ShiftModifier)
                                   << QStringLiteral("Ctrl+Shift+A");
    QTest::newRow("a bit of the key") << int(Qt::Key_A) << 2 << QStringLiteral("C");
    QTest::newRow("none") << 0 << int(Qt::ControlModifier) << QString();
}

void tst_kxShortcut::shouldGiveTheTextOfAKey()
{
    QFETCH(int, key);
    QFETCH(int, modifiers);
    QFETCH(QString, text);
    QCOMPARE(kxShortcut::convertKey(key, modifiers, true), text);
    QCOMPARE(kxShortcut::convertKey(key, modifiers, false), text);
}

void tst_kxShortcut::shouldKeepIconOptionsAsBits()
{
    kxIconOptions options;
    QCOMPARE(options.bits(), 0u);
    options.setOption(2, true);
    options.setOption(4, true);
    QVERIFY(options.option(kxIconOptions::Inactive));
    QVERIFY(options.option(kxIconOptions::Highlighted));
    options.setOption(2, false);
    QVERIFY(!options.option(kxIconOptions::Inactive));
    QCOMPARE(options.bits(), 4u);
}

KX_TEST_MAIN(tst_kxShortcut)
#include "tst_kxShortcut.moc"

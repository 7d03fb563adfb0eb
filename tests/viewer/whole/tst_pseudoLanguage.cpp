// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/support/KxTest.h"
#include "tests/viewer/whole/ShownTexts.h"
#include "tests/viewer/whole/WholeViewer.h"

#include <QSet>

/// The whole viewer in a language in which every text can be told from an untranslated one. Run with
/// KX_LOCALE set to it.
class tst_pseudoLanguage : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldTellTranslatedTexts_data();
    void shouldTellTranslatedTexts();
    void shouldShowNoTextThatIsNotTranslated();
};

void tst_pseudoLanguage::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

void tst_pseudoLanguage::shouldTellTranslatedTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isTranslated");
    QTest::newRow("translated") << "[Ñåmé~]" << true;
    QTest::newRow("one within another") << "[Ûñdö [Çréåté \"1\"~~]~]" << true;
    QTest::newRow("key") << "[Çtrl~]+G" << true;
    QTest::newRow("unit") << " pt" << true;
    QTest::newRow("name of the user") << "night.json[*] - [Vîéwér~]" << true;
    QTest::newRow("endings of files") << "[Îmågéš~] (*.png *.jpg)" << true;
    QTest::newRow("not translated") << "Name" << false;
    QTest::newRow("half of it") << "[Îmågéš~] and more" << false;
    QTest::newRow("behind a key") << "&Name" << false;
}

void tst_pseudoLanguage::shouldTellTranslatedTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, isTranslated);
    QCOMPARE(shownTexts::untranslated(text, {"night.json"}).isEmpty(), isTranslated);
}

void tst_pseudoLanguage::shouldShowNoTextThatIsNotTranslated()
{
    QStringList faults;
    QSet<QString> seen;
    WholeViewer viewer;
    viewer.visitAll([&](const QWidget *window, const QString &what) {
        const QVector<shownTexts::Text> texts = shownTexts::of(window);
        for (const shownTexts::Text &text : texts) {
            if (seen.contains(text.text))
                continue;
            seen.insert(text.text);
            if (!shownTexts::untranslated(text.text, viewer.namesOfUser()).isEmpty())
                faults.append(QStringLiteral("%1 (%2): %3").arg(text.place, what, text.text));
        }
    });
    for (const QString &fault : qAsConst(faults))
        qInfo().noquote() << "not translated:" << fault;
    QCOMPARE(faults.size(), 0);
    QVERIFY2(seen.size() > 250, qPrintable(QString::number(seen.size())));
}

KX_TEST_MAIN(tst_pseudoLanguage)
#include "tst_pseudoLanguage.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/Language.h"

#include "host/QKXDoubleSpiner.h"
#include "tests/support/KxTest.h"

#include <QTemporaryDir>

using viewer::Language;

/// The choice of catalogues and what they do to texts and numbers, with the catalogues of the build.
class tst_Language : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldFindTheCataloguesOfALocale_data();
    void shouldFindTheCataloguesOfALocale();
    void shouldTranslateAllParts_data();
    void shouldTranslateAllParts();
    void shouldTellOneFromMany_data();
    void shouldTellOneFromMany();
    void shouldLeaveNothingBehind();
    void shouldTakeTheCatalogueOfAModule();
    void shouldReadNumbersAsItWritesThem();
    void shouldReadItsOptionBeforeTheOthers();
    void shouldKnowWhatCanBeALocale_data();
    void shouldKnowWhatCanBeALocale();
};

void tst_Language::shouldFindTheCataloguesOfALocale_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("name");
    const QStringList pairs = {"de de",      "de_DE de",    "de-AT de",    "de_CH de",
                               "zh zh_CN",   "zh_CN zh_CN", "zh_SG zh_CN", "zh_TW en",
                               "zh_Hant en", "en en",       "en_GB en",    "fr en"};
    for (const QString &pair : pairs) {
        QTest::newRow(qPrintable(pair)) << pair.section(' ', 0, 0) << pair.section(' ', 1, 1);
    }
}

void tst_Language::shouldFindTheCataloguesOfALocale()
{
    QFETCH(QString, wanted);
    QTEST(Language(wanted, Language::standardFolders()).name(), "name");
}

void tst_Language::shouldTranslateAllParts_data()
{
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("german");
    QTest::newRow("viewer") << QByteArray("viewer::MainWindow") << QByteArray("&File") << "&Datei";
    QTest::newRow("library") << QByteArray("QKXSearchBox") << QByteArray("Search") << "Suchen";
    QTest::newRow("module") << QByteArray("kxOverlayEditorGUI") << QByteArray("Size") << "Größe";
    QTest::newRow("toolkit") << QByteArray("QPlatformTheme") << QByteArray("Cancel") << "Abbrechen";
}

void tst_Language::shouldTranslateAllParts()
{
    QFETCH(QByteArray, context);
    QFETCH(QByteArray, source);
    const Language german("de", Language::standardFolders());
    QTEST(QCoreApplication::translate(context, source), "german");
}

void tst_Language::shouldTellOneFromMany_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("many");
    QTest::newRow("English") << "en"
                             << "... and 1 more"
                             << "... and 7 more";
    QTest::newRow("German") << "de"
                            << "… und 1 weiterer"
                            << "… und 7 weitere";
    QTest::newRow("Chinese") << "zh_CN"
                             << "……以及另外 1 项"
                             << "……以及另外 7 项";
}

void tst_Language::shouldTellOneFromMany()
{
    QFETCH(QString, locale);
    const Language language(locale, Language::standardFolders());
    const auto text = [](int count) {
        return QCoreApplication::translate("viewer::SceneDocument", "... and %n more", nullptr,
                                           count);
    };
    QTEST(text(1), "one");
    QTEST(text(7), "many");
}

void tst_Language::shouldLeaveNothingBehind()
{
    const QLocale before;
    {
        const Language german("de", Language::standardFolders());
        QCOMPARE(QLocale().language(), QLocale::German);
    }
    QCOMPARE(QLocale(), before);
    QCOMPARE(QCoreApplication::translate("viewer::MainWindow", "&File"), QString("&File"));
}

void tst_Language::shouldTakeTheCatalogueOfAModule()
{
    const QTemporaryDir folder;
    const QString source =
        QCoreApplication::applicationDirPath() + "/translations/overlayeditor_de.qm";
    QVERIFY(QFile::copy(source, folder.filePath("other_de.qm")));
    QVERIFY(QFile::copy(source, folder.filePath("other_zh_CN.qm")));
    Language german("de", {});
    QCOMPARE(german.name(), QString("en"));
    const auto text = [] { return QCoreApplication::translate("kxOverlayEditorGUI", "Size"); };
    Language withoutModule("de", {folder.filePath("none")});
    withoutModule.addFolder(folder.path());
    QCOMPARE(text(), QString("Size"));
    QVERIFY(QFile::copy(source, folder.filePath("overlay-viewer_de.qm")));
    Language withModule("de", {folder.path()});
    QCOMPARE(text(), QString("Größe"));
}

/// A comma for a point must reach the value as one, whichever of the two is typed.
void tst_Language::shouldReadNumbersAsItWritesThem()
{
    const Language german("de", Language::standardFolders());
    QKXDoubleSpiner field;
    field.setRange(-100000, 100000);
    field.setValue(1234.5);
    QCOMPARE(field.text(), QString("1234,5"));
    for (const char *const typed : {"12,75", "12.75"}) {
        field.setValue(0);
        field.selectAll();
        QTest::keyClicks(&field, typed);
        QTest::keyClick(&field, Qt::Key_Return);
        QCOMPARE(field.value(), 12.75);
        QCOMPARE(field.text(), QString("12,75"));
    }
}

void tst_Language::shouldReadItsOptionBeforeTheOthers()
{
    QCOMPARE(Language::wantedBy({"viewer", "a.json", "--locale", "de"}), QString("de"));
    QCOMPARE(Language::wantedBy({"viewer", "--locale=zh_CN", "a.json"}), QString("zh_CN"));
    QCOMPARE(Language::wantedBy({"viewer", "a.json"}), QString());
    QCOMPARE(Language::wantedBy({"viewer", "--locale"}), QString());
    QCOMPARE(Language::wantedBy({"--locale", "a.json"}), QString());
}

void tst_Language::shouldKnowWhatCanBeALocale_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("can");
    for (const char *name : {"de", "zh_CN", "zh-Hans-CN", "en_XA", "fr"})
        QTest::newRow(name) << name << true;
    for (const char *name : {"", "C", "german", "a.json", "--help", "q1", "zz"})
        QTest::newRow(name) << name << false;
}

void tst_Language::shouldKnowWhatCanBeALocale()
{
    QFETCH(QString, name);
    QTEST(Language::isName(name), "can");
}

KX_TEST_MAIN(tst_Language)
#include "tst_Language.moc"

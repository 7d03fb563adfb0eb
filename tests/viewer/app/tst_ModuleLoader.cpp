// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ModuleLoader.h"

#include "tests/support/KxTest.h"

#include <QLibrary>
#include <QTemporaryDir>

using viewer::ModuleLoader;

class tst_ModuleLoader : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameFileAndReason_data();
    void shouldNameFileAndReason();
    void shouldCallTheEntry();
    void shouldFindAFileBesideTheWorkingFolder();
    void shouldSurviveAModuleThatThrows();
    void shouldSurviveAModuleThatThrowsSomethingElse();
    void shouldRefuseAModuleThatMissesAFunction();
    void shouldLookForTheEditorBesideTheExecutable();

private:
    QString write(const QByteArray &content);

    QTemporaryDir m_folder;
};

namespace {

int callsOf(const QString &file)
{
    const auto calls = reinterpret_cast<int (*)()>(QLibrary(file).resolve("callsOfInitPlugin"));
    return calls ? calls() : -1;
}

} // namespace

QString tst_ModuleLoader::write(const QByteArray &content)
{
    QString path = m_folder.filePath(QStringLiteral("text.so"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return path;
}

void tst_ModuleLoader::shouldNameFileAndReason_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << m_folder.filePath("missing.so") << "no such file";
    QTest::newRow("a folder") << m_folder.path() << "no such file";
    QTest::newRow("no library") << write("hello, I am a text\n") << "cannot be loaded";
    QTest::newRow("empty") << write(QByteArray()) << "cannot be loaded";
    QTest::newRow("no entry") << QStringLiteral(PLUGIN_WITHOUT_ENTRY)
                              << "it has no entry \"initPlugin\"";
}

void tst_ModuleLoader::shouldNameFileAndReason()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    const QString fault = ModuleLoader::load(file);
    QVERIFY2(fault.contains(file), qPrintable(fault));
    QVERIFY2(fault.contains(reason), qPrintable(fault));
}

void tst_ModuleLoader::shouldCallTheEntry()
{
    const QString file = QStringLiteral(PLUGIN_COUNTING);
    QCOMPARE(ModuleLoader::load(file), QString());
    QCOMPARE(callsOf(file), 1);
    QCOMPARE(ModuleLoader::load(file), QString());
    QCOMPARE(callsOf(file), 2);
}

void tst_ModuleLoader::shouldFindAFileBesideTheWorkingFolder()
{
    const QFileInfo plugin(QStringLiteral(PLUGIN_COUNTING));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(plugin.path()));
    const QString fault = ModuleLoader::load(plugin.fileName());
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(fault, QString());
}

void tst_ModuleLoader::shouldSurviveAModuleThatThrows()
{
    const QString file = QStringLiteral(PLUGIN_THROWING);
    const QString fault = ModuleLoader::load(file);
    QVERIFY2(fault.contains(file) && fault.contains("no room for me"), qPrintable(fault));
}

void tst_ModuleLoader::shouldSurviveAModuleThatThrowsSomethingElse()
{
    const QString file = QStringLiteral(PLUGIN_THROWING_A_NUMBER);
    const QString fault = ModuleLoader::load(file);
    QVERIFY2(fault.contains(file) && fault.contains("failed to start"), qPrintable(fault));
}

void tst_ModuleLoader::shouldRefuseAModuleThatMissesAFunction()
{
    const QString file = QStringLiteral(PLUGIN_UNRESOLVED);
    const QString fault = ModuleLoader::load(file);
    QVERIFY2(fault.contains(file) && fault.contains("functionOfAnotherHost"), qPrintable(fault));
}

void tst_ModuleLoader::shouldLookForTheEditorBesideTheExecutable()
{
    QCOMPARE(ModuleLoader::defaultPlugin(),
             QCoreApplication::applicationDirPath() + "/overlayeditor.so");
}

KX_TEST_MAIN(tst_ModuleLoader)
#include "tst_ModuleLoader.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptOperations.h"

#include "tests/support/KxTest.h"
#include "tests/viewer/scene/SceneText.h"
#include "viewer/script/ScriptRun.h"

#include <QMetaMethod>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace viewer;

/// What the host interface has, what scripts are offered, and what the document lists: the same.
class tst_scriptReference : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldOfferEveryOperationOfTheInterface();
    void shouldOfferEverySignalOfTheInterface();
    void shouldListAllThatIsOffered();
    void shouldListNothingElse();
    void shouldShowAnExampleOfEach();
    void shouldShowExamplesThatRun();
};

namespace {

QString contentOf(const char *path)
{
    QFile file(QString::fromLocal8Bit(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// All that a pattern captures, sorted.
QStringList captures(const QString &pattern, const QString &text)
{
    QStringList found;
    auto match = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (match.hasNext())
        found += match.next().captured(1);
    found.sort();
    return found;
}

QStringList offeredBy(const char *object)
{
    QStringList names;
    for (const ScriptOperation &operation : scriptOperations()) {
        if (qstrcmp(operation.signature.object, object) == 0)
            names += operation.signature.name;
    }
    names.sort();
    return names;
}

QStringList offeredSignals()
{
    QStringList names;
    for (const ScriptSignal &signal : scriptSignals())
        names += signal.name;
    names.sort();
    return names;
}

/// The calls in the headings of the document, such as "overlays.setName(nodes, name)".
QStringList headings()
{
    return captures("^### `([^`]+)`", contentOf(SCRIPTING_DOCUMENT));
}

QStringList allThatIsOffered()
{
    QStringList all{"print(value, …)", "readText(path)"};
    for (const ScriptOperation &operation : scriptOperations())
        all += operation.signature.full();
    const QMetaObject &service = kxOverlayService::staticMetaObject;
    for (int i = service.methodOffset(); i < service.methodCount(); ++i) {
        const QList<QByteArray> names = service.method(i).parameterNames();
        all += QString("overlays.%1 (%2)").arg(service.method(i).name(), names.join(", "));
    }
    all.sort();
    return all;
}

} // namespace

void tst_scriptReference::shouldOfferEveryOperationOfTheInterface()
{
    const QStringList declared =
        captures(R"(^    virtual [\w:]+ (\w+)\()", contentOf(SERVICE_HEADER));
    QVERIFY(declared.size() > 40);
    QCOMPARE(offeredBy("overlays"), declared);
}

void tst_scriptReference::shouldOfferEverySignalOfTheInterface()
{
    QStringList declared;
    const QMetaObject &service = kxOverlayService::staticMetaObject;
    for (int i = service.methodOffset(); i < service.methodCount(); ++i)
        declared += service.method(i).name();
    declared.sort();
    QVERIFY(declared.size() > 15);
    QCOMPARE(offeredSignals(), declared);
}

void tst_scriptReference::shouldListAllThatIsOffered()
{
    const QStringList listed = headings();
    const QStringList offered = allThatIsOffered();
    for (const QString &call : offered)
        QVERIFY2(listed.contains(call), qPrintable(call));
}

void tst_scriptReference::shouldListNothingElse()
{
    const QStringList listed = headings();
    const QStringList offered = allThatIsOffered();
    for (const QString &call : listed)
        QVERIFY2(offered.contains(call), qPrintable(call));
    QCOMPARE(listed.size(), offered.size());
}

void tst_scriptReference::shouldShowAnExampleOfEach()
{
    const QStringList sections = contentOf(SCRIPTING_DOCUMENT).split("\n### `").mid(1);
    QVERIFY(sections.size() > 60);
    static const QRegularExpression callEnd("[ (]");
    for (const QString &section : sections) {
        const QString call = section.left(section.indexOf(callEnd));
        const QString code = section.section("```js", 1, 1).section("```", 0, 0);
        QVERIFY2(code.contains(call), qPrintable(call));
    }
}

void tst_scriptReference::shouldShowExamplesThatRun()
{
    const QTemporaryDir folder;
    const auto write = [&folder](const char *name, const QString &content) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(content.toUtf8()) > 0;
    };
    QVERIFY(write("names.csv", "Ada\nGrace\n"));
    const QStringList code = contentOf(SCRIPTING_DOCUMENT).split("```js");
    static const QRegularExpression printedComment("print\\(.*\\); // (.*)\n");
    const QString names = code.at(2).section("```", 0, 0);
    for (int i = 1; i < code.size(); ++i) {
        OverlayService service;
        service.setScene(scenetext::build("Title Logo Panel(Note) Choice{One Two-}"));
        service.setOverlayType(scenetext::ids(service.scene(), "Logo"), 1);
        const QString example = code.at(i).section("```", 0, 0);
        QVERIFY(write("example.js", i > 2 ? names + example : example));
        QStringList printed;
        ScriptRun run(
            &service, [](const std::function<void()> &work) { work(); },
            [&printed](const QString &text) { printed += text; });
        const ScriptOutcome outcome = run.run(folder.filePath("example.js"));
        QVERIFY2(outcome.text.isEmpty(), qPrintable(outcome.text + example));
        // What an example says that it prints.
        const QString expected = printedComment.match(example).captured(1);
        if (!expected.isEmpty())
            QCOMPARE(printed.value(0), expected);
    }
}

KX_TEST_MAIN(tst_scriptReference)
#include "tst_scriptReference.moc"

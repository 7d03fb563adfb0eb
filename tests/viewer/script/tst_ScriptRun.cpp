// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/ScriptRun.h"

#include "tests/viewer/scene/ServiceTest.h"
#include "viewer/script/ScriptOperations.h"
#include "viewer/script/ScriptSource.h"

#include <QTemporaryDir>

#include <thread>

using namespace viewer;
using End = ScriptOutcome::End;

/// Scripts, from the file to what they leave in the scene and tell the user.
class tst_ScriptRun : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldCallOperations_data();
    void shouldCallOperations();
    void shouldSayWhatWasExpected_data();
    void shouldSayWhatWasExpected();
    void shouldNameTheLineOfAFault_data();
    void shouldNameTheLineOfAFault();
    void shouldMakeOneNamedStep();
    void shouldLeaveTheSceneAsItWasWhenItFails();
    void shouldTakeItsOwnStepsBackAndForth();
    void shouldCallHandlersWhenTheOperationIsOver();
    void shouldLetHandlersCallOperationsAndThrow();
    void shouldHearEverySignal();
    void shouldReadTextBesideTheScriptOnly_data();
    void shouldReadTextBesideTheScriptOnly();
    void shouldRefuseWhatIsNoScript();
    void shouldBeInterruptible();
    void shouldTakeIdsOfARecordedRun();
    void shouldKeepWhatItOffersAsItIs();
    void shouldRunOnAThreadOfItsOwn();

private:
    ScriptOutcome run(const QByteArray &script);
    QString path(const char *name = "titles.js") const
    {
        return m_folder.filePath(QLatin1String(name));
    }
    void write(const char *name, const QByteArray &content);

    QTemporaryDir m_folder;
    QStringList m_printed;
};

namespace {

void atOnce(const std::function<void()> &work)
{
    work();
}

} // namespace

void tst_ScriptRun::write(const char *name, const QByteArray &content)
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

ScriptOutcome tst_ScriptRun::run(const QByteArray &script)
{
    write("titles.js", script);
    m_printed.clear();
    ScriptRun run(&service(), atOnce, [this](const QString &text) { m_printed += text; });
    return run.run(path());
}

void tst_ScriptRun::shouldCallOperations_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *script, const QString &result) {
        QTest::newRow(script) << QByteArray(script) << result;
    };
    row("overlays.getRootNode()", "1");
    row("overlays.getParent(b) === g && overlays.getChildCount(g)", "2");
    row("overlays.getChild(g, 1) === c && overlays.getChildIndex(g, c)", "1");
    row("[overlays.isOverlay(a), overlays.isSwitch(s), overlays.isSwitch(g)]", "true,true,false");
    row("overlays.getName(s)", "s");
    row("[overlays.isEnabled(c), overlays.isActive(b)]", "false,true");
    row("[overlays.getText(999), overlays.getChild(g, 7), overlays.getFontColor(g)]", ",0,");
    row("overlays.setName([a, g], 'Ä \"x\"'); overlays.getName(a)", "Ä \"x\"");
    row("overlays.setText([a], 'x\\ny'); overlays.getText(a)", "x\ny");
    row("overlays.setFont([a], 'Serif'); overlays.getFont(a)", "Serif");
    row("overlays.setEnabled([c], true); overlays.isEnabled(c)", "true");
    row("overlays.setFontColor([a], '#ff8000'); overlays.getFontColor(a)", "#ff8000");
    row("overlays.setBackgroundColor([a], '#80FF8000'); overlays.getBackgroundColor(a)",
        "#80ff8000");
    row("overlays.setBackgroundTransparency([a], null); overlays.getBackgroundTransparency(a)",
        "null");
    row("overlays.setImage([a], '/x.png'); overlays.getImage(a)", "/x.png");
    row("[overlays.getOverlayType(a), overlays.getSizeType(a)]", "text,absolute");
    row("overlays.setOverlayType([a], 'image'); overlays.getOverlayType(a)", "image");
    row("overlays.setOverlayType([a], 1); overlays.setOverlayType([a], 'text'); "
        "overlays.getOverlayType(a)",
        "text");
    row("overlays.getParent(root) === 0 && overlays.getName(0)", "");
    row("overlays.setOverlayType([a], 7); overlays.getOverlayType(a)", "7");
    row("overlays.setSizeType([a], 'relative'); overlays.getSizeType(a)", "relative");
    row("overlays.setSize([a], 0.1); overlays.getSize(a)", "0.1");
    row("overlays.setSize([a], NaN); overlays.getSize(a)", "NaN");
    row("overlays.setPosition([a], {x: 0.25, y: 1}); JSON.stringify(overlays.getPosition(a))",
        R"({"x":0.25,"y":1})");
    row("overlays.setOffset([a], {x: 1, y: 2}); overlays.setOffsetX([a], 3);"
        "overlays.setOffsetY([a], 4); JSON.stringify(overlays.getOffset(a))",
        R"({"x":3,"y":4})");
    row("overlays.getName(overlays.createOverlay(g))", "Text 1");
    row("overlays.getName(overlays.createGroup(1))", "Group 1");
    row("overlays.getName(overlays.createSwitch(1))", "Switch 1");
    row("overlays.createOverlay(a)", "0");
    row("overlays.duplicateNodes([a]); overlays.getName(overlays.getChild(1, 1))", "a Copy");
    row("overlays.deleteNodes([b, c]); overlays.getChildCount(g)", "0");
    row("overlays.groupNodes([a]); overlays.getName(overlays.getChild(1, 0))", "Group 1");
    row("overlays.moveNodes([a], g, 1); overlays.getChild(g, 1) === a", "true");
}

void tst_ScriptRun::shouldCallOperations()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, result);
    open("a g(b c-) s{}");
    const int last = script.lastIndexOf("; ") + 1;
    const QByteArray named = "const root = overlays.getRootNode(), a = overlays.getChild(root, 0);"
                             "const g = overlays.getChild(root, 1), b = overlays.getChild(g, 0);"
                             "const c = overlays.getChild(g, 1), s = overlays.getChild(root, 2);";
    const ScriptOutcome outcome =
        run(named + script.left(last) + "print(" + script.mid(last) + ")");
    QCOMPARE(outcome.text, QString());
    QCOMPARE(m_printed, QStringList(result));
}

void tst_ScriptRun::shouldSayWhatWasExpected_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("expectation");
    const auto row = [](const char *script, const QString &expectation) {
        QTest::newRow(script) << QByteArray(script) << expectation;
    };
    row("overlays.setText([1])", "overlays.setText(nodes, text) was called with 1");
    row("overlays.getRootNode(1)", "overlays.getRootNode() was called with 1");
    row("overlays.getName('a')",
        "overlays.getName(): \"node\" must be the id of a node, which is a whole number");
    row("overlays.getName(1.5)", "id of a node");
    row("overlays.getName(-1)", "id of a node");
    row("overlays.getName(4294967296)", "id of a node");
    row("overlays.getName(null)", "id of a node");
    row("overlays.deleteNodes(1)", "\"nodes\" must be an array with the ids of nodes");
    row("overlays.deleteNodes([1, 'x'])", "\"nodes\" must be an array with the ids of nodes");
    row("overlays.deleteNodes([1, -11, 2])", "\"nodes\" must be an array with the ids of nodes");
    row("overlays.getChild(1, 0.5)", "\"index\" must be a whole number");
    row("overlays.getChild(1, 4294967295)", "\"index\" must be a whole number");
    row("overlays.setName([1], 5)", "\"name\" must be a string");
    row("overlays.setEnabled([1], 1)", "\"enabled\" must be true or false");
    row("overlays.setFontColor([1], 'red')", "\"color\" must be a colour");
    row("overlays.setFontColor([1], '#12345')", R"("#rrggbb" or "#aarrggbb")");
    row("overlays.setFontColor([1])", "(nodes, color)");
    row("overlays.setSize([1], '5')", "\"size\" must be a number");
    row("overlays.setPosition([1], [0, 1])", "\"position\" must be a point");
    row("overlays.setOffset([1], {x: 1})", "{x: 0.5, y: 1}");
    row("overlays.setOverlayType([1], 'picture')", R"("type" must be one of "text", "image")");
    row("overlays.setSizeType([1], true)", R"(one of "absolute", "relative")");
    row("overlays.nodesAdded.connect(5)", "overlays.nodesAdded.connect(handler) takes a function");
    row("readText()", "readText(path) takes one string");
}

void tst_ScriptRun::shouldSayWhatWasExpected()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, expectation);
    open("a");
    const ScriptOutcome outcome = run("overlays.setName([2], 'changed')\n" + script);
    QCOMPARE(outcome.end, End::Failed);
    QVERIFY2(outcome.text.contains(expectation), qPrintable(outcome.text));
    QVERIFY2(outcome.text.contains("titles.js:2: TypeError: "), qPrintable(outcome.text));
}

void tst_ScriptRun::shouldNameTheLineOfAFault_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *script, const QString &text) {
        QTest::newRow(script) << QByteArray(script) << text;
    };
    row("\nlet x = ;", ":2: SyntaxError: ");
    row("if (true) {\n", ":3: SyntaxError: ");
    row("\n\nnothing.at.all", ":3: ReferenceError: nothing is not defined");
    row("function f() {\n throw new Error('no') }\n\nf()", ":2: Error: no");
    row("\n[1].forEach(() =>\n overlays.getName())", ":3: TypeError: ");
    row("throw 'just a text'", "titles.js: just a text");
    row("throw undefined", "titles.js: undefined");
    row("function f() { f() } f()", ":1: RangeError: ");
    row("\nPromise.resolve()", ":2: ReferenceError: Promise is not defined");
}

void tst_ScriptRun::shouldNameTheLineOfAFault()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, text);
    open("a");
    const ScriptOutcome outcome = run(script);
    QCOMPARE(outcome.end, End::Failed);
    QVERIFY2(outcome.text.startsWith(path()), qPrintable(outcome.text));
    QVERIFY2(outcome.text.contains(text), qPrintable(outcome.text));
}

void tst_ScriptRun::shouldMakeOneNamedStep()
{
    open("a");
    QCOMPARE(run("for (let i = 0; i < 3; ++i) overlays.createOverlay(1);\n"
                 "overlays.deleteNodes([2])")
                 .text,
             QString());
    QCOMPARE(dump(), QString("Text 1 Text 2 Text 3"));
    QCOMPARE(service().history().stack()->undoText(), QString("Run titles.js"));
    service().undo();
    QCOMPARE(dump(), QString("a"));
    QVERIFY(!service().history().stack()->canUndo());
    QCOMPARE(run("overlays.getName(2)").end, End::Done);
    QVERIFY(service().history().stack()->canRedo());
}

void tst_ScriptRun::shouldLeaveTheSceneAsItWasWhenItFails()
{
    open("a g(b)");
    service().setName(ids("a"), "c");
    service().undo();
    QCOMPARE(run("overlays.deleteNodes([2]); history.begin(); overlays.createOverlay(1);\n"
                 "overlays.getName()")
                 .end,
             End::Failed);
    QCOMPARE(dump(), QString("a g(b)"));
    service().redo();
    QCOMPARE(dump(), QString("c g(b)"));
}

void tst_ScriptRun::shouldTakeItsOwnStepsBackAndForth()
{
    open("a");
    service().setName(ids("a"), "b");
    QCOMPARE(run("print(history.undo(), history.redo(), history.end(), history.cancel());\n"
                 "overlays.setName([2], 'c'); overlays.setName([2], 'd');\n"
                 "print(history.undo(), overlays.getName(2), history.redo());\n"
                 "history.begin(); overlays.setName([2], 'e'); overlays.setText([2], 'e');\n"
                 "print(history.end()); history.undo(); print(overlays.getName(2));\n"
                 "overlays.setSize([2], 1); history.join(); overlays.setSize([2], 2);\n"
                 "history.undo(); print(overlays.getSize(2));\n"
                 "history.begin(); overlays.deleteNodes([2]); print(history.cancel());\n"
                 "history.begin(); overlays.setSize([2], 5)")
                 .text,
             QString());
    QCOMPARE(m_printed,
             QStringList({"false false false false", "true c true", "true", "d", "24", "true"}));
    QCOMPARE(dump(), QString("d"));
    QCOMPARE(service().getSize(id("d")), 5.0F);
    service().undo();
    QCOMPARE(dump(), QString("b"));
}

void tst_ScriptRun::shouldCallHandlersWhenTheOperationIsOver()
{
    open("a b");
    QCOMPARE(run("const note = nodes => print('added', nodes, overlays.getName(nodes[0]));\n"
                 "overlays.nodesAdded.connect(note);\n"
                 "overlays.nodesMoved.connect((n, p, s) => print('moved', n, p, s));\n"
                 "overlays.groupNodes([3]);\n"
                 "print(overlays.nodesAdded.disconnect(note), "
                 "overlays.nodesAdded.disconnect(note));\n"
                 "overlays.createOverlay(1)")
                 .text,
             QString());
    QCOMPARE(m_printed, QStringList({"added 4 Group 1", "moved 3 4 0", "true false"}));
}

void tst_ScriptRun::shouldLetHandlersCallOperationsAndThrow()
{
    open("a");
    const ScriptOutcome outcome =
        run("overlays.nameChanged.connect(n => { print(overlays.getName(2));\n"
            "  if (overlays.getName(2).length < 3) overlays.setName([2], overlays.getName(2) + "
            "'x');\n"
            "  else throw new Error('long') });\n"
            "overlays.setName([2], 'x')");
    QCOMPARE(m_printed, QStringList({"x", "xx", "xxx"}));
    QVERIFY2(outcome.text.endsWith(":3: Error: long"), qPrintable(outcome.text));
    QCOMPARE(dump(), QString("a"));
}

void tst_ScriptRun::shouldHearEverySignal()
{
    open("a b");
    QByteArray script;
    for (const ScriptSignal &signal : scriptSignals())
        script += QByteArray("overlays.NAME.connect((...lists) => print('NAME', lists));\n")
                      .replace("NAME", signal.name);
    write("titles.js", script + "overlays.setName([2], 'c')");
    // Each signal is sent while the script waits for its operation, each with a node of its own.
    connect(&service(), &kxOverlayService::nameChanged, this, [this] {
        QRPC::NodeId node = 100;
        for (const ScriptSignal &signal : scriptSignals()) {
            const QRPC::NodeList list{node++};
            if (qstrcmp(signal.name, "nodesMoved") == 0)
                emit service().nodesMoved(list, {1}, {0});
            else if (qstrcmp(signal.name, "modelReset") == 0)
                emit service().modelReset();
            else if (qstrcmp(signal.name, "nameChanged") != 0)
                QMetaObject::invokeMethod(&service(), signal.name, Qt::DirectConnection,
                                          Q_ARG(QRPC::NodeList, list));
        }
    });
    QStringList printed;
    ScriptRun run(&service(), atOnce, [&printed](const QString &text) { printed += text; });
    QCOMPARE(run.run(path()).text, QString());
    disconnect(&service(), &kxOverlayService::nameChanged, this, nullptr);
    int node = 100;
    for (const ScriptSignal &signal : scriptSignals()) {
        const QString name = signal.name;
        const QString lists = name == "nodesMoved"    ? QString("%1,1,0").arg(node)
                              : name == "modelReset"  ? QString()
                              : name == "nameChanged" ? QString("2")
                                                      : QString::number(node);
        QVERIFY2(printed.contains(name + ' ' + lists), signal.name);
        ++node;
    }
    QCOMPARE(printed.size(), int(scriptSignals().size()));
}

void tst_ScriptRun::shouldReadTextBesideTheScriptOnly_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("answer");
    QTest::newRow("beside") << "names.txt"
                            << "Ä\n";
    QTest::newRow("below") << "sub/../names.txt"
                           << "Ä\n";
    QTest::newRow("above") << "../names.txt"
                           << "There is no file";
    QTest::newRow("elsewhere") << "/etc/passwd"
                               << "does not lie in the script's folder";
    QTest::newRow("by a link") << "link"
                               << "does not lie in the script's folder";
    QTest::newRow("a device") << "/dev/zero"
                              << "does not lie in the script's folder";
    QTest::newRow("a folder") << "sub"
                              << "There is no file";
    QTest::newRow("missing") << "none.txt"
                             << "There is no file";
    QTest::newRow("no text") << "bytes"
                             << "is no text in UTF-8";
    QTest::newRow("huge") << "huge"
                          << "is too large: 16 MB can be read";
}

void tst_ScriptRun::shouldReadTextBesideTheScriptOnly()
{
    QFETCH(QString, file);
    QFETCH(QString, answer);
    open("a");
    write("names.txt", "Ä\n");
    write("bytes", "\xff\xfe\x80");
    QDir(m_folder.path()).mkdir("sub");
    QFile::link("/etc/passwd", path("link"));
    QVERIFY(QFile(path("huge")).open(QIODevice::WriteOnly));
    QVERIFY(QFile::resize(path("huge"), ScriptSource::LargestFile + 1));
    const ScriptOutcome outcome = run("print(readText('" + file.toUtf8() + "'))");
    const QString told = outcome.text.isEmpty() ? m_printed.value(0) : outcome.text;
    QVERIFY2(told.contains(answer), qPrintable(told));
}

void tst_ScriptRun::shouldRefuseWhatIsNoScript()
{
    open("a");
    ScriptRun missing(&service(), atOnce, {});
    const ScriptOutcome outcome = missing.run(path("none.js"));
    QCOMPARE(outcome.end, End::Failed);
    QVERIFY2(outcome.text.contains("none.js"), qPrintable(outcome.text));
    QVERIFY(!service().history().stack()->canUndo());
    write("largest.js", QByteArray(int(ScriptSource::LargestFile), ' '));
    ScriptRun largest(&service(), atOnce, {});
    QCOMPARE(largest.run(path("largest.js")).end, End::Done);
    ScriptRun device(&service(), atOnce, {});
    QCOMPARE(device.run("/dev/zero").end, End::Failed);
}

void tst_ScriptRun::shouldBeInterruptible()
{
    open("a");
    write("titles.js", "overlays.setName([2], 'b'); print('on');\n"
                       "try { while (true); } finally { while (true); }");
    std::thread interrupter;
    ScriptRun endless(&service(), atOnce, [&](const QString &) {
        interrupter = std::thread([&endless] { endless.interrupt(); });
    });
    const ScriptOutcome outcome = endless.run(path());
    interrupter.join();
    QCOMPARE(outcome.end, End::Interrupted);
    QVERIFY2(outcome.text.contains("titles.js\" was interrupted"), qPrintable(outcome.text));
    QCOMPARE(dump(), QString("a"));

    ScriptRun early(&service(), atOnce, {});
    early.interrupt();
    QCOMPARE(early.run(path()).end, End::Interrupted);
}

void tst_ScriptRun::shouldTakeIdsOfARecordedRun()
{
    open("a b");
    QCOMPARE(run("history.recordedAt(104);\n"
                 "overlays.nodesCreated.connect(n => print(n));\n"
                 "overlays.setName([102], 'x');\n"
                 "print(overlays.createOverlay(1), overlays.getName(103), overlays.getParent(103), "
                 "overlays.getName(2), overlays.getName(4294967295))")
                 .text,
             QString());
    QCOMPARE(m_printed, QStringList({"104", "104 b 1  "}));
    QCOMPARE(dump(), QString("x b Text 1"));
}

void tst_ScriptRun::shouldKeepWhatItOffersAsItIs()
{
    open("a");
    QCOMPARE(run("overlays = 5; overlays.getName = 5; Array.prototype.slice = 5; Error = 5;\n"
                 "print(overlays.getName(2))")
                 .text,
             QString());
    QCOMPARE(m_printed, QStringList("a"));
    QCOMPARE(run("print(overlays.getName(2))").text, QString());
    QCOMPARE(m_printed, QStringList("a"));
}

void tst_ScriptRun::shouldRunOnAThreadOfItsOwn()
{
    open("a");
    write("titles.js", "overlays.nameChanged.connect(n => print(overlays.getName(n[0])));\n"
                       "for (let i = 0; i < 100; ++i) overlays.setName([2], String(i))");
    QStringList printed;
    ScriptRun run(
        &service(),
        [this](const std::function<void()> &work) {
            QMetaObject::invokeMethod(&service(), work, Qt::BlockingQueuedConnection);
        },
        [&printed](const QString &text) { printed += text; });
    ScriptOutcome outcome;
    std::atomic<bool> isOver = false;
    std::thread thread([&] {
        outcome = run.run(path());
        isOver = true;
    });
    QTRY_VERIFY(isOver);
    thread.join();
    QCOMPARE(outcome.text, QString());
    QCOMPARE(printed.size(), 100);
    QCOMPARE(dump(), QString("99"));
}

KX_TEST_MAIN(tst_ScriptRun)
#include "tst_ScriptRun.moc"

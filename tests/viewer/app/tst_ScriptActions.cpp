// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ScriptActions.h"

#include "tests/support/KxTest.h"
#include "viewer/app/FileQuestions.h"
#include "viewer/app/MainWindow.h"

#include <QElapsedTimer>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>

using namespace viewer;

/// Scripts that are run from a window.
class tst_ScriptActions : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldRunAScriptThatTheUserChooses();
    void shouldDoNothingWhenNoneIsChosen();
    void shouldShowWhatIsPrinted();
    void shouldShowPlaceAndReasonOfAFailure();
    void shouldBearEndlessRecursion();
    void shouldNotBotherTheUserWithAShortScript();
    void shouldEndAnEndlessScript_data();
    void shouldEndAnEndlessScript();
    void shouldKeepTheUserFromEditingMeanwhile();

private:
    struct Choice : FileQuestions
    {
        Choice() : FileQuestions(nullptr) {}
        QString scriptToRun(const QString &) override { return file; }
        QString file;
    };

    QAction *action() { return m_window->findChild<QAction *>("runScript"); }
    QStringList notices() { return m_window->viewArea()->notices()->texts(); }
    void run(const QByteArray &script);

    QTemporaryDir m_folder;
    Choice m_choice;
    std::unique_ptr<OverlayService> m_service;
    std::unique_ptr<MainWindow> m_window;
    ScriptActions *m_actions = nullptr;
};

void tst_ScriptActions::init()
{
    KxTest::init();
    m_service = std::make_unique<OverlayService>();
    m_window = std::make_unique<MainWindow>(ViewArea::Background::Painted);
    m_actions = new ScriptActions(m_service.get(), &m_choice, m_window.get());
    m_choice.file = m_folder.filePath("titles.js");
}

void tst_ScriptActions::cleanup()
{
    m_window.reset();
    m_service.reset();
    KxTest::cleanup();
}

void tst_ScriptActions::run(const QByteArray &script)
{
    QFile file(m_folder.filePath("titles.js"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(script);
    file.close();
    action()->trigger();
}

void tst_ScriptActions::shouldRunAScriptThatTheUserChooses()
{
    run("overlays.createGroup(1); overlays.createOverlay(1)");
    QCOMPARE(m_service->getChildCount(1), 2);
    QCOMPARE(m_service->history().stack()->undoText(), QString("Run titles.js"));
    QCOMPARE(m_window->statusBar()->currentMessage(), QString("Ran titles.js"));
    QCOMPARE(notices(), QStringList());
}

void tst_ScriptActions::shouldDoNothingWhenNoneIsChosen()
{
    m_choice.file.clear();
    action()->trigger();
    QCOMPARE(m_window->statusBar()->currentMessage(), QString());
}

void tst_ScriptActions::shouldShowWhatIsPrinted()
{
    run("print('a', 1); print('b')");
    QCOMPARE(notices(), QStringList("a 1\nb"));
    run("for (let i = 0; i < 100; ++i) print(i)");
    const QStringList lines = notices().constFirst().split('\n');
    QCOMPARE(lines.size(), 12);
    QCOMPARE(lines.first(), QString("…"));
    QCOMPARE(lines.at(1), QString("89"));
    QCOMPARE(lines.last(), QString("99"));
}

void tst_ScriptActions::shouldShowPlaceAndReasonOfAFailure()
{
    const QSignalSpy failed(m_actions, &ScriptActions::failed);
    run("overlays.createGroup(1);\noverlays.getName('x')");
    QCOMPARE(failed.size(), 1);
    const QString text = failed.first().first().toString();
    QVERIFY2(text.startsWith(m_folder.filePath("titles.js") + ":2: TypeError: overlays.getName()"),
             qPrintable(text));
    QVERIFY2(text.endsWith("\nThe scene is as it was before."), qPrintable(text));
    QCOMPARE(m_service->getChildCount(1), 0);
}

void tst_ScriptActions::shouldBearEndlessRecursion()
{
    const QSignalSpy failed(m_actions, &ScriptActions::failed);
    run("function f() { overlays.getName(1); f() } f()");
    QVERIFY(failed.first().first().toString().contains("RangeError"));
}

void tst_ScriptActions::shouldNotBotherTheUserWithAShortScript()
{
    bool appeared = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this,
            [&appeared] { appeared |= QApplication::activeModalWidget() != nullptr; });
    timer.start(0);
    run("for (let i = 0; i < 100; ++i) overlays.createOverlay(1)");
    QVERIFY(!appeared);
}

void tst_ScriptActions::shouldEndAnEndlessScript_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << QByteArray("overlays.createGroup(1); while (true);") << false;
    QTest::newRow("Escape") << QByteArray("overlays.createGroup(1); while (true);") << true;
    QTest::newRow("operations") << QByteArray("while (true) overlays.createGroup(1)") << false;
    QTest::newRow("a handler that causes itself")
        << QByteArray("overlays.nodesAdded.connect(() => overlays.createOverlay(1));"
                      "overlays.createGroup(1)")
        << true;
}

void tst_ScriptActions::shouldEndAnEndlessScript()
{
    QFETCH(QByteArray, script);
    QFETCH(bool, byKey);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&timer, byKey] {
        auto *dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer.stop();
        QCOMPARE(dialog->labelText(), QString("The script \"titles.js\" is running."));
        if (byKey)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else
            dialog->findChild<QPushButton *>()->click();
        QVERIFY(dialog->isVisible());
        QVERIFY(!dialog->findChild<QPushButton *>());
    });
    timer.start(10);
    run(script);
    QCOMPARE(notices().size(), 1);
    QVERIFY2(notices().constFirst().endsWith(
                 "titles.js\" was interrupted.\nThe scene is as it was before."),
             qPrintable(notices().constFirst()));
    QCOMPARE(m_service->getChildCount(1), 0);
    QVERIFY(!m_service->history().stack()->canUndo());
}

void tst_ScriptActions::shouldKeepTheUserFromEditingMeanwhile()
{
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    int blocked = -1;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [this, &timer, &blocked] {
        auto *dialog = qobject_cast<QProgressDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            return;
        timer.stop();
        m_window->close();
        m_service->undo(); // a key that was on its way
        blocked = dialog->isModal();
        dialog->findChild<QPushButton *>()->click();
    });
    timer.start(10);
    run("overlays.createGroup(1); while (true);");
    QCOMPARE(blocked, 1);
}

KX_TEST_MAIN(tst_ScriptActions)
#include "tst_ScriptActions.moc"

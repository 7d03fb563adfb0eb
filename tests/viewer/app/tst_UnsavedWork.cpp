// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// No way out of a scene loses work: each asks once, and what is typed or dragged at that moment
// counts.

#include "viewer/app/ViewerSession.h"

#include "tests/support/KxTest.h"
#include "tests/viewer/app/Answers.h"

#include <QDockWidget>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using namespace viewer;

namespace {

using Way = std::function<void(ViewerSession *)>;

Way trigger(const char *action)
{
    return [action](ViewerSession *session) {
        session->window()->findChild<QAction *>(action)->trigger();
    };
}

} // namespace

Q_DECLARE_METATYPE(Way)

class tst_UnsavedWork : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldAskOnceOnEachWayOut_data();
    void shouldAskOnceOnEachWayOut();
    void shouldNotAskWithoutChanges_data() { shouldAskOnceOnEachWayOut_data(); }
    void shouldNotAskWithoutChanges();
    void shouldSaveWhatIsBeingTyped_data();
    void shouldSaveWhatIsBeingTyped();
    void shouldSaveWhatIsBeingTypedElsewhere_data() { shouldSaveWhatIsBeingTyped_data(); }
    void shouldSaveWhatIsBeingTypedElsewhere();
    void shouldAskForWhatIsBeingTyped_data() { shouldSaveWhatIsBeingTyped_data(); }
    void shouldAskForWhatIsBeingTyped();
    void shouldGoOnTypingAfterSaving();
    void shouldPutADragBackBeforeTheSceneGoes();
    void shouldLeaveToTheNextRunWhatNobodyLetGo_data();
    void shouldLeaveToTheNextRunWhatNobodyLetGo();

private:
    MainWindow *window() const { return m_session->window(); }
    OverlayService *overlays() const { return m_session->overlays(); }
    QRPC::NodeId node() const { return overlays()->getChild(Scene::RootId, 0); }
    QString write(const QString &name) const;
    QWidget *addField(const QString &kind);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    Answers *m_answers = nullptr; // the session's
    std::unique_ptr<ViewerSession> m_session;
};

void tst_UnsavedWork::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings =
        std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
    auto answers = std::make_unique<Answers>();
    m_answers = answers.get();
    m_answers->file = write("other.json");
    const CommandLine line(
        {"overlay-viewer", "--no-gl", "--plugin", PLUGIN_JOURNAL, write("a.json")});
    m_session = std::make_unique<ViewerSession>(line, m_settings.get(), std::move(answers));
    m_session->start();
    QVERIFY(QTest::qWaitForWindowActive(window()));
}

void tst_UnsavedWork::cleanup()
{
    m_session.reset();
    m_settings.reset();
    KxTest::cleanup();
}

QString tst_UnsavedWork::write(const QString &name) const
{
    QFile file(m_folder->filePath(name));
    const QByteArray text = R"({"format": "overlay-scene", "version": 1, "overlays": [)"
                            R"({"kind": "overlay", "name": ")"
                            + name.toUtf8()
                            + R"(", "type": "text", "text": "Night", "size": 60}]})";
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName()
                                                                              : QString();
}

void tst_UnsavedWork::shouldAskOnceOnEachWayOut_data()
{
    QTest::addColumn<Way>("leave");
    QTest::newRow("close") << Way([](ViewerSession *session) { session->window()->close(); });
    // What the toolkit does when the desktop ends.
    QTest::newRow("log out") << Way([](ViewerSession *) { QApplication::closeAllWindows(); });
    QTest::newRow("new") << trigger("newScene");
    QTest::newRow("open") << trigger("openScene");
    QTest::newRow("recent") << Way([](ViewerSession *session) {
        auto *menu = session->window()->findChild<QMenu *>("openRecent");
        emit session->window()->fileMenu()->aboutToShow();
        menu->actions().constFirst()->trigger();
    });
    QTest::newRow("drop") << Way([](ViewerSession *session) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(session->document()->path())});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(session->window(), &enter);
        QDropEvent event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(session->window(), &event);
        QSignalSpy asked(session->window(), &MainWindow::openRequested);
        QVERIFY(asked.wait());
    });
}

void tst_UnsavedWork::shouldAskOnceOnEachWayOut()
{
    QFETCH(Way, leave);
    overlays()->setName({node()}, "changed");
    leave(m_session.get());
    QCOMPARE(m_answers->asked, QStringList("a.json"));
    QCOMPARE(overlays()->getName(node()), QString("changed"));
    QVERIFY(window()->isVisible());
    m_answers->answer = Answer::Discard;
    leave(m_session.get());
    QCOMPARE(m_answers->asked.size(), 2);
    QVERIFY(!window()->isVisible() || overlays()->getName(node()) != "changed");
}

void tst_UnsavedWork::shouldNotAskWithoutChanges()
{
    QFETCH(Way, leave);
    overlays()->setName({node()}, "changed");
    QVERIFY(m_session->document()->save());
    leave(m_session.get());
    QCOMPARE(m_answers->asked, QStringList());
}

void tst_UnsavedWork::shouldSaveWhatIsBeingTyped_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("a line") << "line";
    QTest::newRow("a number") << "number";
}

/// A field that hands over what is typed in it once it is left, as those of a panel do.
QWidget *tst_UnsavedWork::addField(const QString &kind)
{
    const auto send = [service = overlays(), node = node()](const QString &name) {
        service->setName({node}, name);
    };
    QWidget *field = nullptr;
    if (kind == "line") {
        auto *line = new QLineEdit;
        connect(line, &QLineEdit::editingFinished, this, [line, send] { send(line->text()); });
        field = line;
    } else {
        auto *number = new QSpinBox;
        number->setKeyboardTracking(false);
        connect(number, qOverload<int>(&QSpinBox::valueChanged), this,
                [send](int value) { send(QString::number(value)); });
        field = number;
    }
    auto *dock = new QDockWidget("Field", window());
    dock->setObjectName("field");
    dock->setWidget(field);
    window()->addDockWidget(Qt::LeftDockWidgetArea, dock);
    QCoreApplication::processEvents();
    field->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(field, "7");
    return field;
}

void tst_UnsavedWork::shouldSaveWhatIsBeingTyped()
{
    QFETCH(QString, kind);
    addField(kind);
    QVERIFY(!m_session->document()->isModified());
    SceneDocument *document = m_session->document();
    QVERIFY(document->save());
    QVERIFY(document->load(document->path()));
    QCOMPARE(overlays()->getName(node()), QString("7"));
}

void tst_UnsavedWork::shouldSaveWhatIsBeingTypedElsewhere()
{
    QFETCH(QString, kind);
    addField(kind);
    SceneDocument *document = m_session->document();
    QVERIFY(document->saveAs());
    QVERIFY(document->load(m_answers->file));
    QCOMPARE(overlays()->getName(node()), QString("7"));
}

void tst_UnsavedWork::shouldAskForWhatIsBeingTyped()
{
    QFETCH(QString, kind);
    addField(kind);
    QVERIFY(!window()->close());
    QCOMPARE(m_answers->asked, QStringList("a.json"));
    QCOMPARE(overlays()->getName(node()), QString("7"));
}

void tst_UnsavedWork::shouldGoOnTypingAfterSaving()
{
    auto *field = qobject_cast<QLineEdit *>(addField("line"));
    QVERIFY(m_session->document()->save());
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, "8");
    QCOMPARE(field->text(), QString("78"));
}

void tst_UnsavedWork::shouldPutADragBackBeforeTheSceneGoes()
{
    QWidget *view = window()->viewArea()->background();
    const QPointF offset = overlays()->getOffset(node());
    const QPoint start = view->rect().center();
    QTest::mousePress(view, Qt::LeftButton, {}, start);
    QMouseEvent move(QEvent::MouseMove, start + QPoint(200, 100), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(view, &move);
    QVERIFY(overlays()->getOffset(node()) != offset);
    QVERIFY(m_session->document()->save());
    QCOMPARE(overlays()->getOffset(node()), offset);
    QTest::mouseRelease(view, Qt::LeftButton);
    QVERIFY(!m_session->document()->isModified());
}

void tst_UnsavedWork::shouldLeaveToTheNextRunWhatNobodyLetGo_data()
{
    QTest::addColumn<Way>("end");
    QTest::addColumn<FileQuestions::Answer>("answer");
    QTest::addColumn<bool>("isLeft");
    const Way close = [](ViewerSession *session) { session->window()->close(); };
    const Way quit = [](ViewerSession *) {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QApplication::exec();
    };
    QTest::newRow("discarded") << close << Answer::Discard << false;
    QTest::newRow("saved") << close << Answer::Save << false;
    QTest::newRow("ended from outside") << quit << Answer::Discard << true;
}

void tst_UnsavedWork::shouldLeaveToTheNextRunWhatNobodyLetGo()
{
    QFETCH(Way, end);
    QFETCH(bool, isLeft);
    QFETCH(FileQuestions::Answer, answer);
    m_answers->answer = answer;
    overlays()->setName({node()}, "changed");
    end(m_session.get());
    m_session.reset();
    const QVector<LostWork> lost = Journal::lostWork(m_folder->filePath("unsaved"));
    QCOMPARE(lost.size(), isLeft ? 1 : 0);
    QVERIFY(!isLeft || Journal::recover(lost.first()).scene);
}

KX_TEST_MAIN(tst_UnsavedWork)
#include "tst_UnsavedWork.moc"

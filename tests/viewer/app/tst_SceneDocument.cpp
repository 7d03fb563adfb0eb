// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SceneDocument.h"

#include "tests/support/KxTest.h"
#include "tests/viewer/app/Answers.h"
#include "viewer/app/FileActions.h"

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <limits>
#include <memory>

using namespace viewer;

class tst_SceneDocument : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldSaveAndOpen();
    void shouldAskForAFileOnlyOnce();
    void shouldNotAskWithoutChanges();
    void shouldAskOnceBeforeTheSceneGoes_data();
    void shouldAskOnceBeforeTheSceneGoes();
    void shouldKeepAllWhenSavingFails();
    void shouldAskBeforeItOverwritesTheWorkOfOthers_data();
    void shouldAskBeforeItOverwritesTheWorkOfOthers();
    void shouldNoticeWhatOthersWriteWhileItOpens();
    void shouldNotTakeItsOwnFilesForTheWorkOfOthers();
    void shouldSaveWhereTheFileIsGone();
    void shouldTellRecoveredWorkFromThatOfOthers_data();
    void shouldTellRecoveredWorkFromThatOfOthers();
    void shouldKeepAllWhenAFileIsBad();
    void shouldBeUnmodifiedWhereItWasSaved();
    void shouldTakeImagesFromTheFoldersOfItsFiles();
    void shouldTellWhatBecomesOfTheScene();
    void shouldTellWhatCouldNotBeSavedAsItIs();
    void shouldTakeBackThatItCouldNotSave();
    void shouldBeginWhereTheLastSceneWas();
    void shouldListRecentFiles();
    void shouldHaveAKeyForEachCommandOnEveryDesktop();

private:
    QString file(const QString &name) const { return m_folder->filePath(name); }
    QByteArray content(const QString &name) const;
    void writeAsAnother(const QString &name) const;
    void edit() { m_service->createOverlay(Scene::RootId); }
    int nodes() const { return m_service->getChildCount(Scene::RootId); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<OverlayService> m_service;
    std::unique_ptr<Answers> m_answers;
    std::unique_ptr<SceneDocument> m_document;
};

void tst_SceneDocument::init()
{
    KxTest::init();
    qRegisterMetaType<viewer::Severity>("viewer::Severity");
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<QSettings>(file("settings.ini"), QSettings::IniFormat);
    m_service = std::make_unique<OverlayService>();
    m_answers = std::make_unique<Answers>();
    m_document =
        std::make_unique<SceneDocument>(m_service.get(), m_answers.get(), m_settings.get());
}

void tst_SceneDocument::cleanup()
{
    m_document.reset();
    m_answers.reset();
    m_service.reset();
    m_settings.reset();
    KxTest::cleanup();
}

void tst_SceneDocument::shouldSaveAndOpen()
{
    QSignalSpy paths(m_document.get(), &SceneDocument::pathChanged);
    edit();
    m_answers->file = file("a.json");
    QVERIFY(m_document->save());
    QCOMPARE(m_document->path(), file("a.json"));
    QCOMPARE(m_document->name(), QString("a.json"));
    m_document->startNew();
    QCOMPARE(m_document->path(), QString());
    QCOMPARE(nodes(), 0);
    m_document->chooseAndOpen();
    QCOMPARE(nodes(), 1);
    QCOMPARE(paths.count(), 3);
    QVERIFY(m_answers->asked.isEmpty());
}

void tst_SceneDocument::shouldAskForAFileOnlyOnce()
{
    edit();
    QVERIFY(!m_document->save());
    m_answers->file = file("a.json");
    QVERIFY(m_document->save());
    m_answers->file = file("b.json");
    edit();
    QVERIFY(m_document->save());
    QVERIFY(!QFile::exists(file("b.json")));
    QVERIFY(m_document->saveAs());
    QVERIFY(QFile::exists(file("b.json")));
    QCOMPARE(m_document->path(), file("b.json"));
}

void tst_SceneDocument::shouldNotAskWithoutChanges()
{
    edit();
    m_service->undo();
    QVERIFY(m_document->mayGo());
    QVERIFY(m_answers->asked.isEmpty());
}

void tst_SceneDocument::shouldAskOnceBeforeTheSceneGoes_data()
{
    QTest::addColumn<FileQuestions::Answer>("answer");
    QTest::addColumn<bool>("goes");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("save") << Answer::Save << true << true;
    QTest::newRow("discard") << Answer::Discard << true << false;
    QTest::newRow("cancel") << Answer::Cancel << false << false;
}

void tst_SceneDocument::shouldAskOnceBeforeTheSceneGoes()
{
    QFETCH(FileQuestions::Answer, answer);
    QFETCH(bool, goes);
    QFETCH(bool, isSaved);
    m_answers->file = file("a.json");
    edit();
    QVERIFY(m_document->save());
    edit();
    m_answers->answer = answer;
    m_document->startNew();
    QCOMPARE(m_answers->asked, QStringList("a.json"));
    QCOMPARE(nodes(), goes ? 0 : 2);
    QCOMPARE(m_document->isModified(), !goes);
    m_answers->answer = Answer::Discard;
    m_document->open(file("a.json"));
    QCOMPARE(nodes(), isSaved ? 2 : 1);
}

void tst_SceneDocument::shouldKeepAllWhenSavingFails()
{
    QSignalSpy reports(m_document.get(), &SceneDocument::reported);
    edit();
    m_answers->file = file("no/such/folder/a.json");
    m_answers->answer = Answer::Save;
    m_document->startNew();
    QCOMPARE(nodes(), 1);
    QVERIFY(m_document->isModified());
    QCOMPARE(m_document->path(), QString());
    QCOMPARE(reports.count(), 1);
}

QByteArray tst_SceneDocument::content(const QString &name) const
{
    QFile text(file(name));
    return text.open(QIODevice::ReadOnly) ? text.readAll() : QByteArray();
}

/// As another program does, some time later.
void tst_SceneDocument::writeAsAnother(const QString &name) const
{
    QFile text(file(name));
    QVERIFY(text.open(QIODevice::ReadWrite));
    const QDateTime later = text.fileTime(QFileDevice::FileModificationTime).addSecs(60);
    QVERIFY(text.write("{}") > 0 && text.flush());
    QVERIFY(text.setFileTime(later, QFileDevice::FileModificationTime));
}

void tst_SceneDocument::shouldAskBeforeItOverwritesTheWorkOfOthers_data()
{
    QTest::addColumn<bool>("isOpened"); // rather than saved
    QTest::newRow("opened") << true;
    QTest::newRow("saved") << false;
}

void tst_SceneDocument::shouldAskBeforeItOverwritesTheWorkOfOthers()
{
    QFETCH(bool, isOpened);
    m_answers->file = file("a.json");
    QVERIFY(m_document->save());
    QVERIFY(!isOpened || m_document->load(file("a.json")));
    writeAsAnother("a.json");
    const QByteArray theirs = content("a.json");
    edit();
    QVERIFY(!m_document->save());
    QCOMPARE(m_answers->overwritten, QStringList("a.json"));
    QCOMPARE(content("a.json"), theirs);
    QVERIFY(m_document->isModified());
    m_answers->answer = Answer::Save;
    QVERIFY(m_document->save());
    QVERIFY(content("a.json") != theirs);
    edit();
    QVERIFY(m_document->save());
    QCOMPARE(m_answers->overwritten.size(), 2);
}

void tst_SceneDocument::shouldNoticeWhatOthersWriteWhileItOpens()
{
    m_answers->file = file("a.json");
    QVERIFY(m_document->save());
    connect(m_document.get(), &SceneDocument::aboutToReplace, this,
            [this] { writeAsAnother("a.json"); }); // when the file has been read
    QVERIFY(m_document->load(file("a.json")));
    QVERIFY(!m_document->save());
    QCOMPARE(m_answers->overwritten, QStringList("a.json"));
}

void tst_SceneDocument::shouldNotTakeItsOwnFilesForTheWorkOfOthers()
{
    m_answers->file = file("a.json");
    for (int i = 0; i < 3; ++i) {
        edit();
        QVERIFY(m_document->save());
    }
    m_document->open(file("a.json"));
    edit();
    QVERIFY(m_document->save());
    writeAsAnother("a.json");
    QVERIFY(m_document->saveAs()); // whoever chose the file has agreed
    QCOMPARE(m_answers->overwritten, QStringList());
}

void tst_SceneDocument::shouldSaveWhereTheFileIsGone()
{
    m_answers->file = file("a.json");
    QVERIFY(m_document->save());
    QVERIFY(QFile::remove(file("a.json")));
    QVERIFY(m_document->save());
    QVERIFY(QFile::exists(file("a.json")));
    QCOMPARE(m_answers->overwritten, QStringList());
}

void tst_SceneDocument::shouldTellRecoveredWorkFromThatOfOthers_data()
{
    QTest::addColumn<int>("seconds"); // from the last change that was recovered to the file
    QTest::addColumn<int>("questions");
    QTest::newRow("the file is older") << -60 << 0;
    QTest::newRow("the file is newer") << 60 << 1;
}

void tst_SceneDocument::shouldTellRecoveredWorkFromThatOfOthers()
{
    QFETCH(int, seconds);
    QFETCH(int, questions);
    writeAsAnother("a.json");
    const QDateTime time = QFileInfo(file("a.json")).lastModified().addSecs(-seconds);
    m_document->setUnsavedScene(Scene(), file("a.json"), time);
    m_answers->answer = Answer::Save;
    QVERIFY(m_document->save());
    QCOMPARE(m_answers->overwritten.size(), questions);
}

void tst_SceneDocument::shouldKeepAllWhenAFileIsBad()
{
    QSignalSpy reports(m_document.get(), &SceneDocument::reported);
    edit();
    m_answers->answer = Answer::Discard;
    m_document->open(file("missing.json"));
    QCOMPARE(reports.count(), 1);
    QCOMPARE(nodes(), 1);
    QVERIFY(m_document->isModified());
    m_service->undo();
    QCOMPARE(nodes(), 0);
    QVERIFY(m_document->recentFiles().isEmpty());
}

void tst_SceneDocument::shouldBeUnmodifiedWhereItWasSaved()
{
    m_answers->file = file("a.json");
    edit();
    QVERIFY(m_document->isModified());
    QVERIFY(m_document->save());
    QVERIFY(!m_document->isModified());
    m_service->undo();
    QVERIFY(m_document->isModified());
    m_service->redo();
    QVERIFY(!m_document->isModified());
}

void tst_SceneDocument::shouldTakeImagesFromTheFoldersOfItsFiles()
{
    QVERIFY(QDir(m_folder->path()).mkpath("scenes"));
    const QRPC::NodeId node = m_service->createOverlay(Scene::RootId);
    const auto imageSetTo = [this, node](const QString &path) {
        m_service->setImage({node}, path);
        return m_service->getImage(node);
    };
    QCOMPARE(imageSetTo("x.png"), QDir::current().filePath("x.png"));
    m_answers->file = file("scenes/a.json");
    QVERIFY(m_document->saveAs());
    QCOMPARE(imageSetTo("x.png"), file("scenes/x.png"));
    m_answers->file = file("b.json"); // what was set stays the file that it was
    QVERIFY(m_document->saveAs());
    QCOMPARE(m_service->getImage(node), file("scenes/x.png"));
    QVERIFY(m_document->load(file("b.json")));
    const QRPC::NodeId read = m_service->getChild(Scene::RootId, 0);
    QCOMPARE(m_service->getImage(read), file("scenes/x.png"));
    m_service->setImage({read}, "x.png");
    QCOMPARE(m_service->getImage(read), file("x.png"));
    m_answers->answer = Answer::Discard;
    m_document->startNew();
    const QRPC::NodeId fresh = m_service->createOverlay(Scene::RootId);
    m_service->setImage({fresh}, "x.png");
    QCOMPARE(m_service->getImage(fresh), QDir::current().filePath("x.png"));
}

void tst_SceneDocument::shouldTellWhatBecomesOfTheScene()
{
    QStringList told;
    const auto list = [this, &told](auto signal, const char *name) {
        connect(m_document.get(), signal, m_document.get(), [&told, name] { told.append(name); });
    };
    list(&SceneDocument::dismissed, "dismissed");
    list(&SceneDocument::aboutToReplace, "replaced");
    list(&SceneDocument::pathChanged, "named");
    list(&SceneDocument::opened, "opened");
    list(&SceneDocument::saved, "saved");
    list(&SceneDocument::reported, "reported");
    m_answers->file = file("a.json");
    const auto after = [&told](const auto &act) {
        told.clear();
        act();
        return told.join(' ');
    };
    QCOMPARE(after([this] { m_document->save(); }), QString("named saved"));
    QCOMPARE(after([this] { m_document->startNew(); }), QString("dismissed replaced named"));
    QCOMPARE(after([this] { m_document->open(file("a.json")); }),
             QString("dismissed replaced named opened"));
    QCOMPARE(after([this] { m_document->open(file("none.json")); }), QString("dismissed reported"));
    QCOMPARE(after([this] { m_document->setUnsavedScene(Scene(), {}, {}); }),
             QString("replaced named"));
}

void tst_SceneDocument::shouldTellWhatCouldNotBeSavedAsItIs()
{
    QSignalSpy reports(m_document.get(), &SceneDocument::reported);
    const QRPC::NodeId node = m_service->createOverlay(Scene::RootId);
    m_service->setSize({node}, std::numeric_limits<float>::infinity());
    m_answers->file = file("a.json");
    QVERIFY(m_document->save());
    QCOMPARE(reports.count(), 1);
    QVERIFY(reports.first().at(1).toString().contains(m_service->getName(node)));
}

void tst_SceneDocument::shouldTakeBackThatItCouldNotSave()
{
    QStringList told; // and not taken back
    connect(m_document.get(), &SceneDocument::reported, this,
            [list = &told](Severity, const QString &text) { list->append(text); });
    connect(m_document.get(), &SceneDocument::overcome, this,
            [list = &told](const QString &text) { QVERIFY(list->removeOne(text)); });
    for (const char *name : {"no/a.json", "none/b.json"}) {
        m_answers->file = file(name);
        QVERIFY(!m_document->saveAs());
        QCOMPARE(told.size(), 1);
        QVERIFY2(told.constFirst().contains(file(name)), qPrintable(told.constFirst()));
    }
    m_answers->file = file("c.json");
    QVERIFY(m_document->saveAs());
    QCOMPARE(told, QStringList());
}

void tst_SceneDocument::shouldBeginWhereTheLastSceneWas()
{
    m_document->chooseAndOpen();
    QCOMPARE(m_answers->begunAt, QString());
    m_answers->file = file("a.json");
    QVERIFY(m_document->save());
    m_answers->file.clear();
    m_document->chooseAndOpen();
    QCOMPARE(m_answers->begunAt, file("a.json"));
    m_document->startNew();
    m_document->chooseAndOpen();
    QCOMPARE(m_answers->begunAt, file("") + "/");
    m_answers->begunAt.clear();
    m_document->save();
    QCOMPARE(m_answers->begunAt, file("") + "/");
}

void tst_SceneDocument::shouldListRecentFiles()
{
    for (int i = 0; i < 10; ++i) {
        m_answers->file = file(QStringLiteral("%1.json").arg(i));
        QVERIFY(m_document->saveAs());
    }
    m_document->open(file("7.json"));
    QMenu menu;
    const FileActions actions(m_document.get(), &menu);
    const auto *recent = menu.findChild<QMenu *>("openRecent");
    QCOMPARE(recent->actions().size(), 8 + 2);
    QCOMPARE(m_document->recentFiles().removeDuplicates(), 0);
    QVERIFY(recent->actions().at(0)->text().endsWith("7.json"));
    recent->actions().at(1)->trigger();
    QCOMPARE(m_document->path(), file("9.json"));
    recent->actions().constLast()->trigger();
    QVERIFY(m_document->recentFiles().isEmpty());
    QVERIFY(!recent->isEnabled());
}

void tst_SceneDocument::shouldHaveAKeyForEachCommandOnEveryDesktop()
{
    QMenu menu;
    const FileActions actions(m_document.get(), &menu);
    QStringList keys;
    for (const char *name : {"newScene", "openScene", "saveScene", "saveSceneAs"})
        keys.append(actions.findChild<QAction *>(name)->shortcut().toString());
    QCOMPARE(keys, (QStringList{"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+Shift+S"}));
}

KX_TEST_MAIN(tst_SceneDocument)
#include "tst_SceneDocument.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SceneClipboard.h"

#include "tests/viewer/scene/ServiceTest.h"
#include "viewer/scene/SceneReader.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>

using viewer::SceneClipboard;
using viewer::Severity;
Q_DECLARE_METATYPE(viewer::Severity)

class tst_SceneClipboard : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldCopyTheTextOfASceneFile();
    void shouldCopyNothingWhereNothingIsSelected();
    void shouldKeepImagesWhereTheyAre();
    void shouldFindImagesOfAWrittenTextInTheFolderOfTheScene();
    void shouldPasteIntoAnotherViewer();
    void shouldPasteWhereTheUserLooks_data();
    void shouldPasteWhereTheUserLooks();
    void shouldPasteTextFromAnEditor();
    void shouldKeepWhatItDoesNotKnowOfNodes();
    void shouldWarnOfWhatASwitchCannotShow();
    void shouldCutInOneStep();
    void shouldRefuseWhatIsNoScene_data();
    void shouldRefuseWhatIsNoScene();
    void shouldTellWhatIsMissing();
    void shouldNotCopyWhatCouldNotBePasted();
    void shouldOfferToPasteTextAlone();

private:
    void setText(const QString &text) { QApplication::clipboard()->setText(text); }
    QString text() const { return QApplication::clipboard()->text(); }
};

void tst_SceneClipboard::init()
{
    ServiceTest::init();
    qRegisterMetaType<viewer::Severity>();
    QApplication::clipboard()->clear();
    open("a g(b c) s{d e-} h()");
}

void tst_SceneClipboard::shouldCopyTheTextOfASceneFile()
{
    SceneClipboard clipboard(&service());
    QVERIFY(clipboard.copy(ids("s b g")));
    const viewer::SceneReading reading = viewer::SceneReader::parse(text().toUtf8(), "x.json");
    QVERIFY2(reading.scene, qPrintable(reading.error));
    QCOMPARE(scenetext::dump(*reading.scene), QString("g(b c) s{d e-}"));
    QCOMPARE(QApplication::clipboard()->mimeData()->data("application/x-overlay-scene"),
             text().toUtf8());
    QVERIFY(!sawSignals());
}

void tst_SceneClipboard::shouldCopyNothingWhereNothingIsSelected()
{
    setText("other");
    SceneClipboard clipboard(&service());
    QVERIFY(!clipboard.copy(ids("? root")));
    clipboard.cut({});
    QCOMPARE(text(), QString("other"));
    QCOMPARE(service().history().stack()->count(), 0);
}

void tst_SceneClipboard::shouldKeepImagesWhereTheyAre()
{
    QTemporaryDir folder;
    QFile image(folder.filePath("a.png"));
    QVERIFY(image.open(QIODevice::WriteOnly));
    service().setImage(ids("a"), image.fileName());
    SceneClipboard clipboard(&service());
    QVERIFY(clipboard.copy(ids("a")));
    QVERIFY2(text().contains('"' + image.fileName() + '"'), qPrintable(text()));

    viewer::OverlayService other;
    SceneClipboard otherClipboard(&other);
    other.setImageFolder("/elsewhere");
    otherClipboard.paste({});
    QCOMPARE(other.getImage(other.getChild(viewer::Scene::RootId, 0)), image.fileName());
}

void tst_SceneClipboard::shouldFindImagesOfAWrittenTextInTheFolderOfTheScene()
{
    QTemporaryDir folder;
    QFile image(folder.filePath("a.png"));
    QVERIFY(image.open(QIODevice::WriteOnly));
    setText(R"({"format": "overlay-scene", "version": 1, "overlays":)"
            R"( [{"kind": "overlay", "name": "x", "type": "image", "image": "a.png"}]})");
    SceneClipboard clipboard(&service());
    QSignalSpy reports(&clipboard, &SceneClipboard::reported);
    service().setImageFolder(folder.path());
    clipboard.paste({});
    QCOMPARE(service().getImage(id("x")), image.fileName());
    QCOMPARE(reports.size(), 0);
}

void tst_SceneClipboard::shouldPasteIntoAnotherViewer()
{
    SceneClipboard clipboard(&service());
    QVERIFY(clipboard.copy(ids("g d")));
    viewer::OverlayService other;
    SignalRecorder signalsOfOther(&other);
    SceneClipboard(&other).paste({});
    QCOMPARE(scenetext::dump(other.scene()), QString("g(b c) d"));
    QCOMPARE(signalsOfOther.take(), QStringList({"nodesAdded g d", "nodesCreated g d"}));
    QCOMPARE(signalsOfOther.faults(), QStringList());
}

void tst_SceneClipboard::shouldPasteWhereTheUserLooks_data()
{
    QTest::addColumn<QString>("copied");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QString>("after");
    QTest::newRow("nothing selected") << "a"
                                      << ""
                                      << "a g(b c) s{d e-} h() a";
    QTest::newRow("behind an overlay") << "a"
                                       << "b"
                                       << "a g(b a c) s{d e-} h()";
    QTest::newRow("into a group") << "a"
                                  << "g"
                                  << "a g(b c a) s{d e-} h()";
    QTest::newRow("into an empty group") << "a"
                                         << "h"
                                         << "a g(b c) s{d e-} h(a)";
    QTest::newRow("into a switch") << "a"
                                   << "s"
                                   << "a g(b c) s{d e- a-} h()";
    QTest::newRow("behind the last of several") << "a"
                                                << "g a"
                                                << "a g(b c) a s{d e-} h()";
    QTest::newRow("a child does not count beside its group") << "a"
                                                             << "b g"
                                                             << "a g(b c a) s{d e-} h()";
    QTest::newRow("a group that is still selected") << "g"
                                                    << "g"
                                                    << "a g(b c) g(b c) s{d e-} h()";
    QTest::newRow("an overlay that is still selected") << "b"
                                                       << "b"
                                                       << "a g(b b c) s{d e-} h()";
    QTest::newRow("unknown ones are none") << "a"
                                           << "?"
                                           << "a g(b c) s{d e-} h() a";
}

void tst_SceneClipboard::shouldPasteWhereTheUserLooks()
{
    QFETCH(QString, copied);
    QFETCH(QString, selected);
    QFETCH(QString, after);
    SceneClipboard clipboard(&service());
    QVERIFY(clipboard.copy(ids(copied)));
    clipboard.paste(ids(selected));
    QCOMPARE(dump(), after);
    service().undo();
    QCOMPARE(dump(), QString("a g(b c) s{d e-} h()"));
}

void tst_SceneClipboard::shouldPasteTextFromAnEditor()
{
    SceneClipboard clipboard(&service());
    QVERIFY(clipboard.copy(ids("a")));
    setText(text().replace(R"("name": "a")", R"("name": "z")"));
    QVERIFY(!QApplication::clipboard()->mimeData()->hasFormat("application/x-overlay-scene"));
    clipboard.paste({});
    QCOMPARE(dump(), QString("a g(b c) s{d e-} h() z"));
}

void tst_SceneClipboard::shouldKeepWhatItDoesNotKnowOfNodes()
{
    setText(
        R"({"format": "overlay-scene", "version": 1, "ofTheFile": 1, "overlays": [{"kind": "group",)"
        R"( "name": "x", "ofANode": 2, "children": [{"kind": "overlay", "ofAnother": 3}]}]})");
    SceneClipboard(&service()).paste({});
    const QByteArray file = scenetext::fileOf(service());
    QVERIFY(!file.contains("ofTheFile"));
    QVERIFY(file.contains("\"ofANode\": 2"));
    QVERIFY(file.contains("\"ofAnother\": 3"));
    SceneClipboard clipboard(&service());
    QVERIFY(clipboard.copy(ids("x")));
    QVERIFY(text().contains("ofAnother"));
}

void tst_SceneClipboard::shouldWarnOfWhatASwitchCannotShow()
{
    setText(
        R"({"format": "overlay-scene", "version": 1, "overlays": [{"kind": "switch", "name": "x",)"
        R"( "children": [{"kind": "overlay", "name": "y"}, {"kind": "overlay", "name": "z"}]}]})");
    SceneClipboard clipboard(&service());
    QSignalSpy reports(&clipboard, &SceneClipboard::reported);
    clipboard.paste({});
    QCOMPARE(dump(), QString("a g(b c) s{d e-} h() x{y z-}"));
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.first().at(0).value<Severity>(), Severity::Warning);
    QVERIFY(
        reports.first().at(1).toString().startsWith("Clipboard: /overlays/0/children/1: \"z\""));
}

void tst_SceneClipboard::shouldCutInOneStep()
{
    SceneClipboard clipboard(&service());
    clipboard.cut(ids("g b"));
    QCOMPARE(dump(), QString("a s{d e-} h()"));
    QCOMPARE(signalLines(), QStringList("nodesRemoved g"));
    QCOMPARE(service().history().stack()->undoText(), QString("Cut \"g\""));
    clipboard.paste(ids("a"));
    QCOMPARE(dump(), QString("a g(b c) s{d e-} h()"));
    service().undo();
    service().undo();
    QCOMPARE(dump(), QString("a g(b c) s{d e-} h()"));
    QVERIFY(!service().history().stack()->canUndo());
}

void tst_SceneClipboard::shouldRefuseWhatIsNoScene_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("words") << "some words"
                           << "";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("nearly JSON") << "  {some words"
                                 << "Clipboard: byte 4: expected JSON";
    QTest::newRow("other JSON") << R"({"name": "a"})"
                                << "Clipboard: /format: expected";
    QTest::newRow("cut off") << R"({"format": "overlay-scene", "version": 1, "overl)"
                             << "Clipboard: byte ";
    QTest::newRow("newer") << R"({"format": "overlay-scene", "version": 7, "overlays": []})"
                           << "Clipboard: /version: expected";
    QTest::newRow("wrong value")
        << R"({"format": "overlay-scene", "version": 1, "overlays": [{"kind": "overlay"}, {}]})"
        << "Clipboard: /overlays/1/kind: expected";
    QTest::newRow("empty") << R"({"format": "overlay-scene", "version": 1, "overlays": []})"
                           << "The scene that was copied is empty.";
}

void tst_SceneClipboard::shouldRefuseWhatIsNoScene()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    setText(text);
    SceneClipboard clipboard(&service());
    QSignalSpy reports(&clipboard, &SceneClipboard::reported);
    clipboard.paste(ids("a"));
    QCOMPARE(dump(), QString("a g(b c) s{d e-} h()"));
    QVERIFY(!sawSignals());
    QCOMPARE(service().history().stack()->count(), 0);
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.first().at(0).value<Severity>(), Severity::Error);
    const QString message = reports.first().at(1).toString();
    const QStringList lines = message.split('\n');
    QCOMPARE(lines.first(), QString("There are no overlays on the clipboard."));
    QCOMPARE(lines.size() > 1, !reason.isEmpty());
    QVERIFY2(reason.isEmpty() || lines.value(1).startsWith(reason), qPrintable(message));
}

void tst_SceneClipboard::shouldTellWhatIsMissing()
{
    service().setImage(ids("a"), "/no/such/picture.png");
    SceneClipboard clipboard(&service());
    QVERIFY(clipboard.copy(ids("a")));
    QVector<viewer::MissingImage> images;
    connect(&clipboard, &SceneClipboard::imagesMissing, this,
            [told = &images](const QVector<viewer::MissingImage> &missing) { *told += missing; });
    clipboard.paste({});
    QCOMPARE(images.size(), 1);
    QCOMPARE(images.first().path, QString("/no/such/picture.png"));
}

void tst_SceneClipboard::shouldNotCopyWhatCouldNotBePasted()
{
    QRPC::NodeId deepest = id("h");
    for (int level = 0; level < 10000; ++level)
        deepest = service().createGroup(deepest);
    setText("other");
    SceneClipboard clipboard(&service());
    QSignalSpy reports(&clipboard, &SceneClipboard::reported);
    clipboard.cut(ids("h"));
    QCOMPARE(text(), QString("other"));
    QVERIFY(id("h") != 0);
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.first().at(0).value<Severity>(), Severity::Error);
}

void tst_SceneClipboard::shouldOfferToPasteTextAlone()
{
    QVERIFY(!SceneClipboard::canPaste());
    setText("some words"); // whether they are a scene shows when they are pasted
    QVERIFY(SceneClipboard::canPaste());
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QApplication::clipboard()->setImage(picture);
    QVERIFY(!SceneClipboard::canPaste());
    QVERIFY(SceneClipboard(&service()).copy(ids("a")));
    QVERIFY(SceneClipboard::canPaste());
}

KX_TEST_MAIN(tst_SceneClipboard)
#include "tst_SceneClipboard.moc"

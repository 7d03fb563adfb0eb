// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ViewerSession.h"

#include "tests/support/KxTest.h"
#include "tests/viewer/app/OverlayPicture.h"
#include "viewer/app/ModulePanels.h"

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QLineEdit>
#include <QPainter>
#include <QSettings>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>

using namespace viewer;

class tst_ViewerSession : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void shouldLoadModulesThenTheSceneThenTellThatAllIsReady();
    void shouldAnnounceATreeWhereThereIsNoScene_data();
    void shouldAnnounceATreeWhereThereIsNoScene();
    void shouldDestroyTheWindowWhileServicesAreThere();
    void shouldRunWithoutItsModules();
    void shouldGiveTheKeyboardToTheView();
    void shouldShowTheScene();
    void shouldDrawTheSamePixelsAsAnExport();
    void shouldReadAnImageAnewWhenItsPathIsSet();
    void shouldShowAnImageThatChanges();
    void shouldDrawAnImageOfTheScenesFolder();
    void shouldReadImagesAnewWithEachScene();
    void shouldLeaveTheOpenSceneWhenAFileIsBad_data();
    void shouldLeaveTheOpenSceneWhenAFileIsBad();
    void shouldWarnOfMissingImages();
    void shouldForgetImagesThatAreThereNow();
    void shouldForgetMissingImagesOfAnotherScene();
    void shouldShortenManyWarnings();
    void shouldTakeOldNoticesAwayWhenTheUserOpensAScene();
    void shouldKeepTheLayoutForTheNextRun();
    void shouldMarkUnsavedChangesInTheTitle();
    void shouldForgetThatItCouldNotSave();
    void shouldTellThatItCannotRecord();
    void shouldLeaveAPictureAndQuit();
    void shouldWaitForImagesWithThePicture();
    void shouldFailWhenThePictureCannotBeWritten();

private:
    CommandLine line(const QStringList &arguments) const;
    QString write(const QString &name, const QByteArray &content) const;
    QString goodScene() const;
    bool paintFile(const QColor &color) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

QByteArray scene(const QByteArray &overlays)
{
    return R"({"format": "overlay-scene", "version": 1, "overlays": [)" + overlays + "]}";
}

QByteArray imageOverlay(const QByteArray &path)
{
    return R"({"kind": "overlay", "name": "Image", "type": "image", "sizeType": "relative",)"
           R"( "size": 0.5, "image": ")"
           + path + "\"}";
}

QStringList notices(const ViewerSession &session)
{
    return session.window()->viewArea()->notices()->texts();
}

class PaintCount : public QObject
{
public:
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

#define TRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT(actual, expected, 30000)

QColor middleOf(const ViewerSession &session)
{
    const QImage picture = overlayPicture(session);
    return picture.pixelColor(picture.rect().center());
}

} // namespace

void tst_ViewerSession::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    qApp->setProperty("journal", QVariant());
}

CommandLine tst_ViewerSession::line(const QStringList &arguments) const
{
    return CommandLine(QStringList({"overlay-viewer", "--no-gl", "--plugin", PLUGIN_JOURNAL})
                       + arguments);
}

QString tst_ViewerSession::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder->filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size()
               ? file.fileName()
               : QString();
}

/// Writes the image file colour.png, all in one colour.
bool tst_ViewerSession::paintFile(const QColor &color) const
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(color);
    return image.save(m_folder->filePath("colour.png"));
}

QString tst_ViewerSession::goodScene() const
{
    return write("good.json", scene(R"({"kind": "overlay", "name": "Hello", "type": "text",)"
                                    R"( "text": "Hello", "size": 40})"));
}

void tst_ViewerSession::shouldLoadModulesThenTheSceneThenTellThatAllIsReady()
{
    ViewerSession session(line({goodScene()}), nullptr);
    session.start();
    QCOMPARE(qApp->property("journal").toStringList(),
             QStringList({"initPlugin", "modelReset", "init"}));
}

void tst_ViewerSession::shouldAnnounceATreeWhereThereIsNoScene_data()
{
    QTest::addColumn<bool>("named");
    QTest::newRow("none is named") << false;
    QTest::newRow("the file is bad") << true;
}

void tst_ViewerSession::shouldAnnounceATreeWhereThereIsNoScene()
{
    QFETCH(bool, named);
    const QString bad = write("bad.json", "{");
    ViewerSession session(line(named ? QStringList{bad} : QStringList()), nullptr);
    session.start();
    QCOMPARE(qApp->property("journal").toStringList(),
             QStringList({"initPlugin", "modelReset", "init"}));
}

void tst_ViewerSession::shouldDestroyTheWindowWhileServicesAreThere()
{
    {
        ViewerSession session(line({}), nullptr);
        session.start();
    }
    QCOMPARE(qApp->property("journal").toStringList(),
             QStringList({"initPlugin", "modelReset", "init", "gone"}));
}

void tst_ViewerSession::shouldRunWithoutItsModules()
{
    const CommandLine missing({"overlay-viewer", "--no-gl", "--plugin", "/no/such/module.so"});
    ViewerSession session(missing, nullptr);
    session.start();
    QVERIFY(session.window()->isVisible());
    QCOMPARE(notices(session).size(), 1);
    QVERIFY(notices(session).constFirst().contains("/no/such/module.so"));
    QVERIFY(session.window()->statusBar()->currentMessage().contains("/no/such/module.so"));
    QVERIFY(session.openScene(goodScene()));
}

void tst_ViewerSession::shouldGiveTheKeyboardToTheView()
{
    ViewerSession session(line({}), nullptr);
    QLineEdit field(session.window());
    session.start();
    QWidget *view = session.window()->viewArea()->background();
    QCOMPARE(session.window()->focusWidget(), view);
    field.setFocus();
    QCOMPARE(session.window()->focusWidget(), &field);
    QVERIFY(QTest::qWaitForWindowActive(session.window()));
    QTest::mouseClick(session.window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      session.window()->viewArea()->geometry().center());
    QCOMPARE(session.window()->focusWidget(), view);
}

void tst_ViewerSession::shouldShowTheScene()
{
    ViewerSession session(line({goodScene()}), nullptr);
    session.start();
    OverlayService *overlays = session.overlays();
    QCOMPARE(overlays->getName(overlays->getChild(overlays->getRootNode(), 0)), QString("Hello"));
    QVERIFY(session.window()->windowTitle().startsWith("good.json"));
    QCOMPARE(notices(session), QStringList());
}

void tst_ViewerSession::shouldDrawTheSamePixelsAsAnExport()
{
    ViewerSession session(line({goodScene()}), nullptr);
    session.start();
    const QImage shown = overlayPicture(session);
    QImage exported(shown.size(), QImage::Format_ARGB32_Premultiplied);
    exported.fill(Qt::transparent);
    ImageCache images;
    OverlayPainter overlayPainter(session.overlays()->scene(), images);
    QPainter painter(&exported);
    overlayPainter.paint(painter, exported.size(), 96);
    painter.end();
    QCOMPARE(shown, exported);
    exported.fill(Qt::transparent);
    QVERIFY(shown != exported);
}

void tst_ViewerSession::shouldReadAnImageAnewWhenItsPathIsSet()
{
    QVERIFY(paintFile(Qt::red));
    ViewerSession session(line({write("image.json", scene(imageOverlay("colour.png")))}), nullptr);
    session.start();
    TRY_COMPARE(middleOf(session), QColor(Qt::red));
    QVERIFY(paintFile(Qt::blue));
    OverlayService *overlays = session.overlays();
    const QRPC::NodeId node = overlays->getChild(overlays->getRootNode(), 0);
    overlays->setImage({node}, overlays->getImage(node));
    QVERIFY(session.images().isLoading()); // without waiting for a notice of the change
    TRY_COMPARE(middleOf(session), QColor(Qt::blue));
}

void tst_ViewerSession::shouldShowAnImageThatChanges()
{
    QVERIFY(paintFile(Qt::red));
    ViewerSession session(line({write("image.json", scene(imageOverlay("colour.png")))}), nullptr);
    session.start();
    auto *layer = session.window()->findChild<OverlayLayer *>();
    TRY_COMPARE(middleOf(session), QColor(Qt::red));
    QCoreApplication::processEvents();
    PaintCount paints;
    layer->installEventFilter(&paints);
    QVERIFY(paintFile(Qt::blue));
    TRY_COMPARE(paints.count > 0, true); // nobody but the picture asks for it
    TRY_COMPARE(middleOf(session), QColor(Qt::blue));
}

void tst_ViewerSession::shouldDrawAnImageOfTheScenesFolder()
{
    QVERIFY(paintFile(Qt::red));
    ViewerSession session(line({write("image.json", scene(imageOverlay("")))}), nullptr);
    session.start();
    QVERIFY(middleOf(session) != QColor(Qt::red));
    OverlayService *overlays = session.overlays();
    overlays->setImage({overlays->getChild(overlays->getRootNode(), 0)}, "colour.png");
    TRY_COMPARE(middleOf(session), QColor(Qt::red));
}

void tst_ViewerSession::shouldReadImagesAnewWithEachScene()
{
    QVERIFY(paintFile(Qt::red));
    const QString sceneFile = write("image.json", scene(imageOverlay("colour.png")));
    ViewerSession session(line({sceneFile}), nullptr);
    session.start();
    TRY_COMPARE(middleOf(session), QColor(Qt::red));
    QVERIFY(paintFile(Qt::blue));
    QVERIFY(session.openScene(sceneFile));
    TRY_COMPARE(middleOf(session), QColor(Qt::blue));
}

void tst_ViewerSession::shouldLeaveTheOpenSceneWhenAFileIsBad_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("place");
    QTest::newRow("no JSON") << QByteArray("{\"format\": ") << "bad.json";
    QTest::newRow("wrong value") << scene(R"({"kind": "overlay", "type": "text", "size": "big"})")
                                 << "/overlays/0/size";
    QTest::newRow("missing") << QByteArray() << "missing.json";
}

void tst_ViewerSession::shouldLeaveTheOpenSceneWhenAFileIsBad()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, place);
    const QString bad =
        content.isEmpty() ? m_folder->filePath("missing.json") : write("bad.json", content);
    ViewerSession session(line({goodScene()}), nullptr);
    session.start();
    QSignalSpy resets(session.overlays(), &kxOverlayService::modelReset);

    QVERIFY(!session.openScene(bad));

    QCOMPARE(resets.size(), 0);
    OverlayService *overlays = session.overlays();
    QCOMPARE(overlays->getChildCount(overlays->getRootNode()), 1);
    QVERIFY(session.window()->windowTitle().startsWith("good.json"));
    QCOMPARE(notices(session).size(), 1);
    QVERIFY2(notices(session).constFirst().contains(bad),
             qPrintable(notices(session).constFirst()));
    QVERIFY2(notices(session).constFirst().contains(place),
             qPrintable(notices(session).constFirst()));
}

void tst_ViewerSession::shouldWarnOfMissingImages()
{
    ViewerSession session(line({write("image.json", scene(imageOverlay("none.png")))}), nullptr);
    session.start();
    QVERIFY(session.window()->windowTitle().startsWith("image.json"));
    QCOMPARE(notices(session).size(), 1);
    QVERIFY(notices(session).constFirst().contains("none.png"));
}

void tst_ViewerSession::shouldForgetImagesThatAreThereNow()
{
    const QByteArray hidden =
        R"({"kind": "group", "enabled": false, "children": [)" + imageOverlay("colour.png") + "]}";
    const QByteArray other = imageOverlay("other.png");
    ViewerSession session(line({write("image.json", scene(hidden + ',' + other))}), nullptr);
    session.start();
    session.window()->notify(Severity::Error, "Another message.");
    QCOMPARE(notices(session).constLast().count('\n'), 1);
    QVERIFY(paintFile(Qt::red));
    TRY_COMPARE(notices(session).constLast().count('\n'), 0);
    QVERIFY(notices(session).constLast().contains("other.png"));
    OverlayService *overlays = session.overlays();
    overlays->deleteNodes({overlays->getChild(Scene::RootId, 1)});
    TRY_COMPARE(notices(session), QStringList("Another message."));
}

void tst_ViewerSession::shouldForgetMissingImagesOfAnotherScene()
{
    ViewerSession session(line({write("image.json", scene(imageOverlay("none.png")))}), nullptr);
    session.start();
    QCOMPARE(notices(session).size(), 1);
    QVERIFY(session.openScene(goodScene()));
    QCOMPARE(notices(session), QStringList());
    QApplication::clipboard()->setText(QString::fromUtf8(scene(imageOverlay("/none.png"))));
    session.window()->findChild<QAction *>("paste")->trigger();
    QCOMPARE(notices(session).size(), 1);
    QVERIFY(session.openScene(goodScene()));
    QCOMPARE(notices(session), QStringList());
}

void tst_ViewerSession::shouldShortenManyWarnings()
{
    QByteArrayList overlays;
    for (int i = 0; i < 10; ++i)
        overlays.append(imageOverlay("none" + QByteArray::number(i) + ".png"));
    ViewerSession session(line({write("many.json", scene(overlays.join(',')))}), nullptr);
    session.start();
    const QStringList lines = notices(session).constFirst().split('\n');
    QCOMPARE(lines.size(), 7);
    QVERIFY(lines.at(5).contains("none5.png"));
    QVERIFY2(lines.at(6).contains('4'), qPrintable(lines.at(6)));
}

void tst_ViewerSession::shouldTakeOldNoticesAwayWhenTheUserOpensAScene()
{
    ViewerSession session(line({m_folder->filePath("missing.json")}), nullptr);
    session.start();
    QCOMPARE(notices(session).size(), 1);
    emit session.window()->openRequested(goodScene());
    QCOMPARE(notices(session), QStringList());
}

void tst_ViewerSession::shouldKeepTheLayoutForTheNextRun()
{
    QSettings settings(m_folder->filePath("layout.ini"), QSettings::IniFormat);
    {
        ViewerSession session(line({}), &settings);
        session.start();
        session.window()->modulePanels()->dock("Journal")->close();
        session.window()->close();
    }
    ViewerSession session(line({}), &settings);
    session.start();
    QVERIFY(!session.window()->modulePanels()->dock("Journal")->isVisible());
}

void tst_ViewerSession::shouldMarkUnsavedChangesInTheTitle()
{
    ViewerSession session(line({goodScene()}), nullptr);
    session.start();
    QVERIFY(session.window()->windowTitle().startsWith("good.json[*]"));
    QVERIFY(!session.window()->isWindowModified());
    session.overlays()->createGroup(Scene::RootId);
    QVERIFY(session.window()->isWindowModified());
    QVERIFY(session.document()->save());
    QVERIFY(!session.window()->isWindowModified());
}

void tst_ViewerSession::shouldForgetThatItCouldNotSave()
{
    ViewerSession session(line({goodScene()}), nullptr);
    session.start();
    session.window()->notify(Severity::Warning, "An image is missing.");
    QDir folder(m_folder->path());
    QVERIFY(folder.removeRecursively());
    session.overlays()->createGroup(Scene::RootId);
    QVERIFY(!session.document()->save());
    QCOMPARE(notices(session).size(), 2);
    QVERIFY(folder.mkpath("."));
    QVERIFY(session.document()->save());
    QCOMPARE(notices(session), QStringList("An image is missing."));
}

void tst_ViewerSession::shouldTellThatItCannotRecord()
{
    const QString script = m_folder->filePath("no/such/folder.js");
    ViewerSession session(line({"--record", script}), nullptr);
    session.start();
    session.overlays()->createGroup(Scene::RootId);
    QCOMPARE(notices(session).size(), 1);
    QVERIFY2(notices(session).constFirst().contains(script),
             qPrintable(notices(session).constFirst()));
}

void tst_ViewerSession::shouldLeaveAPictureAndQuit()
{
    const QString file = m_folder->filePath("picture.png");
    ViewerSession session(line({goodScene(), "--screenshot", file}), nullptr);
    session.start();
    QCOMPARE(QApplication::exec(), 0);
    const QImage picture(file);
    QCOMPARE(picture.size(), QSize(1600, 1000));
}

void tst_ViewerSession::shouldWaitForImagesWithThePicture()
{
    QImage image(3000, 3000, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(m_folder->filePath("large.png")));
    const QString file = m_folder->filePath("picture.png");
    ViewerSession session(
        line({write("image.json", scene(imageOverlay("large.png"))), "--screenshot", file}),
        nullptr);
    session.start();
    QCOMPARE(QApplication::exec(), 0);
    const ViewArea *view = session.window()->viewArea();
    const QPoint middle = view->mapTo(session.window(), view->rect().center());
    QCOMPARE(QImage(file).pixelColor(middle), QColor(Qt::red));
}

void tst_ViewerSession::shouldFailWhenThePictureCannotBeWritten()
{
    ViewerSession session(line({"--screenshot", m_folder->filePath("no/folder.png")}), nullptr);
    session.start();
    QCOMPARE(QApplication::exec(), 1);
    QVERIFY(notices(session).constFirst().contains("no/folder.png"));
}

KX_TEST_MAIN(tst_ViewerSession)
#include "tst_ViewerSession.moc"

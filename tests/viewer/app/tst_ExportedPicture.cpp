// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"
#include "viewer/app/OverlayLayer.h"
#include "viewer/app/ViewerSession.h"

#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

using namespace viewer;

/// Pictures that the program exports, beside the window of a session that shows the same scene above
/// the painted backdrop: pixel for pixel the same, whatever the density of the display. Run on several
/// of them, and in a real window too.
class tst_ExportedPicture : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldEqualTheView_data();
    void shouldEqualTheView();
    void shouldEqualTheOverlaysOfTheViewWhenTransparent_data();
    void shouldEqualTheOverlaysOfTheViewWhenTransparent();

private:
    void addScenes() const;
    void show(ViewerSession *session, const QString &scene) const;
    QImage exported(const ViewerSession &session, const QString &scene,
                    const QStringList &options) const;

    QTemporaryDir m_folder;
    const CommandLine m_line{{"overlay-viewer", "--no-gl", "--plugin", PLUGIN_JOURNAL}};
};

namespace {

/// Whatever is drawn in a way of its own: lines, boxes and scripts of text; pictures larger and
/// smaller than they are, and missing ones; what lies half beside the view or is not shown at all.
const char *const Everything = R"({"format": "overlay-scene", "version": 1, "overlays": [
    {"kind": "overlay", "type": "image", "image": "photo.png", "size": 90, "position": [0, 0]},
    {"kind": "overlay", "type": "image", "image": "tiny.png", "sizeType": "relative", "size": 0.37,
     "position": [1, 1], "offset": [7.3, 5.1]},
    {"kind": "overlay", "type": "image", "image": "gone.png", "size": 40, "position": [0.5, 0.9]},
    {"kind": "group", "children": [
        {"kind": "overlay", "type": "text", "text": "Several\nlines of text, aligned right",
         "backgroundColor": "#203040", "backgroundTransparency": "#606060",
         "size": 17.5, "position": [1, 0.5], "offset": [-11.25, 3.5]},
        {"kind": "overlay", "type": "text", "text": "שלום Äß→", "fontColor": "#80ffcc00",
         "sizeType": "relative", "size": 0.083, "position": [0.31, 0.43]}]},
    {"kind": "group", "enabled": false, "children": [
        {"kind": "overlay", "type": "text", "text": "Hidden", "size": 99}]},
    {"kind": "switch", "children": [
        {"kind": "overlay", "enabled": false, "type": "text", "text": "Other", "size": 60},
        {"kind": "overlay", "type": "text", "text": "Half beside", "size": 60,
         "position": [0, 0.7], "offset": [-100, 0]}]}]})";

bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// No two rows and no two columns are alike.
QImage photo(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(x * 7 % 256, y * 5 % 256, (x ^ y) % 256, 255 - x * y % 200));
    }
    return image;
}

/// What stands on the display where there is one; else the window, drawn once more.
QImage pictureOf(QWidget *window)
{
    const bool hasDisplay = QGuiApplication::platformName() == "xcb";
    QPixmap picture = hasDisplay ? window->screen()->grabWindow(window->winId()) : window->grab();
    picture.setDevicePixelRatio(1);
    return picture.toImage();
}

/// A widget as the window shows it, in the display's own pixels.
QImage seen(const QWidget &widget)
{
    const qreal scale = widget.devicePixelRatioF();
    const QPointF corner = QPointF(widget.mapTo(widget.window(), QPoint())) * scale;
    const QSize size = OverlayLayer::geometryOf(widget).size;
    return pictureOf(widget.window())
        .copy(QRect(corner.toPoint(), size))
        .convertToFormat(QImage::Format_RGB32);
}

QImage layerAlone(const ViewerSession &session)
{
    auto *layer = session.window()->findChild<OverlayLayer *>();
    QImage image(OverlayLayer::geometryOf(*layer).size, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(layer->devicePixelRatioF());
    image.fill(Qt::transparent);
    layer->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    image.setDevicePixelRatio(1);
    return image.convertToFormat(QImage::Format_ARGB32);
}

} // namespace

void tst_ExportedPicture::initTestCase()
{
    QVERIFY(writeFile(m_folder.filePath("everything.json"), Everything));
    QVERIFY(photo({331, 257}).save(m_folder.filePath("photo.png")));
    QVERIFY(photo({5, 3}).save(m_folder.filePath("tiny.png")));
}

void tst_ExportedPicture::addScenes() const
{
    QTest::addColumn<QString>("scene");
    QTest::newRow("everything") << m_folder.filePath("everything.json");
    QTest::newRow("title sheet") << EXAMPLES "/title_sheet.json";
    QTest::newRow("variants") << EXAMPLES "/variants.json";
    QTest::newRow("many") << EXAMPLES "/stress_1000.json";
}

/// Shows a scene with all of its images and without a word about them.
void tst_ExportedPicture::show(ViewerSession *session, const QString &scene) const
{
    session->start();
    session->window()->resize(1603, 909);
    QVERIFY(session->openScene(scene));
    QTRY_VERIFY(session->window()->isVisible());
    session->window()->grab(); // which asks for the images
    QTRY_VERIFY_WITH_TIMEOUT(!session->images().isLoading(), 30000);
    session->window()->viewArea()->notices()->clear();
}

/// What the program exports in the size and density of the view.
QImage tst_ExportedPicture::exported(const ViewerSession &session, const QString &scene,
                                     const QStringList &options) const
{
    const ViewGeometry view = OverlayLayer::geometryOf(*session.window()->viewArea());
    const QString picture = m_folder.filePath("picture.png");
    QFile::remove(picture);
    const QString size = QString("%1x%2").arg(view.size.width()).arg(view.size.height());
    QProcess::execute(PROGRAM, QStringList{"--headless", "--plugin", PLUGIN_EDITOR, "--scene",
                                           scene, "--export", picture, "--size", size, "--dpi",
                                           QString::number(view.dpi)}
                                   + options);
    return QImage(picture);
}

void tst_ExportedPicture::shouldEqualTheView_data()
{
    addScenes();
}

void tst_ExportedPicture::shouldEqualTheView()
{
    QFETCH(QString, scene);
    ViewerSession session(m_line, nullptr);
    show(&session, scene);
    const QImage picture = exported(session, scene, {});
    // A display may lag behind.
    QTRY_COMPARE(seen(*session.window()->viewArea()),
                 picture.convertToFormat(QImage::Format_RGB32));
}

void tst_ExportedPicture::shouldEqualTheOverlaysOfTheViewWhenTransparent_data()
{
    addScenes();
}

void tst_ExportedPicture::shouldEqualTheOverlaysOfTheViewWhenTransparent()
{
    QFETCH(QString, scene);
    ViewerSession session(m_line, nullptr);
    show(&session, scene);
    const QImage picture = exported(session, scene, {"--transparent"});
    QCOMPARE(picture, layerAlone(session));
}

KX_TEST_MAIN(tst_ExportedPicture)
#include "tst_ExportedPicture.moc"

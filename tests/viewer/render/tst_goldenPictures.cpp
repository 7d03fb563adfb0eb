// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/render/GoldenPicture.h"
#include "tests/viewer/scene/ServiceTest.h"
#include "viewer/render/OverlayPainter.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>

using QRPC::NodeList;
using viewer::ImageCache;
using viewer::OverlayPainter;

namespace {

const QSize View(320, 180);
const QColor Paper(52, 58, 66);

struct Anchor
{
    const char *node;
    QPointF at;
    QColor color;
};

/// One overlay at each anchor, each in its own colour.
const QVector<Anchor> &anchors()
{
    static const QVector<Anchor> all{
        {"a", {0.0, 1.0}, {255, 107, 107}}, {"b", {0.5, 1.0}, {255, 217, 61}},
        {"c", {1.0, 1.0}, {107, 203, 119}}, {"d", {0.0, 0.5}, {77, 150, 255}},
        {"e", {0.5, 0.5}, {255, 255, 255}}, {"f", {1.0, 0.5}, {199, 125, 255}},
        {"g", {0.0, 0.0}, {255, 159, 69}},  {"h", {0.5, 0.0}, {69, 224, 208}},
        {"i", {1.0, 0.0}, {255, 133, 192}}};
    return all;
}

/// A view on a screen, as far as the painter can tell.
class Canvas : public QWidget
{
public:
    explicit Canvas(std::function<void(QPainter *)> draw) : m_draw(std::move(draw))
    {
        resize(View);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Paper);
        m_draw(&painter);
    }

private:
    const std::function<void(QPainter *)> m_draw;
};

/// A picture without symmetry: a mirrored, turned or cut one shows.
QImage flag(const QColor &color)
{
    QImage image(48, 32, QImage::Format_RGB32);
    image.fill(color);
    QPainter painter(&image);
    painter.fillRect(0, 0, 24, 16, QColor(38, 70, 83));
    painter.fillRect(36, 24, 12, 8, QColor(231, 111, 81));
    return image;
}

} // namespace

class tst_goldenPictures : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldTellALineThatMovedByAPixel();
    void shouldMarkWhatDiffers();
    void shouldDrawOnAWidgetAsInAPicture();
    void shouldDrawNineAnchors_data();
    void shouldDrawNineAnchors();
    void shouldMoveByTheOffset();
    void shouldAlignLinesByTheAnchor();
    void shouldMixBackgroundsByTransparency();
    void shouldStackSiblingsAndLeaveOutTheInactive();

private:
    void drawOn(QPainter *painter);
    QImage drawn();
    void write(const QString &node, const QString &text, float size);
    QString pictureOf(const QString &node) const { return m_folder.filePath(node + ".png"); }
    void showPicture(const QString &node);
    void placeAtAnchors();

    QString m_family;
    QTemporaryDir m_folder;
};

void tst_goldenPictures::initTestCase()
{
    m_family = golden::loadFont();
    QCOMPARE(m_family, QString("Overlay Test Sans"));
    for (const Anchor &anchor : anchors())
        QVERIFY(flag(anchor.color).save(pictureOf(anchor.node)));
}

void tst_goldenPictures::drawOn(QPainter *painter)
{
    ImageCache images;
    OverlayPainter overlays(scene(), images);
    overlays.paint(*painter, View, 96.0);
}

QImage tst_goldenPictures::drawn()
{
    QImage image(View, QImage::Format_RGB32);
    image.fill(Paper);
    QPainter painter(&image);
    drawOn(&painter);
    return image;
}

void tst_goldenPictures::write(const QString &node, const QString &text, float size)
{
    service().setText(ids(node), text);
    service().setFont(ids(node), m_family);
    service().setSize(ids(node), size);
    service().setBackgroundTransparency(ids(node), Qt::white);
}

void tst_goldenPictures::showPicture(const QString &node)
{
    service().setOverlayType(ids(node), 1);
    service().setImage(ids(node), pictureOf(node));
}

void tst_goldenPictures::placeAtAnchors()
{
    for (const Anchor &anchor : anchors()) {
        service().setPosition(ids(anchor.node), anchor.at);
        service().setFontColor(ids(anchor.node), anchor.color);
    }
}

void tst_goldenPictures::shouldTellALineThatMovedByAPixel()
{
    open("a");
    write("a", "ill", 9.0F);
    const QImage before = drawn();
    service().setOffsetX(ids("a"), 0.75F); // a pixel at 96 dots per inch
    QVERIFY(golden::differingPixels(drawn(), before) > 2 * golden::Tolerated);
    QCOMPARE(golden::differingPixels(before, before), 0);
}

void tst_goldenPictures::shouldMarkWhatDiffers()
{
    QImage kept(4, 1, QImage::Format_RGB32);
    kept.fill(QColor(90, 90, 90));
    QImage drawn = kept;
    drawn.setPixelColor(0, 0, QColor(100, 90, 90)); // a trace
    drawn.setPixelColor(1, 0, QColor(90, 90, 130));
    const QColor red(255, 0, 0);
    const QImage marked = golden::difference(drawn, kept);
    QVERIFY(marked.pixelColor(0, 0) != red);
    QCOMPARE(marked.pixelColor(1, 0), red);
    QVERIFY(marked.pixelColor(2, 0) != red);
    QCOMPARE(golden::difference(drawn, kept.copy(0, 0, 2, 1)).pixelColor(3, 0), red);
}

// Of an opaque widget a desktop may ask for letters with coloured edges.
void tst_goldenPictures::shouldDrawOnAWidgetAsInAPicture()
{
    open("d e");
    write("d", "Edges", 12.0F);
    write("e", "iiill", 9.0F);
    service().setFontColor(ids("d e"), Qt::white);
    service().setPosition(ids("d"), {0.0, 0.5});
    Canvas canvas([this](QPainter *painter) { drawOn(painter); });
    QCOMPARE(canvas.grab().toImage().convertToFormat(QImage::Format_RGB32), drawn());
}

void tst_goldenPictures::shouldDrawNineAnchors_data()
{
    QTest::addColumn<bool>("isText");
    QTest::addColumn<int>("sizeType");
    QTest::newRow("text-absolute") << true << 0;
    QTest::newRow("text-relative") << true << 1;
    QTest::newRow("image-absolute") << false << 0;
    QTest::newRow("image-relative") << false << 1;
}

void tst_goldenPictures::shouldDrawNineAnchors()
{
    QFETCH(bool, isText);
    QFETCH(int, sizeType);
    open("a b c d e f g h i");
    for (const Anchor &anchor : anchors()) {
        write(anchor.node, QString("Text %1").arg(anchor.node), sizeType == 0 ? 18.0F : 0.2F);
        if (!isText)
            showPicture(anchor.node);
    }
    service().setSizeType(ids("a b c d e f g h i"), sizeType);
    placeAtAnchors();
    QCOMPARE(golden::fault(drawn(), QTest::currentDataTag()), QString());
}

void tst_goldenPictures::shouldMoveByTheOffset()
{
    open("a b c d e f g h i");
    for (const Anchor &anchor : anchors())
        write(anchor.node, "o", 18.0F);
    placeAtAnchors();
    service().setOffsetX(ids("a b c d e f g h i"), 4.5F);
    service().setOffsetY(ids("a b c d e f g h i"), 6.0F);
    QCOMPARE(golden::fault(drawn(), "offset"), QString());
}

void tst_goldenPictures::shouldAlignLinesByTheAnchor()
{
    open("d e f");
    for (const char *node : {"d", "e", "f"})
        write(node, "Wide line\nmid\ni", 12.0F);
    placeAtAnchors();
    service().setBackgroundTransparency(ids("d e f"), Qt::black);
    QCOMPARE(golden::fault(drawn(), "lines"), QString());
}

void tst_goldenPictures::shouldMixBackgroundsByTransparency()
{
    open("d e f h");
    for (const char *node : {"d", "e", "f", "h"}) {
        write(node, "Mix", 20.0F);
        service().setBackgroundColor(ids(node), QColor(42, 157, 143));
    }
    placeAtAnchors();
    service().setBackgroundTransparency(ids("d"), Qt::black);
    service().setBackgroundTransparency(ids("e"), QColor(128, 128, 128));
    service().setBackgroundTransparency(ids("f"), Qt::white);
    service().setBackgroundTransparency(ids("h"), QColor(255, 0, 0)); // a third
    service().setOffsetX(ids("d"), 12.0F);
    QCOMPARE(golden::fault(drawn(), "transparency"), QString());
}

void tst_goldenPictures::shouldStackSiblingsAndLeaveOutTheInactive()
{
    open("d e f- q-(b) s{h i-}");
    for (const char *node : {"d", "e", "f", "b", "h", "i"})
        write(node, QString("Node %1").arg(node), 24.0F);
    placeAtAnchors();
    service().setPosition(ids("d"), {0.5, 0.5});
    service().setBackgroundColor(ids("e"), QColor(231, 111, 81));
    service().setBackgroundTransparency(ids("e"), QColor(90, 90, 90));
    service().setOffsetX(ids("e"), 30.0F);
    service().setOffsetY(ids("e"), -9.0F);
    QCOMPARE(golden::fault(drawn(), "stacking"), QString());
}

KX_TEST_MAIN(tst_goldenPictures)

#include "tst_goldenPictures.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"
#include "viewer/render/OverlayPainter.h"

#include <QPainter>
#include <QTemporaryDir>

using QRPC::NodeId;
using QRPC::NodeList;
using viewer::ImageCache;
using viewer::OverlayPainter;

namespace {

const QColor Paper(10, 60, 10);

/// The rectangle around all pixels that differ.
QRect differenceOf(const QImage &one, const QImage &other)
{
    QRect difference;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                difference |= QRect(x, y, 1, 1);
        }
    }
    return difference;
}

/// The rectangle around all pixels that differ from the paper.
QRect inkOf(const QImage &image)
{
    QImage paper(image.size(), image.format());
    paper.fill(Paper);
    return differenceOf(image, paper);
}

bool isNear(const QRectF &a, const QRectF &b, double tolerance)
{
    return qAbs(a.left() - b.left()) <= tolerance && qAbs(a.right() - b.right()) <= tolerance
           && qAbs(a.top() - b.top()) <= tolerance && qAbs(a.bottom() - b.bottom()) <= tolerance;
}

} // namespace

class tst_OverlayPainter : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldDrawAtEachAnchor_data();
    void shouldDrawAtEachAnchor();
    void shouldGiveALineTheStatedHeight_data();
    void shouldGiveALineTheStatedHeight();
    void shouldStackLinesOneHeightApart();
    void shouldBreakLinesAtUnicodesSeparatorsToo();
    void shouldAlignLinesByTheAnchor_data();
    void shouldAlignLinesByTheAnchor();
    void shouldPutABoxBehindTheText();
    void shouldDrawActiveOverlaysOnly();
    void shouldDrawLaterSiblingsAbove();
    void shouldScaleAPictureToItsHeight_data();
    void shouldScaleAPictureToItsHeight();
    void shouldFrameAMissingImage();
    void shouldDrawAQuietFieldWhileAnImageIsRead();
    void shouldMarkAPictureWhoseFileVanished_data();
    void shouldMarkAPictureWhoseFileVanished();
    void shouldDrawNothingWhereThereIsNothing();
    void shouldLayOutOnlyWhatChanged();
    void shouldForgetTheTextsOfRemovedNodes();
    void shouldReadAnImageAnewWhenItIsSetAgain();
    void shouldGiveBoxesOfInactiveOverlaysToo();
    void shouldListWhatIsDrawnFromBelow();
    void shouldListTheBackgroundOfATextWithIt();
    void shouldListWithoutLayingOutAnew();
    void shouldSurviveValuesWithoutSense();
    void shouldScaleWithTheDotsPerInch();

private:
    void useImages(ImageCache::Reading reading);
    QImage drawn(const QSize &size = {320, 180}, double dpi = 96.0);
    void setUpText(const QString &name, const QString &text, float points);
    void setUpPicture(const QString &name, const QColor &color, const QSize &size);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ImageCache> m_images;
    std::unique_ptr<OverlayPainter> m_painter;
};

void tst_OverlayPainter::init()
{
    ServiceTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    open("a b g(c) s{d e-}");
    useImages(ImageCache::Reading::AtOnce);
    connect(&service(), &viewer::OverlayService::imageFileSet, this,
            [this](const QString &path) { m_images->reload(path); });
}

void tst_OverlayPainter::cleanup()
{
    m_painter.reset();
    ServiceTest::cleanup();
}

void tst_OverlayPainter::useImages(ImageCache::Reading reading)
{
    m_images = std::make_unique<ImageCache>(reading);
    m_painter = std::make_unique<OverlayPainter>(scene(), *m_images);
}

QImage tst_OverlayPainter::drawn(const QSize &size, double dpi)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Paper);
    QPainter painter(&image);
    m_painter->paint(painter, size, dpi);
    return image;
}

void tst_OverlayPainter::setUpText(const QString &name, const QString &text, float points)
{
    const NodeList nodes = ids(name);
    service().setText(nodes, text);
    service().setSize(nodes, points);
    service().setBackgroundTransparency(nodes, Qt::white);
}

void tst_OverlayPainter::setUpPicture(const QString &name, const QColor &color, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    const QString path = m_folder->filePath(name + ".png");
    QVERIFY(image.save(path));
    service().setOverlayType(ids(name), 1);
    service().setImage(ids(name), path);
}

void tst_OverlayPainter::shouldDrawAtEachAnchor_data()
{
    QTest::addColumn<bool>("isText");
    QTest::addColumn<int>("sizeType");
    QTest::addColumn<QPointF>("anchor");
    for (const bool isText : {true, false}) {
        for (const int sizeType : {0, 1}) {
            for (const double y : {0.0, 0.5, 1.0}) {
                for (const double x : {0.0, 0.5, 1.0})
                    QTest::addRow("%s %s %g %g", isText ? "text" : "image",
                                  sizeType ? "relative" : "absolute", x, y)
                        << isText << sizeType << QPointF(x, y);
            }
        }
    }
}

void tst_OverlayPainter::shouldDrawAtEachAnchor()
{
    QFETCH(bool, isText);
    QFETCH(int, sizeType);
    QFETCH(QPointF, anchor);
    const NodeList node = ids("a");
    if (isText)
        setUpText("a", "M", 0);
    else
        setUpPicture("a", Qt::red, {30, 10});
    service().setSizeType(node, sizeType);
    service().setSize(node, sizeType ? 0.5F : 67.5F); // 90 pixels either way
    service().setPosition(node, anchor);
    const QRectF box = m_painter->boxOf(node.first(), {320, 180}, 96);
    QCOMPARE(box.height(), 90.0);
    QCOMPARE(box.left(), anchor.x() * (320 - box.width()));
    QCOMPARE(box.top(), (1 - anchor.y()) * 90);
    const QRect ink = inkOf(drawn());
    QVERIFY(!ink.isEmpty());
    QVERIFY(box.adjusted(-1, -1, 1, 1).contains(ink));
    if (!isText)
        QVERIFY(isNear(QRectF(ink), box, 0.51));
}

void tst_OverlayPainter::shouldGiveALineTheStatedHeight_data()
{
    QTest::addColumn<float>("points");
    QTest::newRow("small") << 9.0F;
    QTest::newRow("with a fraction") << 10.3F;
    QTest::newRow("large") << 90.0F;
}

void tst_OverlayPainter::shouldGiveALineTheStatedHeight()
{
    QFETCH(float, points);
    setUpText("a", "Text", points);
    const QRectF box = m_painter->boxOf(id("a"), {320, 180}, 72);
    QCOMPARE(float(box.height()), points);
    // The family's proportions hold at every size: nothing is rounded to whole pixels.
    setUpText("b", "Text", 200.0F);
    const QRectF large = m_painter->boxOf(id("b"), {320, 180}, 72);
    QCOMPARE(float(box.width() / box.height()), float(large.width() / large.height()));
}

void tst_OverlayPainter::shouldStackLinesOneHeightApart()
{
    setUpText("a", "M\nM\n", 30);
    QCOMPARE(m_painter->boxOf(id("a"), {320, 180}, 72).height(), 90.0);
    service().setPosition(ids("a"), {0, 1});
    const QImage image = drawn({320, 180}, 72);
    const QRect first = inkOf(image.copy(0, 0, 320, 30));
    const QRect second = inkOf(image.copy(0, 30, 320, 30));
    QVERIFY(!first.isEmpty());
    QCOMPARE(second, first);
    QVERIFY(inkOf(image.copy(0, 60, 320, 120)).isEmpty());
}

void tst_OverlayPainter::shouldBreakLinesAtUnicodesSeparatorsToo()
{
    setUpText("a", "M\nM\nM", 30);
    const QImage lines = drawn();
    setUpText(
        "a",
        QString("M%1M%2M").arg(QChar(QChar::LineSeparator)).arg(QChar(QChar::ParagraphSeparator)),
        30);
    QCOMPARE(m_painter->boxOf(id("a"), {320, 180}, 72).height(), 90.0);
    QCOMPARE(drawn(), lines);
}

void tst_OverlayPainter::shouldAlignLinesByTheAnchor_data()
{
    QTest::addColumn<double>("x");
    QTest::newRow("left") << 0.0;
    QTest::newRow("centre") << 0.5;
    QTest::newRow("right") << 1.0;
}

void tst_OverlayPainter::shouldAlignLinesByTheAnchor()
{
    QFETCH(double, x);
    setUpText("a", "HHHHHH\nH", 30);
    service().setPosition(ids("a"), {x, 1});
    const QImage image = drawn({320, 180}, 72);
    const QRect wide = inkOf(image.copy(0, 0, 320, 30));
    const QRect narrow = inkOf(image.copy(0, 30, 320, 30));
    QVERIFY(narrow.width() < wide.width() / 3);
    const double expected = wide.left() + x * (wide.width() - narrow.width());
    QVERIFY2(qAbs(narrow.left() - expected) < 2.0, qPrintable(QString::number(expected)));
}

void tst_OverlayPainter::shouldPutABoxBehindTheText()
{
    setUpText("a", "Text", 36);
    service().setFontColor(ids("a"), QColor(255, 255, 255, 0));
    service().setBackgroundColor(ids("a"), QColor(200, 0, 0));
    service().setBackgroundTransparency(ids("a"), Qt::black);
    const QRectF box = m_painter->boxOf(id("a"), {320, 180}, 72);
    const QRectF expected = viewer::backgroundBox(box, 36);
    QImage image = drawn({320, 180}, 72);
    QVERIFY(isNear(QRectF(inkOf(image)), expected, 1.0));
    QCOMPARE(image.pixelColor(160, 90), QColor(200, 0, 0));
    service().setBackgroundTransparency(ids("a"), QColor(128, 128, 128));
    image = drawn({320, 180}, 72);
    const QColor mixed = image.pixelColor(160, 90);
    QVERIFY(qAbs(mixed.red() - 105) < 3 && qAbs(mixed.green() - 30) < 3);
    service().setBackgroundTransparency(ids("a"), Qt::white);
    QVERIFY(inkOf(drawn()).isEmpty());
}

void tst_OverlayPainter::shouldDrawActiveOverlaysOnly()
{
    const auto isDrawn = [this](const QString &name) {
        setUpText(name, "Text", 20);
        const bool drawnNow = !inkOf(drawn()).isEmpty();
        service().setText(ids(name), QString());
        return drawnNow;
    };
    QVERIFY(isDrawn("c"));
    QVERIFY(isDrawn("d"));
    QVERIFY(!isDrawn("e"));
    service().setEnabled(ids("g s"), false);
    QVERIFY(!isDrawn("c"));
    QVERIFY(!isDrawn("d"));
}

void tst_OverlayPainter::shouldDrawLaterSiblingsAbove()
{
    setUpPicture("a", Qt::red, {16, 16});
    setUpPicture("b", Qt::blue, {16, 16});
    setUpPicture("c", Qt::yellow, {16, 16});
    service().setSize(ids("a b c"), 48);
    QCOMPARE(drawn().pixelColor(160, 90), QColor(Qt::yellow));
    service().moveNodes(ids("g"), id("root"), 0);
    QCOMPARE(drawn().pixelColor(160, 90), QColor(Qt::blue));
    service().moveNodes(ids("b"), id("root"), 0);
    QCOMPARE(drawn().pixelColor(160, 90), QColor(Qt::red));
}

void tst_OverlayPainter::shouldScaleAPictureToItsHeight_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::newRow("smaller than shown") << QSize(20, 10);
    QTest::newRow("larger than shown") << QSize(400, 200);
    QTest::newRow("as large as shown") << QSize(120, 60);
}

void tst_OverlayPainter::shouldScaleAPictureToItsHeight()
{
    QFETCH(QSize, picture);
    setUpPicture("a", Qt::red, picture);
    service().setSize(ids("a"), 45);
    QCOMPARE(m_painter->boxOf(id("a"), {320, 180}, 96), QRectF(100, 60, 120, 60));
    const QImage image = drawn();
    QCOMPARE(inkOf(image), QRect(100, 60, 120, 60));
    QCOMPARE(image.pixelColor(160, 90), QColor(Qt::red));
}

void tst_OverlayPainter::shouldFrameAMissingImage()
{
    service().setOverlayType(ids("a"), 1);
    service().setImage(ids("a"), m_folder->filePath("gone.png"));
    service().setSize(ids("a"), 90);
    const QRectF box = m_painter->boxOf(id("a"), {320, 180}, 96);
    QCOMPARE(box.height(), 120.0);
    const QImage image = drawn();
    QVERIFY(isNear(QRectF(inkOf(image)), box, 1.0));
    QImage other = drawn();
    QCOMPARE(other, image);
    service().setImage(ids("a"), m_folder->filePath("other name.png"));
    QVERIFY(drawn() != image);
}

void tst_OverlayPainter::shouldDrawAQuietFieldWhileAnImageIsRead()
{
    setUpPicture("a", Qt::red, {16, 16});
    service().setSize(ids("a"), 90);
    useImages(ImageCache::Reading::InBackground);
    const QRectF box = m_painter->boxOf(id("a"), {320, 180}, 96);
    QCOMPARE(box.height(), 120.0);
    const QImage reading = drawn();
    QVERIFY(isNear(QRectF(inkOf(reading)), box, 1.0));
    QTRY_VERIFY(!m_images->isLoading());
    QCOMPARE(drawn().pixelColor(160, 90), QColor(Qt::red));
    // It does not look like something wrong.
    QVERIFY(QFile::remove(m_folder->filePath("a.png")));
    useImages(ImageCache::Reading::AtOnce);
    QVERIFY(drawn() != reading);
}

void tst_OverlayPainter::shouldMarkAPictureWhoseFileVanished_data()
{
    QTest::addColumn<float>("points");
    QTest::addColumn<double>("dpi");
    QTest::addColumn<int>("side");
    QTest::newRow("large") << 90.0F << 96.0 << 18;
    QTest::newRow("larger") << 120.0F << 96.0 << 18;
    QTest::newRow("on a dense display") << 45.0F << 192.0 << 36;
    QTest::newRow("tiny") << 9.0F << 96.0 << 6;
}

void tst_OverlayPainter::shouldMarkAPictureWhoseFileVanished()
{
    QFETCH(float, points);
    QFETCH(double, dpi);
    QFETCH(int, side);
    setUpPicture("a", Qt::red, {16, 16});
    service().setSize(ids("a"), points);
    useImages(ImageCache::Reading::InBackground);
    drawn({320, 180}, dpi);
    QTRY_VERIFY(!m_images->isLoading());
    const QImage good = drawn({320, 180}, dpi);
    QVERIFY(QFile::remove(m_folder->filePath("a.png")));
    m_images->reload(m_folder->filePath("a.png"));
    QTRY_VERIFY(!m_images->isLoading());
    const QImage marked = drawn({320, 180}, dpi);
    const QRect mark = differenceOf(good, marked);
    const QRect box = m_painter->boxOf(id("a"), {320, 180}, dpi).toRect();
    QVERIFY(box.contains(mark));
    QVERIFY(qAbs(mark.width() - side) <= 3 && qAbs(mark.height() - side) <= 3);
    QVERIFY(mark.center().x() > box.center().x() && mark.center().y() > box.center().y());
}

void tst_OverlayPainter::shouldDrawNothingWhereThereIsNothing()
{
    setUpText("a", QString(), 50);
    service().setBackgroundTransparency(ids("a"), Qt::black);
    service().setOverlayType(ids("b"), 1);
    setUpText("c", "Text", 0);
    QVERIFY(inkOf(drawn()).isEmpty());
    const QStringList names{"a", "b", "c", "g", "root", "?"};
    for (const QString &name : names)
        QVERIFY(m_painter->boxOf(id(name), {320, 180}, 96).isEmpty());
}

void tst_OverlayPainter::shouldLayOutOnlyWhatChanged()
{
    const NodeList all = ids("a b c d");
    service().setText(all, "Text");
    drawn();
    QCOMPARE(m_painter->layoutCount(), 4);
    drawn({640, 480}, 150);
    service().setSize(all, 11);
    service().setPosition(all, {1, 1});
    service().setOffsetX(all, 5);
    service().setFontColor(all, Qt::red);
    drawn();
    QCOMPARE(m_painter->layoutCount(), 4);
    service().setText(ids("b"), "Other");
    drawn();
    QCOMPARE(m_painter->layoutCount(), 5);
    service().setFont(ids("c"), "DejaVu Sans Mono");
    drawn();
    QCOMPARE(m_painter->layoutCount(), 6);
}

void tst_OverlayPainter::shouldForgetTheTextsOfRemovedNodes()
{
    for (int round = 0; round < 20; ++round) {
        const NodeId node = service().createOverlay(id("root"));
        drawn();
        service().deleteNodes({node});
    }
    QCOMPARE(m_painter->layoutCount(), 24); // 20 and the four that stay: none was laid out twice
    QVERIFY(m_painter->keptTexts() <= 2 * scene().nodeCount());
}

void tst_OverlayPainter::shouldReadAnImageAnewWhenItIsSetAgain()
{
    setUpPicture("a", Qt::red, {16, 16});
    QCOMPARE(drawn().pixelColor(160, 90), QColor(Qt::red));
    setUpPicture("a", Qt::blue, {16, 16});
    QCOMPARE(drawn().pixelColor(160, 90), QColor(Qt::blue));
    drawn();
    QCOMPARE(m_images->readCount(), 2);
}

void tst_OverlayPainter::shouldGiveBoxesOfInactiveOverlaysToo()
{
    setUpText("e", "Text", 20);
    QVERIFY(!service().isActive(id("e")));
    QVERIFY(!m_painter->boxOf(id("e"), {320, 180}, 96).isEmpty());
}

void tst_OverlayPainter::shouldListWhatIsDrawnFromBelow()
{
    for (const char *name : {"a", "c", "d", "e"})
        setUpText(name, "Text", 20);
    setUpPicture("b", Qt::red, {30, 10});
    service().setText(ids("c"), QString());
    service().moveNodes(ids("d"), id("root"), 0);
    QStringList names;
    for (const viewer::DrawnOverlay &drawn : m_painter->drawnOverlays({320, 180}, 96)) {
        names.append(service().getName(drawn.node));
        QCOMPARE(drawn.box, m_painter->boxOf(drawn.node, {320, 180}, 96));
        QCOMPARE(drawn.cover, drawn.box);
    }
    QCOMPARE(names, (QStringList{"d", "a", "b"})); // e is off, c without letters
}

void tst_OverlayPainter::shouldListTheBackgroundOfATextWithIt()
{
    setUpText("a", "M\nM", 36);
    service().setBackgroundTransparency(ids("a"), Qt::black);
    const viewer::DrawnOverlay drawn = m_painter->drawnOverlays({320, 180}, 72).front();
    QCOMPARE(drawn.cover, viewer::backgroundBox(drawn.box, 36));
}

void tst_OverlayPainter::shouldListWithoutLayingOutAnew()
{
    service().setText(ids("a b c d"), "Text");
    drawn();
    service().setOffset(ids("a"), {4, 4});
    m_painter->drawnOverlays({640, 480}, 192);
    QCOMPARE(m_painter->layoutCount(), 4);
}

void tst_OverlayPainter::shouldSurviveValuesWithoutSense()
{
    setUpText("a", "Text", 1e30F);
    service().setOffset(ids("a"), {1e300, -1e300});
    setUpText("b", "Text", float(qQNaN()));
    setUpText("c", "Text", 20);
    service().setPosition(ids("c"), {qQNaN(), qInf()});
    service().setFontColor(ids("d"), QColor());
    service().setText(ids("d"), "Text");
    service().setBackgroundColor(ids("d"), QColor());
    QVERIFY(inkOf(drawn()).isEmpty());
    QVERIFY(inkOf(drawn({1, 1}, 0)).isEmpty());
}

void tst_OverlayPainter::shouldScaleWithTheDotsPerInch()
{
    setUpText("a", "Text", 24);
    service().setOffset(ids("a"), {10, 5});
    const QRectF once = m_painter->boxOf(id("a"), {320, 180}, 96);
    const QRectF twice = m_painter->boxOf(id("a"), {640, 360}, 192);
    QVERIFY(isNear(twice, QRectF(once.topLeft() * 2, once.size() * 2), 1e-6));
}

KX_TEST_MAIN(tst_OverlayPainter)
#include "tst_OverlayPainter.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/FeedbackPainter.h"

#include "tests/support/KxTest.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <set>

using namespace viewer;

Q_DECLARE_METATYPE(viewer::EditFeedback)

/// Feedback drawn into a view of 300 by 200 device-independent pixels.
class tst_FeedbackPainter : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDrawLinesOnWholePixels_data();
    void shouldDrawLinesOnWholePixels();
    void shouldBeSeenOnEveryGround_data();
    void shouldBeSeenOnEveryGround();
    void shouldLeaveWhatIsOutlinedFree();
    void shouldDrawTheEdgesOfTheViewInIt();
    void shouldLeaveOutWhatLiesBeyondTheView();
    void shouldTellSelectedOverlaysFromMembersAndGroups();
    void shouldKeepTheReadOutInTheView_data();
    void shouldKeepTheReadOutInTheView();
    void shouldDrawNothingForNothing();

private:
    static QImage drawn(const EditFeedback &feedback, double ratio = 1.0,
                        const QColor &ground = Qt::white);
};

namespace {

QRect inkOf(const QImage &image, const QColor &ground)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

std::set<QRgb> colorsOf(const QImage &image)
{
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors;
}

/// The relative luminance by which contrasts of colours are stated.
double luminance(QRgb color)
{
    const auto channel = [](int value) {
        const double part = value / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * channel(qRed(color)) + 0.7152 * channel(qGreen(color))
           + 0.0722 * channel(qBlue(color));
}

double contrast(QRgb a, QRgb b)
{
    const double high = std::max(luminance(a), luminance(b));
    const double low = std::min(luminance(a), luminance(b));
    return (high + 0.05) / (low + 0.05);
}

EditFeedback outlined(const QRectF &box)
{
    EditFeedback feedback;
    feedback.outlines.overlays = {box};
    return feedback;
}

EditFeedback grouped(const QRectF &box)
{
    EditFeedback feedback;
    feedback.outlines.groups = {box};
    return feedback;
}

EditFeedback guided(double at)
{
    EditFeedback feedback;
    feedback.guides = {{Qt::Vertical, at, 20.4, 150.7}, {Qt::Horizontal, at, 101.2, 199.9}};
    return feedback;
}

EditFeedback tied(const QPointF &anchor, const QPointF &reference)
{
    EditFeedback feedback;
    feedback.tie = {anchor, reference};
    return feedback;
}

} // namespace

QImage tst_FeedbackPainter::drawn(const EditFeedback &feedback, double ratio, const QColor &ground)
{
    const QSize size = (QSizeF(300, 200) * ratio).toSize();
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    FeedbackPainter(&painter, {{size, 96 * ratio}, ratio}, QFont()).paint(feedback);
    return image;
}

void tst_FeedbackPainter::shouldDrawLinesOnWholePixels_data()
{
    QTest::addColumn<EditFeedback>("feedback");
    QTest::addColumn<double>("ratio");
    EditFeedback band;
    band.band = {40.3, 50.6, 90.2, 60.1};
    EditFeedback member;
    member.outlines.members = {{40.3, 50.6, 90.2, 60.1}};
    for (const double ratio : {1.0, 1.25, 2.0}) {
        QTest::addRow("overlay %g", ratio) << outlined({40.3, 50.6, 90.2, 60.1}) << ratio;
        QTest::addRow("group %g", ratio) << grouped({40.3, 50.6, 90.2, 60.1}) << ratio;
        QTest::addRow("member %g", ratio) << member << ratio;
        QTest::addRow("guides %g", ratio) << guided(80.4) << ratio;
        QTest::addRow("band %g", ratio) << band << ratio;
    }
}

/// A line between pixels would be drawn in further shades of its colour.
void tst_FeedbackPainter::shouldDrawLinesOnWholePixels()
{
    QFETCH(EditFeedback, feedback);
    QFETCH(double, ratio);
    const int ground = feedback.band.isEmpty() ? 1 : 2; // a band has one of its own
    QCOMPARE(int(colorsOf(drawn(feedback, ratio)).size()), ground + 2);
}

void tst_FeedbackPainter::shouldBeSeenOnEveryGround_data()
{
    QTest::addColumn<QColor>("ground");
    for (const char *name : {"white", "black", "gray", "#6cb8ff", "#ff6fb5", "yellow", "navy"})
        QTest::newRow(name) << QColor(name);
}

void tst_FeedbackPainter::shouldBeSeenOnEveryGround()
{
    QFETCH(QColor, ground);
    const EditFeedback feedbacks[] = {outlined({40, 50, 90, 60}), grouped({40, 50, 90, 60}),
                                      guided(80), tied({80, 60}, {80, 60})};
    for (const EditFeedback &feedback : feedbacks) {
        double best = 0;
        for (const QRgb line : colorsOf(drawn(feedback, 1, ground)))
            best = std::max(best, contrast(line, ground.rgb()));
        QVERIFY2(best >= 3.0, qPrintable(QString::number(best)));
    }
}

void tst_FeedbackPainter::shouldLeaveWhatIsOutlinedFree()
{
    const QImage image = drawn(outlined({40.5, 50.5, 90, 60}), 1);
    QCOMPARE(inkOf(image.copy(40, 50, 91, 61), Qt::white), QRect());
    QCOMPARE(inkOf(image, Qt::white), QRect(36, 46, 99, 69));
}

void tst_FeedbackPainter::shouldDrawTheEdgesOfTheViewInIt()
{
    QCOMPARE(inkOf(drawn(outlined({0, 0, 300, 200})), Qt::white), QRect(0, 0, 300, 200));
    const QImage image = drawn(outlined({0, 150, 300, 50}));
    const QColor middle = image.pixelColor(1, 175); // the bright line between its seams
    QCOMPARE(middle, QColor(0x6c, 0xb8, 0xff));
}

void tst_FeedbackPainter::shouldLeaveOutWhatLiesBeyondTheView()
{
    QCOMPARE(inkOf(drawn(outlined({400, 300, 50, 50})), Qt::white), QRect());
    QCOMPARE(inkOf(drawn(outlined({-1e7, -1e7, 2e7, 2e7})), Qt::white), QRect());
    QCOMPARE(inkOf(drawn(grouped({-1e7, 50, 2e7, 20})), Qt::white), QRect(0, 42, 300, 36));
}

void tst_FeedbackPainter::shouldTellSelectedOverlaysFromMembersAndGroups()
{
    const QRectF box(40, 50, 90, 60);
    EditFeedback member;
    member.outlines.members = {box};
    EditFeedback picked;
    picked.bandBoxes = {box};
    QVERIFY(drawn(outlined(box)) != drawn(member));
    QVERIFY(drawn(outlined(box)) != drawn(grouped(box)));
    QCOMPARE(drawn(picked), drawn(outlined(box)));
}

void tst_FeedbackPainter::shouldKeepTheReadOutInTheView_data()
{
    QTest::addColumn<QRectF>("beside");
    QTest::newRow("in the middle") << QRectF(100, 80, 0, 0);
    QTest::newRow("top left") << QRectF(0, 0, 0, 0);
    QTest::newRow("bottom right") << QRectF(299, 199, 0, 0);
    QTest::newRow("top right") << QRectF(299, 0, 0, 0);
    QTest::newRow("bottom left") << QRectF(0, 199, 0, 0);
    QTest::newRow("a box") << QRectF(50, 40, 60, 70);
    QTest::newRow("a box at the bottom") << QRectF(200, 130, 99, 69);
    QTest::newRow("beyond the view") << QRectF(-500, 900, 0, 0);
}

void tst_FeedbackPainter::shouldKeepTheReadOutInTheView()
{
    QFETCH(QRectF, beside);
    EditFeedback feedback;
    feedback.readOut = QStringList{"Offset", "Anchor"};
    for (const double ratio : {1.0, 1.25, 2.0}) {
        const QRectF clear(beside.topLeft() * ratio, beside.size() * ratio);
        feedback.readOutBeside = clear;
        const QImage image = drawn(feedback, ratio);
        const QRect ink = inkOf(image, Qt::white);
        QVERIFY(ink.width() > 50 * ratio && ink.height() > 20 * ratio);
        QVERIFY(ink.width() < 150 * ratio && ink.height() < 70 * ratio);
        QVERIFY(!ink.intersects(clear.adjusted(-1, -1, 1, 1).toAlignedRect()));
    }
}

void tst_FeedbackPainter::shouldDrawNothingForNothing()
{
    QCOMPARE(inkOf(drawn({}), Qt::white), QRect());
}

KX_TEST_MAIN(tst_FeedbackPainter)
#include "tst_FeedbackPainter.moc"

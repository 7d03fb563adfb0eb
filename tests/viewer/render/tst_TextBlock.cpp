// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/TextBlock.h"

#include "tests/support/KxTest.h"

#include <QImage>
#include <QPainter>

using viewer::TextBlock;

class tst_TextBlock : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldDrawTheSamePixelsWhateverElseIsDrawn_data();
    void shouldDrawTheSamePixelsWhateverElseIsDrawn();

private:
    int m_labelSize = 8;
};

namespace {

const char *const Family = "DejaVu Sans";

QImage drawn(const TextBlock &block, double height)
{
    QImage image(400, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    block.draw(&painter, QRectF(QPointF(10, 10), block.size() * height), Qt::white, 0.0);
    return image;
}

/// A text of the window, whose glyphs lie at parts of pixels.
void drawLabel(int pixels)
{
    QFont font(Family);
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferNoHinting);
    QImage image(400, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(QPointF(0, 30), "The quick brown fox jumps");
}

} // namespace

void tst_TextBlock::shouldDrawTheSamePixelsWhateverElseIsDrawn_data()
{
    QTest::addColumn<double>("height");
    for (const double height : {20.0, 60.0, 74.0, 75.0, 90.0, 140.0})
        QTest::newRow(qPrintable(QString::number(height))) << height;
}

void tst_TextBlock::shouldDrawTheSamePixelsWhateverElseIsDrawn()
{
    QFETCH(double, height);
    const TextBlock block("Sill", Family);
    const QImage first = drawn(block, height);
    for (int i = 0; i < 4; ++i) {
        drawLabel(++m_labelSize); // a size of its own, so that its glyphs are not at hand yet
        QCOMPARE(drawn(block, height), first);
    }
}

KX_TEST_MAIN(tst_TextBlock)
#include "tst_TextBlock.moc"

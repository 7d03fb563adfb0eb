// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/render/GoldenPicture.h"

#include <QDir>
#include <QFontDatabase>

#include <algorithm>
#include <cstdlib>

namespace golden {

namespace {

constexpr int Trace = 24; // of 255; one step of antialiasing is 16

QString keptFile(const QString &name)
{
    return QStringLiteral(GOLDEN_PICTURES "/%1.png").arg(name);
}

bool differs(QRgb a, QRgb b)
{
    const int red = std::abs(qRed(a) - qRed(b));
    const int green = std::abs(qGreen(a) - qGreen(b));
    const int blue = std::abs(qBlue(a) - qBlue(b));
    return std::max({red, green, blue}) > Trace;
}

} // namespace

QString fault(const QImage &drawn, const QString &name)
{
    if (qEnvironmentVariableIsSet("KX_RENEW_GOLDEN")) {
        return drawn.save(keptFile(name)) ? QString()
                                          : QStringLiteral("cannot write %1").arg(keptFile(name));
    }
    const QImage kept(keptFile(name));
    const int count = differingPixels(drawn, kept);
    if (count <= Tolerated)
        return {};
    QDir().mkpath(QStringLiteral(GOLDEN_RESULTS));
    const QString written = QStringLiteral(GOLDEN_RESULTS "/%1.png").arg(name);
    const QString marked = QStringLiteral(GOLDEN_RESULTS "/%1-difference.png").arg(name);
    drawn.save(written);
    difference(drawn, kept).save(marked);
    return QStringLiteral("%1 pixels differ from %2; this was drawn: %3; the differences: %4")
        .arg(count)
        .arg(keptFile(name), written, marked);
}

int differingPixels(const QImage &drawn, const QImage &kept)
{
    if (drawn.size() != kept.size())
        return std::max(1, drawn.width() * drawn.height());
    int count = 0;
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x)
            count += differs(drawn.pixel(x, y), kept.pixel(x, y)) ? 1 : 0;
    }
    return count;
}

QImage difference(const QImage &drawn, const QImage &kept)
{
    QImage marked(drawn.size(), QImage::Format_RGB32);
    for (int y = 0; y < drawn.height(); ++y) {
        for (int x = 0; x < drawn.width(); ++x) {
            const bool isKept = kept.valid(x, y) && !differs(drawn.pixel(x, y), kept.pixel(x, y));
            const int faint = isKept ? 192 + qGray(kept.pixel(x, y)) / 4 : 0;
            marked.setPixel(x, y, isKept ? qRgb(faint, faint, faint) : qRgb(255, 0, 0));
        }
    }
    return marked;
}

QString loadFont()
{
    const int font =
        QFontDatabase::addApplicationFont(QStringLiteral(GOLDEN_PICTURES "/OverlayTestSans.ttf"));
    const QStringList families = QFontDatabase::applicationFontFamilies(font);
    return families.isEmpty() ? QString() : families.first();
}

} // namespace golden

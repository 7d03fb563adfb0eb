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

QString kept(const QString &name)
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
        return drawn.save(kept(name)) ? QString()
                                      : QStringLiteral("cannot write %1").arg(kept(name));
    }
    const int count = differingPixels(drawn, QImage(kept(name)));
    if (count <= Tolerated)
        return {};
    QDir().mkpath(QStringLiteral(GOLDEN_RESULTS));
    const QString written = QStringLiteral(GOLDEN_RESULTS "/%1.png").arg(name);
    drawn.save(written);
    return QStringLiteral("%1 pixels differ from %2; this was drawn: %3")
        .arg(count)
        .arg(kept(name), written);
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

QString loadFont()
{
    const int font =
        QFontDatabase::addApplicationFont(QStringLiteral(GOLDEN_PICTURES "/OverlayTestSans.ttf"));
    const QStringList families = QFontDatabase::applicationFontFamilies(font);
    return families.isEmpty() ? QString() : families.first();
}

} // namespace golden

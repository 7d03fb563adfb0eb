// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/kxIconRenderer.h"

#include "host/kxStyle.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QPainter>
#include <QSet>
#include <QSvgRenderer>

#include <tuple>

namespace {

constexpr qreal dimmedOpacity = 0.45;

struct Key
{
    QString name;
    int look;
    int pixels;
    qreal ratio;

    bool operator==(const Key &other) const
    {
        return std::tie(look, pixels, ratio, name)
               == std::tie(other.look, other.pixels, other.ratio, other.name);
    }
};

uint qHash(const Key &key, uint seed = 0)
{
    return ::qHash(key.name, seed) ^ uint(key.pixels * 4 + key.look);
}

struct Memory
{
    QHash<Key, QPixmap> pixmaps;
    QSet<QString> warned;
    int renderings = 0;
    bool endsWithApplication = false;
};

Q_GLOBAL_STATIC(Memory, s_memory)

Memory &memory()
{
    return *s_memory;
}

// Pixmaps must not outlive the application that they were made in. An application object that is
// static itself may end after them.
void forgetPixmaps()
{
    if (s_memory.isDestroyed())
        return;
    memory().pixmaps.clear();
    memory().endsWithApplication = false;
}

QString fileOf(const QString &name)
{
    return QStringLiteral(":/kx/icons/%1.svg").arg(name);
}

QImage drawn(const QString &name, int pixels)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(fileOf(name)).render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}

QImage highlighted(QImage image)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), kxStyle::getAccentColor());
    return image;
}

// A dimmed icon is grey as well as faint: its colour alone would still draw the eye. It is dimmed
// as a whole, so that crossing strokes do not show.
QImage dimmed(QImage image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grey = qRound(qGray(line[x]) * dimmedOpacity);
            line[x] = qRgba(grey, grey, grey, qRound(qAlpha(line[x]) * dimmedOpacity));
        }
    }
    return image;
}

QImage withLook(const QImage &image, kxIconRenderer::Look look)
{
    switch (look) {
    case kxIconRenderer::Dimmed:
        return dimmed(image);
    case kxIconRenderer::Highlighted:
        return highlighted(image);
    case kxIconRenderer::Normal:
        break;
    }
    return image;
}

QPixmap render(const QString &name, kxIconRenderer::Look look, int pixels)
{
    ++memory().renderings;
    return QPixmap::fromImage(withLook(drawn(name, pixels), look));
}

} // namespace

bool kxIconRenderer::isKnown(const QString &name)
{
    if (!name.isEmpty() && QFile::exists(fileOf(name)))
        return true;
    if (!memory().warned.contains(name)) {
        memory().warned.insert(name);
        qWarning("kxIconManager: no icon is named \"%s\"", qUtf8Printable(name));
    }
    return false;
}

QPixmap kxIconRenderer::pixmap(const QString &name, Look look, int pixels, qreal ratio)
{
    const Key key{name, look, pixels, ratio};
    const QPixmap known = memory().pixmaps.value(key);
    if (!known.isNull())
        return known;
    if (pixels <= 0 || !isKnown(name))
        return {};
    if (!memory().endsWithApplication) {
        memory().endsWithApplication = true;
        qAddPostRoutine(forgetPixmaps);
    }
    QPixmap pixmap = render(name, look, pixels);
    pixmap.setDevicePixelRatio(ratio);
    memory().pixmaps.insert(key, pixmap);
    return pixmap;
}

int kxIconRenderer::renderingCount()
{
    return memory().renderings;
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/WholePicture.h"

#include <QIODevice>
#include <QtEndian>

#include <cstdlib>

namespace viewer {

namespace {

uchar byteAt(const QByteArray &bytes, int at)
{
    return at < bytes.size() ? uchar(bytes.at(at)) : uchar(0);
}

/// Chunks tell their length; the last one is empty.
bool isWholePng(QIODevice *file)
{
    constexpr int frame = 12; // length, name and check sum
    for (qint64 at = 8; file->seek(at);) {
        const QByteArray head = file->read(8);
        if (head.size() < 8)
            return false;
        at += frame + qint64(qFromBigEndian<quint32>(head.constData()));
        if (head.endsWith("IEND"))
            return at <= file->size();
    }
    return false;
}

/// Segments tell their length; compressed data run on to the next mark that is neither part of them
/// nor a restart.
bool isWholeJpeg(QIODevice *file)
{
    constexpr uchar endOfImage = 0xd9;
    const QByteArray bytes = file->readAll();
    int at = bytes.indexOf('\xff', 2);
    while (at >= 0 && at + 1 < bytes.size()) {
        const uchar mark = byteAt(bytes, at + 1);
        if (mark == endOfImage)
            return true;
        const bool isFilling = mark == 0xff;
        const bool isBare = mark <= 0x01 || (mark >= 0xd0 && mark <= 0xd8);
        const int length = byteAt(bytes, at + 2) << 8 | byteAt(bytes, at + 3);
        at = bytes.indexOf('\xff', at + (isFilling ? 1 : isBare ? 2 : 2 + length));
    }
    return false;
}

/// The end of a chain of blocks, each of which begins with its length; the last one is empty.
int endOfGifBlocks(const QByteArray &bytes, int at)
{
    while (byteAt(bytes, at) != 0)
        at += 1 + byteAt(bytes, at);
    return at + 1;
}

int sizeOfGifColors(uchar flags)
{
    return (flags & 0x80) != 0 ? 3 * (2 << (flags & 0x07)) : 0;
}

/// Whole when its first frame is, which is the one that is shown.
bool isWholeGif(QIODevice *file)
{
    const QByteArray bytes = file->readAll();
    int at = 13 + sizeOfGifColors(byteAt(bytes, 10));
    while (byteAt(bytes, at) == '!')
        at = endOfGifBlocks(bytes, at + 2);
    const int colors = at + 10;
    const int end = endOfGifBlocks(bytes, colors + sizeOfGifColors(byteAt(bytes, at + 9)) + 1);
    return byteAt(bytes, at) == ',' && end <= bytes.size();
}

/// Its header tells where the pixels begin and how many there are. Compressed ones tell nothing.
bool isWholeBmp(QIODevice *file)
{
    const QByteArray head = file->peek(34);
    if (head.size() < 34)
        return false;
    const auto number = [&head](int at) {
        return qFromLittleEndian<qint32>(head.constData() + at);
    };
    const qint64 bitsPerLine =
        qint64(number(18)) * qFromLittleEndian<quint16>(head.constData() + 28);
    const qint64 bytesPerLine = (bitsPerLine + 31) / 32 * 4;
    const bool isOld = number(14) < 40; // a shorter header with other fields
    const bool isCompressed = number(30) == 1 || number(30) == 2;
    return isOld || isCompressed
           || file->size() >= quint32(number(10)) + bytesPerLine * std::abs(qint64(number(22)));
}

} // namespace

bool isWholePicture(QIODevice *file, const QByteArray &format)
{
    struct Check
    {
        const char *format;
        bool (*isWhole)(QIODevice *file);
    };
    static constexpr Check checks[] = {
        {"png", isWholePng}, {"jpeg", isWholeJpeg}, {"jpg", isWholeJpeg},
        {"gif", isWholeGif}, {"bmp", isWholeBmp},
    };
    for (const Check &check : checks) {
        if (format == check.format)
            return check.isWhole(file);
    }
    return true;
}

} // namespace viewer

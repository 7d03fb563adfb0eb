// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/ImageCache.h"

#include "viewer/render/ImageFile.h"

#include <QThread>

#include <algorithm>

namespace viewer {

namespace {

constexpr qint64 LeastBytes = 1 << 20;
constexpr int KeptSizes = 8;
constexpr int LeastThreads = 2; // a big picture does not keep all others waiting
constexpr int MostThreads = 4;  // each takes no more than a quarter of the memory that is left

} // namespace

ImageCache::ImageCache(Reading reading, const ImageLimits &limits) : m_limits(limits)
{
    if (reading == Reading::AtOnce)
        return;
    m_pool.setMaxThreadCount(std::clamp(QThread::idealThreadCount(), LeastThreads, MostThreads));
    m_watch = std::make_unique<FileWatch>(limits.watch);
    connect(m_watch.get(), &FileWatch::changed, this, &ImageCache::reload);
    connect(m_watch.get(), &FileWatch::limitReached, this, &ImageCache::watchLimited);
}

// What is still being read would call back.
ImageCache::~ImageCache()
{
    ++m_scene;
    m_pool.waitForDone();
}

ImageCache::Entry &ImageCache::entry(const QString &path)
{
    auto it = m_entries.find(path);
    if (it == m_entries.end()) {
        it = m_entries.insert(path, {});
        create(path, &*it);
    }
    it->drawing = m_drawing;
    return *it;
}

void ImageCache::create(const QString &path, Entry *entry)
{
    if (m_watch) {
        m_watch->add(path);
        startReading(path, entry);
        return;
    }
    ++m_readCount;
    take(entry, readFile(path));
}

const QImage &ImageCache::image(const QString &path)
{
    return entry(path).image;
}

ImageCache::State ImageCache::state(const QString &path)
{
    return entry(path).state;
}

const QImage &ImageCache::scaledImage(const QString &path, const QSize &size)
{
    Entry &found = entry(path);
    if (found.image.isNull())
        return found.image;
    for (const QImage &scaled : qAsConst(found.scaled)) {
        if (scaled.size() == size)
            return scaled;
    }
    if (found.scaled.size() == KeptSizes)
        found.scaled.removeFirst();
    found.scaled.append(found.image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    return found.scaled.constLast();
}

void ImageCache::reload(const QString &path)
{
    const auto it = m_entries.find(path);
    if (it == m_entries.end())
        return;
    if (!m_watch) {
        m_bytes -= it->image.sizeInBytes();
        m_entries.erase(it);
    } else if (it->reading != 0) {
        it->isDue = true;
    } else {
        startReading(path, &*it);
    }
}

void ImageCache::forgetAll()
{
    ++m_scene;
    for (const Entry &entry : qAsConst(m_entries))
        m_bytes -= entry.image.sizeInBytes();
    m_entries.clear();
    if (m_watch)
        m_watch->clear();
}

void ImageCache::endDrawing()
{
    const bool isShort = m_bytes > m_limits.bytes / 2;
    for (auto it = m_entries.begin(); isShort && it != m_entries.end();) {
        if (it->drawing == m_drawing || it->reading != 0) {
            ++it;
            continue;
        }
        m_bytes -= it->image.sizeInBytes();
        if (m_watch)
            m_watch->remove(it.key());
        it = m_entries.erase(it);
    }
    ++m_drawing;
}

/// Takes a share of the memory at once, in whatever thread it is: the next reader gets less.
QImage ImageCache::readFile(const QString &path)
{
    const qint64 share = (m_limits.bytes - m_bytes) / 4;
    QImage image = readImageFile(path, std::max(share, LeastBytes));
    m_bytes += image.sizeInBytes();
    return image;
}

void ImageCache::startReading(const QString &path, Entry *entry)
{
    entry->reading = ++m_readCount;
    entry->isDue = false;
    ++m_readings;
    // What is shown and wrong comes before what is not shown yet.
    const int priority = entry->image.isNull() ? 0 : 1;
    const auto job = [this, path, reading = entry->reading, scene = m_scene.load()] {
        // The stamp comes first: what changes while the file is read is another one.
        const FileStamp stamp = FileStamp::of(path);
        const QImage image = scene == m_scene ? readFile(path) : QImage();
        QMetaObject::invokeMethod(
            this, [=] { endReading(path, reading, image, stamp); }, Qt::QueuedConnection);
    };
    m_pool.start(job, priority);
}

void ImageCache::endReading(const QString &path, int reading, const QImage &image,
                            const FileStamp &stamp)
{
    --m_readings;
    const auto it = m_entries.find(path);
    if (it != m_entries.end() && it->reading == reading) {
        it->reading = 0;
        if (!it->isDue || !image.isNull()) // what was being written may be whole by now
            take(&*it, image);
        m_watch->setSeen(path, stamp);
        if (it->isDue)
            startReading(path, &*it);
        emit pictureChanged(path);
    } else {
        m_bytes -= image.sizeInBytes();
    }
    if (m_readings == 0)
        emit finished();
}

/// What cannot be read leaves what was read before.
void ImageCache::take(Entry *entry, const QImage &image)
{
    if (image.isNull()) {
        entry->state = entry->image.isNull() ? State::Unreadable : State::Outdated;
        return;
    }
    m_bytes -= entry->image.sizeInBytes();
    entry->image = image;
    entry->scaled.clear();
    entry->state = State::Ready;
}

} // namespace viewer

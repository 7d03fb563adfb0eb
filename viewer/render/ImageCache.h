// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/render/FileWatch.h"

#include <QImage>
#include <QVector>

#include <atomic>
#include <memory>

namespace viewer {

/// How much an image cache may take.
struct ImageLimits
{
    qint64 bytes = 2LL << 30; ///< of all pictures in full size together
    FileWatch::Limits watch;
};

/// Reads image files and keeps the pictures. Owned by the application, which connects reload() to
/// the service's imageFileSet(). GUI thread only; the reading itself may have threads of its own.
///
/// At once: whoever asks for a picture waits for it, and each file is read once until it is reloaded.
/// That is what an export needs, which must be whole.
///
/// In background: whoever asks gets what there is, and pictureChanged() tells of more. Files are
/// watched and read anew when they change; what was read last stays until there is something whole
/// to take its place.
///
/// All pictures together keep to a limit: each gets no more than a quarter of what is left of it and
/// is read smaller where that does not do, though never below 1 MB. When half of it is taken,
/// pictures that the last drawing did not ask for go.
class ImageCache : public QObject
{
    Q_OBJECT

public:
    enum class Reading { AtOnce, InBackground };

    /// What there is of a file.
    enum class State {
        Loading,   ///< nothing yet
        Ready,     ///< what is in the file, or was before a change that is being read
        Outdated,  ///< what was in it before it vanished or broke
        Unreadable ///< nothing: it is missing or no picture
    };

    explicit ImageCache(Reading reading = Reading::AtOnce, const ImageLimits &limits = {});
    ~ImageCache() override;

    /// The picture; a null image while it is loading and when the file is missing, cannot be read or
    /// is larger than memory and painter can bear. A picture of more than 8192 pixels in a direction
    /// is read smaller. The reference holds until the next event and the next reload.
    const QImage &image(const QString &path);

    /// The picture in exactly this size. The last few sizes of each file are kept; the
    /// reference holds until the next call.
    const QImage &scaledImage(const QString &path, const QSize &size);

    State state(const QString &path);

    /// Reads a file anew, now or with the next call that asks for it.
    void reload(const QString &path);

    /// Forgets all files; for another scene, which need not use the same ones.
    void forgetAll();

    /// A drawing is complete. Where memory is short, what it did not ask for goes.
    void endDrawing();

    bool isLoading() const { return m_readings > 0; }

    /// How often a file was read.
    int readCount() const { return m_readCount; }

Q_SIGNALS:
    /// A file's picture or state is another one.
    void pictureChanged(const QString &path);

    /// Everything that was asked for has been read.
    void finished();

    /// Not all files can be watched; changes of some are found a little later.
    void watchLimited();

private:
    struct Entry
    {
        QImage image;
        QVector<QImage> scaled; // the oldest first
        State state = State::Loading;
        int reading = 0;    // the number of the reading that is under way; 0 for none
        bool isDue = false; // it changed while it was being read
        int drawing = 0;    // the last one that asked for it
    };

    Entry &entry(const QString &path);
    void create(const QString &path, Entry *entry);
    QImage readFile(const QString &path);
    void startReading(const QString &path, Entry *entry);
    void endReading(const QString &path, int reading, const QImage &image, const FileStamp &stamp);
    void take(Entry *entry, const QImage &image);

    const ImageLimits m_limits;
    std::unique_ptr<FileWatch> m_watch; // in background alone
    QHash<QString, Entry> m_entries;
    int m_drawing = 0;
    int m_readCount = 0;
    int m_readings = 0;             // that are under way
    std::atomic<qint64> m_bytes{0}; // of all pictures in full size
    std::atomic<int> m_scene{0};    // readings for an earlier one are given up
    QThreadPool m_pool;
};

} // namespace viewer

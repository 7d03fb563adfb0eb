// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/MissingImages.h"

#include "viewer/app/SceneDocument.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <utility>

namespace viewer {

namespace {

QSet<QString> imagesOf(const Scene &scene)
{
    QSet<QString> paths;
    scene.forEach([&paths](const Node &node) {
        if (!node.overlay.image.isEmpty())
            paths.insert(node.overlay.image);
    });
    return paths;
}

QString textOf(const QVector<MissingImage> &images)
{
    QStringList warnings;
    for (const MissingImage &image : images)
        warnings.append(image.text);
    return SceneDocument::summary(warnings);
}

} // namespace

MissingImages::MissingImages(const OverlayService *service) : m_service(service)
{
    m_due.setSingleShot(true);
    m_due.setInterval(0);
    connect(&m_due, &QTimer::timeout, this, qOverload<>(&MissingImages::settle));
    connect(&m_watch, &FileWatch::changed, this, &MissingImages::noteChange);
    connect(service, &OverlayService::imageChanged, this, &MissingImages::await);
    connect(service, &OverlayService::nodesRemoved, this, &MissingImages::await);
}

void MissingImages::report(const QVector<MissingImage> &images)
{
    for (const MissingImage &image : images) {
        m_found.remove(image.path);
        m_watch.add(image.path);
        m_watch.setSeen(image.path, FileStamp());
    }
    m_messages.push_back({textOf(images), images});
    emit reported(Severity::Warning, m_messages.back().text);
}

void MissingImages::forgetAll()
{
    for (const Message &message : m_messages)
        emit overcome(message.text);
    m_messages.clear();
    m_found.clear();
    m_watch.clear();
}

void MissingImages::await()
{
    if (!m_messages.empty())
        m_due.start();
}

void MissingImages::noteChange(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return; // it went again
    m_watch.remove(path);
    m_found.insert(path);
    await();
}

void MissingImages::settle()
{
    const QSet<QString> used = imagesOf(m_service->scene());
    for (Message &message : m_messages)
        settle(&message, used);
    const auto isOver = [](const Message &message) { return message.images.isEmpty(); };
    m_messages.erase(std::remove_if(m_messages.begin(), m_messages.end(), isOver),
                     m_messages.end());
    if (m_messages.empty())
        forgetAll();
}

void MissingImages::settle(Message *message, const QSet<QString> &used)
{
    QVector<MissingImage> left;
    std::copy_if(message->images.cbegin(), message->images.cend(), std::back_inserter(left),
                 [this, &used](const MissingImage &image) {
                     return used.contains(image.path) && !m_found.contains(image.path);
                 });
    if (left.size() == message->images.size())
        return;
    const QString text = std::exchange(message->text, textOf(left));
    message->images = left;
    if (left.isEmpty())
        emit overcome(text);
    else
        emit reduced(text, message->text);
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/SceneClipboard.h"

#include "viewer/app/SceneDocument.h"
#include "viewer/scene/NodeLists.h"
#include "viewer/scene/SceneCopy.h"
#include "viewer/scene/SceneWriter.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QMimeData>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

QString sceneType()
{
    return QStringLiteral("application/x-overlay-scene");
}

/// The clipboard belongs to the application object, and nothing else is shared by its windows.
QClipboard *clipboard()
{
    return QApplication::clipboard();
}

QByteArray textOnClipboard()
{
    const QMimeData *data = clipboard()->mimeData();
    return data->hasFormat(sceneType()) ? data->data(sceneType()) : data->text().toUtf8();
}

} // namespace

SceneClipboard::SceneClipboard(OverlayService *service, QObject *parent)
    : QObject(parent)
    , m_service(service)
{
}

bool SceneClipboard::canPaste()
{
    const QMimeData *data = clipboard()->mimeData();
    return data && (data->hasFormat(sceneType()) || data->hasText());
}

QByteArray SceneClipboard::textOf(const NodeList &nodes, QStringList *warnings) const
{
    return SceneWriter::content(extract(m_service->scene(), nodes), QString(), warnings);
}

bool SceneClipboard::copy(const NodeList &nodes)
{
    if (topNodes(m_service->scene(), nodes).isEmpty())
        return false;
    QStringList warnings;
    const QByteArray text = textOf(nodes, &warnings);
    if (text.isNull()) {
        emit reported(Severity::Error,
                      tr("These overlays cannot be copied: they lie in too many groups."));
        return false;
    }
    auto *data = new QMimeData;
    data->setText(QString::fromUtf8(text));
    data->setData(sceneType(), text);
    clipboard()->setMimeData(data);
    if (!warnings.isEmpty())
        emit reported(Severity::Warning, SceneDocument::summary(warnings));
    return true;
}

void SceneClipboard::cut(const NodeList &nodes)
{
    const NodeList tops = topNodes(m_service->scene(), nodes);
    if (!copy(tops))
        return;
    const StepGroup oneStep(m_service, Operation::Cut, tops);
    m_service->deleteNodes(tops);
}

/// Image paths in a text that somebody wrote by hand may be relative, to where the scene is.
SceneReading SceneClipboard::read(const QByteArray &text) const
{
    const QString path = QDir(m_service->imageFolder()).filePath(QStringLiteral("clipboard"));
    SceneReading reading = SceneReader::parse(text, path, tr("Clipboard"));
    if (reading.scene && reading.scene->root().children.empty()) {
        reading.scene.reset();
        reading.error = tr("The scene that was copied is empty.");
    }
    return reading;
}

void SceneClipboard::paste(const NodeList &selected)
{
    const QByteArray text = textOnClipboard();
    const SceneReading reading = read(text);
    if (!reading.scene) {
        QString message = tr("There are no overlays on the clipboard.");
        // Who has copied other words did not mean a scene, and wants to know nothing of JSON.
        if (text.trimmed().startsWith('{'))
            message += QLatin1Char('\n') + reading.error;
        emit reported(Severity::Error, message);
        return;
    }
    const Place place = placeFor(selected, text);
    m_service->insertScene(*reading.scene, place.parent, place.row);
    if (!reading.warnings.isEmpty())
        emit reported(Severity::Warning, SceneDocument::summary(reading.warnings));
    if (!reading.missingImages.isEmpty())
        emit imagesMissing(reading.missingImages);
}

SceneClipboard::Place SceneClipboard::placeFor(const NodeList &selected,
                                               const QByteArray &text) const
{
    const Scene &scene = m_service->scene();
    const NodeList tops = inTreeOrder(scene, topNodes(scene, selected));
    if (tops.isEmpty())
        return {Scene::RootId, -1};
    const Node &last = *scene.find(tops.constLast());
    // Copying a group and pasting it at once is meant to make a second one.
    if (tops.size() == 1 && last.canHoldNodes() && textOf(tops, nullptr) != text)
        return {last.id, -1};
    return {last.parent, last.row + 1};
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/RecordedService.h"

#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"
#include "viewer/script/ScriptText.h"

#include <QDir>
#include <QFileInfo>

namespace viewer {

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

template<class... Arguments>
QString lineOf(const char *operation, const Arguments &...arguments)
{
    const QStringList texts{scripttext::write(arguments)...};
    return QStringLiteral("overlays.%1(%2);\n")
        .arg(QLatin1String(operation), texts.join(QLatin1String(", ")));
}

/// A colour as a script that wrote it would have it.
QColor asWritten(const QColor &color)
{
    return color.isValid() ? QColor(scripttext::nameOf(color)) : color;
}

QString numbered(const QString &file, int number)
{
    if (number == 1)
        return file;
    const QFileInfo info(file);
    QString name = QStringLiteral("%1-%2").arg(info.completeBaseName()).arg(number);
    if (!info.suffix().isEmpty())
        name += QLatin1Char('.') + info.suffix();
    return info.dir().filePath(name);
}

} // namespace

/// An operation that is being called. Its line is written when the history takes it in, which is
/// before anybody is told of it and may answer with operations that come behind.
class RecordedService::Call
{
public:
    Call(RecordedService *service, const QString &line) : m_service(service)
    {
        if (service->m_nextId == 0)
            service->m_nextId = service->scene().nextId();
        service->m_calls.append(line);
    }
    ~Call() { m_service->m_calls.removeLast(); }
    Q_DISABLE_COPY(Call)

private:
    RecordedService *m_service;
};

RecordedService::RecordedService(const QString &file) : m_file(file)
{
    followHistory();
}

RecordedService::~RecordedService() = default;

void RecordedService::followHistory()
{
    const History *source = &history();
    connect(source, &History::recorded, this, &RecordedService::noteRecord);
    // Groups inside an operation are part of it.
    connect(source, &History::opened, this, [this] {
        if (m_calls.isEmpty())
            ++m_pendingGroups;
    });
    connect(source, &History::closed, this, [this] { noteGroup("end"); });
    connect(source, &History::rolledBack, this, [this] { noteGroup("cancel"); });
    connect(source, &History::restoring, this, [this](SceneChange::Direction direction) {
        const bool isBack = direction == SceneChange::Direction::Back;
        write(isBack ? QStringLiteral("history.undo();\n") : QStringLiteral("history.redo();\n"));
    });
    connect(source, &History::cleared, this, [this] {
        m_script.close();
        m_nextId = 0;
    });
}

void RecordedService::noteRecord(bool joined)
{
    if (m_calls.isEmpty() || m_calls.constLast().isEmpty())
        return;
    write((joined ? QStringLiteral("history.join();\n") : QString()) + m_calls.constLast());
    m_calls.last().clear();
}

void RecordedService::noteGroup(const char *end)
{
    if (!m_calls.isEmpty())
        return;
    if (m_pendingGroups > 0)
        --m_pendingGroups;
    else
        write(QStringLiteral("history.%1();\n").arg(QLatin1String(end)));
}

/// What a script begins with.
QString RecordedService::head() const
{
    const QString scene = m_scenePath.isEmpty() ? QStringLiteral("an empty scene")
                                                : QDir::toNativeSeparators(m_scenePath);
    return QStringLiteral("// Recorded on %1\nhistory.recordedAt(%2);\n")
        .arg(scene.simplified(), scripttext::write(m_nextId));
}

void RecordedService::write(const QString &lines)
{
    if (m_hasFailed)
        return;
    QString text;
    if (!m_script.isOpen()) {
        m_script.setFileName(numbered(m_file, ++m_scenes));
        text = head();
        m_hasFailed = !m_script.open(QIODevice::WriteOnly);
    }
    for (; m_pendingGroups > 0; --m_pendingGroups)
        text += QStringLiteral("history.begin();\n");
    const QByteArray bytes = (text + lines).toUtf8();
    m_hasFailed = m_hasFailed || m_script.write(bytes) != bytes.size() || !m_script.flush();
    if (m_hasFailed)
        emit recordingFailed(
            tr("The recording \"%1\" cannot be written: %2")
                .arg(QDir::toNativeSeparators(m_script.fileName()), m_script.errorString()));
}

NodeList RecordedService::insertScene(const Scene &scene, NodeId parent, int row)
{
    const QByteArray text = SceneWriter::content(scene, QString(), nullptr);
    const SceneReading reading = SceneReader::parse(text, QString());
    if (!reading.scene)
        return {}; // nested deeper than a file may be
    const Call call(this, QStringLiteral("history.paste(%1, %2, %3);\n")
                              .arg(scripttext::write(QString::fromUtf8(text)),
                                   scripttext::write(parent), scripttext::write(row)));
    return OverlayService::insertScene(*reading.scene, parent, row);
}

NodeId RecordedService::createOverlay(NodeId parent)
{
    const Call call(this, lineOf("createOverlay", parent));
    return OverlayService::createOverlay(parent);
}

NodeId RecordedService::createGroup(NodeId parent)
{
    const Call call(this, lineOf("createGroup", parent));
    return OverlayService::createGroup(parent);
}

NodeId RecordedService::createSwitch(NodeId parent)
{
    const Call call(this, lineOf("createSwitch", parent));
    return OverlayService::createSwitch(parent);
}

void RecordedService::duplicateNodes(const NodeList &nodes)
{
    const Call call(this, lineOf("duplicateNodes", nodes));
    OverlayService::duplicateNodes(nodes);
}

void RecordedService::deleteNodes(const NodeList &nodes)
{
    const Call call(this, lineOf("deleteNodes", nodes));
    OverlayService::deleteNodes(nodes);
}

void RecordedService::groupNodes(const NodeList &nodes)
{
    const Call call(this, lineOf("groupNodes", nodes));
    OverlayService::groupNodes(nodes);
}

void RecordedService::moveNodes(const NodeList &nodes, NodeId newParent, int row)
{
    const Call call(this, lineOf("moveNodes", nodes, newParent, row));
    OverlayService::moveNodes(nodes, newParent, row);
}

void RecordedService::setOverlayType(const NodeList &nodes, int type)
{
    const Call call(this, lineOf("setOverlayType", nodes, type));
    OverlayService::setOverlayType(nodes, type);
}

void RecordedService::setName(const NodeList &nodes, const QString &name)
{
    const Call call(this, lineOf("setName", nodes, name));
    OverlayService::setName(nodes, name);
}

void RecordedService::setEnabled(const NodeList &nodes, bool enabled)
{
    const Call call(this, lineOf("setEnabled", nodes, enabled));
    OverlayService::setEnabled(nodes, enabled);
}

void RecordedService::setText(const NodeList &nodes, const QString &text)
{
    const Call call(this, lineOf("setText", nodes, text));
    OverlayService::setText(nodes, text);
}

void RecordedService::setFont(const NodeList &nodes, const QString &family)
{
    const Call call(this, lineOf("setFont", nodes, family));
    OverlayService::setFont(nodes, family);
}

void RecordedService::setFontColor(const NodeList &nodes, const QColor &color)
{
    const Call call(this, lineOf("setFontColor", nodes, color));
    OverlayService::setFontColor(nodes, asWritten(color));
}

void RecordedService::setBackgroundColor(const NodeList &nodes, const QColor &color)
{
    const Call call(this, lineOf("setBackgroundColor", nodes, color));
    OverlayService::setBackgroundColor(nodes, asWritten(color));
}

void RecordedService::setBackgroundTransparency(const NodeList &nodes, const QColor &color)
{
    const Call call(this, lineOf("setBackgroundTransparency", nodes, color));
    OverlayService::setBackgroundTransparency(nodes, asWritten(color));
}

void RecordedService::setImage(const NodeList &nodes, const QString &path)
{
    // Scenes are saved elsewhere too, and what a relative path means goes with them.
    const QString file = imageFile(path);
    const Call call(this, lineOf("setImage", nodes, file));
    OverlayService::setImage(nodes, file);
}

void RecordedService::setSizeType(const NodeList &nodes, int sizeType)
{
    const Call call(this, lineOf("setSizeType", nodes, sizeType));
    OverlayService::setSizeType(nodes, sizeType);
}

void RecordedService::setSize(const NodeList &nodes, float size)
{
    const Call call(this, lineOf("setSize", nodes, size));
    OverlayService::setSize(nodes, size);
}

void RecordedService::setPosition(const NodeList &nodes, const QPointF &position)
{
    const Call call(this, lineOf("setPosition", nodes, position));
    OverlayService::setPosition(nodes, position);
}

void RecordedService::setOffset(const NodeList &nodes, const QPointF &offset)
{
    const Call call(this, lineOf("setOffset", nodes, offset));
    OverlayService::setOffset(nodes, offset);
}

void RecordedService::setOffsetX(const NodeList &nodes, float x)
{
    const Call call(this, lineOf("setOffsetX", nodes, x));
    OverlayService::setOffsetX(nodes, x);
}

void RecordedService::setOffsetY(const NodeList &nodes, float y)
{
    const Call call(this, lineOf("setOffsetY", nodes, y));
    OverlayService::setOffsetY(nodes, y);
}

// Scripts give overlays an offset each one by one, as one step.
void RecordedService::setOffsets(const QVector<NodeOffset> &offsets)
{
    QString lines = QStringLiteral("history.begin();\n");
    for (const NodeOffset &entry : offsets)
        lines += lineOf("setOffset", NodeList{entry.node}, entry.offset);
    const Call call(this, lines + QStringLiteral("history.end();\n"));
    OverlayService::setOffsets(offsets);
}

} // namespace viewer

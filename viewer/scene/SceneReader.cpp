// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/SceneReader.h"

#include "viewer/scene/JsonBounds.h"
#include "viewer/scene/JsonRecord.h"
#include "viewer/scene/SceneFormat.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

namespace viewer {

using QRPC::NodeId;

namespace {

/// Builds the scene from the parsed document; one object a file. Walks with a list of its own
/// instead of recursion, because a file may nest deeper than the stack is.
class SceneBuilder
{
    Q_DECLARE_TR_FUNCTIONS(viewer::SceneReader)

public:
    explicit SceneBuilder(const QString &path) : m_folder(QFileInfo(path).absoluteDir()) {}

    void build(const Json &document);

    /// The place of the element that is being read.
    QString place() const;

    Scene scene;
    QStringList warnings; // each begins with its place
    QVector<MissingImage> missingImages;

private:
    /// One level that is being read: the list of nodes, the next one, and where they go.
    struct Level
    {
        const Json *nodes;
        std::size_t next;
        NodeId parent;
    };

    void checkHead(JsonRecord &head);
    void readNode(const Json &object, NodeId parent);
    void readOverlay(JsonRecord &record, Overlay *overlay);
    QString readImagePath(JsonRecord &record);
    QString atPlace(const QString &text) const;

    QDir m_folder;
    std::vector<Level> m_levels;
    QSet<QString> m_missingFiles;
};

void SceneBuilder::build(const Json &document)
{
    if (!document.is_object())
        JsonRecord::fail(QString(), tr("an overlay scene"), document);
    JsonRecord head(document);
    checkHead(head);
    const Json *overlays = head.array("overlays");
    if (!overlays)
        throw SceneFault{QStringLiteral("/overlays"), tr("expected a list, found nothing")};
    scene.setUnknownKeys(Scene::RootId, head.rest());
    m_levels.push_back({overlays, 0, Scene::RootId});
    while (!m_levels.empty()) {
        Level &level = m_levels.back();
        if (level.next == level.nodes->size()) {
            m_levels.pop_back();
            continue;
        }
        const Json &node = (*level.nodes)[level.next++];
        readNode(node, level.parent);
    }
}

void SceneBuilder::checkHead(JsonRecord &head)
{
    const QString format = head.text("format", QString());
    if (format != sceneformat::Name)
        throw SceneFault{QStringLiteral("/format"),
                         tr("expected \"%1\", found %2; this is not an overlay scene")
                             .arg(sceneformat::Name, format.isEmpty() ? tr("nothing") : format)};
    const double version = head.number("version", 0);
    if (version > sceneformat::Version)
        throw SceneFault{QStringLiteral("/version"),
                         tr("expected at most %1, found %2; a newer version of the program wrote "
                            "this scene")
                             .arg(sceneformat::Version)
                             .arg(version)};
    if (version != sceneformat::Version)
        throw SceneFault{QStringLiteral("/version"), tr("expected %1").arg(sceneformat::Version)};
}

QString SceneBuilder::place() const
{
    QString place;
    for (const Level &level : m_levels) {
        if (level.next > 0)
            place += (level.parent == Scene::RootId ? QLatin1String("/overlays/")
                                                    : QLatin1String("/children/"))
                     + QString::number(level.next - 1);
    }
    constexpr int longest = 300;
    return place.size() <= longest
               ? place
               : place.left(longest / 2) + QChar(0x2026) + place.right(longest / 2);
}

void SceneBuilder::readNode(const Json &object, NodeId parent)
{
    if (m_levels.size() > std::size_t(sceneformat::MaxLevels))
        throw SceneFault{
            QString(),
            tr("expected at most %L1 levels of groups, found more").arg(sceneformat::MaxLevels)};
    static const QVector<NodeKind> kinds{NodeKind::Group, NodeKind::Switch, NodeKind::Overlay};
    JsonRecord record(object);
    Node node;
    node.kind = kinds.at(record.choice(
        "kind", {sceneformat::Group, sceneformat::Switch, sceneformat::Overlay}, true));
    node.name = record.text("name", QString());
    node.enabled = record.flag("enabled", true);
    const Json *children = record.array("children");
    if (node.isOverlay())
        readOverlay(record, &node.overlay);
    if (node.isOverlay() && children)
        JsonRecord::fail(QStringLiteral("/children"), tr("nothing in an overlay"), *children);
    node.unknownKeys = record.rest();
    const QString name = node.name;
    const NodeId id = scene.add(std::move(node));
    if (!scene.append(parent, id).isEmpty())
        warnings.append(
            atPlace(tr("\"%1\" is disabled, because its switch has another enabled child before it")
                        .arg(name)));
    if (children)
        m_levels.push_back({children, 0, id});
}

void SceneBuilder::readOverlay(JsonRecord &record, Overlay *overlay)
{
    overlay->type = record.choice("type", {sceneformat::Text, sceneformat::Image});
    overlay->text = record.text("text", QString());
    overlay->font = record.text("font", overlay->font);
    overlay->fontColor = record.color("fontColor", overlay->fontColor);
    overlay->backgroundColor = record.color("backgroundColor", overlay->backgroundColor);
    overlay->backgroundTransparency =
        record.color("backgroundTransparency", overlay->backgroundTransparency);
    overlay->image = readImagePath(record);
    overlay->sizeType = record.choice("sizeType", {sceneformat::Absolute, sceneformat::Relative});
    overlay->size = float(record.number("size", double(overlay->size)));
    overlay->position = record.point("position", overlay->position);
    overlay->offset = record.point("offset", overlay->offset);
}

QString SceneBuilder::readImagePath(JsonRecord &record)
{
    const QString written = record.text("image", QString());
    if (written.isEmpty())
        return written;
    const QString path = QDir::cleanPath(m_folder.absoluteFilePath(written));
    if (!m_missingFiles.contains(path) && !QFileInfo(path).isFile()) {
        m_missingFiles.insert(path);
        const QString shown = QDir::toNativeSeparators(path);
        missingImages.append({path, atPlace(tr("the image file %1 is missing").arg(shown))});
    }
    return path;
}

QString SceneBuilder::atPlace(const QString &text) const
{
    return place() + QLatin1String(": ") + text;
}

/// Bytes are counted from 1, as editors and the parser do.
QString atByte(std::size_t offset, const QString &text)
{
    return SceneReader::tr("byte %1: %2").arg(offset).arg(text);
}

/// The parser's words without its own prefixes, which name its internals.
QString syntaxFault(const Json::parse_error &error)
{
    static const QRegularExpression prefix(
        QStringLiteral("^\\[[^\\]]*\\] (parse error at line (\\d+), column \\d+: )?"));
    const QString words = QString::fromUtf8(error.what());
    const QRegularExpressionMatch match = prefix.match(words);
    const QString line = match.captured(2);
    return atByte(error.byte, line.isEmpty() ? SceneReader::tr("expected JSON; %1").arg(words)
                                             : SceneReader::tr("expected JSON; line %1, %2")
                                                   .arg(line, words.mid(match.capturedLength())));
}

/// A number that no double holds; the parser names it, and its first place is the fault's.
QString overflowFault(const Json::out_of_range &error, const QByteArray &content)
{
    const QByteArray number = QByteArray(error.what()).split('\'').value(1);
    return atByte(std::size_t(content.indexOf(number)) + 1,
                  SceneReader::tr("expected a number between -1e9 and 1e9, found %1")
                      .arg(QString::fromLatin1(number)));
}

SceneReading failed(const QString &name, const QString &text)
{
    SceneReading reading;
    reading.error = QDir::toNativeSeparators(name) + QLatin1String(": ") + text;
    return reading;
}

} // namespace

SceneReading SceneReader::read(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return failed(path, tr("there is no such file"));
    if (info.isDir())
        return failed(path, tr("expected a scene file, found a folder"));
    if (!info.isFile())
        return failed(path, tr("expected a scene file, found a device"));
    if (info.size() > sceneformat::MaxBytes)
        return failed(path, tr("expected at most %L1 bytes, found %L2")
                                .arg(sceneformat::MaxBytes)
                                .arg(info.size()));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failed(path, tr("the file cannot be read: %1").arg(file.errorString()));
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return failed(path, tr("the file cannot be read: %1").arg(file.errorString()));
    return parse(content, path);
}

SceneReading SceneReader::parse(const QByteArray &content, const QString &path,
                                const QString &otherName)
{
    const QString name = otherName.isEmpty() ? path : otherName;
    const QString excess = JsonBounds(content).fault();
    if (!excess.isEmpty())
        return failed(name, excess);
    SceneBuilder builder(path);
    try {
        builder.build(Json::parse(content.cbegin(), content.cend()));
    } catch (const Json::parse_error &error) {
        return failed(name, syntaxFault(error));
    } catch (const Json::out_of_range &error) {
        return failed(name, overflowFault(error, content));
    } catch (const SceneFault &fault) {
        const QString place = builder.place() + fault.place;
        return failed(name,
                      place.isEmpty() ? fault.text : place + QLatin1String(": ") + fault.text);
    }
    SceneReading reading;
    reading.scene = std::move(builder.scene);
    const QString file = QDir::toNativeSeparators(name) + QLatin1String(": ");
    for (const QString &warning : qAsConst(builder.warnings))
        reading.warnings.append(file + warning);
    for (const MissingImage &image : qAsConst(builder.missingImages))
        reading.missingImages.append({image.path, file + image.text});
    return reading;
}

} // namespace viewer

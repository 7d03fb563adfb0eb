// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/scene/SceneWriter.h"

#include "viewer/scene/JsonRecord.h"
#include "viewer/scene/SceneFormat.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace viewer {

using QRPC::NodeId;

namespace {

QByteArray jsonText(const QString &text)
{
    return QByteArray::fromStdString(Json(text.toStdString()).dump());
}

QByteArray jsonColor(const QColor &color)
{
    if (!color.isValid())
        return "null";
    QByteArray digits = QByteArray::number(color.rgb() & 0xffffffU, 16).rightJustified(6, '0');
    if (color.alpha() != 255)
        digits += QByteArray::number(color.alpha(), 16).rightJustified(2, '0');
    return "\"#" + digits + '"';
}

/// The shortest digits that read as the same number, never with an exponent.
template<class Number>
QByteArray digitsOf(Number number)
{
    std::array<char, 512> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                   std::chars_format::fixed);
    return {digits.data(), int(end.ptr - digits.data())};
}

/// Puts the file's text together; one object a file. Walks with a list of its own instead of
/// recursion, because a scene may nest deeper than the stack is.
class SceneText
{
    Q_DECLARE_TR_FUNCTIONS(viewer::SceneWriter)

public:
    SceneText(const Scene &scene, const QString &path)
        : m_scene(scene)
        , m_folder(QFileInfo(path).absoluteDir())
        , m_hasFolder(!path.isEmpty())
    {
    }

    QByteArray write();

    QStringList warnings;

private:
    /// A list of nodes that is being written.
    struct Level
    {
        const Node *parent;
        std::size_t next;
    };

    void key(const QByteArray &name, const QByteArray &value);
    void openList(const QByteArray &name, const Node &parent);
    void closeList();
    void writeHead(const Node &node);
    void writeOverlay(const Node &node);
    void newLine();
    QByteArray imagePath(const QString &path) const;
    template<typename Number>
    QByteArray number(const Node &node, Number value);
    QByteArray point(const Node &node, const QPointF &point);

    const Scene &m_scene;
    QDir m_folder;
    bool m_hasFolder;
    QByteArray m_text;
    std::vector<Level> m_levels;
    int m_indent = 0;
    bool m_first = true; // no comma is due
};

QByteArray SceneText::write()
{
    constexpr int usualSize = 512; // of an overlay; room that is made once costs nothing
    m_text.reserve(usualSize * m_scene.nodeCount());
    m_text = "{";
    m_indent = 1;
    key("format", jsonText(sceneformat::Name));
    key("version", QByteArray::number(sceneformat::Version));
    for (const auto &[name, value] : m_scene.root().unknownKeys)
        key(name.mid(1, name.size() - 2), value);
    openList("overlays", m_scene.root());
    while (!m_levels.empty()) {
        Level &level = m_levels.back();
        if (level.next == level.parent->children.size()) {
            closeList();
            continue;
        }
        if (m_levels.size() > std::size_t(sceneformat::MaxLevels))
            return {};
        const Node &node = *m_scene.find(level.parent->children[level.next++]);
        writeHead(node);
    }
    m_text += '\n';
    return m_text;
}

void SceneText::newLine()
{
    // Deep levels stop moving to the right: the blanks alone would outgrow the scene.
    constexpr int deepest = 24;
    if (!m_first)
        m_text += ',';
    m_first = false;
    static const QByteArray blanks(2 * deepest, ' ');
    m_text.append('\n').append(blanks.constData(), 2 * std::min(m_indent, deepest));
}

void SceneText::key(const QByteArray &name, const QByteArray &value)
{
    newLine();
    m_text.append('"').append(name).append("\": ").append(value);
}

void SceneText::openList(const QByteArray &name, const Node &parent)
{
    key(name, "[");
    m_levels.push_back({&parent, 0});
    m_first = true;
    ++m_indent;
}

/// Ends the list of the innermost level and the object that holds it.
void SceneText::closeList()
{
    const bool isEmpty = m_levels.back().parent->children.empty();
    m_levels.pop_back();
    --m_indent;
    m_first = true;
    if (!isEmpty)
        newLine();
    m_text += ']';
    m_first = true;
    --m_indent;
    newLine();
    m_text += '}';
}

void SceneText::writeHead(const Node &node)
{
    newLine();
    m_text += '{';
    m_first = true;
    ++m_indent;
    key("kind", jsonText(node.isOverlay()  ? sceneformat::Overlay
                         : node.isSwitch() ? sceneformat::Switch
                                           : sceneformat::Group));
    key("name", jsonText(node.name));
    key("enabled", node.enabled ? "true" : "false");
    if (node.isOverlay())
        writeOverlay(node);
    for (const auto &[name, value] : node.unknownKeys)
        key(name.mid(1, name.size() - 2), value);
    if (!node.isOverlay()) {
        openList("children", node);
        return;
    }
    m_first = true;
    --m_indent;
    newLine();
    m_text += '}';
}

void SceneText::writeOverlay(const Node &node)
{
    const Overlay &overlay = node.overlay;
    key("type", jsonText(overlay.isText() ? sceneformat::Text : sceneformat::Image));
    key("text", jsonText(overlay.text));
    key("font", jsonText(overlay.font));
    key("fontColor", jsonColor(overlay.fontColor));
    key("backgroundColor", jsonColor(overlay.backgroundColor));
    key("backgroundTransparency", jsonColor(overlay.backgroundTransparency));
    key("image", imagePath(overlay.image));
    key("sizeType", jsonText(overlay.isAbsolute() ? sceneformat::Absolute : sceneformat::Relative));
    key("size", number(node, overlay.size));
    key("position", point(node, overlay.position));
    key("offset", point(node, overlay.offset));
}

QByteArray SceneText::imagePath(const QString &path) const
{
    const bool isFile = m_hasFolder && !path.isEmpty() && !path.startsWith(QLatin1Char(':'));
    return jsonText(isFile ? m_folder.relativeFilePath(path) : path);
}

template<typename Number>
QByteArray SceneText::number(const Node &node, Number value)
{
    const auto limit = Number(sceneformat::MaxNumber);
    const Number known = std::isnan(value) ? Number(0) : std::clamp(value, -limit, limit);
    if (known != value)
        warnings.append(tr("A number of \"%1\" cannot be written; %L2 stands for it now.")
                            .arg(node.name)
                            .arg(double(known)));
    return digitsOf(known + Number(0)); // adding 0 takes the sign of a negative zero away
}

QByteArray SceneText::point(const Node &node, const QPointF &point)
{
    return '[' + number(node, point.x()) + ", " + number(node, point.y()) + ']';
}

} // namespace

QByteArray SceneWriter::content(const Scene &scene, const QString &path, QStringList *warnings)
{
    SceneText text(scene, path);
    QByteArray content = text.write();
    if (warnings)
        *warnings = text.warnings;
    return content;
}

SceneWriting SceneWriter::write(const Scene &scene, const QString &path)
{
    SceneWriting writing;
    QSaveFile file(path);
    const QByteArray bytes = content(scene, path, &writing.warnings);
    if (bytes.isNull()) {
        writing.error = tr("%1: the scene cannot be written: it has more than %L2 levels of groups")
                            .arg(QDir::toNativeSeparators(path))
                            .arg(sceneformat::MaxLevels);
        return writing;
    }
    // What is flushed by the commit alone may fail without a word.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()
        || !file.commit())
        writing.error = tr("%1: the scene cannot be written: %2")
                            .arg(QDir::toNativeSeparators(path), file.errorString());
    return writing;
}

} // namespace viewer

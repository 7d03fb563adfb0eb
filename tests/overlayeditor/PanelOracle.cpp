// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelOracle.h"

#include "kit/FormMember.h"

#include <algorithm>
#include <cmath>

namespace {

const char *const s_editorsOfOneType[] = {"_text_edit",           "_font_combo_box",
                                          "_color_slider",        "_background_slider",
                                          "_transparency_slider", "_image_edit"};

const char *const s_shownForTexts[] = {
    "_text_label",         "_text_edit",          "_font_label",       "_font_combo_box",
    "_font_color_label",   "_color_slider",       "_background_label", "_background_slider",
    "_transparency_label", "_transparency_slider"};

const char *const s_shownForImages[] = {"_image_label", "_image_edit"};

const QPointF s_anchors[] = {{0.0, 0.5}, {1.0, 0.5}, {0.5, 1.0}, {0.5, 0.0}, {0.5, 0.5},
                             {0.0, 1.0}, {1.0, 1.0}, {0.0, 0.0}, {1.0, 0.0}};

bool isClose(const QPointF &a, const QPointF &b)
{
    return std::fabs(a.x() - b.x()) <= 1e-12 && std::fabs(a.y() - b.y()) <= 1e-12;
}

QString indexOfAnchor(const QPointF &position)
{
    const auto *found = std::find_if(std::begin(s_anchors), std::end(s_anchors),
                                     [&](const QPointF &a) { return isClose(a, position); });
    const bool isNone = found == std::end(s_anchors);
    return QString::number(isNone ? -1 : int(found - std::begin(s_anchors)));
}

/// What the service answers: what is no overlay has no type.
int typeOf(const RecordingService::Node &node)
{
    return node.kind == notation::Kind::Overlay ? node.type : 0;
}

} // namespace

PanelOracle::PanelOracle(const RecordingService &service) : m_service(service)
{
    m_controls["_overlay_name"] = {};
    for (const char *input : FormMember::inputs())
        m_controls[input] = {};
    for (const char *label : s_shownForTexts)
        m_controls[label] = {};
    for (const char *label : s_shownForImages)
        m_controls[label] = {};
}

void PanelOracle::refreshAll(const QRPC::NodeList &selection)
{
    const bool isShown = !selection.isEmpty() && areOverlays(selection);
    for (const char *input : FormMember::inputs())
        m_controls[input].enabled = isShown;
    m_controls["_overlay_name"].enabled = !selection.isEmpty();
    QStringList refreshed{"name"};
    if (isShown) {
        refreshed << "type"
                  << "text"
                  << "font"
                  << "font color"
                  << "background color"
                  << "transparency"
                  << "image"
                  << "size type"
                  << "size"
                  << "position"
                  << "offset";
    }
    for (const QString &property : qAsConst(refreshed)) {
        const bool isText =
            m_service.has(selection.value(0)) && typeOf(m_service.node(selection.value(0))) == 0;
        const bool isOfOtherType = property == "image" ? isText : !isText;
        const bool isOfOneType = property == "text" || property == "font" || property == "image"
                                 || property.endsWith("color") || property == "transparency";
        if (!isOfOneType || !isOfOtherType)
            refresh(property, selection);
    }
}

void PanelOracle::refresh(const QString &property, const QRPC::NodeList &selection)
{
    if (selection.isEmpty())
        return;
    if (property == "name") {
        show(
            "_overlay_name", selection,
            [](const Node &a, const Node &b) { return a.name == b.name; },
            [](const Node &node) { return node.name; });
        return;
    }
    if (property == "type") {
        showType(selection);
        return;
    }
    if (!areOverlays(selection))
        return;
    if (property == "size type")
        showSizeType(selection);
    else if (property == "size")
        showSize(selection);
    else if (property == "position")
        showPosition(selection);
    else if (property == "offset")
        showOffsets(selection);
    else if (areOfOneType(selection) && property == "image")
        showImage(selection);
    else if (areOfOneType(selection))
        showTextProperty(property, selection);
}

QStringList PanelOracle::lines() const
{
    QStringList lines;
    for (auto control = m_controls.begin(); control != m_controls.end(); ++control)
        lines.append(line(control.key(), control->value, control->mixed, control->enabled,
                          control->visible));
    return lines;
}

QString PanelOracle::line(const QString &control, const QString &value, bool mixed, bool enabled,
                          bool visible)
{
    return control + " \"" + value + '"' + (mixed ? " mixed" : "") + (enabled ? "" : " disabled")
           + (visible ? "" : " hidden");
}

bool PanelOracle::areOverlays(const QRPC::NodeList &nodes) const
{
    return std::all_of(nodes.begin(), nodes.end(), [this](QRPC::NodeId id) {
        return m_service.node(id).kind == notation::Kind::Overlay;
    });
}

bool PanelOracle::areOfOneType(const QRPC::NodeList &nodes) const
{
    return agree(nodes, [](const Node &a, const Node &b) { return typeOf(a) == typeOf(b); });
}

/// Every node against the first, the first against itself: no number equals nothing.
bool PanelOracle::agree(const QRPC::NodeList &nodes, const Equal &equal) const
{
    const Node &first = m_service.node(nodes.first());
    return std::all_of(nodes.begin(), nodes.end(),
                       [&](QRPC::NodeId id) { return equal(m_service.node(id), first); });
}

void PanelOracle::show(const QString &control, const QRPC::NodeList &nodes, const Equal &equal,
                       const Value &value)
{
    Control &shown = m_controls[control];
    shown.mixed = !agree(nodes, equal);
    if (!shown.mixed)
        shown.value = value(m_service.node(nodes.first()));
}

void PanelOracle::showType(const QRPC::NodeList &nodes)
{
    show(
        "_text_radio_button", nodes,
        [](const Node &a, const Node &b) { return (typeOf(a) == 0) == (typeOf(b) == 0); },
        [](const Node &node) { return typeOf(node) == 0 ? "checked" : ""; });
    const bool isMixed = m_controls["_text_radio_button"].mixed;
    for (const char *editor : s_editorsOfOneType)
        m_controls[editor].enabled = !isMixed;
    if (isMixed)
        return;
    const bool isText = typeOf(m_service.node(nodes.first())) == 0;
    m_controls["_image_radio_button"].value = isText ? "" : "checked";
    for (const char *name : s_shownForTexts)
        m_controls[name].visible = isText;
    for (const char *name : s_shownForImages)
        m_controls[name].visible = !isText;
}

void PanelOracle::showTextProperty(const QString &property, const QRPC::NodeList &nodes)
{
    if (property == "text" || property == "font") {
        const auto member = property == "text" ? &Node::text : &Node::font;
        show(
            property == "text" ? "_text_edit" : "_font_combo_box", nodes,
            [member](const Node &a, const Node &b) { return a.*member == b.*member; },
            [member](const Node &node) { return node.*member; });
        return;
    }
    const bool isFont = property == "font color";
    const bool isBackground = property == "background color";
    const auto member = isFont         ? &Node::fontColor
                        : isBackground ? &Node::backgroundColor
                                       : &Node::transparency;
    show(
        isFont         ? "_color_slider"
        : isBackground ? "_background_slider"
                       : "_transparency_slider",
        nodes, [member](const Node &a, const Node &b) { return a.*member == b.*member; },
        [member](const Node &node) { return (node.*member).name(); });
}

void PanelOracle::showImage(const QRPC::NodeList &nodes)
{
    show(
        "_image_edit", nodes, [](const Node &a, const Node &b) { return a.image == b.image; },
        [](const Node &node) { return node.image; });
}

void PanelOracle::showSizeType(const QRPC::NodeList &nodes)
{
    show(
        "_absolute_radio_button", nodes,
        [](const Node &a, const Node &b) { return (a.sizeType == 0) == (b.sizeType == 0); },
        [](const Node &node) { return node.sizeType == 0 ? "checked" : ""; });
    const bool isAbsolute = m_controls["_absolute_radio_button"].value == "checked";
    m_controls["_relative_radio_button"].value = isAbsolute ? "" : "checked";
    showSize(nodes);
}

void PanelOracle::showSize(const QRPC::NodeList &nodes)
{
    const bool isTypeMixed = m_controls["_absolute_radio_button"].mixed;
    m_controls["_size_slider"].enabled = !isTypeMixed;
    if (isTypeMixed)
        return;
    show(
        "_size_slider", nodes, [](const Node &a, const Node &b) { return a.size == b.size; },
        [](const Node &node) {
            return QString::number(double(node.size))
                   + (node.sizeType == 0 ? "pt, 200 steps of 1" : ", 100 steps of 0.01");
        });
}

void PanelOracle::showPosition(const QRPC::NodeList &nodes)
{
    show(
        "_position_combo_box", nodes,
        [](const Node &a, const Node &b) { return isClose(a.position, b.position); },
        [](const Node &node) { return indexOfAnchor(node.position); });
}

void PanelOracle::showOffsets(const QRPC::NodeList &nodes)
{
    show(
        "_offset_x_spin_box", nodes,
        [](const Node &a, const Node &b) { return a.offset.x() == b.offset.x(); },
        [](const Node &node) { return QString::number(node.offset.x()); });
    show(
        "_offset_y_spin_box", nodes,
        [](const Node &a, const Node &b) { return a.offset.y() == b.offset.y(); },
        [](const Node &node) { return QString::number(node.offset.y()); });
}

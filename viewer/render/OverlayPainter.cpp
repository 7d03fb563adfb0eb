// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/render/OverlayPainter.h"

#include "viewer/render/ImageMarks.h"

#include <QPainter>

#include <algorithm>

namespace viewer {

using QRPC::NodeId;

namespace {

/// Width and height of a picture for a height of 1; of the placeholder where there is none.
QSizeF proportionsOf(const QImage &image)
{
    return image.isNull() ? QSizeF(16.0 / 9.0, 1.0)
                          : QSizeF(double(image.width()) / image.height(), 1.0);
}

QRectF boxFor(const Overlay &overlay, const QSizeF &proportions, const ViewGeometry &view)
{
    const QSizeF size = proportions * heightInPixels(overlay, view);
    return size.isEmpty() ? QRectF() : placeBox(overlay, size, view);
}

/// Whether any of an overlay with this box can lie in the view.
bool isSeen(const QRectF &box, const ViewGeometry &view)
{
    const double margin = box.height(); // at least what a background adds
    const QRectF reach = box.adjusted(-margin, -margin, margin, margin);
    return !box.isEmpty() && reach.intersects(QRectF(QPointF(), view.size));
}

bool isVisible(const QColor &color)
{
    return color.isValid() && color.alpha() > 0;
}

} // namespace

/// Calls visit(const Node &) for the active overlays, the lowest first.
template<class Visit>
void OverlayPainter::visitActive(Visit visit) const
{
    std::vector<NodeId> pending{Scene::RootId};
    while (!pending.empty()) {
        const Node &node = *m_scene.find(pending.back());
        pending.pop_back();
        if (!node.enabled)
            continue;
        if (node.isOverlay())
            visit(node);
        pending.insert(pending.end(), node.children.rbegin(), node.children.rend());
    }
}

OverlayPainter::OverlayPainter(const Scene &scene, ImageCache &images)
    : m_scene(scene)
    , m_images(images)
{
}

void OverlayPainter::paint(QPainter &painter, const QSize &size, double dpi)
{
    const ViewGeometry view{size, dpi};
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    visitActive([&](const Node &node) {
        if (node.overlay.isText())
            paintText(painter, node, view);
        else
            paintImage(painter, node.overlay, view);
    });
    painter.restore();
    m_images.endDrawing();
    forgetRemovedTexts();
}

std::vector<DrawnOverlay> OverlayPainter::drawnOverlays(const QSize &size, double dpi)
{
    const ViewGeometry view{size, dpi};
    std::vector<DrawnOverlay> drawn;
    visitActive([&](const Node &node) {
        const QRectF place = box(node, view);
        if (!place.isEmpty())
            drawn.push_back({node.id, place, cover(node, place)});
    });
    return drawn;
}

QRectF OverlayPainter::boxOf(NodeId node, const QSize &size, double dpi)
{
    const Node *found = m_scene.find(node);
    return found && found->isOverlay() ? box(*found, {size, dpi}) : QRectF();
}

QRectF OverlayPainter::box(const Node &node, const ViewGeometry &view)
{
    const Overlay &overlay = node.overlay;
    if (overlay.isText())
        return boxFor(overlay, textOf(node).size(), view);
    const QString &path = overlay.image;
    return path.isEmpty() ? QRectF() : boxFor(overlay, proportionsOf(m_images.image(path)), view);
}

QRectF OverlayPainter::cover(const Node &node, const QRectF &box)
{
    if (!node.overlay.isText() || !isVisible(backgroundColor(node.overlay)))
        return box;
    return box.united(backgroundBox(box, box.height() / textOf(node).size().height()));
}

const TextBlock &OverlayPainter::textOf(const Node &node)
{
    CachedText &cached = m_texts[node.id];
    const Overlay &overlay = node.overlay;
    if (!cached.block || cached.text != overlay.text || cached.family != overlay.font) {
        cached = {overlay.text, overlay.font,
                  std::make_unique<TextBlock>(overlay.text, overlay.font)};
        ++m_layoutCount;
    }
    return *cached.block;
}

void OverlayPainter::paintText(QPainter &painter, const Node &node, const ViewGeometry &view)
{
    const Overlay &overlay = node.overlay;
    const TextBlock &block = textOf(node);
    const QRectF box = boxFor(overlay, block.size(), view);
    if (!isSeen(box, view))
        return;
    const QColor background = backgroundColor(overlay);
    if (isVisible(background))
        painter.fillRect(backgroundBox(box, box.height() / block.size().height()), background);
    if (overlay.fontColor.isValid())
        block.draw(&painter, box, overlay.fontColor, std::clamp(overlay.position.x(), 0.0, 1.0));
}

void OverlayPainter::paintImage(QPainter &painter, const Overlay &overlay, const ViewGeometry &view)
{
    const QString &path = overlay.image;
    if (path.isEmpty())
        return;
    const QImage &image = m_images.image(path);
    const QRectF box = boxFor(overlay, proportionsOf(image), view);
    if (!isSeen(box, view))
        return;
    const QSize pixels = box.size().toSize().expandedTo(QSize(1, 1));
    const ImageCache::State state = m_images.state(path);
    if (image.isNull())
        paintPlaceholder(&painter, path, box, state);
    else if (pixels.height() > image.height())
        painter.drawImage(box, image);
    else // filtered as a whole and put on whole pixels, so that fine lines stay sharp
        painter.drawImage(box.topLeft().toPoint(), m_images.scaledImage(path, pixels));
    if (state == ImageCache::State::Outdated)
        paintOutdatedMark(&painter, box, view.dpi);
}

void OverlayPainter::forgetRemovedTexts()
{
    // Sweeping costs a walk over all of them; it is due when at least half of them are gone.
    if (m_texts.size() < 2 * std::size_t(m_scene.nodeCount()))
        return;
    for (auto it = m_texts.begin(); it != m_texts.end();)
        it = m_scene.find(it->first) ? std::next(it) : m_texts.erase(it);
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/render/ImageCache.h"
#include "viewer/render/OverlayLayout.h"
#include "viewer/render/TextBlock.h"
#include "viewer/scene/Scene.h"

#include <QCoreApplication>

class QPainter;

namespace viewer {

/// An overlay that is drawn, and where: in pixels from the top left corner of the view.
struct DrawnOverlay
{
    QRPC::NodeId node = 0;
    QRectF box;   ///< its own box, which the anchor is applied to
    QRectF cover; ///< all that it covers: of a text with a visible background, that box too
};

/// Draws the active overlays of a scene, later siblings above earlier ones. Owned by whoever shows
/// or exports the scene, which outlives the painter as the image cache does; GUI thread only.
///
/// Texts stay laid out from one call to the next: a call lays out the overlays whose text or family
/// changed, however they changed, and nothing else. The same scene, size and dots per inch give the
/// same pixels, whatever device they are drawn on.
///
/// An image that cannot be read is drawn as a dashed frame with the file's name, one that is still
/// being read as a quiet field with it, and one whose file has gone since it was read has a mark. An
/// image overlay without a path, a text without letters and a size that is none are not drawn.
class OverlayPainter
{
    Q_DECLARE_TR_FUNCTIONS(viewer::OverlayPainter)

public:
    OverlayPainter(const Scene &scene, ImageCache &images);

    /// Draws the overlays of a view of `size` pixels, whose top left corner is the painter's origin.
    void paint(QPainter &painter, const QSize &size, double dpi);

    /// The own box of an overlay in that view, active or not: what the anchor is applied to, in
    /// pixels from the top left. Empty for other nodes and for what is not drawn.
    QRectF boxOf(QRPC::NodeId node, const QSize &size, double dpi);

    /// All that paint() draws in that view, the lowest first, as far as it has a place; also what
    /// lies beside the view.
    std::vector<DrawnOverlay> drawnOverlays(const QSize &size, double dpi);

    /// How many texts were laid out so far.
    int layoutCount() const { return m_layoutCount; }

    /// How many texts are kept laid out; those of removed nodes go in time.
    int keptTexts() const { return int(m_texts.size()); }

private:
    struct CachedText
    {
        QString text;
        QString family;
        std::unique_ptr<TextBlock> block;
    };

    template<class Visit>
    void visitActive(Visit visit) const;
    const TextBlock &textOf(const Node &node);
    QRectF box(const Node &node, const ViewGeometry &view);
    QRectF cover(const Node &node, const QRectF &box);
    void paintText(QPainter &painter, const Node &node, const ViewGeometry &view);
    void paintImage(QPainter &painter, const Overlay &overlay, const ViewGeometry &view);
    void forgetRemovedTexts();

    const Scene &m_scene;
    ImageCache &m_images;
    std::unordered_map<QRPC::NodeId, CachedText> m_texts;
    int m_layoutCount = 0;
};

} // namespace viewer

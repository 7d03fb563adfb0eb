// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long a frame of overlays takes, beside the same layouts and pictures, made beforehand and put
// on the same places by a bare painter in the same run. Both sides must give the same pixels.

#include "bench/Sides.h"
#include "viewer/render/OverlayPainter.h"
#include "viewer/scene/OverlayService.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextLayout>

#include <cmath>
#include <cstdio>
#include <cstdlib>

using QRPC::NodeId;
using QRPC::NodeList;

namespace {

const QSize View(1920, 1080);
constexpr double Dpi = 96.0;
constexpr int PictureFiles = 20;

enum class Kind { Texts, BoxedTexts, Pictures };

/// The view's canvas and what an export does to it.
class Canvas
{
public:
    template<class Draw>
    const QImage &drawn(Draw draw)
    {
        m_image.fill(Qt::transparent);
        QPainter painter(&m_image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                               | QPainter::SmoothPixmapTransform);
        draw(&painter);
        return m_image;
    }

private:
    QImage m_image{View, QImage::Format_ARGB32_Premultiplied};
};

/// A scene whose overlays fill the view evenly, and its painter.
class ViewCase
{
public:
    ViewCase(Kind kind, int size)
    {
        for (int i = 0; i < size; ++i)
            m_nodes.append(m_service.createOverlay(viewer::Scene::RootId));
        m_service.setSize(m_nodes, 9);
        m_service.setBackgroundTransparency(m_nodes,
                                            kind == Kind::BoxedTexts ? Qt::gray : Qt::white);
        spread();
        if (kind == Kind::Pictures)
            showPictures();
        else
            writeTexts();
    }

    viewer::OverlayService *service() { return &m_service; }
    const NodeList &nodes() const { return m_nodes; }
    const viewer::Overlay &overlay(NodeId node) const
    {
        return m_service.scene().find(node)->overlay;
    }
    QRectF boxOf(NodeId node) { return m_painter.boxOf(node, View, Dpi); }
    QImage picture(const QString &path, const QSize &size)
    {
        return m_images.scaledImage(path, size);
    }

    void paint(QPainter *painter) { m_painter.paint(*painter, View, Dpi); }

private:
    void spread()
    {
        const int columns = int(std::ceil(std::sqrt(m_nodes.size())));
        for (int i = 0; i < m_nodes.size(); ++i) {
            const QPoint cell(i % columns, i / columns);
            m_service.setPosition({m_nodes.at(i)}, QPointF(cell) / columns);
        }
    }

    void writeTexts()
    {
        for (int i = 0; i < m_nodes.size(); ++i) {
            m_service.setText({m_nodes.at(i)}, QStringLiteral("Overlay %1").arg(i));
            m_service.setFontColor({m_nodes.at(i)}, QColor::fromHsv(i % 360, 120, 255));
        }
    }

    void showPictures()
    {
        m_service.setOverlayType(m_nodes, 1);
        for (int i = 0; i < PictureFiles; ++i) {
            QImage image(200, 100, QImage::Format_RGB32);
            image.fill(QColor::fromHsv(i * 360 / PictureFiles, 200, 200));
            image.save(file(i));
        }
        for (int i = 0; i < m_nodes.size(); ++i)
            m_service.setImage({m_nodes.at(i)}, file(i % PictureFiles));
    }

    QString file(int number) const
    {
        return m_folder.filePath(QStringLiteral("%1.png").arg(number));
    }

    QTemporaryDir m_folder;
    viewer::OverlayService m_service;
    viewer::ImageCache m_images;
    viewer::OverlayPainter m_painter{m_service.scene(), m_images};
    NodeList m_nodes;
};

/// One line of text that is ready to be drawn.
class Letters
{
public:
    Letters(const viewer::Overlay &overlay, const QRectF &box)
        : m_layout(overlay.text, fontOf(overlay))
        , m_color(overlay.fontColor)
        , m_background(viewer::backgroundBox(box, box.height()))
        , m_backgroundColor(viewer::backgroundColor(overlay))
    {
        const QFontMetricsF metrics(m_layout.font());
        const double scale = box.height() / (metrics.ascent() + metrics.descent());
        m_place = QTransform(scale, 0, 0, scale, box.left(), box.top());
        layOut();
    }

    void layOut()
    {
        m_layout.setCacheEnabled(true);
        m_layout.beginLayout();
        m_layout.createLine();
        m_layout.endLayout();
    }

    void draw(QPainter *painter) const
    {
        if (m_backgroundColor.alpha() > 0) {
            painter->resetTransform();
            painter->fillRect(m_background, m_backgroundColor);
        }
        painter->setTransform(m_place);
        painter->setPen(m_color);
        m_layout.draw(painter, QPointF());
    }

private:
    static QFont fontOf(const viewer::Overlay &overlay)
    {
        QFont font(overlay.font);
        font.setPixelSize(200);
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setStyleStrategy(QFont::StyleStrategy(
            QFont::PreferAntialias | QFont::NoSubpixelAntialias | QFont::ForceOutline));
        return font;
    }

    QTextLayout m_layout;
    QTransform m_place;
    QColor m_color;
    QRectF m_background;
    QColor m_backgroundColor;
};

struct Stamp
{
    QPoint at;
    QImage image;
};

/// All that a frame consists of, ready to be drawn.
class Floor
{
public:
    explicit Floor(ViewCase *view)
    {
        for (const NodeId node : view->nodes()) {
            const viewer::Overlay &overlay = view->overlay(node);
            const QRectF box = view->boxOf(node);
            if (overlay.isText())
                m_texts.push_back(std::make_unique<Letters>(overlay, box));
            else
                m_pictures.push_back(
                    {box.topLeft().toPoint(), view->picture(overlay.image, box.size().toSize())});
        }
    }

    void layOutOne() { m_texts.front()->layOut(); }

    void paint(QPainter *painter) const
    {
        for (const std::unique_ptr<Letters> &text : m_texts)
            text->draw(painter);
        for (const Stamp &stamp : m_pictures)
            painter->drawImage(stamp.at, stamp.image);
    }

private:
    std::vector<std::unique_ptr<Letters>> m_texts;
    std::vector<Stamp> m_pictures;
};

void checkThatBothDrawTheSame(ViewCase *view, const Floor &floor)
{
    Canvas ours;
    Canvas bare;
    const QImage &frame = ours.drawn([view](QPainter *painter) { view->paint(painter); });
    if (frame == bare.drawn([&floor](QPainter *painter) { floor.paint(painter); }))
        return;
    std::fprintf(stderr, "the painter and its floor draw different pixels\n");
    std::exit(1);
}

void runModule(benchmark::State &state, Kind kind, int size, bool changesOne)
{
    ViewCase view(kind, size);
    Canvas canvas;
    checkThatBothDrawTheSame(&view, Floor(&view));
    int changes = 0;
    for ([[maybe_unused]] auto iteration : state) {
        state.SetIterationTime(sides::secondsOf([&] {
            if (changesOne)
                view.service()->setText({view.nodes().first()}, QString::number(++changes));
            canvas.drawn([&](QPainter *painter) { view.paint(painter); });
        }));
    }
}

void runFloor(benchmark::State &state, Kind kind, int size, bool changesOne)
{
    ViewCase view(kind, size);
    Canvas canvas;
    Floor floor(&view);
    for ([[maybe_unused]] auto iteration : state) {
        state.SetIterationTime(sides::secondsOf([&] {
            if (changesOne)
                floor.layOutOne();
            canvas.drawn([&](QPainter *painter) { floor.paint(painter); });
        }));
    }
}

void add(const char *operation, const char *overlays, Kind kind, bool changesOne = false)
{
    for (const int size : {1000, 10000}) {
        sides::add(
            operation, overlays, size,
            [=](benchmark::State &state) { runModule(state, kind, size, changesOne); },
            [=](benchmark::State &state) { runFloor(state, kind, size, changesOne); });
    }
}

} // namespace

void sides::addAll()
{
    add("frame", "texts", Kind::Texts);
    add("frame", "texts on boxes", Kind::BoxedTexts);
    add("frame", "pictures", Kind::Pictures);
    add("frame after one new text", "texts", Kind::Texts, true);
}

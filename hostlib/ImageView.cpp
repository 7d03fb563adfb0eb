// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/ImageView.h"

#include "host/kxStyle.h"

#include <QPainter>

namespace {

constexpr QRgb faultColor = 0xffff7b72;
constexpr int chequer = 6;

QRectF centered(const QSizeF &size, const QRectF &place)
{
    QRectF rect(QPointF(), size);
    rect.moveCenter(place.center());
    return rect;
}

void drawChequers(QPainter *painter, const QRect &rect)
{
    painter->save();
    painter->setClipRect(rect, Qt::IntersectClip);
    painter->fillRect(rect, QColor(0xff8a8d91));
    for (int y = rect.top(); y <= rect.bottom(); y += chequer) {
        const bool odd = (y - rect.top()) / chequer % 2;
        for (int x = rect.left() + (odd ? chequer : 0); x <= rect.right(); x += 2 * chequer)
            painter->fillRect(x, y, chequer, chequer, QColor(0xff6a6d71));
    }
    painter->restore();
}

// A landscape in a frame, the common sign of an image.
void drawLandscape(QPainter *painter, const QRectF &r)
{
    const auto at = [&r](qreal x, qreal y) {
        return QPointF(r.x() + r.width() * x, r.y() + r.height() * y);
    };
    painter->drawRect(r);
    const QPointF hills[] = {at(0.08, 0.88), at(0.38, 0.45), at(0.58, 0.72), at(0.70, 0.58),
                             at(0.92, 0.88)};
    painter->drawPolyline(hills, 5);
    painter->drawEllipse(at(0.72, 0.28), r.width() * 0.08, r.width() * 0.08);
}

} // namespace

hostlib::ImageView::ImageView(QWidget *parent) : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
}

hostlib::ImageView::~ImageView() = default;

void hostlib::ImageView::setFile(const QString &path)
{
    if (path != m_summary.path() || !m_summary.isCurrent())
        read(path);
}

void hostlib::ImageView::read(const QString &path)
{
    m_summary = ImageSummary(path, devicePixels());
    describe();
    update();
}

void hostlib::ImageView::describe()
{
    const QString text = m_summary.text();
    setAccessibleDescription(text);
    setToolTip(text.isEmpty() ? tr("No image") : m_summary.path() + QLatin1Char('\n') + text);
}

QSize hostlib::ImageView::devicePixels() const
{
    return contentsRect().size() * devicePixelRatioF();
}

void hostlib::ImageView::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    // A picture that was read for a smaller view would be enlarged now.
    const QSize now = m_summary.picture().size();
    const QSize wanted = m_summary.pixels().boundedTo(devicePixels());
    if (now.width() < wanted.width() && now.height() < wanted.height())
        read(m_summary.path());
}

void hostlib::ImageView::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    if (kxStyle::isMultiselect(this)) {
        kxStyle::drawMixedField(&painter, rect(), isEnabled());
        kxStyle::drawMixedText(&painter, rect(), isEnabled());
        return;
    }
    painter.fillRect(contentsRect(), palette().base());
    if (m_summary.state() == ImageSummary::Readable)
        paintPicture(&painter);
    else
        paintSign(&painter);
}

void hostlib::ImageView::paintPicture(QPainter *painter) const
{
    const QImage &picture = m_summary.picture();
    const QSizeF natural = QSizeF(picture.size()) / devicePixelRatioF();
    const QSizeF bounds = contentsRect().size();
    const bool fits = natural.width() <= bounds.width() && natural.height() <= bounds.height();
    const QSizeF size = fits ? natural : natural.scaled(bounds, Qt::KeepAspectRatio);
    const QRectF place = centered(size, contentsRect());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    if (picture.hasAlphaChannel())
        drawChequers(painter, place.toAlignedRect());
    painter->setOpacity(isEnabled() ? 1 : 0.4);
    painter->drawImage(place, picture);
}

void hostlib::ImageView::paintSign(QPainter *painter) const
{
    const bool fault = m_summary.state() != ImageSummary::None;
    const QRectF room = contentsRect();
    const qreal side = qBound(12.0, qMin(room.width(), room.height()) * 0.5, 48.0);
    const QRectF sign = centered({side, side * 0.8}, room);
    painter->setRenderHint(QPainter::Antialiasing);
    QColor color = palette().color(QPalette::PlaceholderText);
    if (fault && isEnabled())
        color = faultColor;
    painter->setPen(QPen(color, qMax(1.2, side / 20), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawLandscape(painter, sign);
    if (!fault)
        return;
    painter->drawLine(sign.topRight() + QPointF(4, -4), sign.bottomLeft() + QPointF(-4, 4));
    painter->drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXColorManipulator.h"

#include "host/kxStyle.h"
#include "hostlib/ColorAccessible.h"
#include "hostlib/ColorStrip.h"

#include <QColorDialog>
#include <QHelpEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include <algorithm>

using hostlib::ColorPart;
using hostlib::ColorStrip;

/// One key goes one degree of hue, or one hundredth of saturation or value.
static float stepOf(ColorPart part)
{
    return part == ColorPart::Hue ? 1.0f / 360.0f : 0.01f;
}

static QString nameOf(ColorPart part)
{
    switch (part) {
    case ColorPart::Hue:
        return QKXColorManipulator::tr("Hue");
    case ColorPart::Saturation:
        return QKXColorManipulator::tr("Saturation");
    case ColorPart::Value:
        return QKXColorManipulator::tr("Value");
    default:
        return QKXColorManipulator::tr("Open the color dialog");
    }
}

QKXColorManipulator::QKXColorManipulator(QWidget *parent, const char *name) : QWidget(parent)
{
    m_chosen = ColorPart::Hue;
    hostlib::ColorAccessible::install();
    setObjectName(QLatin1String(name));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QKXColorManipulator::~QKXColorManipulator() = default;

void QKXColorManipulator::setColor(const QKXColor &color)
{
    if (color.toColor() == m_color.toColor())
        return;
    m_color = color;
    update();
}

QKXColor QKXColorManipulator::color() const
{
    return m_color;
}

QSize QKXColorManipulator::sizeHint() const
{
    return QSize(200, std::max(16, fontMetrics().height() + 2));
}

QSize QKXColorManipulator::minimumSizeHint() const
{
    return QSize(80, 16);
}

void QKXColorManipulator::openDialog()
{
    if (m_dialog) {
        m_dialog->raise();
        m_dialog->activateWindow();
        return;
    }
    m_dialog = new QColorDialog(m_color.toColor(), this);
    m_dialog->setOption(QColorDialog::DontUseNativeDialog);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    if (kxStyle::isMultiselect(this)) {
        connect(m_dialog, &QColorDialog::colorSelected, this, &QKXColorManipulator::takeFromDialog);
    } else {
        connect(m_dialog, &QColorDialog::currentColorChanged, this,
                &QKXColorManipulator::takeFromDialog);
        connect(m_dialog, &QDialog::rejected, this, [this, former = m_color] { edit(former); });
    }
    m_dialog->open();
}

bool QKXColorManipulator::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), nameOf(partAt(help->pos())), this);
    return true;
}

void QKXColorManipulator::keyPressEvent(QKeyEvent *event)
{
    const bool command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const int steps = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    if (command || !handleKey(event->key(), steps))
        QWidget::keyPressEvent(event);
}

void QKXColorManipulator::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        openDialog();
}

void QKXColorManipulator::mouseMoveEvent(QMouseEvent *event)
{
    if (ColorStrip::isBar(m_pressed))
        editPart(m_pressed, ColorStrip(rect()).shareAt(m_pressed, event->pos()));
}

void QKXColorManipulator::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    m_pressed = partAt(event->pos());
    if (!ColorStrip::isBar(m_pressed))
        return;
    m_chosen = m_pressed;
    mouseMoveEvent(event);
}

void QKXColorManipulator::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mouseReleaseEvent(event);
    const bool clicked = m_pressed == ColorPart::Swatch && rect().contains(event->pos());
    m_pressed = ColorPart::None;
    if (clicked)
        openDialog();
}

void QKXColorManipulator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (kxStyle::isMultiselect(this)) {
        kxStyle::drawMixedField(&painter, rect(), isEnabled());
        kxStyle::drawMixedText(&painter, rect(), isEnabled());
    } else {
        const ColorPart framed = hasFocus() ? m_chosen : ColorPart::None;
        ColorStrip(rect()).paint(painter, m_color, isEnabled(), framed);
    }
    if (!hasFocus())
        return;
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

ColorPart QKXColorManipulator::partAt(const QPoint &point) const
{
    return kxStyle::isMultiselect(this) ? ColorPart::Swatch : ColorStrip(rect()).partAt(point);
}

bool QKXColorManipulator::handleKey(int key, int steps)
{
    if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter)
        return !kxStyle::isMultiselect(this) && handleBarKey(key, steps);
    openDialog();
    return true;
}

bool QKXColorManipulator::handleBarKey(int key, int steps)
{
    const float share = ColorStrip::share(m_color, m_chosen);
    const float distance = float(steps) * stepOf(m_chosen);
    switch (key) {
    case Qt::Key_Left:
        editPart(m_chosen, share - distance);
        break;
    case Qt::Key_Right:
        editPart(m_chosen, share + distance);
        break;
    case Qt::Key_Home:
        editPart(m_chosen, 0.0f);
        break;
    case Qt::Key_End:
        editPart(m_chosen, 1.0f);
        break;
    case Qt::Key_Up:
        choose(-1);
        break;
    case Qt::Key_Down:
        choose(1);
        break;
    default:
        return false;
    }
    return true;
}

void QKXColorManipulator::choose(int distance)
{
    const int chosen =
        std::clamp(int(m_chosen) + distance, int(ColorPart::Hue), int(ColorPart::Value));
    m_chosen = ColorPart(chosen);
    update();
}

void QKXColorManipulator::edit(const QKXColor &color)
{
    const QColor before = m_color.toColor();
    m_color = color;
    update();
    const QColor now = m_color.toColor();
    if (now != before || kxStyle::isMultiselect(this))
        Q_EMIT colorChanged(float(now.redF()), float(now.greenF()), float(now.blueF()));
}

void QKXColorManipulator::editPart(ColorPart part, float share)
{
    edit(ColorStrip::withShare(m_color, part, std::clamp(share, 0.0f, 1.0f)));
}

void QKXColorManipulator::takeFromDialog(const QColor &color)
{
    edit(color.rgb() == m_color.toColor().rgb() ? m_color : QKXColor(color));
}

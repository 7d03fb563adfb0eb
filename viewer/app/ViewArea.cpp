// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ViewArea.h"

#include "viewer/app/Backdrop.h"
#include "viewer/app/NoticeArea.h"
#include "viewer/app/Viewport.h"

namespace viewer {

ViewArea::ViewArea(Background background, QWidget *parent)
    : QWidget(parent)
    , m_notices(new NoticeArea(this))
{
    setObjectName(QStringLiteral("viewArea"));
    setMinimumSize(200, 150);
    const QString fault = background == Background::Painted ? tr("switched off for this run")
                                                            : Viewport::openGlFault();
    if (fault.isEmpty())
        showViewport();
    else
        showBackdrop(fault);
}

ViewArea::~ViewArea() = default;

void ViewArea::setOverlayLayer(QWidget *layer)
{
    delete m_overlayLayer;
    m_overlayLayer = layer;
    layer->setParent(this);
    layer->show();
    arrange();
}

QString ViewArea::backgroundText() const
{
    if (!m_viewport)
        return tr("No 3D view (%1): painted backdrop").arg(m_fault);
    const QString name = m_viewport->rendererName();
    return name.isEmpty() ? tr("3D view") : tr("3D view: %1").arg(name);
}

void ViewArea::resetView()
{
    if (m_viewport)
        m_viewport->resetCamera();
}

void ViewArea::resizeEvent(QResizeEvent *)
{
    arrange();
}

void ViewArea::showViewport()
{
    m_viewport = new Viewport(this);
    connect(m_viewport, &Viewport::frameSwapped, this, &ViewArea::framePainted);
    connect(m_viewport, &Viewport::started, this, &ViewArea::backgroundChanged);
    // The viewport reports from inside its own set-up, where it cannot be deleted.
    connect(m_viewport, &Viewport::failed, this, &ViewArea::showBackdrop, Qt::QueuedConnection);
}

void ViewArea::showBackdrop(const QString &reason)
{
    m_fault = reason;
    delete m_viewport;
    m_viewport = nullptr;
    m_backdrop = new Backdrop(this);
    connect(m_backdrop, &Backdrop::painted, this, &ViewArea::framePainted);
    m_backdrop->show();
    arrange();
    emit backgroundChanged();
}

void ViewArea::arrange()
{
    QWidget *background = m_viewport;
    if (!background)
        background = m_backdrop;
    background->setGeometry(rect());
    background->lower();
    if (m_overlayLayer)
        m_overlayLayer->setGeometry(rect());
    m_notices->raise();
    m_notices->place();
}

} // namespace viewer

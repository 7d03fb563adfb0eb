// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ViewArea.h"

#include "viewer/app/Backdrop.h"
#include "viewer/app/HelpId.h"
#include "viewer/app/NoticeArea.h"
#include "viewer/app/Viewport.h"

namespace viewer {

ViewArea::ViewArea(Background background, QWidget *parent)
    : QWidget(parent)
    , m_notices(new NoticeArea(this))
{
    setObjectName(QStringLiteral("viewArea"));
    setHelpId(this, QStringLiteral("Viewer_View"));
    setMinimumSize(200, 150);
    const QString fault = background == Background::Painted ? tr("switched off for this run")
                                                            : Viewport::openGlFault();
    if (fault.isEmpty())
        showViewport();
    else
        showBackdrop(fault);
}

ViewArea::~ViewArea()
{
    // The background goes later than what the filter asks for.
    if (m_inputFilter)
        background()->removeEventFilter(m_inputFilter);
}

void ViewArea::addLayer(QWidget *layer)
{
    m_layers.append(layer);
    layer->setParent(this);
    layer->show();
    arrange();
}

void ViewArea::setInputFilter(QObject *filter)
{
    m_inputFilter = filter;
    takeInput();
}

void ViewArea::takeInput()
{
    if (!m_inputFilter)
        return;
    background()->installEventFilter(m_inputFilter);
    background()->setMouseTracking(true);
}

QWidget *ViewArea::background() const
{
    return m_viewport ? static_cast<QWidget *>(m_viewport) : m_backdrop;
}

Qt::CursorShape ViewArea::ownCursor() const
{
    return m_viewport ? Qt::OpenHandCursor : Qt::ArrowCursor;
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
    m_viewport->setAccessibleName(tr("View of the scene"));
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
    m_backdrop->setFocusPolicy(Qt::ClickFocus);
    m_backdrop->setAccessibleName(tr("View of the scene"));
    connect(m_backdrop, &Backdrop::painted, this, &ViewArea::framePainted);
    m_backdrop->show();
    takeInput();
    arrange();
    emit backgroundChanged();
}

void ViewArea::arrange()
{
    background()->setGeometry(rect());
    background()->lower();
    for (QWidget *layer : qAsConst(m_layers)) {
        layer->setGeometry(rect());
        layer->raise();
    }
    m_notices->raise();
    m_notices->place();
}

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXCollapsibleFrame.h"

#include "hostlib/FrameHeader.h"

#include <QGridLayout>

#include <algorithm>

using Grids = QVector<QGridLayout *>;

/// The width that `item` asks for in its cell, whether it is shown at this time or not.
static int widthNeeded(const QLayoutItem *item)
{
    const auto *widget = const_cast<QLayoutItem *>(item)->widget();
    if (!widget)
        return item->sizeHint().width();
    widget->ensurePolished();
    return std::min(std::max(widget->sizeHint().width(), widget->minimumWidth()),
                    widget->maximumWidth());
}

/// The width that the labels of a page ask for: what stands in column 0 and in no other.
static int labelWidth(const QGridLayout *grid)
{
    int widest = 0;
    for (int i = 0; i < grid->count(); ++i) {
        int row = 0;
        int column = 0;
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(i, &row, &column, &rowSpan, &columnSpan);
        if (column == 0 && columnSpan == 1)
            widest = std::max(widest, widthNeeded(grid->itemAt(i)));
    }
    return widest;
}

/// Column 0 gets exactly `width`: the column beside it takes what is left, unless another does.
static void setLabelWidth(QGridLayout *grid, int width)
{
    bool stretches = false;
    for (int column = 1; column < grid->columnCount(); ++column)
        stretches = stretches || grid->columnStretch(column) > 0;
    if (!stretches)
        grid->setColumnStretch(1, 1);
    grid->setColumnStretch(0, 0);
    grid->setColumnMinimumWidth(0, width);
}

static Grids gridsOf(const QLayout *pages)
{
    Grids grids;
    for (int i = 0; i < pages->count(); ++i) {
        if (auto *grid = qobject_cast<QGridLayout *>(pages->itemAt(i)->widget()->layout()))
            grids.append(grid);
    }
    return grids;
}

QKXCollapsibleFrame::QKXCollapsibleFrame(QWidget *parent)
    : QWidget(parent)
    , m_header(new hostlib::FrameHeader(this))
    , m_body(new QWidget(this))
    , m_pages(new QVBoxLayout(m_body))
{
    m_pages->setContentsMargins(0, 0, 0, 0);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_header);
    layout->addWidget(m_body, 1);
    connect(m_header, &QAbstractButton::toggled, this, &QKXCollapsibleFrame::showPages);
}

QKXCollapsibleFrame::~QKXCollapsibleFrame() = default;

void QKXCollapsibleFrame::addPage(QWidget *page)
{
    if (page)
        m_pages->addWidget(page);
}

void QKXCollapsibleFrame::setCaption(const QString &caption)
{
    m_header->setCaption(caption);
}

QString QKXCollapsibleFrame::caption() const
{
    return m_header->caption();
}

void QKXCollapsibleFrame::setExpanded(bool expanded)
{
    m_header->setChecked(expanded);
}

bool QKXCollapsibleFrame::isExpanded() const
{
    return m_header->isChecked();
}

void QKXCollapsibleFrame::fixLayouts(QWidget *root, int width)
{
    if (!root)
        return;
    QList<QKXCollapsibleFrame *> frames = root->findChildren<QKXCollapsibleFrame *>();
    if (auto *frame = qobject_cast<QKXCollapsibleFrame *>(root))
        frames.append(frame);
    Grids grids;
    for (const QKXCollapsibleFrame *frame : qAsConst(frames))
        grids += gridsOf(frame->m_pages);

    int widest = qRound(width * root->logicalDpiX() / 96.0);
    for (const QGridLayout *grid : qAsConst(grids))
        widest = std::max(widest, labelWidth(grid));
    for (QGridLayout *grid : qAsConst(grids))
        setLabelWidth(grid, widest);
}

void QKXCollapsibleFrame::showPages(bool expanded)
{
    const QWidget *focused = m_body->window()->focusWidget();
    if (!expanded && focused && m_body->isAncestorOf(focused))
        m_header->setFocus();
    m_body->setVisible(expanded);
    // A folded frame keeps to its header; the space goes to its neighbours.
    QSizePolicy policy = sizePolicy();
    if (!expanded)
        m_expandedPolicy = policy.verticalPolicy();
    policy.setVerticalPolicy(expanded ? m_expandedPolicy : QSizePolicy::Fixed);
    setSizePolicy(policy);
    Q_EMIT toggled(expanded);
}

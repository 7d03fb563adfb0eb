// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/KxTest.h"
#include "viewer/app/ViewArea.h"
#include "viewer/app/ViewEditing.h"

#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

/// The stage of tests of a view in which overlays are edited: a view area over a painted backdrop,
/// beside a tree as a module makes it. The overlays are texts without a background, each in a line of
/// its own from the top left on. The programs run once for each of several densities of the display.
class ViewEditingTest : public KxTest
{
    Q_OBJECT

protected:
    struct Window : QWidget
    {
        Window();

        viewer::ViewArea *area;
        QStandardItemModel *model;
        QTreeView *tree;
    };

    QRPC::NodeId addText(const QString &text, const QPointF &offset);
    void fillTree();
    QPoint middleOf(QRPC::NodeId node) const;
    QWidget *view() const { return m_window->area->background(); }
    QImage picture() const;
    QRPC::NodeList selected() const;
    void move(const QPoint &to, Qt::KeyboardModifiers modifiers = {},
              Qt::MouseButtons buttons = Qt::LeftButton);
    Qt::CursorShape shapeAt(const QPoint &place, Qt::KeyboardModifiers modifiers = {});

protected Q_SLOTS:
    void init() override;
    void cleanup() override;

protected:
    std::unique_ptr<viewer::OverlayService> m_service;
    viewer::ImageCache m_images;
    std::unique_ptr<viewer::OverlayPainter> m_painter;
    std::unique_ptr<Window> m_window;
    QRPC::NodeId m_first = 0;
    QRPC::NodeId m_second = 0;
};

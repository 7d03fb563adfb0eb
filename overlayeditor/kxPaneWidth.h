// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QScrollArea;

/// Keeps a scrolling pane as wide as its content needs, so that it scrolls up and down only. The pane
/// grows with its content and does not shrink again: what stands beside it keeps its place when rows are
/// hidden. Owned by the pane.
class kxPaneWidth : public QObject
{
    Q_OBJECT

public:
    /// The pane has its content already.
    explicit kxPaneWidth(QScrollArea *pane);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fit();

    QScrollArea *m_pane;
};

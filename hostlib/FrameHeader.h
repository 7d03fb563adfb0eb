// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>

namespace hostlib {

/// The header of a QKXCollapsibleFrame, which owns it: a button that is checked while the frame is
/// expanded, drawn as a bar with a disclosure triangle and the caption.
class FrameHeader : public QAbstractButton
{
    Q_OBJECT

public:
    explicit FrameHeader(QWidget *parent);
    ~FrameHeader() override;

    void setCaption(const QString &caption);
    QString caption() const { return m_caption; }

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void announceState();
    void drawTriangle(QPainter &painter, const QRect &place) const;
    void drawCaption(QPainter &painter, const QRect &place) const;

    QString m_caption;
};

} // namespace hostlib

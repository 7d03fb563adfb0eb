// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "hostlib/ImageSummary.h"

#include <QFrame>

namespace hostlib {

/// Shows one image file as large as it fits, on a chequered ground where it is transparent; or that
/// there is none, that the file is missing or cannot be read, or that there are several. Owner: its
/// parent widget. GUI thread only.
class ImageView : public QFrame
{
    Q_OBJECT

public:
    explicit ImageView(QWidget *parent);
    ~ImageView() override;

    /// Shows the file at `path`; empty for none. It is read only when it is another or has changed.
    void setFile(const QString &path);

    const ImageSummary &summary() const { return m_summary; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void read(const QString &path);
    void describe();
    QSize devicePixels() const;
    void paintPicture(QPainter *painter) const;
    void paintSign(QPainter *painter) const;

    ImageSummary m_summary;
};

} // namespace hostlib

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QLabel;

namespace hostlib {

class ImageView;

/// The picture of one image file with its name and size, or what is wrong with it. The right part
/// of a QKXImageFileDialog, which owns it. GUI thread only.
class ImagePreview : public QWidget
{
    Q_OBJECT

public:
    explicit ImagePreview(QWidget *parent);
    ~ImagePreview() override;

    /// Shows the file at `path`; empty for none.
    void setFile(const QString &path);

private:
    ImageView *m_view;
    QLabel *m_name;
    QLabel *m_text;
};

} // namespace hostlib

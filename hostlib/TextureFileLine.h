// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QToolButton>
#include <QWidget>

#include <array>

namespace hostlib {

class ImageView;
class TexturePathEdit;

/// The file of a QKXTextureControls, which owns it: thumbnail, path and five buttons. GUI thread
/// only.
class TextureFileLine : public QWidget
{
    Q_OBJECT

public:
    /// The buttons, in the order in which they stand.
    enum Button { Load, Reload, Write, Info, Clear, ButtonCount };

    explicit TextureFileLine(QWidget *parent);
    ~TextureFileLine() override;

    /// Shows the file at `path`, silently; empty for none.
    void setFile(const QString &path);
    QString file() const;

    QToolButton *button(Button which) const { return m_buttons.at(which); }

    void handOnMultiselect(const QWidget *outer);

Q_SIGNALS:
    /// Another path was typed; file() gives it already.
    void fileTyped(const QString &path);

private:
    void createButtons();
    void layOut();

    ImageView *m_thumbnail;
    TexturePathEdit *m_path;
    std::array<QToolButton *, ButtonCount> m_buttons{};
};

} // namespace hostlib

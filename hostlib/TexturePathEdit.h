// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLineEdit>

namespace hostlib {

/// The path of a texture, to be read from its end and to be typed. Owner: its parent widget. GUI
/// thread only.
class TexturePathEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit TexturePathEdit(QWidget *parent);
    ~TexturePathEdit() override;

    /// Shows `path`, silently; what was being typed is lost only when the path is another one.
    void setPath(const QString &path);
    QString path() const { return m_path; }

Q_SIGNALS:
    /// Another path was typed and committed, which path() gives already.
    void pathTyped(const QString &path);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void commit(bool byKey);
    void display(const QString &path);

    QString m_path;
};

} // namespace hostlib

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QFileDialog>

namespace hostlib {
class ImagePreview;
} // namespace hostlib

/// A dialog for one existing image file, with a preview of the file that is current in its list.
///
/// Owner: its parent widget, or whoever makes it without one. Modules call the static function; GUI
/// thread only.
class KXHOST_EXPORT QKXImageFileDialog : public QFileDialog
{
    Q_OBJECT

public:
    /// `directory` is a folder, or a file that is then selected; when neither exists the nearest
    /// folder above it that does, when it is empty the folder that was visited last. `filter` holds
    /// the name filters of Qt's file dialogs, separated by ";;"; empty for all files.
    QKXImageFileDialog(QWidget *parent, const QString &caption, const QString &directory,
                       const QString &filter);
    ~QKXImageFileDialog() override;

    /// The position of the selected filter in the filters given; 0 when none were given.
    int selectedFilterIndex() const;

    /// Asks the user for an image and gives its absolute path; an empty string when the user
    /// cancels. The arguments are those of the constructor. `selectedFilter` may be null; when a
    /// file was chosen it receives selectedFilterIndex(). Called by modules; returns when the
    /// dialog is closed.
    static QString getOpenFileNameExternalProc(QWidget *parent, const QString &caption,
                                               const QString &directory, const QString &filter,
                                               int *selectedFilter);

private:
    void startAt(const QString &path);
    void preview(const QString &path);
    void addPreview();

    hostlib::ImagePreview *m_preview;
};

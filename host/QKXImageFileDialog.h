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
    /// A dialog that is not shown yet.
    /// @param parent    becomes the owner; null for none
    /// @param caption   translated title; empty for that of the system
    /// @param directory a folder, or a file that is then selected; when neither exists the nearest
    ///                  folder above it that does, when it is empty the folder visited last
    /// @param filter    name filters of Qt's file dialogs, separated by ";;"; empty for all files
    QKXImageFileDialog(QWidget *parent, const QString &caption, const QString &directory,
                       const QString &filter);
    ~QKXImageFileDialog() override;

    /// The selected filter.
    /// @return index in the filters given; 0 when none were given
    int selectedFilterIndex() const;

    /// Asks the user for an image. Called by modules; returns when the dialog is closed.
    /// @param parent         stands below the dialog; null for none
    /// @param caption        as in the constructor
    /// @param directory      as in the constructor
    /// @param filter         as in the constructor
    /// @param selectedFilter receives selectedFilterIndex() when a file was chosen; may be null
    /// @return absolute path; empty when the user cancels
    static QString getOpenFileNameExternalProc(QWidget *parent, const QString &caption,
                                               const QString &directory, const QString &filter,
                                               int *selectedFilter);

private:
    void startAt(const QString &path);
    void preview(const QString &path);
    void addPreview();

    hostlib::ImagePreview *m_preview;
};

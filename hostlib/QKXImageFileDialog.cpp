// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXImageFileDialog.h"

#include "hostlib/ImagePreview.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QPointer>

// The folder at `path`, or the nearest above it that is there.
static QString nearestFolder(const QString &path)
{
    QFileInfo place(path);
    while (!place.isDir() && !place.isRoot())
        place.setFile(place.absolutePath());
    return place.absoluteFilePath();
}

QKXImageFileDialog::QKXImageFileDialog(QWidget *parent, const QString &caption,
                                       const QString &directory, const QString &filter)
    : QFileDialog(parent, caption)
    , m_preview(new hostlib::ImagePreview(this))
{
    setOption(QFileDialog::DontUseNativeDialog);
    setFileMode(QFileDialog::ExistingFile);
    if (!filter.isEmpty())
        setNameFilter(filter);
    addPreview();
    connect(this, &QFileDialog::currentChanged, this, &QKXImageFileDialog::preview);
    connect(this, &QFileDialog::directoryEntered, this, [this] { preview(QString()); });
    if (!directory.isEmpty())
        startAt(directory);
}

QKXImageFileDialog::~QKXImageFileDialog() = default;

void QKXImageFileDialog::addPreview()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    Q_ASSERT(grid);
    grid->addWidget(m_preview, 0, grid->columnCount(), grid->rowCount(), 1);
    const int em = fontMetrics().height();
    resize(size().expandedTo({em * 60, em * 32}));
}

void QKXImageFileDialog::startAt(const QString &path)
{
    const QFileInfo start(path);
    setDirectory(nearestFolder(start.absoluteFilePath()));
    if (!start.isFile())
        return;
    selectFile(start.absoluteFilePath());
    preview(start.absoluteFilePath());
}

void QKXImageFileDialog::preview(const QString &path)
{
    m_preview->setFile(QFileInfo(path).isDir() ? QString() : path);
}

int QKXImageFileDialog::selectedFilterIndex() const
{
    return qMax(0, nameFilters().indexOf(selectedNameFilter()));
}

QString QKXImageFileDialog::getOpenFileNameExternalProc(QWidget *parent, const QString &caption,
                                                        const QString &directory,
                                                        const QString &filter, int *selectedFilter)
{
    // The parent may be closed while the dialog is open, and takes it along.
    const QPointer<QKXImageFileDialog> dialog =
        new QKXImageFileDialog(parent, caption, directory, filter);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    const QString path = accepted ? dialog->selectedFiles().value(0) : QString();
    if (accepted && selectedFilter)
        *selectedFilter = dialog->selectedFilterIndex();
    delete dialog;
    return path;
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/FileQuestions.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace viewer {

namespace {

QString filters()
{
    return FileQuestions::tr("Scenes (*.json);;All files (*)");
}

FileQuestions::Answer answerOf(int button)
{
    return button == QMessageBox::Save      ? FileQuestions::Answer::Save
           : button == QMessageBox::Discard ? FileQuestions::Answer::Discard
                                            : FileQuestions::Answer::Cancel;
}

} // namespace

FileQuestions::FileQuestions(QWidget *window) : m_window(window) {}

FileQuestions::~FileQuestions() = default;

FileQuestions::Answer FileQuestions::aboutChanges(const QString &name)
{
    QMessageBox box(QMessageBox::Warning, tr("Unsaved Changes"),
                    tr("The scene \"%1\" has changes that are not saved.").arg(name),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("They are lost unless you save them."));
    box.setDefaultButton(QMessageBox::Save);
    return answerOf(box.exec());
}

bool FileQuestions::mayOverwrite(const QString &name)
{
    QMessageBox box(
        QMessageBox::Warning, tr("File Changed"),
        tr("The file \"%1\" was changed by another program since it was last opened or saved here.")
            .arg(name),
        QMessageBox::Save | QMessageBox::Cancel, m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(
        tr("Saving overwrites these changes. To keep both, cancel and save under another name."));
    box.button(QMessageBox::Save)->setText(tr("&Overwrite"));
    box.setDefaultButton(QMessageBox::Cancel);
    return box.exec() == QMessageBox::Save;
}

FileQuestions::Answer FileQuestions::aboutRecovery(const QString &name, const QString &when)
{
    QMessageBox box(QMessageBox::Question, tr("Recover Work"),
                    tr("The viewer did not end properly. Changes to \"%1\" up to %2 can be "
                       "recovered.")
                        .arg(name, when),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, m_window);
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Save)->setText(tr("&Recover"));
    // A desktop may call it "Close without Saving", and it is for good.
    box.button(QMessageBox::Discard)->setText(tr("&Discard"));
    box.button(QMessageBox::Cancel)->setText(tr("&Later"));
    box.setDefaultButton(QMessageBox::Save);
    return answerOf(box.exec());
}

QString FileQuestions::fileToOpen(const QString &current)
{
    return QFileDialog::getOpenFileName(m_window, tr("Open Scene"),
                                        QFileInfo(current).absolutePath(), filters());
}

QString FileQuestions::fileToSave(const QString &current)
{
    QFileDialog dialog(m_window, tr("Save Scene"), QFileInfo(current).absolutePath(), filters());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    const QString name = QFileInfo(current).fileName();
    dialog.selectFile(name.isEmpty() ? tr("untitled.json") : name);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString FileQuestions::scriptToRun(const QString &last)
{
    return QFileDialog::getOpenFileName(m_window, tr("Run Script"), QFileInfo(last).absolutePath(),
                                        tr("Scripts (*.js);;All files (*)"));
}

} // namespace viewer

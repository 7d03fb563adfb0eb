// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/app/FileQuestions.h"

#include <QMetaType>
#include <QStringList>

using Answer = viewer::FileQuestions::Answer;
Q_DECLARE_METATYPE(viewer::FileQuestions::Answer)

/// Answers as it is told, and counts the questions.
class Answers : public viewer::FileQuestions
{
public:
    Answers() : FileQuestions(nullptr) {}

    Answer aboutChanges(const QString &name) override
    {
        asked.append(name);
        return answer;
    }
    bool mayOverwrite(const QString &name) override
    {
        overwritten.append(name);
        return answer == Answer::Save;
    }
    QString fileToOpen(const QString &current) override { return fileFor(current); }
    QString fileToSave(const QString &current) override { return fileFor(current); }

    Answer answer = Answer::Cancel;
    QString file;
    QStringList asked;
    QStringList overwritten;
    QString begunAt;

private:
    QString fileFor(const QString &current)
    {
        begunAt = current;
        return file;
    }
};

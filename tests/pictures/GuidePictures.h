// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/pictures/PictureStage.h"

/// The pictures of the documents, one function for each: it opens an example, works as the text beside
/// the picture tells, and takes the picture. Owned by the program; each function stands for itself.
class GuidePictures
{
public:
    explicit GuidePictures(const QString &folder) : m_stage(folder) {}

    /// Takes all of them, or those that are named.
    void takeAll(const QStringList &wanted);

private:
    void takeWindow(const char *name);
    void takeTree(const char *name);
    void takeSwitch(const char *name);
    void takeContextMenu(const char *name);
    void takeDraggedRow(const char *name);
    void takeSearch(const char *name);
    void takeText(const char *name);
    void takeImage(const char *name);
    void takeSeveral(const char *name);
    void takeBand(const char *name);
    void takeMove(const char *name);
    void takeSigns(const char *name);
    void takeHistory(const char *name);
    void takeUnsaved(const char *name);
    void takeRecovery(const char *name);
    void takeScript(const char *name);
    void takeShortcuts(const char *name);

    void takeModal(const char *name);
    QRect treePane(int rows);
    QRect properties(const char *last);
    QRect inView(const QRect &part);

    PictureStage m_stage;
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QAction;
class QMenu;

namespace viewer {

class SceneDocument;

/// The entries of the file menu that open and save scenes. Owned by the menu, before whose first
/// entry they stand.
class FileActions : public QObject
{
    Q_OBJECT

public:
    FileActions(SceneDocument *document, QMenu *menu);

private:
    void fillRecent();

    SceneDocument *m_document;
    QMenu *m_recent;
};

} // namespace viewer

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// guidePictures FOLDER [NAME...]: takes the pictures of the documents, all or those that are named.

#include "host/kxIconManager.h"
#include "host/kxStyle.h"
#include "tests/pictures/GuidePictures.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QStringLiteral("en")));
    QCoreApplication::setApplicationName(QStringLiteral("overlay-viewer"));
    QApplication::setApplicationDisplayName(QStringLiteral("Overlay Viewer"));
    QApplication::setStyle(new kxStyle);
    QApplication::setWindowIcon(kxIconManager::getIcon("Application", ""));
    // A picture shows the cursor or it does not, by chance.
    QApplication::setCursorFlashTime(0);
    const QStringList arguments = QCoreApplication::arguments();
    GuidePictures(arguments.value(1, QStringLiteral("."))).takeAll(arguments.mid(2));
    return 0;
}

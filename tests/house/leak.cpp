// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// Leaks on purpose from a slot that the event loop calls: the place where a list of forgiven
// libraries could most easily hide a fault of ours.

#include <QApplication>
#include <QTimer>

namespace {

void leakInASlot()
{
    new QObject;
    QCoreApplication::quit();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QTimer::singleShot(0, leakInASlot);
    return QApplication::exec();
}

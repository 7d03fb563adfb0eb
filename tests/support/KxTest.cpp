// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/support/KxTest.h"

#include <QApplication>
#include <QWidget>

void KxTest::expectMessage(const char *pattern)
{
    m_guard->expect(QRegularExpression(QString::fromUtf8(pattern)));
}

void KxTest::init()
{
    m_guard = std::make_unique<MessageGuard>();
}

void KxTest::cleanup()
{
    // Deferred deletions are part of what the test function did.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList faults = m_guard->faults();
    m_guard.reset();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        faults.append(
            QStringLiteral("left alive: %1 \"%2\"")
                .arg(QLatin1String(window->metaObject()->className()), window->objectName()));
    }
    if (!faults.isEmpty())
        QFAIL(qPrintable(faults.join(QLatin1Char('\n'))));
}

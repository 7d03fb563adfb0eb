// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "kit/MessageGuard.h"

#include <QObject>
#include <QtTest>

#include <memory>

/// Base of every test class: fails a test function that leaves a message it did not announce, or a
/// top-level widget alive. A class with an init() or cleanup() of its own calls the base's.
class KxTest : public QObject
{
    Q_OBJECT

protected:
    /// Announces one Qt message that matches `pattern`, for the running test function.
    void expectMessage(const char *pattern);

protected Q_SLOTS:
    virtual void init();
    virtual void cleanup();

private:
    std::unique_ptr<MessageGuard> m_guard;
};

/// Waits until a shown window has the keyboard. Asks for it again and again: on a busy machine the
/// window manager may have passed the window over. The toolkit's own wait is over too early: it takes
/// a dialog for active while its parent still is.
inline bool becomesActive(QWidget *window)
{
    const auto isActive = [window] { return QApplication::activeWindow() == window; };
    for (int seconds = 0; seconds < 30; ++seconds) {
        if (QTest::qWaitFor(isActive, 1000))
            return true;
        window->activateWindow();
    }
    return false;
}

/// Runs the test class T as a program with widgets in the host's style settings.
template<class T>
int runKxTest(int argc, char **argv)
{
    QApplication app(argc, argv);
    app.setApplicationName(QStringLiteral("overlay-editor-test"));
    T test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

/// Fails the test function when the model does not show the service's tree (kit/TreeDump.h).
#define KX_COMPARE_TREE(model, service)                                                            \
    do {                                                                                           \
        const QString difference = treeDifference(model, service);                                 \
        QVERIFY2(difference.isEmpty(), qPrintable(difference));                                    \
    } while (false)

#define KX_TEST_MAIN(T)                                                                            \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return runKxTest<T>(argc, argv);                                                           \
    }

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxConnect.h"
#include "tests/support/KxTest.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <unistd.h>

/// Connections by text.
class tst_kxConnect : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldStopWhereATextDoesNotMatch_data();
    void shouldStopWhereATextDoesNotMatch();
};

namespace {

/// Connects in a process of its own; true when that was stopped. Debug builds only.
bool isStopped(const char *signal)
{
    const pid_t child = fork();
    if (child == 0) {
        const rlimit noCore{0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        QObject sender;
        kxConnect(&sender, signal, &sender, SLOT(deleteLater()));
        _exit(0);
    }
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFSIGNALED(status)
           && WTERMSIG(status) == SIGABRT;
}

} // namespace

void tst_kxConnect::shouldStopWhereATextDoesNotMatch_data()
{
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<bool>("stopped");
    QTest::newRow("a signal that is there") << QByteArray(SIGNAL(destroyed())) << false;
    QTest::newRow("a signal that is missing") << QByteArray(SIGNAL(destroyedTwice())) << true;
}

void tst_kxConnect::shouldStopWhereATextDoesNotMatch()
{
#ifdef QT_NO_DEBUG
    QSKIP("Qt prints the mistake, and the application goes on.");
#endif
    QFETCH(QByteArray, signal);
    QFETCH(bool, stopped);
    QCOMPARE(isStopped(signal.constData()), stopped);
}

KX_TEST_MAIN(tst_kxConnect)
#include "tst_kxConnect.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "conformance/Runner.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace conformance {

namespace {

void send(int pipe, const QJsonObject &object)
{
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    const char *rest = line.constData();
    for (size_t size = size_t(line.size()); size > 0;) {
        const ssize_t written = write(pipe, rest, size);
        if (written < 0 && errno != EINTR)
            _exit(EXIT_FAILURE);
        rest += std::max<ssize_t>(written, 0);
        size -= size_t(std::max<ssize_t>(written, 0));
    }
}

/// What toolkit and library print is not part of the report, but for a reason to end.
void closeOutput()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &message) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDOUT_FILENO);
    close(nowhere);
}

/// What the process has to say when all has come to a regular end.
std::function<void()> &lastWords()
{
    static std::function<void()> words = [] {};
    return words;
}

Result broken(const Suite::Info &check, bool hung, int status)
{
    const bool signalled = WIFSIGNALED(status);
    Result result{check, hung ? Result::Outcome::Hung : Result::Outcome::Crashed, {}, 0};
    result.failure.what = QStringLiteral("the process");
    result.failure.expected = QStringLiteral("it goes on");
    if (hung)
        result.failure.seen = QStringLiteral("no answer in time");
    else if (signalled)
        result.failure.seen = QStringLiteral("ended by signal %1").arg(WTERMSIG(status));
    else
        result.failure.seen = QStringLiteral("ended with code %1").arg(WEXITSTATUS(status));
    return result;
}

} // namespace

void Runner::run(const std::function<void(const Result &)> &take)
{
    const int count = int(m_suite->infos().size());
    for (int next = 0; next < count;) {
        const Told told = runChild(next, take);
        if (!told.cannotLoad.isEmpty())
            throw std::runtime_error(told.cannotLoad.toStdString());
        next += told.results;
        if (m_stops && told.hasFailure)
            return;
        if (told.isDone || next >= count)
            continue;
        take(broken(m_suite->infos().at(size_t(next++)), told.hung, told.status));
        if (m_stops)
            return;
    }
}

Runner::Told Runner::runChild(int first, const std::function<void(const Result &)> &take)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    std::fflush(stdout);
    const pid_t process = fork();
    if (process < 0)
        throw std::runtime_error("no process");
    if (process == 0) {
        close(ends[0]);
        child(first, ends[1]);
    }
    close(ends[1]);
    Told told;
    read(ends[0], &told, take);
    close(ends[0]);
    if (told.hung || told.hasFailure)
        kill(process, SIGKILL);
    waitpid(process, &told.status, 0);
    return told;
}

void Runner::read(int pipe, Told *told, const std::function<void(const Result &)> &take) const
{
    QByteArray pending;
    char buffer[4096];
    for (;;) {
        pollfd end{pipe, POLLIN, 0};
        const int ready = poll(&end, 1, m_seconds * 1000);
        if (ready < 0 && errno == EINTR)
            continue;
        told->hung = ready == 0;
        const ssize_t size = ready > 0 ? ::read(pipe, buffer, sizeof buffer) : 0;
        if (size <= 0)
            return;
        pending.append(buffer, int(size));
        for (int length = pending.indexOf('\n'); length >= 0; length = pending.indexOf('\n')) {
            takeLine(pending.left(length), told, take);
            pending.remove(0, length + 1);
            if (m_stops && told->hasFailure)
                return;
        }
    }
}

void Runner::takeLine(const QByteArray &line, Told *told,
                      const std::function<void(const Result &)> &take) const
{
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    told->cannotLoad = object.value(QLatin1String("cannotLoad")).toString();
    told->isDone = object.contains(QLatin1String("done"));
    if (told->isDone || !told->cannotLoad.isEmpty())
        return;
    Result result;
    result.check = m_suite->infos().at(size_t(object.value(QLatin1String("index")).toInt()));
    result.milliseconds = object.value(QLatin1String("milliseconds")).toInt();
    if (object.contains(QLatin1String("what"))) {
        result.outcome = Result::Outcome::Failed;
        told->hasFailure = true;
        result.failure = {object.value(QLatin1String("what")).toString(),
                          object.value(QLatin1String("expected")).toString(),
                          object.value(QLatin1String("seen")).toString()};
    }
    ++told->results;
    take(result);
}

void Runner::child(int first, int pipe)
{
    closeOutput();
    // Before the library is there, so that it runs behind all that the library leaves to the end.
    lastWords();
    std::atexit([] { lastWords()(); });
    try {
        m_suite->load();
    } catch (const std::exception &problem) {
        send(pipe, {{"cannotLoad", QString::fromLocal8Bit(problem.what())}});
        _exit(EXIT_SUCCESS);
    }
    const auto &infos = m_suite->infos();
    for (int index = first; index < int(infos.size()); ++index) {
        const bool isAlone = infos.at(size_t(index)).stage != Stage::Running;
        if (index > first && isAlone)
            break;
        if (!runCheck(index, pipe) || isAlone)
            break;
    }
    send(pipe, {{"done", true}});
    _exit(EXIT_SUCCESS);
}

bool Runner::runCheck(int index, int pipe)
{
    QElapsedTimer timer;
    timer.start();
    QJsonObject told{{"index", index}};
    try {
        m_suite->run(index);
        if (m_suite->infos().at(size_t(index)).stage == Stage::Ending)
            end(pipe, told);
    } catch (const Failure &failure) {
        told.insert("what", failure.what);
        told.insert("expected", failure.expected);
        told.insert("seen", failure.seen);
    } catch (const std::exception &problem) {
        told.insert("what", "exceptions out of the library");
        told.insert("expected", "none");
        told.insert("seen", QString::fromLocal8Bit(problem.what()));
    }
    told.insert("milliseconds", int(timer.elapsed()));
    send(pipe, told);
    return !told.contains("what");
}

void Runner::end(int pipe, const QJsonObject &told)
{
    lastWords() = [pipe, told] {
        send(pipe, told);
        send(pipe, {{"done", true}});
        _exit(EXIT_SUCCESS);
    };
    m_suite->end();
    std::exit(EXIT_SUCCESS); // NOLINT(concurrency-mt-unsafe)
}

} // namespace conformance

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

// How long the viewer takes from the start of its process to its first painted frame, beside an
// empty main window with a 3D view that clears itself, and on what. Needs a display with OpenGL.
//
// Each start is a process of its own: this program runs itself once for each, by turns, and the
// child prints how far it is, counted from the moment at which its parent started it.

#include "host/kxStyle.h"
#include "viewer/app/ViewerSession.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <QOpenGLWidget>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

constexpr int Rounds = 7;
const char *const Stages[] = {"application", "window made", "window shown", "first frame"};

/// What a child starts.
struct Side
{
    const char *name;
    QStringList arguments; ///< of the viewer; none for the empty window
};

QVector<Side> sides(const QString &scene)
{
    const QString none = QStringLiteral("--plugin=");
    QVector<Side> all{
        {"empty window with a 3D view", {}},
        {"viewer without the editor", {QStringLiteral("viewer"), none}},
        {"viewer, painted backdrop", {QStringLiteral("viewer"), QStringLiteral("--no-gl")}},
        {"viewer, no scene", {QStringLiteral("viewer")}}};
    if (!scene.isEmpty())
        all.append({"viewer with the scene", {QStringLiteral("viewer"), scene}});
    return all;
}

/// Of the machine, so that parent and child mean the same.
qint64 now()
{
    QElapsedTimer timer;
    timer.start();
    return timer.msecsSinceReference();
}

// --- the child -----------------------------------------------------------------------------------

/// Prints the stages of one start.
class Progress
{
public:
    explicit Progress(qint64 start) : m_start(start) {}

    void reached() const { std::printf("%lld\n", static_cast<long long>(now() - m_start)); }

    void finish() const
    {
        reached();
        std::fflush(stdout);
        QApplication::quit();
    }

private:
    qint64 m_start;
};

int startEmptyWindow(const Progress &progress)
{
    QMainWindow window;
    auto *view = new QOpenGLWidget;
    window.setCentralWidget(view);
    window.resize(1280, 800);
    progress.reached();
    QObject::connect(view, &QOpenGLWidget::frameSwapped, &window, [&] { progress.finish(); });
    window.show();
    progress.reached();
    return QApplication::exec();
}

int startViewer(const Progress &progress, const QStringList &arguments)
{
    QApplication::setStyle(new kxStyle);
    viewer::CommandLine line(arguments);
    line.plugins.removeAll(QString());
    viewer::ViewerSession session(line, nullptr);
    progress.reached();
    QObject::connect(session.window()->viewArea(), &viewer::ViewArea::framePainted,
                     session.window(), [&] { progress.finish(); });
    session.start();
    progress.reached();
    return QApplication::exec();
}

int runChild(qint64 start, const QStringList &arguments)
{
    const Progress progress(start);
    progress.reached();
    return arguments.isEmpty() ? startEmptyWindow(progress) : startViewer(progress, arguments);
}

// --- the parent ----------------------------------------------------------------------------------

/// Milliseconds at each stage; empty when the child failed.
QVector<int> timesOf(const Side &side)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const QStringList arguments{QStringLiteral("--child"), QString::number(now())};
    child.start(QCoreApplication::applicationFilePath(), arguments + side.arguments);
    QVector<int> times;
    if (child.waitForFinished() && child.exitCode() == 0) {
        const QList<QByteArray> lines =
            child.readAllStandardOutput().split('\n').mid(0, int(std::size(Stages)));
        for (const QByteArray &line : lines)
            times.append(line.toInt());
    }
    return times;
}

/// For each side the start that reached its first frame soonest.
QVector<QVector<int>> measure(const QVector<Side> &sides)
{
    QVector<QVector<int>> best(sides.size());
    for (int round = 0; round < Rounds; ++round) {
        for (int i = 0; i < sides.size(); ++i) {
            const QVector<int> times = timesOf(sides[i]);
            if (times.size() != int(std::size(Stages)))
                return {};
            if (best[i].isEmpty() || times.constLast() < best[i].constLast())
                best[i] = times;
        }
    }
    return best;
}

void print(const QVector<Side> &sides, const QVector<QVector<int>> &times)
{
    std::printf("\n| start |");
    for (const char *stage : Stages)
        std::printf(" %s: ms |", stage);
    std::printf(" ratio |\n|---|---:|---:|---:|---:|---:|\n");
    for (int i = 0; i < sides.size(); ++i) {
        std::printf("| %s |", sides[i].name);
        for (const int time : times[i])
            std::printf(" %d |", time);
        std::printf(" %.1f |\n", double(times[i].constLast()) / times[0].constLast());
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--child"))
        return runChild(arguments.value(2).toLongLong(), arguments.mid(3));
    const QVector<Side> all = sides(arguments.value(1));
    const QVector<QVector<int>> times = measure(all);
    if (times.isEmpty()) {
        std::fputs("bench_start: a start failed\n", stderr);
        return 1;
    }
    print(all, times);
    return 0;
}

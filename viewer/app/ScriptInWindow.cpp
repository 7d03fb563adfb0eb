// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/app/ScriptInWindow.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <chrono>
#include <thread>

namespace viewer {

namespace {

constexpr int Patience = 500;
constexpr int Slice = 40; // between two looks at what the user does

} // namespace

ScriptInWindow::ScriptInWindow(OverlayService *service, QWidget *window, ScriptRun::Print print)
    : m_window(window)
    , m_script(
          service, [this](const std::function<void()> &work) { askFor(work); }, std::move(print))
{
}

ScriptInWindow::~ScriptInWindow() = default;

ScriptOutcome ScriptInWindow::run(const QString &file)
{
    ScriptOutcome outcome;
    std::thread thread([&] {
        outcome = m_script.run(file);
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isOver = true;
        m_asked.notify_one();
    });
    for (int time = Patience; !serveFor(time); time = Slice) {
        if (!m_dialog)
            showDialog(file);
        QCoreApplication::processEvents();
    }
    thread.join();
    m_dialog.reset();
    return outcome;
}

/// Has a piece of work done on the GUI thread; called on the script's.
void ScriptInWindow::askFor(const std::function<void()> &work)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    m_work = &work;
    m_asked.notify_one();
    m_answered.wait(lock, [this] { return !m_work; });
}

/// Carries out what the script asks for, for some time. True when it is over.
bool ScriptInWindow::serveFor(int milliseconds)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto isWanted = [this] { return m_work || m_isOver; };
    while (m_asked.wait_until(lock, end, isWanted) && !m_isOver) {
        const std::function<void()> &work = *m_work;
        lock.unlock();
        work();
        lock.lock();
        m_work = nullptr;
        m_answered.notify_one();
        if (std::chrono::steady_clock::now() >= end)
            break;
    }
    return m_isOver;
}

void ScriptInWindow::showDialog(const QString &file)
{
    m_dialog = std::make_unique<QProgressDialog>(
        tr("The script \"%1\" is running.").arg(QFileInfo(file).fileName()), tr("Cancel"), 0, 0,
        m_window);
    m_dialog->setObjectName(QStringLiteral("runningScript"));
    m_dialog->setWindowTitle(tr("Run Script"));
    m_dialog->setWindowModality(Qt::ApplicationModal);
    // Escape is a shortcut of the button, and where that is not heard yet, a key of the dialog.
    const auto cancelled = [this] { cancel(); };
    QObject::connect(m_dialog.get(), &QProgressDialog::canceled, m_dialog.get(), cancelled);
    QObject::connect(m_dialog.get(), &QDialog::rejected, m_dialog.get(), cancelled);
    m_dialog->show();
}

/// The dialog stays, since the script may be in the midst of something that cannot be cut short.
void ScriptInWindow::cancel()
{
    m_dialog->setLabelText(tr("The script is being ended."));
    m_dialog->setCancelButton(nullptr);
    m_dialog->show();
    m_script.interrupt();
}

} // namespace viewer

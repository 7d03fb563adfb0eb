// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT
//
// Any text as a script that is run on a scene and recorded. It ends, when it is asked to, and all
// that it did is one step, which can be taken back and done again; a script that failed has left the
// scene as it was. What the recording says comes to the same scene, which can be written and read.

#include "tests/fuzz/ScriptComposer.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/scene/SceneWriter.h"
#include "viewer/script/RecordedService.h"
#include "viewer/script/ScriptRun.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <future>
#include <thread>

using namespace viewer;

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

namespace {

constexpr std::chrono::milliseconds Patience(1000);

const char *const SceneFile = R"({"format": "overlay-scene", "version": 1, "overlays": [
    {"kind": "group", "name": "g", "children": [
        {"kind": "overlay", "type": "text", "text": "a"},
        {"kind": "group", "name": "h", "enabled": false, "children": [
            {"kind": "overlay", "type": "image", "image": "b.png"}]}]},
    {"kind": "switch", "name": "s", "children": [
        {"kind": "overlay", "name": "c"},
        {"kind": "overlay", "name": "d", "enabled": false}]},
    {"kind": "overlay", "name": "e", "size": 0.25, "sizeType": "relative"},
    {"kind": "group", "name": "empty"}]})";

void demand(bool isTrue, const char *what)
{
    if (!isTrue)
        qFatal("%s", what);
}

QString scenePath()
{
    return QStringLiteral("/scenes/a.json");
}

QByteArray fileOf(const Scene &scene)
{
    return SceneWriter::content(scene, scenePath(), nullptr);
}

Scene openedScene(const QByteArray &file)
{
    SceneReading reading = SceneReader::parse(file, scenePath());
    demand(reading.scene.has_value(), "the scene can be read");
    return std::move(*reading.scene);
}

/// Interrupts a script that is still running after a while.
class Watchdog
{
public:
    explicit Watchdog(ScriptRun *script)
        : m_thread([script, isOver = m_over.get_future()] {
            if (isOver.wait_for(Patience) == std::future_status::timeout)
                script->interrupt();
        })
    {
    }
    ~Watchdog()
    {
        m_over.set_value();
        m_thread.join();
    }
    Q_DISABLE_COPY(Watchdog)

private:
    std::promise<void> m_over;
    std::thread m_thread; // the last one, since it is told by the other
};

ScriptOutcome run(OverlayService *service, const QString &file)
{
    ScriptRun script(
        service, [](const std::function<void()> &work) { work(); }, [](const QString &) {});
    const Watchdog watchdog(&script);
    return script.run(file);
}

void demandOneStep(OverlayService *service, const QByteArray &before, const QByteArray &after)
{
    const QUndoStack *steps = service->history().stack();
    demand(steps->count() <= 1, "a script is one step");
    demand(steps->count() == 1 || after == before, "what is no step changed nothing");
    service->undo();
    demand(fileOf(service->scene()) == before, "it can be taken back");
    service->redo();
    demand(fileOf(service->scene()) == after, "and done again");
}

void demandNothing(const OverlayService &service, const QByteArray &before,
                   const ScriptOutcome &outcome)
{
    demand(outcome.text.contains(QLatin1String("s.js")), "a message names the file");
    demand(fileOf(service.scene()) == before, "a script that failed changed nothing");
}

void demandSameReplay(const QString &recording, const QByteArray &before, const QByteArray &after)
{
    OverlayService service;
    service.setScene(openedScene(before));
    const ScriptOutcome outcome = run(&service, recording);
    if (outcome.end == ScriptOutcome::End::Interrupted)
        return; // what took long takes longer
    if (outcome.end == ScriptOutcome::End::Failed)
        qFatal("%s", qPrintable(outcome.text));
    demand(fileOf(service.scene()) == after, "a replay comes to the same scene");
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    demand(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
           "disk is full");
}

} // namespace

// NOLINTNEXTLINE(readability-non-const-parameter): the application object takes what is its own out
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QV4_FORCE_INTERPRETER", "1"); // scripts are short, and each has an engine of its own
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned seed)
{
    if (seed % 4 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const QByteArray script(reinterpret_cast<const char *>(data), int(size));
    const QByteArray changed = ScriptComposer(seed).changed(script);
    const size_t length = std::min(size_t(changed.size()), maxSize);
    std::copy_n(changed.cbegin(), length, data);
    return length;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir folder;
    const QString script = folder.filePath(QStringLiteral("s.js"));
    const QString recording = folder.filePath(QStringLiteral("r.js"));
    writeFile(script, QByteArray(reinterpret_cast<const char *>(data), int(size)));
    QFile::remove(recording);

    RecordedService service(recording);
    service.setScene(openedScene(SceneFile));
    const QByteArray before = fileOf(service.scene());
    const ScriptOutcome outcome = run(&service, script);
    const QByteArray after = fileOf(service.scene());
    if (after.isNull())
        return 0; // nested deeper than a file may be
    demand(fileOf(openedScene(after)) == after, "what is written can be read");
    if (outcome.end != ScriptOutcome::End::Done)
        demandNothing(service, before, outcome);
    demandOneStep(&service, before, after);
    if (QFile::exists(recording))
        demandSameReplay(recording, before, after);
    return 0;
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/script/RecordedService.h"

#include "tests/support/KxTest.h"
#include "tests/support/Seeds.h"
#include "tests/viewer/scene/RandomEdits.h"
#include "tests/viewer/scene/SceneText.h"
#include "viewer/scene/SceneReader.h"
#include "viewer/script/ScriptRun.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace viewer;
using QRPC::NodeId;
using QRPC::NodeList;

/// Sessions that are recorded, and what their scripts do on the scene as it was.
class tst_RecordedService : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void cleanup() override;
    void shouldDoWhatAPlainServiceDoes();
    void shouldWriteWhatChangesSomething();
    void shouldWriteWhatMakesOneStep();
    void shouldWriteHowStepsAreTakenBack();
    void shouldWriteWhatSlotsAnswerBehind();
    void shouldBeginAScriptWithEachScene();
    void shouldTellOnceThatItCannotWrite();
    void shouldComeToTheSameFileWhenReplayed_data();
    void shouldComeToTheSameFileWhenReplayed();

private:
    QString path(const char *name = "r.js") const
    {
        return m_folder->filePath(QLatin1String(name));
    }
    QString recorded(const char *name = "r.js") const;
    NodeList ids(const char *names) const { return scenetext::ids(m_service->scene(), names); }
    QByteArray replayed(const QByteArray &before);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<RecordedService> m_service;
};

namespace {

Scene sceneOf(const QByteArray &file)
{
    return *SceneReader::parse(file, QStringLiteral("/tmp/scene.json")).scene;
}

/// A user who types, drags, groups steps, and takes them back.
class RandomSession
{
public:
    RandomSession(OverlayService *service, quint32 seed)
        : m_service(service)
        , m_edits(service, seed)
        , m_random(seed)
    {
    }

    void act(int depth = 0)
    {
        switch (m_random.bounded(9)) {
        case 0:
            return m_service->undo();
        case 1:
            return m_service->redo();
        case 2:
            return m_service->history().endGesture();
        case 3:
        case 4:
            return gesture();
        case 5:
            if (depth < 3)
                group(depth);
            return;
        case 6:
            QCoreApplication::processEvents(); // another turn of the loop
            return;
        default:
            m_edits.edit();
        }
    }

private:
    void gesture()
    {
        NodeList all;
        m_service->scene().forEach([&all](const Node &node) { all.append(node.id); });
        std::sort(all.begin(), all.end());
        const NodeList nodes{all.at(int(m_random.bounded(all.size()))),
                             all.at(int(m_random.bounded(all.size())))};
        const auto kind = m_random.bounded(4);
        for (auto times = 1 + m_random.bounded(4); times > 0; --times) {
            const auto value = m_random.bounded(2);
            if (kind == 0)
                m_service->setText(nodes, QString::number(value));
            else if (kind == 1)
                m_service->setFontColor(nodes, QColor::fromHsvF(0.3, 0.7, 0.1 * value));
            else if (kind == 2)
                m_service->setOffsets(
                    {{nodes[0], QPointF(value, 1)}, {nodes[1], QPointF(m_random.bounded(2), 0)}});
            else
                m_service->setEnabled({nodes[int(times % 2)]}, times % 2 == 0);
        }
    }

    void group(int depth)
    {
        const bool isOwn = m_random.bounded(2) == 0;
        StepGroup steps(m_service, QStringLiteral("several"),
                        isOwn ? History::Group::OwnHistory : History::Group::Plain);
        for (auto times = m_random.bounded(6); times > 0; --times)
            act(depth + 1);
        if (m_random.bounded(4) == 0)
            steps.rollBack();
    }

    OverlayService *m_service;
    RandomEdits m_edits;
    QRandomGenerator m_random;
};

} // namespace

void tst_RecordedService::init()
{
    KxTest::init();
    m_folder = std::make_unique<QTemporaryDir>();
    m_service = std::make_unique<RecordedService>(path());
    m_service->setScene(scenetext::build("a g(b)"));
}

void tst_RecordedService::cleanup()
{
    m_service.reset();
    KxTest::cleanup();
}

QString tst_RecordedService::recorded(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The file of a scene on which the recorded script was run.
QByteArray tst_RecordedService::replayed(const QByteArray &before)
{
    OverlayService service;
    service.setScene(sceneOf(before));
    ScriptRun run(&service, [](const std::function<void()> &work) { work(); }, {});
    const ScriptOutcome outcome = run.run(path());
    return outcome.text.isEmpty() ? scenetext::fileOf(service) : outcome.text.toUtf8();
}

void tst_RecordedService::shouldDoWhatAPlainServiceDoes()
{
    OverlayService plain;
    plain.setScene(scenetext::build("a g(b)"));
    RandomEdits edits(m_service.get(), 1);
    RandomEdits sameEdits(&plain, 1);
    for (int i = 0; i < 500; ++i) {
        edits.edit();
        sameEdits.edit();
        const NodeId node = plain.getChild(Scene::RootId, 0);
        const QVector<NodeOffset> offsets{{node, QPointF(i, -1)}};
        m_service->setOffsets(offsets);
        plain.setOffsets(offsets);
        QCOMPARE(scenetext::fileOf(*m_service), scenetext::fileOf(plain));
    }
}

void tst_RecordedService::shouldWriteWhatChangesSomething()
{
    const QSignalSpy failed(m_service.get(), &RecordedService::recordingFailed);
    m_service->setScenePath("/scenes/titles.json");
    m_service->setName(ids("a"), "a");
    QVERIFY(!QFile::exists(path()));
    m_service->setText(ids("a b"), "Ä\n\"x\"");
    m_service->setFontColor(ids("a"), QColor::fromRgbF(0.1, 0.2, 0.3, 0.4));
    m_service->setImage(ids("a"), "/x.png");
    m_service->setImage(ids("a"), "/x.png");
    m_service->moveNodes(ids("a"), ids("g").constFirst(), -1);
    QCOMPARE(recorded(), QString("// Recorded on /scenes/titles.json\n"
                                 "history.recordedAt(5);\n"
                                 "overlays.setText([2, 4], \"Ä\\n\\\"x\\\"\");\n"
                                 "overlays.setFontColor([2], \"#661a334d\");\n"
                                 "overlays.setImage([2], \"/x.png\");\n"
                                 "overlays.moveNodes([2], 3, -1);\n"));
    QCOMPARE(failed.size(), 0);
}

void tst_RecordedService::shouldWriteWhatMakesOneStep()
{
    m_service->setText(ids("a"), "x");
    m_service->setText(ids("a"), "xy");
    m_service->groupNodes(ids("a"));
    {
        const StepGroup empty(m_service.get(), "empty");
        const StepGroup group(m_service.get(), "several");
        m_service->setSize(ids("a"), 0.1F);
        m_service->deleteNodes(ids("b"));
    }
    const StepGroup nothing(m_service.get(), "nothing");
    QCOMPARE(recorded(), QString("// Recorded on an empty scene\n"
                                 "history.recordedAt(5);\n"
                                 "overlays.setText([2], \"x\");\n"
                                 "history.join();\noverlays.setText([2], \"xy\");\n"
                                 "overlays.groupNodes([2]);\n"
                                 "history.begin();\nhistory.begin();\n"
                                 "overlays.setSize([2], 0.1);\n"
                                 "overlays.deleteNodes([4]);\n"
                                 "history.end();\nhistory.end();\n"));
}

void tst_RecordedService::shouldWriteHowStepsAreTakenBack()
{
    m_service->undo();
    m_service->createGroup(1);
    m_service->undo();
    m_service->redo();
    {
        StepGroup group(m_service.get(), "several");
        m_service->deleteNodes(ids("a"));
        group.rollBack();
    }
    QVERIFY(recorded().endsWith("overlays.createGroup(1);\nhistory.undo();\nhistory.redo();\n"
                                "history.begin();\noverlays.deleteNodes([2]);\n"
                                "history.cancel();\n"));
}

void tst_RecordedService::shouldWriteWhatSlotsAnswerBehind()
{
    const auto naming =
        connect(m_service.get(), &kxOverlayService::nodesAdded, this,
                [this](const NodeList &nodes) { m_service->setName(nodes, "new"); });
    m_service->createOverlay(1);
    QVERIFY(recorded().endsWith("overlays.createOverlay(1);\noverlays.setName([5], \"new\");\n"));
    disconnect(naming);
    const auto grouping = connect(m_service.get(), &kxOverlayService::nameChanged, this,
                                  [this](const NodeList &nodes) { m_service->groupNodes(nodes); });
    m_service->setName(ids("a"), "z");
    disconnect(grouping);
    QCOMPARE(recorded().count("groupNodes([2])"), 1);
}

void tst_RecordedService::shouldBeginAScriptWithEachScene()
{
    m_service->createOverlay(1);
    m_service->setScene(scenetext::build("c"));
    m_service->setScene(scenetext::build("d"));
    m_service->setScenePath("/d.json");
    m_service->deleteNodes(ids("d"));
    QVERIFY(recorded().endsWith("createOverlay(1);\n"));
    QCOMPARE(recorded("r-2.js"), QString("// Recorded on /d.json\nhistory.recordedAt(8);\n"
                                         "overlays.deleteNodes([7]);\n"));
    OverlayService again;
    again.setScene(scenetext::build("d"));
    ScriptRun run(&again, [](const std::function<void()> &work) { work(); }, {});
    QCOMPARE(run.run(path("r-2.js")).text, QString());
    QCOMPARE(scenetext::dump(again.scene()), QString());
}

void tst_RecordedService::shouldTellOnceThatItCannotWrite()
{
    RecordedService service(path("none/r.js"));
    const QSignalSpy failed(&service, &RecordedService::recordingFailed);
    service.createOverlay(1);
    service.createOverlay(1);
    QCOMPARE(failed.size(), 1);
    QVERIFY(failed.first().first().toString().contains("none/r.js"));
    QCOMPARE(service.getChildCount(1), 2);
}

void tst_RecordedService::shouldComeToTheSameFileWhenReplayed_data()
{
    seeds::addRows(60, 2000);
}

void tst_RecordedService::shouldComeToTheSameFileWhenReplayed()
{
    QFETCH(quint32, seed);
    OverlayService first;
    RandomEdits edits(&first, seed + 1);
    for (int i = 0; i < 40; ++i)
        edits.edit();
    const QByteArray before = scenetext::fileOf(first);
    m_service->setScene(sceneOf(before));
    RandomSession session(m_service.get(), seed);
    for (int i = 0; i < 150; ++i)
        session.act();
    QCOMPARE(replayed(before), scenetext::fileOf(*m_service));
}

KX_TEST_MAIN(tst_RecordedService)
#include "tst_RecordedService.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"
#include "viewer/scene/SceneCopy.h"

#include <QMetaEnum>
#include <QRegularExpression>

using namespace viewer;

/// What steps are called in the edit menu and in their list.
class tst_History_names : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameTheStep_data();
    void shouldNameTheStep();
    void shouldNameEveryOperation_data();
    void shouldNameEveryOperation();
    void shouldShortenLongNames();
    void shouldShowAnAmpersandInTheMenu();
};

void tst_History_names::shouldNameTheStep_data()
{
    QTest::addColumn<Operate>("operate");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *name, const Operate &operate) {
        QTest::newRow(name) << operate << QString(name);
    };
    row("Set font colour of 2 overlays",
        [](auto &s, auto of) { s.setFontColor(of("a b g"), Qt::red); });
    row("Set font colour of \"a\"", [](auto &s, auto of) { s.setFontColor(of("a"), Qt::red); });
    row("Create \"Text 1\"", [](auto &s, auto) { s.createOverlay(Scene::RootId); });
    row("Create \"Group 1\"", [](auto &s, auto) { s.createGroup(Scene::RootId); });
    row("Create \"Switch 1\"", [](auto &s, auto) { s.createSwitch(Scene::RootId); });
    row("Duplicate \"a\"", [](auto &s, auto of) { s.duplicateNodes(of("a")); });
    row("Duplicate 2 items", [](auto &s, auto of) { s.duplicateNodes(of("a g")); });
    row("Paste \"a\"",
        [](auto &s, auto of) { s.insertScene(extract(s.scene(), of("a")), Scene::RootId, -1); });
    row("Paste 2 items",
        [](auto &s, auto of) { s.insertScene(extract(s.scene(), of("a g")), of("g").first(), 0); });
    row("Delete \"a\"", [](auto &s, auto of) { s.deleteNodes(of("a")); });
    row("Delete 2 items", [](auto &s, auto of) { s.deleteNodes(of("a g")); });
    row("Group 2 items", [](auto &s, auto of) { s.groupNodes(of("a g")); });
    row("Move \"a\"", [](auto &s, auto of) { s.moveNodes(of("a"), of("g").first(), 0); });
    row("Move \"a\" in the view", [](auto &s, auto of) {
        s.setOffsets({{of("a").first(), {1, 0}}});
        s.setOffsets({{of("a").first(), {2, 0}}});
    });
    row("Rename to \"z\"", [](auto &s, auto of) { s.setName(of("a"), "z"); });
    row("Rename 2 items", [](auto &s, auto of) { s.setName(of("a b"), "z"); });
    row("Switch on \"c\"", [](auto &s, auto of) { s.setEnabled(of("c"), true); });
    row("Switch off \"a\"", [](auto &s, auto of) { s.setEnabled(of("a"), false); });
    row("Set type of \"a\"", [](auto &s, auto of) { s.setOverlayType(of("a"), 1); });
    row("Set text of 2 overlays", [](auto &s, auto of) { s.setText(of("a b"), "t"); });
    row("Set font of \"a\"", [](auto &s, auto of) { s.setFont(of("a"), "Other"); });
    row("Set background colour of \"a\"",
        [](auto &s, auto of) { s.setBackgroundColor(of("a"), Qt::red); });
    row("Set background transparency of \"a\"",
        [](auto &s, auto of) { s.setBackgroundTransparency(of("a"), Qt::red); });
    row("Set image of \"a\"", [](auto &s, auto of) { s.setImage(of("a"), "/a.png"); });
    row("Set size type of \"a\"", [](auto &s, auto of) { s.setSizeType(of("a"), 1); });
    row("Set size of \"a\"", [](auto &s, auto of) { s.setSize(of("a"), 3.0F); });
    row("Set anchor of \"a\"", [](auto &s, auto of) { s.setPosition(of("a"), {0.25, 0.25}); });
    row("Set offset of \"a\"", [](auto &s, auto of) { s.setOffset(of("a"), {3, 4}); });
    row("Set offset of 2 overlays", [](auto &s, auto of) { s.setOffset(of("a b"), {3, 4}); });
    row("Set horizontal offset of \"a\"", [](auto &s, auto of) { s.setOffsetX(of("a"), 3.0F); });
    row("Set vertical offset of \"a\"", [](auto &s, auto of) { s.setOffsetY(of("a"), 3.0F); });
    row("Switch off 2 items", [](auto &s, auto of) { s.setEnabled(of("a b"), false); });
    row("Toggle 2 items", [](auto &s, auto of) {
        s.setEnabled(of("a"), false);
        s.setEnabled(of("c"), true);
    });
}

void tst_History_names::shouldNameTheStep()
{
    QFETCH(Operate, operate);
    QFETCH(QString, name);
    open("a b c- g(d)");
    operate(service(), [this](const char *nodes) { return ids(nodes); });
    QCOMPARE(stepNames(), QStringList(name));
}

void tst_History_names::shouldNameEveryOperation_data()
{
    QTest::addColumn<int>("operation");
    const QMetaEnum operations = QMetaEnum::fromType<Operation>();
    for (int i = 0; i < operations.keyCount(); ++i)
        QTest::newRow(operations.key(i)) << operations.value(i);
}

void tst_History_names::shouldNameEveryOperation()
{
    QFETCH(int, operation);
    Step step;
    step.operation = Operation(operation);
    step.subject = "Title";
    QStringList texts;
    for (step.count = 1; step.count <= 2; ++step.count)
        texts.append(stepText(step));
    static const QRegularExpression one("^[A-Z][a-z]+ .*\"Title\"( in the view)?$");
    static const QRegularExpression several("^[A-Z][a-z]+ .*\\b2 [a-z]+( in the view)?$");
    QVERIFY2(one.match(texts.at(0)).hasMatch(), qPrintable(texts.at(0)));
    QVERIFY2(several.match(texts.at(1)).hasMatch(), qPrintable(texts.at(1)));
}

void tst_History_names::shouldShortenLongNames()
{
    open("a");
    service().setName(ids("a"), QString(1000, 'x') + "\n");
    QVERIFY(stack().text(0).size() < 60);
}

void tst_History_names::shouldShowAnAmpersandInTheMenu()
{
    open("a");
    service().setName(ids("a"), "x & y");
    QCOMPARE(stack().text(0), QString("Rename to \"x & y\""));
    QCOMPARE(stack().undoText(), QString("Rename to \"x && y\""));
}

KX_TEST_MAIN(tst_History_names)
#include "tst_History_names.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/viewer/scene/ServiceTest.h"

#include <QDir>

#include <cmath>
#include <limits>

using QRPC::NodeId;
using QRPC::NodeList;
using viewer::OverlayService;

namespace {

/// One property write: how to make it, how to read it back, what it announces.
struct Write
{
    const char *name;
    std::function<void(OverlayService &, const NodeList &)> set;
    std::function<bool(OverlayService &, NodeId)> isSet;
    QStringList announced;
};

const QVector<Write> &writes()
{
    static const QVector<Write> table{
        {"text",
         [](auto &s, auto &n) { s.setText(n, "line\nline"); },
         [](auto &s, auto n) { return s.getText(n) == "line\nline"; },
         {"textChanged"}},
        {"font",
         [](auto &s, auto &n) { s.setFont(n, "No Such Family"); },
         [](auto &s, auto n) { return s.getFont(n) == "No Such Family"; },
         {"fontChanged"}},
        {"font colour",
         [](auto &s, auto &n) { s.setFontColor(n, QColor(1, 2, 3)); },
         [](auto &s, auto n) { return s.getFontColor(n) == QColor(1, 2, 3); },
         {"fontColorChanged"}},
        {"background",
         [](auto &s, auto &n) { s.setBackgroundColor(n, QColor(4, 5, 6)); },
         [](auto &s, auto n) { return s.getBackgroundColor(n) == QColor(4, 5, 6); },
         {"backgroundColorChanged"}},
        {"transparency",
         [](auto &s, auto &n) { s.setBackgroundTransparency(n, QColor()); },
         [](auto &s, auto n) { return !s.getBackgroundTransparency(n).isValid(); },
         {"backgroundTransparencyChanged"}},
        {"size type",
         [](auto &s, auto &n) { s.setSizeType(n, 7); },
         [](auto &s, auto n) { return s.getSizeType(n) == 7; },
         {"sizeTypeChanged"}},
        {"size",
         [](auto &s, auto &n) { s.setSize(n, -3.5F); },
         [](auto &s, auto n) { return s.getSize(n) == -3.5F; },
         {"sizeChanged"}},
        {"size that is no number",
         [](auto &s, auto &n) { s.setSize(n, std::numeric_limits<float>::quiet_NaN()); },
         [](auto &s, auto n) { return std::isnan(s.getSize(n)); },
         {"sizeChanged"}},
        {"position",
         [](auto &s, auto &n) { s.setPosition(n, QPointF(0.5 + 9e-13, 2)); },
         [](auto &s, auto n) { return s.getPosition(n).x() == 0.5 + 9e-13; },
         {"positionChanged"}},
        {"offset",
         [](auto &s, auto &n) { s.setOffset(n, QPointF(1.25, -2)); },
         [](auto &s, auto n) { return s.getOffset(n) == QPointF(1.25, -2); },
         {"offsetChanged"}},
        {"offset x",
         [](auto &s, auto &n) { s.setOffsetX(n, 12.7F); },
         [](auto &s, auto n) { return s.getOffset(n) == QPointF(double(12.7F), 0); },
         {"offsetChanged"}},
        {"offset y",
         [](auto &s, auto &n) { s.setOffsetY(n, -1.5F); },
         [](auto &s, auto n) { return s.getOffset(n) == QPointF(0, -1.5); },
         {"offsetChanged"}},
        {"type",
         [](auto &s, auto &n) { s.setOverlayType(n, 5); },
         [](auto &s, auto n) { return s.getOverlayType(n) == 5; },
         {"overlayTypeChanged", "textChanged", "fontChanged", "fontColorChanged",
          "backgroundColorChanged", "backgroundTransparencyChanged", "imageChanged"}},
    };
    return table;
}

} // namespace

class tst_OverlayService_values : public ServiceTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldWriteTheOverlaysOfAListOnce_data();
    void shouldWriteTheOverlaysOfAListOnce();
    void shouldSendNothingWithoutChange_data() { shouldWriteTheOverlaysOfAListOnce_data(); }
    void shouldSendNothingWithoutChange();
    void shouldAnnounceOnlyWhatChanged();
    void shouldNameGroupsToo();
    void shouldGiveEachOverlayItsOffsetInOneAnnouncement();
    void shouldReadAnImageAnewWhenItsPathIsWrittenAgain();
    void shouldMakeImagePathsAbsolute_data();
    void shouldMakeImagePathsAbsolute();
    void shouldClearAnImageOnce();
    void shouldListParentsBeforeChildren();
    void shouldEnable_data();
    void shouldEnable();
    void shouldShowAnyChildOfASwitchAfterNone();
    void shouldEnableManyChildrenOfASwitchInTurn();
};

void tst_OverlayService_values::shouldWriteTheOverlaysOfAListOnce_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < writes().size(); ++row)
        QTest::newRow(writes().at(row).name) << row;
}

void tst_OverlayService_values::shouldWriteTheOverlaysOfAListOnce()
{
    QFETCH(int, row);
    const Write &write = writes().at(row);
    open("a g(b) s{c} d");
    write.set(service(), ids("c root a g 0 ? a s b"));
    QStringList expected;
    for (const QString &signal : write.announced)
        expected.append(signal + " a b c");
    QCOMPARE(signalLines(), expected);
    const NodeList overlays = ids("a b c");
    for (const NodeId node : overlays)
        QVERIFY(write.isSet(service(), node));
    QVERIFY(!write.isSet(service(), id("d")));
}

void tst_OverlayService_values::shouldSendNothingWithoutChange()
{
    QFETCH(int, row);
    const Write &write = writes().at(row);
    open("a g(b)");
    write.set(service(), {});
    write.set(service(), ids("root g 0 ?"));
    QVERIFY(signalLines().isEmpty());
    write.set(service(), ids("a b"));
    signalLines();
    write.set(service(), ids("a b"));
    QVERIFY(signalLines().isEmpty());
}

void tst_OverlayService_values::shouldAnnounceOnlyWhatChanged()
{
    open("a b c");
    service().setText(ids("b"), "x");
    signalLines();
    service().setText(ids("a b c"), "x");
    QCOMPARE(signalLines(), QStringList("textChanged a c"));
}

void tst_OverlayService_values::shouldNameGroupsToo()
{
    open("a g(b) s{}");
    service().setName(ids("root b g ? b"), QString::fromUtf8(" \xc3\xa9 \n"));
    QCOMPARE(service().getName(service().getChild(id("root"), 1)),
             QString::fromUtf8(" \xc3\xa9 \n"));
    QVERIFY(service().getName(id("root")).isEmpty());
    QCOMPARE(signalLines().size(), 1);
    service().setName(ids("a s"), "a");
    QCOMPARE(signalLines(), QStringList("nameChanged a"));
}

void tst_OverlayService_values::shouldGiveEachOverlayItsOffsetInOneAnnouncement()
{
    open("a g(b c) d");
    service().setOffset(ids("c"), {3, 4});
    signalLines();
    service().setOffsets({{id("d"), {7, -8}},
                          {id("a"), {1.25, 2}},
                          {id("c"), {3, 4}},
                          {id("g"), {5, 5}},
                          {9999, {6, 6}}});
    QCOMPARE(signalLines(), QStringList("offsetChanged a d"));
    QCOMPARE(service().getOffset(id("a")), QPointF(1.25, 2));
    QCOMPARE(service().getOffset(id("d")), QPointF(7, -8));
    QCOMPARE(service().getOffset(id("g")), QPointF());
}

void tst_OverlayService_values::shouldReadAnImageAnewWhenItsPathIsWrittenAgain()
{
    open("a b g()");
    service().setImage(ids("a b g"), "/x.png");
    QCOMPARE(signalLines(), QStringList({"imageFileSet /x.png", "imageChanged a b"}));
    service().setImage(ids("b"), "/x.png");
    QCOMPARE(signalLines(), QStringList({"imageFileSet /x.png", "imageChanged b"}));
    QCOMPARE(service().getImage(id("a")), QString("/x.png"));
}

void tst_OverlayService_values::shouldMakeImagePathsAbsolute_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("path");
    QTest::newRow("in the folder") << "/s"
                                   << "p/x.png"
                                   << "/s/p/x.png";
    QTest::newRow("beside the folder") << "/s/t"
                                       << "../x.png"
                                       << "/s/x.png";
    QTest::newRow("absolute") << "/s"
                              << "/p/x.png"
                              << "/p/x.png";
    QTest::newRow("in the program") << "/s"
                                    << ":/x.png"
                                    << ":/x.png";
    QTest::newRow("none") << "/s"
                          << ""
                          << "";
    QTest::newRow("without a folder") << ""
                                      << "x.png" << QDir::current().filePath("x.png");
}

void tst_OverlayService_values::shouldMakeImagePathsAbsolute()
{
    QFETCH(QString, folder);
    QFETCH(QString, given);
    QFETCH(QString, path);
    open("a");
    service().setImageFolder(folder);
    service().setImage(ids("a"), "/before.png");
    signalLines();
    service().setImage(ids("a"), given);
    QCOMPARE(service().getImage(id("a")), path);
    QCOMPARE(signalLines().contains("imageFileSet " + path), !path.isEmpty());
}

void tst_OverlayService_values::shouldClearAnImageOnce()
{
    open("a b");
    service().setImage(ids("a"), "/x.png");
    signalLines();
    service().setImage(ids("a b"), QString());
    QCOMPARE(signalLines(), QStringList("imageChanged a"));
    service().setImage(ids("a b"), QString());
    service().setImage({}, "/x.png");
    QVERIFY(signalLines().isEmpty());
}

void tst_OverlayService_values::shouldListParentsBeforeChildren()
{
    open("g(h(a) b)");
    service().setName(ids("a b h g"), "x");
    QCOMPARE(dump(), QString("x(x(x) x)"));
    open("g(h(a) b)");
    service().setEnabled(ids("a b h g"), false);
    QCOMPARE(signalLines(), QStringList("enabledStateChanged g h a b"));
}

void tst_OverlayService_values::shouldEnable_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("nodes");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("changed");
    QTest::newRow("one off") << "a b"
                             << "a" << false << "a- b"
                             << "a";
    QTest::newRow("a group and its child") << "g-(a-)"
                                           << "a g" << true << "g(a)"
                                           << "g a";
    QTest::newRow("only what changes") << "a- b c-"
                                       << "c b a c" << true << "a b c"
                                       << "a c";
    QTest::newRow("nothing changes") << "a- b"
                                     << "b" << true << "a- b"
                                     << "";
    QTest::newRow("skips what it cannot") << "a"
                                          << "root 0 ? a" << false << "a-"
                                          << "a";
    QTest::newRow("switch: the sibling goes off") << "s{a b- c-}"
                                                  << "c" << true << "s{a- b- c}"
                                                  << "a c";
    QTest::newRow("switch: the last named wins") << "s{a b- c-}"
                                                 << "c b" << true << "s{a- b c-}"
                                                 << "a b";
    QTest::newRow("switch: the last named is on already") << "s{a b- c-}"
                                                          << "c b a" << true << "s{a b- c-}"
                                                          << "";
    QTest::newRow("switch: a repetition does not count") << "s{a b- c-}"
                                                         << "b c b" << true << "s{a- b- c}"
                                                         << "a c";
    QTest::newRow("switch: off leaves none") << "s{a b-}"
                                             << "a" << false << "s{a- b-}"
                                             << "a";
    QTest::newRow("switch: one of none") << "s{a- b-}"
                                         << "b" << true << "s{a- b}"
                                         << "b";
    QTest::newRow("switch: all off") << "s{a- b}"
                                     << "a b" << false << "s{a- b-}"
                                     << "b";
    QTest::newRow("two switches, one in the other") << "s{t{a b-} c-}"
                                                    << "b c" << true << "s{t-{a- b} c}"
                                                    << "t a b c";
}

void tst_OverlayService_values::shouldEnable()
{
    QFETCH(QString, before);
    QFETCH(QString, nodes);
    QFETCH(bool, enabled);
    QFETCH(QString, after);
    QFETCH(QString, changed);
    open(before);
    service().setEnabled(ids(nodes), enabled);
    QCOMPARE(dump(), after);
    QCOMPARE(signalLines(),
             changed.isEmpty() ? QStringList() : QStringList("enabledStateChanged " + changed));
}

void tst_OverlayService_values::shouldShowAnyChildOfASwitchAfterNone()
{
    open("s{a b-} c");
    service().setEnabled(ids("a"), false);
    signalLines();
    service().setEnabled(ids("b"), true);
    QCOMPARE(dump(), QString("s{a- b} c"));
    QCOMPARE(signalLines(), QStringList("enabledStateChanged b"));
    QVERIFY(service().isActive(id("c")));
    service().setEnabled(ids("b"), false);
    service().createOverlay(id("s"));
    service().moveNodes(ids("c"), id("s"), -1);
    QCOMPARE(dump(), QString("s{a- b- Text 1 c-}"));
}

void tst_OverlayService_values::shouldEnableManyChildrenOfASwitchInTurn()
{
    open("s{}");
    const NodeId parent = id("s");
    NodeList children;
    for (int i = 0; i < 20000; ++i)
        children.append(service().createOverlay(parent));
    for (const NodeId child : qAsConst(children))
        service().setEnabled({child}, true);
    service().setEnabled(children, true);
    int enabled = 0;
    for (const NodeId child : qAsConst(children))
        enabled += service().isEnabled(child) ? 1 : 0;
    QCOMPARE(enabled, 1);
    QVERIFY(service().isActive(children.constLast()));
}

KX_TEST_MAIN(tst_OverlayService_values)
#include "tst_OverlayService_values.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include <QSlider>

#include <cmath>
#include <limits>

namespace {

QString line(const char *operation, QRPC::NodeId node)
{
    return QStringLiteral("%1 %2").arg(QLatin1String(operation)).arg(node);
}

/// What a walk over nodes asks.
QStringList walk(const char *operation, const QRPC::NodeList &nodes)
{
    QStringList lines;
    for (const QRPC::NodeId node : nodes)
        lines.append(line(operation, node));
    return lines;
}

/// What a comparison asks: the reference of the first node, then each node up to the first that
/// differs, which ends the list given.
QStringList compare(const char *getter, const QRPC::NodeList &nodes)
{
    return walk(getter, nodes.mid(0, 1)) + walk(getter, nodes);
}

/// Does something once, as soon as a widget becomes enabled.
class OnEnabled : public QObject
{
public:
    OnEnabled(QWidget *watched, std::function<void()> act)
        : m_watched(watched)
        , m_act(std::move(act))
    {
        watched->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::EnabledChange || !m_watched->isEnabled())
            return false;
        m_watched->removeEventFilter(this);
        m_act();
        return false;
    }

private:
    QWidget *m_watched;
    std::function<void()> m_act;
};

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

/// The refreshes in detail: the order of their questions, and how size, position and offset are
/// compared and shown.
class tst_kxOverlayEditor_refresh : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldAskForTextsInOrder();
    void shouldAskForImagesInOrder();
    void shouldAskForMixedTypesInOrder();
    void shouldStopAtTheFirstDifference();
    void shouldAskOnlyForNamesBesideAGroup();
    void shouldAskNothingWithoutSelection();
    void shouldConfigureTheSliderByItsSizeType_data();
    void shouldConfigureTheSliderByItsSizeType();
    void shouldShowASizeAtTheEndOfTheRange();
    void shouldLeaveTheSliderAloneForMixedSizeTypes();
    void shouldMarkMixedSizesInsideTheSlider();
    void shouldFollowAChangedSizeType();
    void shouldCountNoNumberAsDifferent();
    void shouldCompareSizesExactly();
    void shouldComparePositionsByTheirDistance_data();
    void shouldComparePositionsByTheirDistance();
    void shouldShowNoAnchorForAnotherPosition();
    void shouldMarkOffsetsSeparately_data();
    void shouldMarkOffsetsSeparately();
    void shouldShowTheSelectionThatARefreshEndsWith();
    void shouldCountCallsByTheSelection_data();
    void shouldCountCallsByTheSelection();

private:
    void makeDifferent(int nodes);
};

static QStringList textQuestions(const QRPC::NodeList &nodes)
{
    QStringList lines;
    for (const char *getter :
         {"getText", "getFont", "getFontColor", "getBackgroundColor", "getBackgroundTransparency"})
        lines +=
            walk("isOverlay", nodes) + compare("getOverlayType", nodes) + compare(getter, nodes);
    return lines;
}

static QStringList sizeQuestions(const QRPC::NodeList &nodes)
{
    return walk("isOverlay", nodes) + compare("getSize", nodes)
           + walk("getSizeType", nodes.mid(0, 1));
}

/// From the size type on, for nodes that are equal.
static QStringList commonQuestions(const QRPC::NodeList &nodes)
{
    return walk("isOverlay", nodes) + compare("getSizeType", nodes) + sizeQuestions(nodes)
           + sizeQuestions(nodes) + walk("isOverlay", nodes) + compare("getPosition", nodes)
           + walk("isOverlay", nodes) + compare("getOffset", nodes) + compare("getOffset", nodes);
}

void tst_kxOverlayEditor_refresh::shouldAskForTextsInOrder()
{
    openEditor("a2 b3 c4");
    service().node(3).name = "a2";
    const QRPC::NodeList nodes{3, 2};
    select(nodes);
    call("selectionChanged");
    QCOMPARE(log().lines(), walk("isOverlay", nodes) + compare("getName", nodes)
                                + compare("getOverlayType", nodes) + walk("getOverlayType", {3})
                                + compare("getOverlayType", nodes) + textQuestions(nodes)
                                + commonQuestions(nodes));
}

void tst_kxOverlayEditor_refresh::shouldAskForImagesInOrder()
{
    openEditor("a2");
    suit(property(7));
    const QRPC::NodeList nodes{2};
    select(nodes);
    call("selectionChanged");
    QCOMPARE(log().lines(), walk("isOverlay", nodes) + compare("getName", nodes)
                                + compare("getOverlayType", nodes) + walk("getOverlayType", nodes)
                                + compare("getOverlayType", nodes) + walk("isOverlay", nodes)
                                + compare("getOverlayType", nodes) + compare("getImage", nodes)
                                + commonQuestions(nodes));
}

void tst_kxOverlayEditor_refresh::shouldAskForMixedTypesInOrder()
{
    openEditor("a2 b3");
    node(3).type = 1;
    const QRPC::NodeList nodes{2, 3};
    select(nodes);
    call("selectionChanged");
    QCOMPARE(log().lines(), walk("isOverlay", nodes) + compare("getName", nodes)
                                + compare("getOverlayType", nodes)
                                + compare("getOverlayType", nodes) + commonQuestions(nodes));
}

void tst_kxOverlayEditor_refresh::shouldStopAtTheFirstDifference()
{
    openEditor("a2 b3 c4");
    for (const QRPC::NodeId id : {2, 3, 4}) {
        node(id).sizeType = int(id) - 2;
        node(id).position = {double(id), 0.0};
        node(id).offset = {double(id), 0.0};
        node(id).type = id == 2 ? 0 : 1;
    }
    const QRPC::NodeList all{2, 3, 4};
    const QRPC::NodeList differing{2, 3};
    select(all);
    call("selectionChanged");
    QCOMPARE(log().lines(), walk("isOverlay", all) + compare("getName", differing)
                                + compare("getOverlayType", differing)
                                + compare("getOverlayType", differing) + walk("isOverlay", all)
                                + compare("getSizeType", differing) + walk("isOverlay", all)
                                + walk("isOverlay", all) + walk("isOverlay", all)
                                + compare("getPosition", differing) + walk("isOverlay", all)
                                + compare("getOffset", differing) + compare("getOffset", all));
}

void tst_kxOverlayEditor_refresh::shouldAskOnlyForNamesBesideAGroup()
{
    openEditor("a2 g3() b4");
    select({2, 3, 4});
    call("selectionChanged");
    QCOMPARE(log().lines(), walk("isOverlay", {2, 3}) + compare("getName", {2, 3}));
}

void tst_kxOverlayEditor_refresh::shouldAskNothingWithoutSelection()
{
    openEditor("a2");
    call("selectionChanged");
    QCOMPARE(log().lines(), QStringList());
}

void tst_kxOverlayEditor_refresh::shouldConfigureTheSliderByItsSizeType_data()
{
    QTest::addColumn<int>("sizeType");
    QTest::addColumn<float>("size");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("place");
    QTest::newRow("absolute") << 0 << 50.0F << "pt" << 1.0 << 200 << 50;
    QTest::newRow("relative") << 1 << 0.25F << "" << 0.01 << 100 << 25;
    QTest::newRow("other") << 2 << 1.0F << "" << 0.01 << 100 << 100;
}

void tst_kxOverlayEditor_refresh::shouldConfigureTheSliderByItsSizeType()
{
    QFETCH(int, sizeType);
    QFETCH(float, size);
    openEditor("a2 b3");
    node(2).sizeType = sizeType;
    node(2).size = size;
    node(3).sizeType = sizeType == 0 ? 1 : 0;
    select({3});
    select({2});
    QTEST(sizeField().suffix(), "suffix");
    QTEST(sizeField().singleStep(), "step");
    QTEST(sizeHandle().maximum(), "steps");
    QTEST(sizeHandle().value(), "place");
    QCOMPARE(window()._size_slider->value(), double(size));
}

void tst_kxOverlayEditor_refresh::shouldShowASizeAtTheEndOfTheRange()
{
    openEditor("a2");
    node(2).size = 200.0F;
    select({2});
    QCOMPARE(window()._size_slider->value(), 200.0);
    QCOMPARE(sizeHandle().value(), sizeHandle().maximum());
    QCOMPARE(sizeField().text(), QString("200pt"));
}

void tst_kxOverlayEditor_refresh::shouldLeaveTheSliderAloneForMixedSizeTypes()
{
    openEditor("a2 b3");
    node(2).size = 70.0F;
    node(3).size = 0.5F;
    node(3).sizeType = 1;
    select({2, 3});
    QVERIFY(isMarked(*window()._absolute_radio_button));
    QVERIFY(!isMarked(*window()._relative_radio_button));
    QVERIFY(!window()._size_slider->isEnabled());
    QVERIFY(!isMarked(*window()._size_slider));
    QCOMPARE(sizeField().text(), QString("70pt"));
    QCOMPARE(sizeHandle().value(), 70);
    announce(&kxOverlayService::sizeChanged, {2});
    QCOMPARE(log().count("getSize"), 0);
    select({3});
    QVERIFY(window()._size_slider->isEnabled());
    QCOMPARE(sizeField().text(), QString("0.50"));
}

void tst_kxOverlayEditor_refresh::shouldMarkMixedSizesInsideTheSlider()
{
    openEditor("a2 b3");
    node(2).size = 70.0F;
    select({2, 3});
    QVERIFY(isMarked(*window()._size_slider));
    QVERIFY(isMarked(sizeField()));
    QVERIFY(isMarked(sizeHandle()));
    QVERIFY(window()._size_slider->isEnabled());
    QCOMPARE(window()._size_slider->value(), 70.0);
    node(3).size = 70.0F;
    announce(&kxOverlayService::sizeChanged, {3});
    QVERIFY(!isMarked(*window()._size_slider));
    QVERIFY(!isMarked(sizeField()));
    QVERIFY(!isMarked(sizeHandle()));
}

void tst_kxOverlayEditor_refresh::shouldFollowAChangedSizeType()
{
    openEditor("a2 b3");
    for (const QRPC::NodeId id : {2, 3})
        node(id).size = 0.5F;
    select({2, 3});
    service().setSizeType({2}, 1);
    QVERIFY(!window()._size_slider->isEnabled());
    QCOMPARE(sizeField().suffix(), QString("pt"));
    service().setSizeType({3}, 1);
    QVERIFY(window()._size_slider->isEnabled());
    QCOMPARE(sizeField().suffix(), QString());
    QCOMPARE(sizeHandle().value(), 50);
}

void tst_kxOverlayEditor_refresh::shouldCountNoNumberAsDifferent()
{
    openEditor("a2");
    select({2});
    node(2).size = float(noNumber);
    node(2).position = {noNumber, 0.0};
    node(2).offset = {0.0, noNumber};
    call("selectionChanged");
    QVERIFY(isMarked(*window()._size_slider));
    QVERIFY(isMarked(*window()._position_combo_box));
    QVERIFY(!isMarked(*window()._offset_x_spin_box));
    QVERIFY(isMarked(*window()._offset_y_spin_box));
}

void tst_kxOverlayEditor_refresh::shouldCompareSizesExactly()
{
    openEditor("a2 b3");
    node(2).size = 1.0F;
    node(3).size = std::nextafter(1.0F, 2.0F);
    select({2, 3});
    QVERIFY(isMarked(*window()._size_slider));
    node(2).offset = {1.0, 0.0};
    node(3).offset = {1.0 + 1e-15, -0.0};
    call("selectionChanged");
    QVERIFY(isMarked(*window()._offset_x_spin_box));
    QVERIFY(!isMarked(*window()._offset_y_spin_box));
}

void tst_kxOverlayEditor_refresh::shouldComparePositionsByTheirDistance_data()
{
    QTest::addColumn<QPointF>("other");
    QTest::addColumn<bool>("same");
    QTest::newRow("equal") << QPointF(0.0, 0.5) << true;
    QTest::newRow("x at the limit") << QPointF(1e-12, 0.5) << true;
    QTest::newRow("both within it") << QPointF(-9e-13, 0.5 + 9e-13) << true;
    QTest::newRow("x beyond it") << QPointF(1.1e-12, 0.5) << false;
    QTest::newRow("y beyond it") << QPointF(0.0, 0.5 - 1.1e-12) << false;
    QTest::newRow("another anchor") << QPointF(1.0, 0.5) << false;
}

void tst_kxOverlayEditor_refresh::shouldComparePositionsByTheirDistance()
{
    QFETCH(QPointF, other);
    QFETCH(bool, same);
    openEditor("a2 b3");
    node(2).position = {0.0, 0.5};
    node(3).position = other;
    select({2, 3});
    QCOMPARE(isMarked(*window()._position_combo_box), !same);
    QCOMPARE(window()._position_combo_box->currentText(), QString("Left"));
}

void tst_kxOverlayEditor_refresh::shouldShowNoAnchorForAnotherPosition()
{
    openEditor("a2");
    select({2});
    QVERIFY(window()._position_combo_box->currentIndex() >= 0);
    node(2).position = {0.25, 0.75};
    log().clear();
    announce(&kxOverlayService::positionChanged, {2});
    QCOMPARE(window()._position_combo_box->currentIndex(), -1);
    QVERIFY(!isMarked(*window()._position_combo_box));
    QCOMPARE(writes(), QStringList());
}

void tst_kxOverlayEditor_refresh::shouldMarkOffsetsSeparately_data()
{
    QTest::addColumn<QPointF>("other");
    QTest::newRow("equal") << QPointF(1.0, 2.0);
    QTest::newRow("x") << QPointF(3.0, 2.0);
    QTest::newRow("y") << QPointF(1.0, 4.0);
    QTest::newRow("both") << QPointF(3.0, 4.0);
}

void tst_kxOverlayEditor_refresh::shouldMarkOffsetsSeparately()
{
    QFETCH(QPointF, other);
    openEditor("a2 b3");
    node(2).offset = {1.0, 2.0};
    node(3).offset = other;
    select({2, 3});
    QCOMPARE(isMarked(*window()._offset_x_spin_box), other.x() != 1.0);
    QCOMPARE(isMarked(*window()._offset_y_spin_box), other.y() != 2.0);
    QCOMPARE(window()._offset_x_spin_box->value(), 1.0);
    QCOMPARE(window()._offset_y_spin_box->value(), 2.0);
}

/// Whoever watches a control of the panel may change the selection from there.
void tst_kxOverlayEditor_refresh::shouldShowTheSelectionThatARefreshEndsWith()
{
    openEditor("a2 b3");
    node(2).text = "first";
    node(3).text = "second";
    const OnEnabled watcher(window()._text_edit, [this] {
        tree().selectionModel()->select(index(3), QItemSelectionModel::ClearAndSelect);
    });
    tree().selectionModel()->select(index(2), QItemSelectionModel::ClearAndSelect);
    QCOMPARE(window()._overlay_name->text(), QString("b3"));
    QCOMPARE(window()._text_edit->toPlainText(), QString("second"));
    QVERIFY(!isMarked(*window()._text_edit));
}

void tst_kxOverlayEditor_refresh::shouldCountCallsByTheSelection_data()
{
    QTest::addColumn<int>("nodes");
    QTest::addColumn<bool>("different");
    for (const int nodes : {1, 10, 1000, 10000}) {
        QTest::addRow("%d equal", nodes) << nodes << false;
        QTest::addRow("%d different", nodes) << nodes << true;
    }
}

void tst_kxOverlayEditor_refresh::makeDifferent(int nodes)
{
    for (int i = 0; i < nodes; ++i) {
        RecordingService::Node &changed = node(QRPC::NodeId(i + 2));
        changed.name = QString::number(i);
        changed.text = QString::number(i);
        changed.font = QString::number(i);
        changed.fontColor = QColor::fromRgb(QRgb(i));
        changed.backgroundColor = QColor::fromRgb(QRgb(i));
        changed.transparency = QColor::fromRgb(QRgb(i));
        changed.size = float(i);
        changed.position = {double(i), 0.0};
        changed.offset = {double(i), double(i)};
    }
}

/// For n texts of one type and one size type. Every node is asked for its kind once by the full
/// refresh and once by each of the ten guards; a comparison asks n + 1 times where all are equal and
/// three times where the second differs.
void tst_kxOverlayEditor_refresh::shouldCountCallsByTheSelection()
{
    QFETCH(int, nodes);
    QFETCH(bool, different);
    openEditor();
    log().setKeepsLines(false);
    for (int i = 0; i < nodes; ++i)
        service().insert(RecordingService::rootId, -1, "a");
    const QRPC::NodeList ids = service().allIds();
    for (const QRPC::NodeId id : ids)
        node(id).name = "a";
    if (different)
        makeDifferent(nodes);
    Q_EMIT service().modelReset();
    call("selectAll");
    log().clear();
    call("selectionChanged");

    const int values = different && nodes > 1 ? 3 : nodes + 1;
    QCOMPARE(log().count("isOverlay"), 11 * nodes);
    QCOMPARE(log().count("getOverlayType"), 7 * (nodes + 1) + 1);
    for (const char *getter : {"getName", "getText", "getFont", "getFontColor",
                               "getBackgroundColor", "getBackgroundTransparency", "getPosition"})
        QCOMPARE(log().count(getter), values);
    QCOMPARE(log().count("getSizeType"), nodes + 1 + (different && nodes > 1 ? 0 : 2));
    QCOMPARE(log().count("getSize"), 2 * values);
    QCOMPARE(log().count("getOffset"), 2 * values);
    const bool isOne = nodes == 1;
    const int expected =
        11 * nodes + 7 * (nodes + 1) + 1 + nodes + 1 + 11 * values + (different && !isOne ? 0 : 2);
    QCOMPARE(log().total(), expected);
    qInfo("%d nodes: %d calls of the service", nodes, log().total());
}

KX_TEST_MAIN(tst_kxOverlayEditor_refresh)
#include "tst_kxOverlayEditor_refresh.moc"

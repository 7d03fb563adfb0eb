// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/overlayeditor/EditorTest.h"
#include "tests/support/contrast.h"

#include <QHoverEvent>

namespace {

/// The colours of a painted row: that of its name and that of the ground beside it.
struct Painted
{
    QColor name;
    QColor ground;
};

QColor mostFrequent(const QImage &image)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    return most.key();
}

} // namespace

/// How well names can be read in the tree as it is painted with the application's style: names of nodes
/// that show at 4.5 at least, of nodes that do not at 3, on every colour that a row can have.
class tst_kxOverlayEditor_contrast : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldPaintNamesReadably_data();
    void shouldPaintNamesReadably();

private:
    void hover(QRPC::NodeId node);
    Painted painted(QRPC::NodeId node);
};

void tst_kxOverlayEditor_contrast::initTestCase()
{
    QApplication::setStyle(new kxStyle);
}

void tst_kxOverlayEditor_contrast::hover(QRPC::NodeId node)
{
    const QPoint place = tree().visualRect(index(node)).center();
    QHoverEvent enter(QEvent::HoverEnter, place, QPoint(-1, -1));
    QCoreApplication::sendEvent(tree().viewport(), &enter);
}

/// The names are blocks without any smoothed edge, so that their colour can be read off.
Painted tst_kxOverlayEditor_contrast::painted(QRPC::NodeId node)
{
    const QRect row = tree().visualRect(index(node));
    const QImage image = tree().viewport()->grab(row).toImage();
    const int name = row.height() + tree().iconSize().width() + 20;
    const QRect middle(0, row.height() / 2 - 3, image.width(), 6);
    return {mostFrequent(image.copy(middle.adjusted(name, 0, name + 40 - image.width(), 0))),
            mostFrequent(image.copy(middle.adjusted(image.width() - 40, 0, 0, 0)))};
}

void tst_kxOverlayEditor_contrast::shouldPaintNamesReadably_data()
{
    QTest::addColumn<QRPC::NodeId>("node");
    QTest::addColumn<bool>("isSelected");
    QTest::addColumn<bool>("isHovered");
    QTest::addColumn<bool>("isActiveWindow");
    for (const QRPC::NodeId node : {2U, 3U, 4U, 5U}) {
        for (int state = 0; state < 8; ++state) {
            const bool selected = state & 1;
            const bool hovered = state & 2;
            const bool active = state & 4;
            QTest::newRow(qPrintable(
                QStringLiteral("%1%2%3%4%5")
                    .arg(node < 4 ? "shown" : "not shown", node % 2 ? ", alternate" : "",
                         selected ? ", selected" : "", hovered ? ", under the mouse" : "",
                         active ? "" : ", window without focus")))
                << node << selected << hovered << active;
        }
    }
}

void tst_kxOverlayEditor_contrast::shouldPaintNamesReadably()
{
    QFETCH(QRPC::NodeId, node);
    QFETCH(bool, isSelected);
    QFETCH(bool, isHovered);
    QFETCH(bool, isActiveWindow);
    openEditor("a2 a3 a4- a5-");
    for (const QRPC::NodeId id : {2U, 3U, 4U, 5U})
        model().itemFromId(id)->setText(QString(30, QChar(0x2588)));
    showWindow();
    tree().setFocus();
    select(isSelected ? QRPC::NodeList{node} : QRPC::NodeList{});
    if (isHovered)
        hover(node);
    QWidget other;
    if (!isActiveWindow) {
        other.show();
        other.activateWindow();
        QVERIFY(becomesActive(&other));
    }
    const Painted row = painted(node);
    const bool shows = node < 4;
    QCOMPARE(row.name, shows ? QColor(Qt::white) : kxStyle::getInactiveNodeColor());
    const double found = contrast::between(row.name, row.ground);
    QVERIFY2(found >= (shows ? 4.5 : 3.0),
             qPrintable(QStringLiteral("%1 on %2").arg(found).arg(row.ground.name())));
    // What is painted is what the row is said to be.
    const QPalette palette = tree().palette();
    const auto group = isActiveWindow ? QPalette::Active : QPalette::Inactive;
    if (isSelected && !isHovered)
        QCOMPARE(row.ground, palette.color(group, QPalette::Highlight));
    else if (!isSelected && !isHovered)
        QCOMPARE(row.ground, palette.color(node % 2 ? QPalette::AlternateBase : QPalette::Base));
}

KX_TEST_MAIN(tst_kxOverlayEditor_contrast)
#include "tst_kxOverlayEditor_contrast.moc"

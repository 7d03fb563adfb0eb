// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxStyle.h"
#include "tests/overlayeditor/PanelTest.h"

#include <QScrollBar>

namespace {

constexpr int NarrowPanel = 400;

/// What the panel shows: both kinds of overlays have rows that the other one hides.
const char *const Kinds[] = {"text", "image"};

QRect placeIn(const QWidget &ancestor, const QWidget &widget)
{
    return {widget.mapTo(&ancestor, QPoint()), widget.size()};
}

} // namespace

/// The geometry of the property panel in a narrow dock, with the application's style. Run at several
/// scale factors of the display.
class tst_kxOverlayEditor_layout : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void shouldLineUpTheLabelsOfBothFrames_data();
    void shouldLineUpTheLabelsOfBothFrames();
    void shouldLineUpTheControlsOfBothFrames_data();
    void shouldLineUpTheControlsOfBothFrames();
    void shouldShowItsTextsWhole_data();
    void shouldShowItsTextsWhole();
    void shouldFitItsWidth_data();
    void shouldFitItsWidth();
    void shouldKeepTheWidthThatItNeeds_data();
    void shouldKeepTheWidthThatItNeeds();

private:
    static void addKinds();
    void openNarrowPanel();
    QWidget &content() { return *window().scrollAreaWidgetContents; }
    QVector<QWidget *> column(int column);
};

void tst_kxOverlayEditor_layout::initTestCase()
{
    QApplication::setStyle(new kxStyle);
    QFont font = QApplication::font();
    font.setPixelSize(12); // 9 points, which a desktop has
    QApplication::setFont(font);
}

void tst_kxOverlayEditor_layout::addKinds()
{
    QTest::addColumn<int>("type");
    for (int type = 0; type < 2; ++type)
        QTest::newRow(Kinds[type]) << type;
}

/// One overlay of the row's type is selected and the panel is as wide as a narrow dock leaves it.
void tst_kxOverlayEditor_layout::openNarrowPanel()
{
    QFETCH(int, type);
    openEditor("a2");
    node(2).type = type;
    select({2});
    showWindow();
    QSplitter &splitter = *window().splitter;
    splitter.setSizes({splitter.width() - splitter.handleWidth() - NarrowPanel, NarrowPanel});
    QTRY_COMPARE(window()._property_scrollArea->width(), NarrowPanel);
}

/// The visible widgets in a column of both grids.
QVector<QWidget *> tst_kxOverlayEditor_layout::column(int column)
{
    QVector<QWidget *> widgets;
    for (const QGridLayout *grid : {window().gridLayout_2, window().gridLayout_4}) {
        for (int row = 0; row < grid->rowCount(); ++row) {
            QLayoutItem *cell = grid->itemAtPosition(row, column);
            if (cell && cell->layout())
                cell = cell->layout()->itemAt(0);
            if (cell && cell->widget()->isVisible())
                widgets.append(cell->widget());
        }
    }
    return widgets;
}

void tst_kxOverlayEditor_layout::shouldLineUpTheLabelsOfBothFrames_data()
{
    addKinds();
}

void tst_kxOverlayEditor_layout::shouldLineUpTheLabelsOfBothFrames()
{
    openNarrowPanel();
    const int left = placeIn(content(), *window()._name_label).left();
    const QVector<QWidget *> labels = column(0);
    QVERIFY(labels.size() >= 7);
    for (const QWidget *label : labels)
        QCOMPARE(placeIn(content(), *label).left(), left);
}

void tst_kxOverlayEditor_layout::shouldLineUpTheControlsOfBothFrames_data()
{
    addKinds();
}

void tst_kxOverlayEditor_layout::shouldLineUpTheControlsOfBothFrames()
{
    openNarrowPanel();
    const int left = placeIn(content(), *window()._overlay_name).left();
    const QVector<QWidget *> controls = column(1);
    QVERIFY(controls.size() >= 9);
    for (const QWidget *control : controls)
        QCOMPARE(placeIn(content(), *control).left(), left);
}

void tst_kxOverlayEditor_layout::shouldShowItsTextsWhole_data()
{
    addKinds();
}

void tst_kxOverlayEditor_layout::shouldShowItsTextsWhole()
{
    openNarrowPanel();
    QVector<QWidget *> widgets = column(0);
    widgets += {window()._text_radio_button, window()._image_radio_button,
                window()._absolute_radio_button, window()._relative_radio_button};
    for (const QWidget *widget : qAsConst(widgets)) {
        QVERIFY2(widget->width() >= widget->sizeHint().width(), qPrintable(widget->objectName()));
        QVERIFY2(widget->height() >= widget->sizeHint().height(), qPrintable(widget->objectName()));
    }
}

void tst_kxOverlayEditor_layout::shouldFitItsWidth_data()
{
    addKinds();
}

void tst_kxOverlayEditor_layout::shouldFitItsWidth()
{
    openNarrowPanel();
    QVERIFY(!window()._property_scrollArea->horizontalScrollBar()->isVisible());
    const QWidget &shown = *window()._property_scrollArea->viewport();
    QVector<QWidget *> controls = column(1);
    controls += window()._offset_y_spin_box;
    for (const QWidget *control : qAsConst(controls)) {
        QVERIFY2(placeIn(shown, *control).right() < shown.width(),
                 qPrintable(control->objectName()));
        const int least = control->minimumWidth() > 0 ? control->minimumWidth()
                                                      : control->minimumSizeHint().width();
        QVERIFY2(control->width() >= least, qPrintable(control->objectName()));
    }
}

void tst_kxOverlayEditor_layout::shouldKeepTheWidthThatItNeeds_data()
{
    addKinds();
}

void tst_kxOverlayEditor_layout::shouldKeepTheWidthThatItNeeds()
{
    openNarrowPanel();
    QSplitter &splitter = *window().splitter;
    splitter.setSizes({splitter.width() - splitter.handleWidth() - 200, 200});
    QCoreApplication::processEvents();
    QCOMPARE(window()._property_scrollArea->horizontalScrollBar()->maximum(), 0);
}

KX_TEST_MAIN(tst_kxOverlayEditor_layout)
#include "tst_kxOverlayEditor_layout.moc"

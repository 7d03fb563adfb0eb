// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/ReadOut.h"

#include "tests/support/KxTest.h"

#include <QLocale>

class tst_ReadOut : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldNameOffsetAndAnchor_data();
    void shouldNameOffsetAndAnchor();
    void shouldWriteNumbersAsTheUserDoes();
};

void tst_ReadOut::shouldNameOffsetAndAnchor_data()
{
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<QPointF>("anchor");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char *name, const QPointF &offset, const QPointF &anchor,
                        const char *first, const char *second) {
        QTest::newRow(name) << offset << anchor << QStringList{first, second};
    };
    row("whole points", {12, -8}, {0, 1}, "Offset: x 12 pt, y -8 pt",
        "Anchor: Top Left (x 0, y 1 of the view)");
    row("two decimals at most", {12.3456, -0.001}, {0.5, 0.5}, "Offset: x 12.35 pt, y 0 pt",
        "Anchor: Center (x 0.5, y 0.5 of the view)");
    row("another anchor", {0.5, 100}, {0.25, 1}, "Offset: x 0.5 pt, y 100 pt",
        "Anchor: x 0.25, y 1 of the view");
    row("at the bottom", {0, 0}, {0.5, 0}, "Offset: x 0 pt, y 0 pt",
        "Anchor: Bottom (x 0.5, y 0 of the view)");
}

void tst_ReadOut::shouldNameOffsetAndAnchor()
{
    QFETCH(QPointF, offset);
    QFETCH(QPointF, anchor);
    viewer::Overlay overlay;
    overlay.offset = offset;
    overlay.position = anchor;
    QTEST(viewer::readOutOf(overlay), "lines");
}

void tst_ReadOut::shouldWriteNumbersAsTheUserDoes()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    viewer::Overlay overlay;
    overlay.offset = {1.5, 0};
    const QString line = viewer::readOutOf(overlay).constFirst();
    QLocale::setDefault(before);
    QCOMPARE(line, QString("Offset: x 1,5 pt, y 0 pt"));
}

KX_TEST_MAIN(tst_ReadOut)
#include "tst_ReadOut.moc"

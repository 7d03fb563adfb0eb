// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/kxMultiselect.h"

#include "tests/support/KxTest.h"

#include <QLineEdit>

namespace {

/// A control that counts its paintings.
class Control : public QWidget
{
public:
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paintings; }
};

} // namespace

/// The marking of a control by itself; what the style makes of it is the host's.
class tst_kxMultiselect : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void shouldIgnoreNoControl();
    void shouldSetTrueAndRemoveIt();
    void shouldPaintAMarkingThatChangedAtOnce();
    void shouldKnowTheTextThatWasMarked();
};

void tst_kxMultiselect::shouldIgnoreNoControl()
{
    kxMultiselect::setControlMultiselect(nullptr, true);
    kxMultiselect::setControlMultiselect(nullptr, false);
}

void tst_kxMultiselect::shouldSetTrueAndRemoveIt()
{
    QWidget control;
    QVERIFY(!kxMultiselect::isMarked(&control));
    kxMultiselect::setControlMultiselect(&control, true);
    QCOMPARE(control.property("multiselect"), QVariant(true));
    QVERIFY(kxMultiselect::isMarked(&control));
    kxMultiselect::setControlMultiselect(&control, false);
    QVERIFY(!control.dynamicPropertyNames().contains("multiselect"));
}

void tst_kxMultiselect::shouldPaintAMarkingThatChangedAtOnce()
{
    Control control;
    control.show();
    QTRY_VERIFY(control.paintings > 0);
    QCoreApplication::processEvents();
    for (const bool mixed : {true, false}) {
        control.paintings = 0;
        kxMultiselect::setControlMultiselect(&control, mixed);
        QTRY_COMPARE(control.paintings, 1);
        kxMultiselect::setControlMultiselect(&control, mixed);
        QCoreApplication::processEvents();
        QCOMPARE(control.paintings, 1);
    }
}

void tst_kxMultiselect::shouldKnowTheTextThatWasMarked()
{
    QLineEdit edit("old");
    kxMultiselect::rememberStaleText(&edit);
    QVERIFY(!kxMultiselect::showsStaleText(&edit));
    kxMultiselect::setControlMultiselect(&edit, true);
    QVERIFY(kxMultiselect::showsStaleText(&edit));
    edit.setText("new");
    QVERIFY(!kxMultiselect::showsStaleText(&edit));
    edit.setText("old");
    QVERIFY(kxMultiselect::showsStaleText(&edit));
    kxMultiselect::setControlMultiselect(&edit, false);
    QVERIFY(!kxMultiselect::showsStaleText(&edit));
}

KX_TEST_MAIN(tst_kxMultiselect)
#include "tst_kxMultiselect.moc"

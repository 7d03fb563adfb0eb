// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "tests/overlayeditor/PanelTest.h"

#include <QApplication>
#include <QSlider>

void PanelTest::addProperties(const QVector<PanelProperty::Guard> &guards)
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < properties().size(); ++row) {
        if (guards.isEmpty() || guards.contains(property(row).guard))
            QTest::newRow(property(row).name) << row;
    }
}

QWidget &PanelTest::control(const PanelProperty &property)
{
    return *window().findChild<QWidget *>(QString::fromLatin1(property.control));
}

void PanelTest::suit(const PanelProperty &property)
{
    const QRPC::NodeList ids = service().allIds();
    for (const QRPC::NodeId id : ids)
        node(id).type = property.guard == PanelProperty::Images ? 1 : 0;
}

void PanelTest::announce(PanelProperty::Signal signal, const QRPC::NodeList &nodes)
{
    Q_EMIT(service().*signal)(nodes);
}

QAbstractSlider &PanelTest::sizeHandle()
{
    return *window()._size_slider->findChild<QSlider *>();
}

QDoubleSpinBox &PanelTest::sizeField()
{
    return *window()._size_slider->findChild<QDoubleSpinBox *>();
}

void PanelTest::focus(QWidget &control)
{
    control.setFocus(Qt::TabFocusReason);
    QVERIFY(control.hasFocus());
}

void PanelTest::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(QApplication::focusWidget(), character.toLatin1());
}

void PanelTest::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

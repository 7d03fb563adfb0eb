// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QKXTextureControls.h"

#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>
#include <QtTest>

/// The texture control in a window beside another field, with everything that it reports.
class Stage
{
public:
    Stage()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&other);
        layout->addWidget(&controls);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    template<class T>
    T *find(const char *name)
    {
        return controls.findChild<T *>(QLatin1String(name));
    }

    QLineEdit *path() { return find<QLineEdit>("textureFile"); }
    QWidget *thumbnail() { return find<QWidget>("thumbnail"); }
    QString sign() { return thumbnail()->accessibleDescription(); }

    void type(const QString &text)
    {
        path()->setFocus();
        path()->selectAll();
        QTest::keyClicks(path(), text);
    }

    void mark(bool mixed)
    {
        controls.setProperty("multiselect", mixed ? QVariant(true) : QVariant());
        controls.style()->unpolish(&controls);
        controls.style()->polish(&controls);
        controls.propagateMultiselectProperty();
    }

    /// Everything reported so far, in no order.
    int reports() const
    {
        return file.size() + texture.size() + settings.size() + load.size() + reload.size()
               + write.size() + info.size() + clear.size();
    }

    QWidget window;
    QLineEdit other;
    QKXTextureControls controls;
    QSignalSpy file{&controls, &QKXTextureControls::changedTextureFile};
    QSignalSpy texture{&controls, &QKXTextureControls::changedTexture};
    QSignalSpy settings{&controls, &QKXTextureControls::changedTextureSettings};
    QSignalSpy load{&controls, &QKXTextureControls::clickedLoadTexture};
    QSignalSpy reload{&controls, &QKXTextureControls::clickedReloadTexture};
    QSignalSpy write{&controls, &QKXTextureControls::clickedWriteTexture};
    QSignalSpy info{&controls, &QKXTextureControls::clickedShowTextureInfo};
    QSignalSpy clear{&controls, &QKXTextureControls::clickedClearTexture};
};

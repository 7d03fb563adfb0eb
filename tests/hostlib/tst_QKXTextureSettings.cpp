// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXTextureSettings.h"
#include "host/kxStyle.h"
#include "tests/hostlib/TextureStage.h"
#include "tests/support/KxTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QToolButton>

#include <algorithm>

namespace {

using Show = void (QKXTextureControls::*)(bool);

struct ShowRow
{
    const char *name;
    Show show;
    QVector<const char *> controls;
    bool shownAtFirst;
};

const QVector<ShowRow> &showRows()
{
    using T = QKXTextureControls;
    static const QVector<ShowRow> rows = {
        {"use", &T::setShowUseTextureControls, {"useTexture"}, true},
        {"projection", &T::setShowProjectionModeControls, {"projection"}, true},
        {"modes", &T::setShowRepeatModeControls, {"repeatModeU", "repeatModeV"}, true},
        {"repeat", &T::setShowRepeatControls, {"repeatU", "repeatV"}, true},
        {"offset", &T::setShowOffsetControls, {"offsetU", "offsetV"}, true},
        {"rotation", &T::setShowRotateControls, {"rotation"}, true},
        {"real-world",
         &T::setShowRealWorldScaleControls,
         {"realWorldScale", "realWorldWidth", "realWorldHeight"},
         false},
        {"anisotropy", &T::setShowAnisotropicControls, {"anisotropy"}, true},
        {"gamma", &T::setShowGammaControls, {"gamma"}, true},
        {"alpha", &T::setShowAlphaControls, {"alpha"}, true},
        {"link", &T::setShowLinkTextureSettingsControls, {"linked"}, true},
    };
    return rows;
}

void addShowRows()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < showRows().size(); ++i)
        QTest::newRow(showRows().at(i).name) << i;
}

QKXTextureSettings unusualSettings()
{
    QKXTextureSettings s;
    s.projection = QKXTextureSettings::Cylindrical;
    s.repeatModeU = QKXTextureSettings::Mirror;
    s.repeatModeV = QKXTextureSettings::Clamp;
    s.repeat = {2, 3};
    s.offset = {0.25, -0.5};
    s.rotation = 30;
    s.realWorldScale = true;
    s.realWorldSize = {1.5, 2.5};
    s.anisotropy = 8;
    s.gamma = 2.2;
    s.alpha = 0.5;
    s.linked = true;
    return s;
}

} // namespace

/// How a texture is laid: the rows below the file line and the record that they show.
class tst_QKXTextureSettings : public KxTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setStyle(new kxStyle); }
    void shouldShowAndHideEachRow_data() { addShowRows(); }
    void shouldShowAndHideEachRow();
    void shouldLeaveOnlyTheFileLineWhenAllElseIsHidden();
    void shouldKeepSettingsSilently();
    void shouldShowSettings();
    void shouldReportEachSettingAlone_data();
    void shouldReportEachSettingAlone();
    void shouldSwitchBetweenRepeatAndRealSize();
    void shouldOfferAllRepeatModesOrTheUsualOnes();
    void shouldKeepSettingsBeyondTheControls();
    void shouldFitANarrowPanel();
    void shouldCompareEverySetting();
};

void tst_QKXTextureSettings::shouldShowAndHideEachRow()
{
    QFETCH(int, row);
    const ShowRow &subject = showRows().at(row);
    Stage stage;
    const auto visible = [&stage](const ShowRow &r) {
        return std::all_of(r.controls.begin(), r.controls.end(), [&stage](const char *name) {
            return stage.find<QWidget>(name)->isVisible();
        });
    };
    QCOMPARE(visible(subject), subject.shownAtFirst);
    for (const bool show : {true, false}) {
        (stage.controls.*subject.show)(show);
        QCOMPARE(visible(subject), show);
        for (const ShowRow &other : showRows())
            QVERIFY2(&other == &subject || visible(other) == other.shownAtFirst, other.name);
    }
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureSettings::shouldLeaveOnlyTheFileLineWhenAllElseIsHidden()
{
    Stage stage;
    for (const ShowRow &row : showRows())
        (stage.controls.*row.show)(false);
    QCOMPARE(stage.controls.sizeHint().height(),
             stage.thumbnail()->sizeHint().expandedTo(stage.thumbnail()->minimumSize()).height());
    QVERIFY(stage.path()->isVisible());
    QVERIFY(stage.find<QToolButton>("clearTexture")->isVisible());
}

void tst_QKXTextureSettings::shouldKeepSettingsSilently()
{
    Stage stage;
    QVERIFY(stage.controls.textureSettings() == QKXTextureSettings());
    stage.controls.setTextureSettings(unusualSettings());
    QVERIFY(stage.controls.textureSettings() == unusualSettings());
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureSettings::shouldShowSettings()
{
    Stage stage;
    stage.controls.setTextureSettings(unusualSettings());
    QCOMPARE(stage.find<QComboBox>("projection")->currentText(), QStringLiteral("Cylindrical"));
    QCOMPARE(stage.find<QComboBox>("repeatModeU")->currentText(), QStringLiteral("Mirror"));
    QCOMPARE(stage.find<QComboBox>("repeatModeV")->currentText(), QStringLiteral("Clamp"));
    QCOMPARE(stage.find<QDoubleSpinBox>("repeatV")->value(), 3.0);
    QCOMPARE(stage.find<QDoubleSpinBox>("offsetV")->value(), -0.5);
    QCOMPARE(stage.find<QDoubleSpinBox>("rotation")->value(), 30.0);
    QVERIFY(stage.find<QCheckBox>("realWorldScale")->isChecked());
    QCOMPARE(stage.find<QDoubleSpinBox>("realWorldHeight")->value(), 2.5);
    QCOMPARE(stage.find<QComboBox>("anisotropy")->currentData().toInt(), 8);
    QCOMPARE(stage.find<QDoubleSpinBox>("gamma")->value(), 2.2);
    QCOMPARE(stage.find<QDoubleSpinBox>("alpha")->value(), 0.5);
    QVERIFY(stage.find<QCheckBox>("linked")->isChecked());
}

void tst_QKXTextureSettings::shouldReportEachSettingAlone_data()
{
    QTest::addColumn<QString>("control");
    for (const ShowRow &row : showRows()) {
        for (const char *name : row.controls) {
            if (qstrcmp(name, "useTexture") != 0)
                QTest::newRow(name) << QString::fromLatin1(name);
        }
    }
}

void tst_QKXTextureSettings::shouldReportEachSettingAlone()
{
    QFETCH(QString, control);
    Stage stage;
    stage.controls.setShowRealWorldScaleControls(true);
    QKXTextureSettings before;
    before.realWorldScale = control.startsWith(QLatin1String("realWorld"));
    before.alpha = 0.5;
    stage.controls.setTextureSettings(before);
    auto *widget = stage.controls.findChild<QWidget *>(control);
    widget->setFocus();
    QTest::keyClick(widget, qobject_cast<QCheckBox *>(widget)   ? Qt::Key_Space
                            : qobject_cast<QComboBox *>(widget) ? Qt::Key_Down
                                                                : Qt::Key_Up);
    QCOMPARE(stage.settings.size(), 1);
    QCOMPARE(stage.reports(), 1);
    QVERIFY(stage.controls.textureSettings() != before);
    stage.controls.setTextureSettings(stage.controls.textureSettings());
    QCOMPARE(stage.reports(), 1);
}

void tst_QKXTextureSettings::shouldSwitchBetweenRepeatAndRealSize()
{
    Stage stage;
    stage.controls.setShowRealWorldScaleControls(true);
    auto *realWorld = stage.find<QCheckBox>("realWorldScale");
    QVERIFY(stage.find<QWidget>("repeatU")->isEnabled());
    QVERIFY(!stage.find<QWidget>("realWorldWidth")->isEnabled());
    QTest::keyClick(realWorld, Qt::Key_Space);
    QVERIFY(stage.controls.textureSettings().realWorldScale);
    QVERIFY(!stage.find<QWidget>("repeatU")->isEnabled());
    QVERIFY(stage.find<QWidget>("realWorldWidth")->isEnabled());
}

void tst_QKXTextureSettings::shouldOfferAllRepeatModesOrTheUsualOnes()
{
    Stage stage;
    auto *box = stage.find<QComboBox>("repeatModeU");
    QCOMPARE(box->count(), 4);
    stage.controls.setShowAllRepeatModes(false);
    QCOMPARE(box->count(), 2);
    QKXTextureSettings settings;
    settings.repeatModeU = QKXTextureSettings::Decal;
    stage.controls.setTextureSettings(settings);
    QCOMPARE(box->currentText(), QStringLiteral("Decal"));
    QCOMPARE(box->count(), 3);
    stage.controls.setShowAllRepeatModes(true);
    QCOMPARE(box->count(), 4);
    QCOMPARE(stage.reports(), 0);
}

void tst_QKXTextureSettings::shouldKeepSettingsBeyondTheControls()
{
    Stage stage;
    QKXTextureSettings settings;
    settings.gamma = 50;
    settings.anisotropy = 3;
    stage.controls.setTextureSettings(settings);
    QTest::keyClick(stage.find<QWidget>("rotation"), Qt::Key_Up);
    QCOMPARE(stage.controls.textureSettings().gamma, 50.0);
    QCOMPARE(stage.controls.textureSettings().anisotropy, 3);
    QCOMPARE(stage.controls.textureSettings().rotation, 1.0);
}

void tst_QKXTextureSettings::shouldFitANarrowPanel()
{
    QKXTextureControls controls;
    controls.setShowRealWorldScaleControls(true);
    QVERIFY2(controls.minimumSizeHint().width() <= 240,
             qPrintable(QString::number(controls.minimumSizeHint().width())));
}

void tst_QKXTextureSettings::shouldCompareEverySetting()
{
    const QKXTextureSettings plain;
    const QKXTextureSettings other = unusualSettings();
    const auto differs = [&](auto member) {
        QKXTextureSettings s;
        s.*member = other.*member;
        return s != plain;
    };
    using S = QKXTextureSettings;
    QVERIFY(plain == S());
    QVERIFY(differs(&S::projection) && differs(&S::repeatModeU) && differs(&S::repeatModeV));
    QVERIFY(differs(&S::repeat) && differs(&S::offset) && differs(&S::rotation));
    QVERIFY(differs(&S::realWorldScale) && differs(&S::realWorldSize) && differs(&S::anisotropy));
    QVERIFY(differs(&S::gamma) && differs(&S::alpha) && differs(&S::linked));
    S noNumber;
    noNumber.rotation = qQNaN();
    QVERIFY(noNumber != S(noNumber));
}

KX_TEST_MAIN(tst_QKXTextureSettings)
#include "tst_QKXTextureSettings.moc"

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "hostlib/TextureSettingsPanel.h"

#include "host/QKXDoubleSpiner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QSignalBlocker>

#include <algorithm>
#include <tuple>

using Settings = QKXTextureSettings;

namespace {

constexpr double widest = 1e6;

// Left alone, fields are as wide as their longest value, which is too much for two side by side.
void keepNarrow(QWidget *field)
{
    field->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 8);
}

} // namespace

bool operator==(const QKXTextureSettings &a, const QKXTextureSettings &b)
{
    const auto all = [](const QKXTextureSettings &s) {
        return std::make_tuple(s.projection, s.repeatModeU, s.repeatModeV, s.repeat.x(),
                               s.repeat.y(), s.offset.x(), s.offset.y(), s.rotation,
                               s.realWorldScale, s.realWorldSize.width(), s.realWorldSize.height(),
                               s.anisotropy, s.gamma, s.alpha, s.linked);
    };
    return all(a) == all(b);
}

hostlib::TextureSettingsPanel::TextureSettingsPanel(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QFormLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setVerticalSpacing(4);
    m_layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    createMappingRows();
    createScaleRows();
    createSamplingRows();
    for (int row = 0; row < RowCount; ++row)
        setRowShown(Row(row), row != RealWorld);
    refresh();
}

hostlib::TextureSettingsPanel::~TextureSettingsPanel() = default;

void hostlib::TextureSettingsPanel::createMappingRows()
{
    QComboBox *projection = choice(
        "projection", tr("Projection"), [](const Settings &s) { return int(s.projection); },
        [](Settings &s, int value) { s.projection = Settings::Projection(value); });
    projection->addItem(tr("UV"), Settings::Uv);
    projection->addItem(tr("Planar"), Settings::Planar);
    projection->addItem(tr("Box"), Settings::Box);
    projection->addItem(tr("Cylindrical"), Settings::Cylindrical);
    projection->addItem(tr("Spherical"), Settings::Spherical);
    addRow(Projection, tr("Projection"), projection);

    m_repeatModes[0] = choice(
        "repeatModeU", tr("Repeat mode in U"), [](const Settings &s) { return int(s.repeatModeU); },
        [](Settings &s, int value) { s.repeatModeU = Settings::RepeatMode(value); });
    m_repeatModes[1] = choice(
        "repeatModeV", tr("Repeat mode in V"), [](const Settings &s) { return int(s.repeatModeV); },
        [](Settings &s, int value) { s.repeatModeV = Settings::RepeatMode(value); });
    addRow(RepeatModes, tr("Beyond edges"), beside({m_repeatModes[0], m_repeatModes[1]}));
}

void hostlib::TextureSettingsPanel::createScaleRows()
{
    const QPair<double, double> any(-widest, widest);
    addRow(Repeat, tr("Repeat UV"),
           beside({number("repeatU", tr("Repeat in U"), any, 0.1,
                          [](Settings &s) -> double & { return s.repeat.rx(); }),
                   number("repeatV", tr("Repeat in V"), any, 0.1,
                          [](Settings &s) -> double & { return s.repeat.ry(); })}));
    addRow(Offset, tr("Offset UV"),
           beside({number("offsetU", tr("Offset in U"), any, 0.01,
                          [](Settings &s) -> double & { return s.offset.rx(); }),
                   number("offsetV", tr("Offset in V"), any, 0.01,
                          [](Settings &s) -> double & { return s.offset.ry(); })}));
    addRow(Rotation, tr("Rotation (°)"),
           number("rotation", tr("Rotation in degrees"), {-360, 360}, 1,
                  [](Settings &s) -> double & { return s.rotation; }));
    QAbstractButton *realWorld =
        option("realWorldScale", tr("Real-world scale"), &Settings::realWorldScale);
    realWorld->setText(QString());
    addRow(
        RealWorld, tr("Real size (m)"),
        beside({realWorld,
                number("realWorldWidth", tr("Width of the image in metres"), {0.0001, widest}, 0.1,
                       [](Settings &s) -> double & { return s.realWorldSize.rwidth(); }),
                number("realWorldHeight", tr("Height of the image in metres"), {0.0001, widest},
                       0.1, [](Settings &s) -> double & { return s.realWorldSize.rheight(); })}));
    m_refreshers.append([this] {
        m_fields[Repeat]->setEnabled(!m_settings.realWorldScale);
        const auto sizes = m_fields[RealWorld]->findChildren<QKXDoubleSpiner *>();
        for (QKXDoubleSpiner *size : sizes)
            size->setEnabled(m_settings.realWorldScale);
    });
}

void hostlib::TextureSettingsPanel::createSamplingRows()
{
    QComboBox *anisotropy = choice(
        "anisotropy", tr("Anisotropic filter"), [](const Settings &s) { return s.anisotropy; },
        [](Settings &s, int value) { s.anisotropy = value; });
    anisotropy->addItem(tr("Off"), 1);
    for (const int samples : {2, 4, 8, 16})
        anisotropy->addItem(tr("%1 samples").arg(samples), samples);
    addRow(Anisotropy, tr("Anisotropy"), anisotropy);
    addRow(Gamma, tr("Gamma"),
           number("gamma", tr("Gamma"), {0.1, 10}, 0.1,
                  [](Settings &s) -> double & { return s.gamma; }));
    addRow(Alpha, tr("Opacity"),
           number("alpha", tr("Opacity"), {0, 1}, 0.05,
                  [](Settings &s) -> double & { return s.alpha; }));
    addRow(Linked, QString(), option("linked", tr("Link texture settings"), &Settings::linked));
}

void hostlib::TextureSettingsPanel::addRow(Row row, const QString &label, QWidget *field)
{
    m_fields.at(row) = field;
    if (label.isEmpty())
        m_layout->addRow(field);
    else
        m_layout->addRow(label, field);
}

QWidget *hostlib::TextureSettingsPanel::beside(const QVector<QWidget *> &fields)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (QWidget *field : fields) {
        const bool grows = field->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
        layout->addWidget(field, grows ? 1 : 0);
    }
    return row;
}

QWidget *hostlib::TextureSettingsPanel::number(const char *name, const QString &text,
                                               const QPair<double, double> &range, double step,
                                               const Number &value)
{
    auto *field = new QKXDoubleSpiner(this);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(text);
    field->setToolTip(text);
    field->setRange(range.first, range.second);
    field->setSingleStep(step);
    keepNarrow(field);
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, value](double shown) { change([&](Settings &s) { value(s) = shown; }); });
    m_refreshers.append([this, field, value] {
        const QSignalBlocker blocker(field);
        field->setValue(value(m_settings));
    });
    return field;
}

QComboBox *hostlib::TextureSettingsPanel::choice(const char *name, const QString &text,
                                                 int (*get)(const Settings &),
                                                 void (*set)(Settings &, int))
{
    auto *box = new QComboBox(this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(text);
    box->setToolTip(text);
    keepNarrow(box);
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box, set](int index) {
        change([&](Settings &s) { set(s, box->itemData(index).toInt()); });
    });
    m_refreshers.append([this, box, get] {
        const QSignalBlocker blocker(box);
        if (std::find(m_repeatModes.begin(), m_repeatModes.end(), box) != m_repeatModes.end())
            offerRepeatModes(box, get(m_settings));
        box->setCurrentIndex(box->findData(get(m_settings)));
    });
    return box;
}

QAbstractButton *hostlib::TextureSettingsPanel::option(const char *name, const QString &text,
                                                       bool Settings::*value)
{
    auto *box = new QCheckBox(text, this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(text);
    box->setToolTip(text);
    connect(box, &QCheckBox::toggled, this,
            [this, value](bool on) { change([&](Settings &s) { s.*value = on; }); });
    m_refreshers.append([this, box, value] {
        const QSignalBlocker blocker(box);
        box->setChecked(m_settings.*value);
    });
    return box;
}

void hostlib::TextureSettingsPanel::change(const std::function<void(Settings &)> &edit)
{
    const Settings before = m_settings;
    edit(m_settings);
    if (m_settings == before)
        return;
    refresh();
    Q_EMIT changed();
}

void hostlib::TextureSettingsPanel::refresh()
{
    for (const auto &show : qAsConst(m_refreshers))
        show();
}

void hostlib::TextureSettingsPanel::setSettings(const QKXTextureSettings &settings)
{
    m_settings = settings;
    refresh();
}

void hostlib::TextureSettingsPanel::setRowShown(Row row, bool shown)
{
    m_shown.at(row) = shown;
    QWidget *field = m_fields.at(row);
    field->setVisible(shown);
    if (QWidget *label = m_layout->labelForField(field))
        label->setVisible(shown);
    setVisible(std::find(m_shown.begin(), m_shown.end(), true) != m_shown.end());
}

void hostlib::TextureSettingsPanel::setAllRepeatModes(bool all)
{
    m_allRepeatModes = all;
    refresh();
}

void hostlib::TextureSettingsPanel::offerRepeatModes(QComboBox *box, int chosen)
{
    const QPair<QString, Settings::RepeatMode> modes[] = {{tr("Repeat"), Settings::Repeat},
                                                          {tr("Clamp"), Settings::Clamp},
                                                          {tr("Mirror"), Settings::Mirror},
                                                          {tr("Decal"), Settings::Decal}};
    box->clear();
    for (const auto &mode : modes) {
        const bool usual = mode.second == Settings::Repeat || mode.second == Settings::Clamp;
        if (usual || m_allRepeatModes || mode.second == chosen)
            box->addItem(mode.first, mode.second);
    }
}

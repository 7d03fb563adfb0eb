// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QKXTextureSettings.h"

#include <QVector>
#include <QWidget>

#include <array>
#include <functional>

class QAbstractButton;
class QComboBox;
class QFormLayout;

namespace hostlib {

/// How a texture is laid, one row for each subject: the lower part of a QKXTextureControls, which
/// owns it. Hidden while no row is shown. GUI thread only.
class TextureSettingsPanel : public QWidget
{
    Q_OBJECT

public:
    /// The rows, in the order in which they stand.
    enum Row {
        Projection,
        RepeatModes,
        Repeat,
        Offset,
        Rotation,
        RealWorld,
        Anisotropy,
        Gamma,
        Alpha,
        Linked,
        RowCount
    };

    explicit TextureSettingsPanel(QWidget *parent);
    ~TextureSettingsPanel() override;

    void setSettings(const QKXTextureSettings &settings);
    const QKXTextureSettings &settings() const { return m_settings; }

    void setRowShown(Row row, bool shown);

    /// Offers all repeat modes or the two usual ones; one that is chosen already stays on offer.
    void setAllRepeatModes(bool all);

Q_SIGNALS:
    /// The user has changed the settings.
    void changed();

private:
    using Settings = QKXTextureSettings;
    using Number = std::function<double &(Settings &)>;

    void createMappingRows();
    void createScaleRows();
    void createSamplingRows();
    void addRow(Row row, const QString &label, QWidget *field);
    QWidget *beside(const QVector<QWidget *> &fields);
    QWidget *number(const char *name, const QString &text, const QPair<double, double> &range,
                    double step, const Number &value);
    QComboBox *choice(const char *name, const QString &text, int (*get)(const Settings &),
                      void (*set)(Settings &, int));
    QAbstractButton *option(const char *name, const QString &text, bool Settings::*value);
    void change(const std::function<void(Settings &)> &edit);
    void refresh();
    void offerRepeatModes(QComboBox *box, int chosen);

    Settings m_settings;
    QFormLayout *m_layout;
    std::array<QWidget *, RowCount> m_fields{};
    std::array<bool, RowCount> m_shown{};
    std::array<QComboBox *, 2> m_repeatModes{};
    QVector<std::function<void()>> m_refreshers;
    bool m_allRepeatModes = true;
};

} // namespace hostlib

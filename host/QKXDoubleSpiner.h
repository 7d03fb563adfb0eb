// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QDoubleSpinBox>

/// A number field that sends a value when it is committed (Return, Tab, leaving the field, a step),
/// not with each typed character, so that an echo of the value never disturbs the typing.
///
/// Owner: its parent widget. Called by modules; GUI thread only. The wheel changes the value only
/// while the field has the focus: a panel of fields can be scrolled over. A point is accepted as
/// the decimal separator beside the one of the field's locale. While the field is marked
/// "multiselect", a committed number is sent even when it equals the one shown, which is not the
/// value of all nodes.
class KXHOST_EXPORT QKXDoubleSpiner : public QDoubleSpinBox
{
    Q_OBJECT
    /// Whether the field shows as many decimals as the value needs; see setUseExactDisplayDecimals().
    Q_PROPERTY(
        bool useExactDisplayDecimals READ useExactDisplayDecimals WRITE setUseExactDisplayDecimals)

public:
    /// A field from 0 to 99.99, as Qt's own.
    /// @param parent becomes the owner; null for none
    explicit QKXDoubleSpiner(QWidget *parent = nullptr);
    ~QKXDoubleSpiner() override;

    /// Says how many decimals are shown. Called by whoever builds the panel.
    /// @param exact on: as many as the value needs, at most six and none that is a trailing zero; a
    ///              value that was held as float shows the number it was made from, 12.7 and not
    ///              12.699999809; the value itself is never rounded to what is shown. Off: the field
    ///              shows and keeps decimals() decimals, two unless set
    void setUseExactDisplayDecimals(bool exact);

    /// Whether as many decimals are shown as the value needs.
    /// @return true at first
    bool useExactDisplayDecimals() const;

    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    void sendIfMixed();

    bool m_exact = false;
    bool m_typed = false;
    int m_fixedDecimals;
};

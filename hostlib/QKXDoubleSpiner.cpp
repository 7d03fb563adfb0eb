// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/QKXDoubleSpiner.h"

#include "host/kxStyle.h"
#include "hostlib/numberText.h"

#include <QLineEdit>
#include <QWheelEvent>

/// Enough for the base class to keep every value as it is given, float noise included.
static constexpr int s_keptDecimals = 15;

QKXDoubleSpiner::QKXDoubleSpiner(QWidget *parent)
    : QDoubleSpinBox(parent)
    , m_fixedDecimals(decimals())
{
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setUseExactDisplayDecimals(true);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_typed = true; });
    connect(this, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this] { m_typed = false; });
    connect(this, &QAbstractSpinBox::editingFinished, this, &QKXDoubleSpiner::sendIfMixed);
}

QKXDoubleSpiner::~QKXDoubleSpiner() = default;

void QKXDoubleSpiner::setUseExactDisplayDecimals(bool exact)
{
    if (m_exact == exact)
        return;
    m_exact = exact;
    if (exact)
        m_fixedDecimals = decimals();
    setDecimals(exact ? s_keptDecimals : m_fixedDecimals);
}

bool QKXDoubleSpiner::useExactDisplayDecimals() const
{
    return m_exact;
}

QString QKXDoubleSpiner::textFromValue(double value) const
{
    if (!m_exact)
        return QDoubleSpinBox::textFromValue(value);
    QLocale language = locale();
    if (!isGroupSeparatorShown())
        language.setNumberOptions(QLocale::OmitGroupSeparator);
    const int shown = hostlib::neededDecimals(value);
    const bool showsZero = QString::number(value, 'f', shown).toDouble() == 0.0;
    return language.toString(showsZero ? 0.0 : value, 'f', shown);
}

double QKXDoubleSpiner::valueFromText(const QString &text) const
{
    // The text may show less than the value holds; left as it is, it stands for the value itself.
    if (text == prefix() + textFromValue(value()) + suffix())
        return value();
    return QDoubleSpinBox::valueFromText(text);
}

QValidator::State QKXDoubleSpiner::validate(QString &text, int &position) const
{
    const QChar point = locale().decimalPoint();
    const int end = text.size() - (text.endsWith(suffix()) ? suffix().size() : 0);
    for (int i = prefix().size(); i < end; ++i) {
        if (text.at(i) == QLatin1Char('.'))
            text[i] = point;
    }
    return QDoubleSpinBox::validate(text, position);
}

void QKXDoubleSpiner::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QDoubleSpinBox::wheelEvent(event);
    else
        event->ignore();
}

void QKXDoubleSpiner::sendIfMixed()
{
    const bool unsent = m_typed && kxStyle::isMultiselect(this);
    m_typed = false;
    if (unsent)
        Q_EMIT valueChanged(value());
}

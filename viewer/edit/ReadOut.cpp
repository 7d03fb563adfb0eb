// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "viewer/edit/ReadOut.h"

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace viewer {

namespace {

struct AnchorName
{
    double x;
    double y;
    const char *name;
};

// clang-format off
constexpr AnchorName AnchorNames[] = {
    {0.0, 1.0, QT_TRANSLATE_NOOP("ReadOut", "Top Left")},
    {0.5, 1.0, QT_TRANSLATE_NOOP("ReadOut", "Top")},
    {1.0, 1.0, QT_TRANSLATE_NOOP("ReadOut", "Top Right")},
    {0.0, 0.5, QT_TRANSLATE_NOOP("ReadOut", "Left")},
    {0.5, 0.5, QT_TRANSLATE_NOOP("ReadOut", "Center")},
    {1.0, 0.5, QT_TRANSLATE_NOOP("ReadOut", "Right")},
    {0.0, 0.0, QT_TRANSLATE_NOOP("ReadOut", "Bottom Left")},
    {0.5, 0.0, QT_TRANSLATE_NOOP("ReadOut", "Bottom")},
    {1.0, 0.0, QT_TRANSLATE_NOOP("ReadOut", "Bottom Right")},
};
// clang-format on

/// A number in as many of two decimals as it needs.
QString number(double value)
{
    const double shown = std::round(value * 100.0) / 100.0;
    return QLocale().toString(shown == 0.0 ? 0.0 : shown, 'f', QLocale::FloatingPointShortest);
}

QString anchorLine(const QPointF &at)
{
    for (const AnchorName &anchor : AnchorNames) {
        if (anchor.x == at.x() && anchor.y == at.y()) {
            return QCoreApplication::translate("ReadOut", "Anchor: %1 (x %2, y %3 of the view)")
                .arg(QCoreApplication::translate("ReadOut", anchor.name), number(at.x()),
                     number(at.y()));
        }
    }
    return QCoreApplication::translate("ReadOut", "Anchor: x %1, y %2 of the view")
        .arg(number(at.x()), number(at.y()));
}

} // namespace

QStringList readOutOf(const Overlay &overlay)
{
    return {QCoreApplication::translate("ReadOut", "Offset: x %1 pt, y %2 pt")
                .arg(number(overlay.offset.x()), number(overlay.offset.y())),
            anchorLine(overlay.position)};
}

} // namespace viewer

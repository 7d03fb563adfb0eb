// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QRPC.h"

#include <QColor>
#include <QPointF>
#include <QString>

/// Values as scripts write them, such that a script which reads them gets the same values. Pure
/// functions.
namespace viewer::scripttext {

QString write(bool value);
QString write(int value);
QString write(float value);
QString write(double value);
QString write(QRPC::NodeId node);
QString write(const QRPC::NodeList &nodes);
QString write(const QString &text);
QString write(const QColor &color);
QString write(const QPointF &point);

/// "#rrggbb", or "#aarrggbb" where the colour lets through what is behind it.
QString nameOf(const QColor &color);

} // namespace viewer::scripttext

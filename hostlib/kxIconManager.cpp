// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "host/kxIconManager.h"

#include "host/kxIconOptions.h"
#include "hostlib/kxIconEngine.h"
#include "hostlib/kxIconRenderer.h"

#include <QGuiApplication>
#include <QScreen>

namespace {

constexpr qreal treeRowSize = 16;
constexpr qreal unscaledDpi = 96;

// Desktops state their scale as a pixel ratio, as a text resolution, or as both.
qreal textScale(const QScreen *screen)
{
    return screen ? qMax(1.0, screen->logicalDotsPerInch() / unscaledDpi) : 1.0;
}

// Both at once would be a node that does not show: its dimming says more.
kxIconRenderer::Look lookOf(const kxIconOptions &options)
{
    if (options.option(kxIconOptions::Inactive))
        return kxIconRenderer::Dimmed;
    return options.option(kxIconOptions::Highlighted) ? kxIconRenderer::Highlighted
                                                      : kxIconRenderer::Normal;
}

} // namespace

QIcon kxIconManager::getIcon(const std::string &name, const std::string &variant)
{
    const QString iconName = QString::fromStdString(name);
    if (!kxIconRenderer::isKnown(iconName))
        return {};
    QString onName = QString::fromStdString(variant);
    if (!onName.isEmpty() && !kxIconRenderer::isKnown(onName))
        onName.clear();
    return QIcon(new kxIconEngine(iconName, onName));
}

QPixmap kxIconManager::get(const char *name, const kxIconOptions &options)
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return {};
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal ratio = qGuiApp->devicePixelRatio();
    const int pixels = qRound(treeRowSize * textScale(screen) * ratio);
    return kxIconRenderer::pixmap(QString::fromUtf8(name), lookOf(options), pixels, ratio);
}

int kxIconManager::renderingCount()
{
    return kxIconRenderer::renderingCount();
}

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxBaseService.h"

class QIcon;
class QString;
class QWidget;

/// The host's main window as modules see it. Implemented and owned by the host; GUI thread only.
class KXHOST_EXPORT kxMainWindowService : public kxBaseService
{
    Q_OBJECT

public:
    using kxBaseService::kxBaseService;
    ~kxMainWindowService() override;

    /// The widget that becomes the parent, and so the owner, of every module window. Called by a
    /// module while it starts.
    /// @return the same one always; null, which leaves the module's window without an owner, is nothing
    ///         that a host with a user interface gives
    virtual QWidget *getMainWindow() = 0;

    /// Makes a module's window known to the host, which lays it out and shows or hides it from
    /// then on. Called once by a module, while it starts, before the window has its content.
    ///
    /// @param name     untranslated, unique name of the module; the key under which a host keeps
    ///                 the panel's place and visibility
    /// @param category untranslated group in which the host lists the panel, never empty
    /// @param window   the module's window, never null; the host may give it another parent, and
    ///                 must show it through a QWidget pointer
    /// @param helpId   identifier of the panel's help page; empty for none
    /// @param icon     the panel's icon; a null icon for none
    /// @param title    translated title for the user, never empty
    /// @param flag     reserved; modules pass 0 and hosts ignore other values
    ///
    /// A name that is registered twice replaces nothing: the host reports it and keeps the first.
    virtual void registerModule(const QString &name, const QString &category, QWidget *window,
                                const QString &helpId, const QIcon &icon, const QString &title,
                                int flag) = 0;
};

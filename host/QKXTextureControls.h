// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/QKXTextureSettings.h"
#include "host/kxHostExport.h"

#include <QWidget>

class QCheckBox;
class QIcon;

namespace hostlib {
class TextureFileLine;
class TextureSettingsPanel;
} // namespace hostlib

/// The controls of one texture: a file line with thumbnail, path and five buttons, and below it how
/// the texture is laid, each part of which can be shown or hidden.
///
/// Owner: its parent widget. Called by modules; GUI thread only. The setters are silent. The buttons
/// only report that they were clicked: what they do is up to the owner. A path is taken over from
/// typing (Return or leaving the field; Escape takes it back) and from image files dropped on the
/// control; it need not exist, and the thumbnail then says so. Everything that the user changes is
/// reported by exactly one signal.
class KXHOST_EXPORT QKXTextureControls : public QWidget
{
    Q_OBJECT

public:
    explicit QKXTextureControls(QWidget *parent = nullptr);
    ~QKXTextureControls() override;

    /// The path of the image file, empty for none. Kept and given back exactly as set, except that
    /// the user may edit it. The same path set again shows the file anew if it has changed. Called
    /// by modules at each refresh.
    void setTexture(const QString &path);
    QString getTexture() const;

    /// Whether the texture is used, true at first. Without it all but its own check box is disabled.
    void setUseTexture(bool use);
    bool useTexture() const;

    /// How the texture is laid. Values beyond what the controls offer are kept until the user
    /// changes them.
    void setTextureSettings(const QKXTextureSettings &settings);
    QKXTextureSettings textureSettings() const;

    /// The icons of the five buttons; until set those of the host's icon set.
    void setLoadTextureIcon(const QIcon &icon);
    void setSaveTextureIcon(const QIcon &icon);
    void setClearTextureIcon(const QIcon &icon);
    void setReloadTextureIcon(const QIcon &icon);
    void setShowTextureInfoIcon(const QIcon &icon);

    /// Which controls are shown below or above the file line: all but the real-world scale at
    /// first. A hidden control keeps its value.
    void setShowAlphaControls(bool show);
    void setShowGammaControls(bool show);
    /// All four repeat modes can be chosen, or only repeating and clamping.
    void setShowAllRepeatModes(bool show);
    void setShowOffsetControls(bool show);
    void setShowRepeatControls(bool show);
    void setShowRotateControls(bool show);
    void setShowRepeatModeControls(bool show);
    void setShowUseTextureControls(bool show);
    void setShowAnisotropicControls(bool show);
    void setShowProjectionModeControls(bool show);
    void setShowRealWorldScaleControls(bool show);
    void setShowLinkTextureSettingsControls(bool show);

    /// Hands the marking "multiselect" of the control to its thumbnail and its path. Called by
    /// modules after they have set or removed the marking.
    void propagateMultiselectProperty();

Q_SIGNALS:
    /// One of the five buttons was clicked.
    void clickedLoadTexture();
    void clickedReloadTexture();
    void clickedWriteTexture();
    void clickedShowTextureInfo();
    void clickedClearTexture();

    /// The user has switched the use of the texture on or off. Nothing else sends this signal: a new
    /// file is announced by changedTextureFile() alone.
    void changedTexture();

    /// The user has typed or dropped another path, which getTexture() gives already; empty when the
    /// path was removed. While the control is marked "multiselect", Return sends the path that is
    /// shown even when it was not edited.
    void changedTextureFile(const QString &path);

    /// The user has changed how the texture is laid; textureSettings() gives the new record.
    void changedTextureSettings();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void connectParts();

    QCheckBox *m_use;
    hostlib::TextureFileLine *m_file;
    hostlib::TextureSettingsPanel *m_settings;
};

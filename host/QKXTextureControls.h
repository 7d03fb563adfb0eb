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
    /// A control without an image.
    /// @param parent becomes the owner; null for none
    explicit QKXTextureControls(QWidget *parent = nullptr);
    ~QKXTextureControls() override;

    /// Shows an image file. The same path set again shows the file anew if it has changed. Called by
    /// modules at each refresh.
    /// @param path empty for none; kept exactly as given, and need not exist
    void setTexture(const QString &path);

    /// The path that was set, typed or dropped last.
    /// @return empty for none
    QString getTexture() const;

    /// Says whether the texture is used.
    /// @param use false: all but its own check box is disabled
    void setUseTexture(bool use);

    /// Whether the texture is used.
    /// @return true at first
    bool useTexture() const;

    /// Shows how the texture is laid.
    /// @param settings values beyond what the controls offer are kept until the user changes them
    void setTextureSettings(const QKXTextureSettings &settings);

    /// How the texture is laid.
    /// @return what was set, with the user's changes
    QKXTextureSettings textureSettings() const;

    /// @name Icons of the buttons
    /// Until set those of the host's icon set.
    /// @{

    /// The button that loads an image.
    /// @param icon a null icon leaves the button empty
    void setLoadTextureIcon(const QIcon &icon);

    /// The button that saves the image.
    /// @param icon a null icon leaves the button empty
    void setSaveTextureIcon(const QIcon &icon);

    /// The button that takes the image away.
    /// @param icon a null icon leaves the button empty
    void setClearTextureIcon(const QIcon &icon);

    /// The button that reads the image anew.
    /// @param icon a null icon leaves the button empty
    void setReloadTextureIcon(const QIcon &icon);

    /// The button that tells about the image.
    /// @param icon a null icon leaves the button empty
    void setShowTextureInfoIcon(const QIcon &icon);

    /// @}
    /// @name What is shown beside the file line
    /// All but the real-world scale at first. A hidden control keeps its value.
    /// @{

    /// The opacity.
    /// @param show false hides it
    void setShowAlphaControls(bool show);

    /// The gamma.
    /// @param show false hides it
    void setShowGammaControls(bool show);

    /// The choice of repeat modes.
    /// @param show true for all four, false for repeating and clamping alone
    void setShowAllRepeatModes(bool show);

    /// The offset.
    /// @param show false hides it
    void setShowOffsetControls(bool show);

    /// How often the image fits.
    /// @param show false hides it
    void setShowRepeatControls(bool show);

    /// The rotation.
    /// @param show false hides it
    void setShowRotateControls(bool show);

    /// The repeat modes.
    /// @param show false hides them
    void setShowRepeatModeControls(bool show);

    /// The check box that says whether the texture is used.
    /// @param show false hides it
    void setShowUseTextureControls(bool show);

    /// The number of samples.
    /// @param show false hides it
    void setShowAnisotropicControls(bool show);

    /// The projection.
    /// @param show false hides it
    void setShowProjectionModeControls(bool show);

    /// The real-world scale.
    /// @param show false hides it
    void setShowRealWorldScaleControls(bool show);

    /// The link to the other textures of the same owner.
    /// @param show false hides it
    void setShowLinkTextureSettingsControls(bool show);

    /// @}

    /// Hands the marking "multiselect" of the control to its thumbnail and its path. Called by
    /// modules after they have set or removed the marking.
    void propagateMultiselectProperty();

Q_SIGNALS:
    /// The button that loads an image was clicked.
    void clickedLoadTexture();

    /// The button that reads the image anew was clicked.
    void clickedReloadTexture();

    /// The button that saves the image was clicked.
    void clickedWriteTexture();

    /// The button that tells about the image was clicked.
    void clickedShowTextureInfo();

    /// The button that takes the image away was clicked.
    void clickedClearTexture();

    /// The user has switched the use of the texture on or off. Nothing else sends this signal: a new
    /// file is announced by changedTextureFile() alone.
    void changedTexture();

    /// The user has typed or dropped another path. While the control is marked "multiselect", Return
    /// sends the path that is shown even when it was not edited.
    /// @param path what getTexture() gives already; empty when the path was removed
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

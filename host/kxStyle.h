// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QProxyStyle>

class QPainter;
class QPalette;

/// The host's dark widget style. It also draws every control that carries the dynamic property
/// "multiselect" as mixed: one whose selected nodes disagree on the value that it shows. The old
/// value of such a control is hidden, its field is hatched behind an amber edge, and assistive
/// tools read "several values" as its description. A field that has the focus shows its old text
/// dimmed, so that it can be edited; of a group of radio buttons all are mixed when one is.
///
/// Whoever sets or removes the property lets the style unpolish and polish the control and updates
/// it. Created by the host and given to the application, which owns it. GUI thread only.
class KXHOST_EXPORT kxStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// A style that is not in use yet.
    kxStyle();
    ~kxStyle() override;

    /// The colour of the name of a node that does not show; names of nodes that do are opaque
    /// white.
    /// @return a valid colour
    static QColor getInactiveNodeColor();

    /// The colour that marks what is selected, focused or live.
    /// @return a valid, opaque colour
    static QColor getAccentColor();

    /// The colour of the edge and the hatching of mixed controls.
    /// @return a valid, opaque colour
    static QColor getMixedColor();

    /// Whether a control is marked "multiselect".
    /// @param widget null for none
    /// @return false for none
    static bool isMultiselect(const QWidget *widget);

    /// The words that stand in for the value of a mixed control.
    /// @return translated, never empty
    static QString mixedText();

    /// Draws the look of a mixed field, for widgets that draw themselves.
    /// @param painter never null; one that is not active is ignored, with Qt's warnings
    /// @param rect    the field, in the painter's coordinates; an empty one is ignored
    /// @param enabled false for the dimmed look
    static void drawMixedField(QPainter *painter, const QRect &rect, bool enabled);

    /// Writes mixedText(), or a dash where the words do not fit.
    /// @param painter never null; one that is not active is ignored, with Qt's warnings
    /// @param rect    the room for the words, in the painter's coordinates; an empty one is ignored
    /// @param enabled false for the dimmed look
    static void drawMixedText(QPainter *painter, const QRect &rect, bool enabled);

    QPalette standardPalette() const override;

    using QProxyStyle::polish;
    using QProxyStyle::unpolish;
    void polish(QPalette &palette) override;
    void polish(QWidget *widget) override;
    void unpolish(QWidget *widget) override;

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;

    // The buttons of a panel's title bar and the signs of message boxes come from the host's icon set.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;

    // A selected row says that it is selected; its icon stays as bright as it was.
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption *option) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;

    // Draws the contents of marked text editors, whose viewport no style primitive covers.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_drawingBeneath = false;
};

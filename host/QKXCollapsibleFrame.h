// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "host/kxHostExport.h"

#include <QWidget>

class QVBoxLayout;

namespace hostlib {
class FrameHeader;
} // namespace hostlib

/// A group of controls under a header that folds it away.
///
/// Owner: its parent widget; it owns its pages. Used in forms, where a page is added with addPage();
/// GUI thread only. The header is clicked, or takes the focus and is worked with Space or Return
/// (turn over), Left (fold) and Right (unfold); assistive tools see it as collapsed or expanded.
class KXHOST_EXPORT QKXCollapsibleFrame : public QWidget
{
    Q_OBJECT
    /// The text of the header, translated; empty for none.
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    /// Whether the pages are shown.
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded NOTIFY toggled USER true)

public:
    /// An expanded frame without pages.
    /// @param parent becomes the owner; null for none
    explicit QKXCollapsibleFrame(QWidget *parent = nullptr);
    ~QKXCollapsibleFrame() override;

    /// Puts a page below the pages that are there. Called by the code of a form.
    /// @param page becomes the frame's; null is ignored
    void addPage(QWidget *page);

    /// Writes the text of the header. Called by the code of a form, again when the language changes.
    /// @param caption translated; empty for none
    void setCaption(const QString &caption);

    /// The text of the header.
    /// @return empty for none
    QString caption() const;

    /// Shows or hides the pages. When the control with the focus is folded away, the header takes
    /// the focus.
    /// @param expanded true to show them
    void setExpanded(bool expanded);

    /// Whether the pages are shown.
    /// @return true at first
    bool isExpanded() const;

    /// Lines the labels of several frames up with one another: column 0 of each page's grid becomes
    /// as wide as the widest label of all of them, hidden ones included. What is left of a page's
    /// width goes to its other columns. Pages without a grid are left alone. Called by modules once
    /// their pages are filled; again after the texts have changed.
    /// @param root  all frames below it, itself included; nothing happens for null
    /// @param width least width of the labels, in pixels of a display of 96 dpi; one that is not above 0
    ///              is ignored: the labels are as wide as the widest one
    static void fixLayouts(QWidget *root, int width);

Q_SIGNALS:
    /// The frame was folded or unfolded, by the user or by setExpanded().
    /// @param expanded true when the pages are shown now
    void toggled(bool expanded);

private:
    void showPages(bool expanded);

    hostlib::FrameHeader *m_header;
    QWidget *m_body;
    QVBoxLayout *m_pages;
    QSizePolicy::Policy m_expandedPolicy = QSizePolicy::Preferred; ///< what folding replaces
};

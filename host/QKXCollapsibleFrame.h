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
    Q_PROPERTY(QString caption READ caption WRITE setCaption)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded NOTIFY toggled USER true)

public:
    explicit QKXCollapsibleFrame(QWidget *parent = nullptr);
    ~QKXCollapsibleFrame() override;

    /// Puts `page` below the pages that are there and takes it over. Null is ignored. Called by the
    /// code of a form.
    void addPage(QWidget *page);

    /// The text of the header, translated; empty for none. Called by the code of a form, again when
    /// the language changes.
    void setCaption(const QString &caption);
    QString caption() const;

    /// Shows or hides the pages. When the control with the focus is folded away, the header takes
    /// the focus. At first the frame is expanded.
    void setExpanded(bool expanded);
    bool isExpanded() const;

    /// Lines the labels of all frames below `root`, itself included, up with one another: column 0
    /// of each page's grid becomes as wide as the widest label of all of them, hidden ones included,
    /// but at least `width` pixels of a display of 96 dpi. What is left of a page's width goes to
    /// its other columns. Pages without a grid are left alone, and so is everything when `root` is
    /// null. Called by modules once their pages are filled; again after the texts have changed.
    static void fixLayouts(QWidget *root, int width);

Q_SIGNALS:
    /// The frame was folded or unfolded, by the user or by setExpanded().
    void toggled(bool expanded);

private:
    void showPages(bool expanded);

    hostlib::FrameHeader *m_header;
    QWidget *m_body;
    QVBoxLayout *m_pages;
    QSizePolicy::Policy m_expandedPolicy = QSizePolicy::Preferred; ///< what folding replaces
};

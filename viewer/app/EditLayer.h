// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include "viewer/edit/FeedbackPainter.h"

#include <QWidget>

#include <functional>

namespace viewer {

/// The transparent widget over the overlays that shows what is selected and how it is being moved,
/// and lets the mouse through. It asks for what to draw when it draws: whatever redraws the overlays
/// redraws it too, since it lies on them. Owned by the view area.
class EditLayer : public QWidget
{
    Q_OBJECT

public:
    using Feedback = std::function<EditFeedback()>;

    explicit EditLayer(Feedback feedback, QWidget *parent = nullptr);

    /// The view that this layer covers.
    EditView view() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Feedback m_feedback;
};

} // namespace viewer

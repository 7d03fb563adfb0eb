// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>

/// Lets a model change its rows for one reason at a time. A service that changes its tree within a
/// question, or a listener to the model's own signals that does, announces that in the middle of a
/// change: rows have places then that are about to be others, and a reset would destroy the items at
/// hand. Such an announcement is missed, and the model catches up once the change is complete.
///
/// A member of the model, which takes all its changes through it; GUI thread only. Where nothing is
/// announced in between, it changes nothing.
class kxTurns
{
public:
    /// What was announced in the middle of a change, the lesser first.
    enum class Missed { Nothing, Change, Reset };

    /// `catchUp` makes the model equal to the service; `model` owns this.
    kxTurns(QObject *model, const std::function<void(Missed)> &catchUp);
    ~kxTurns() = default;
    Q_DISABLE_COPY(kxTurns)

    /// Runs the change, or notes that it was missed.
    void take(const std::function<void()> &change, Missed kind = Missed::Change);

    /// Makes announcements missed while it lives, for a change that cannot be missed itself.
    class Hold
    {
    public:
        explicit Hold(kxTurns *turns) : m_turns(turns) { ++m_turns->m_running; }
        ~Hold() { m_turns->finish(); }
        Q_DISABLE_COPY(Hold)

    private:
        kxTurns *m_turns;
    };

private:
    void finish();
    void catchUp();

    QObject *m_model;
    std::function<void(Missed)> m_catchUp;
    int m_running = 0;
    Missed m_missed = Missed::Nothing;
};

// SPDX-FileCopyrightText: the Overlay Editor authors
// SPDX-License-Identifier: MIT

#include "overlayeditor/model/kxTurns.h"

#include <algorithm>
#include <utility>

kxTurns::kxTurns(QObject *model, const std::function<void(Missed)> &catchUp)
    : m_model(model)
    , m_catchUp(catchUp)
{
}

void kxTurns::take(const std::function<void()> &change, Missed kind)
{
    if (m_running > 0 || m_missed != Missed::Nothing) {
        m_missed = std::max(m_missed, kind);
        return;
    }
    const Hold hold(this);
    change();
}

void kxTurns::finish()
{
    if (--m_running == 0 && m_missed != Missed::Nothing)
        catchUp();
}

/// What is missed meanwhile waits for the event loop: a service that announces something at each
/// question would never let the caller go on.
void kxTurns::catchUp()
{
    if (m_running > 0)
        return; // called by an event loop within a change, which catches up when it is complete
    ++m_running;
    m_catchUp(std::exchange(m_missed, Missed::Nothing));
    --m_running;
    if (m_missed != Missed::Nothing)
        QMetaObject::invokeMethod(
            m_model, [this] { catchUp(); }, Qt::QueuedConnection);
}

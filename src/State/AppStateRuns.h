// SPDX-License-Identifier: MIT
#pragma once

#include "State/AppState.h"

/// One run of a scan: its kind's flag is set from the first run to the end of the last. A run that was stopped leaves
/// the flag alone, for `stopScans` has cleared it and a newer run may have set it again.
class AppState::LaneRun
{
public:
    LaneRun(const QPointer<AppState> &self, Lane &lane)
        : m_self(self)
        , m_lane(&lane)
        , m_stop(lane.stop)
    {
        ++lane.running;
        m_self->publish(m_self->*lane.flag, true, lane.changed);
    }
    ~LaneRun() { end(); }
    Q_DISABLE_COPY_MOVE(LaneRun)

    [[nodiscard]] const CancelToken &stop() const { return m_stop; }
    /// Whether the run may still touch the state; asked after every wait.
    [[nodiscard]] bool goesOn() const { return m_self && !m_stop.isCancelled(); }
    void end()
    {
        if (!std::exchange(m_open, false) || !goesOn())
            return;
        if (--m_lane->running > 0)
            return;
        m_self->publish(m_self->*m_lane->flag, false, m_lane->changed);
        m_self->clearDetailWhenIdle();
    }

private:
    QPointer<AppState> m_self;
    Lane *m_lane;
    CancelToken m_stop;
    bool m_open = true;
};

/// One removal: the state's flag is set while any runs or waits for its turn.
class AppState::RemovalRun
{
public:
    explicit RemovalRun(const QPointer<AppState> &self)
        : m_self(self)
        , m_stop(self->m_stopRemovals)
    {
        ++m_self->m_removalsRunning;
        m_self->publish(m_self->m_removing, true, &AppState::removingChanged);
    }
    ~RemovalRun()
    {
        if (m_self && --m_self->m_removalsRunning == 0)
            m_self->publish(m_self->m_removing, false, &AppState::removingChanged);
    }
    Q_DISABLE_COPY_MOVE(RemovalRun)

    [[nodiscard]] const CancelToken &stop() const { return m_stop; }

private:
    QPointer<AppState> m_self;
    CancelToken m_stop;
};

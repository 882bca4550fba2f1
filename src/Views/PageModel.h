// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QtQmlIntegration>

#include <utility>

class AppState;

/// What every page model shares: the state it reads, and one signal for all that it shows. A page model lives as long
/// as the program; the page in the window comes and goes. It gathers what it shows in one record, and notifies only
/// when that differs, so that nothing is drawn while nothing moves. Main thread.
class PageModel : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    /// `state` outlives the model.
    explicit PageModel(AppState &state, QObject *parent = nullptr)
        : QObject(parent)
        , m_state(state)
    {
    }

Q_SIGNALS:
    /// Something that the page shows is different now.
    void changed();

protected:
    [[nodiscard]] AppState &state() const { return m_state; }

    /// Shows `now` in place of `shown`.
    template <typename View>
    void show(View &shown, View now)
    {
        if (shown == now)
            return;
        shown = std::move(now);
        Q_EMIT changed();
    }

private:
    AppState &m_state;
};

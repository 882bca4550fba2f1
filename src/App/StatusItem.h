// SPDX-License-Identifier: MIT
#pragma once

#include "Support/Scheduler.h"

#include <QImage>
#include <QObject>
#include <QRect>

#include <functional>

class QSystemTrayIcon;

/// The program's item in the desktop's status area. Desktops start what shows it when they please, so it is looked for
/// several times; where there is none, there is no item. Main thread.
class StatusItem final : public QObject
{
    Q_OBJECT

public:
    /// `hasHost` answers whether something shows status items now.
    StatusItem(Scheduler schedule, std::function<bool()> hasHost, QObject *parent = nullptr);

    /// Shows the item as soon as there is something that shows it.
    void show();
    [[nodiscard]] bool isShown() const { return m_icon != nullptr; }
    /// Where the item is on screen; empty where the desktop does not tell.
    [[nodiscard]] QRect geometry() const;

    /// The brand mark at 18 by 18 points in 36 by 36 pixels, in its colours.
    [[nodiscard]] static QImage brandStatusImage();

Q_SIGNALS:
    /// The item was clicked.
    void activated();

private:
    void look(qsizetype attempt);
    void make();

    Scheduler m_schedule;
    std::function<bool()> m_hasHost;
    QSystemTrayIcon *m_icon = nullptr; // a child
};

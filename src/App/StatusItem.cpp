// SPDX-License-Identifier: MIT
#include "App/StatusItem.h"

#include "Components/BrandLogo.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QPointer>
#include <QSystemTrayIcon>

#include <array>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// How long to wait before looking once more.
constexpr std::array<std::chrono::milliseconds, 5> kWaits{1s, 2s, 7s, 20s, 30s};

} // namespace

StatusItem::StatusItem(Scheduler schedule, std::function<bool()> hasHost, QObject *parent)
    : QObject(parent)
    , m_schedule(std::move(schedule))
    , m_hasHost(std::move(hasHost))
{
}

void StatusItem::show()
{
    if (!m_icon)
        look(0);
}

QRect StatusItem::geometry() const
{
    return m_icon ? m_icon->geometry() : QRect();
}

QImage StatusItem::brandStatusImage()
{
    constexpr int kPoints = 18;
    constexpr int kPixelsAPoint = 2;
    QImage image(kPoints * kPixelsAPoint, kPoints * kPixelsAPoint, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(kPixelsAPoint);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    BrandLogo::draw(&painter, QRectF(0, 0, kPoints, kPoints));
    return image;
}

void StatusItem::look(qsizetype attempt)
{
    if (m_hasHost()) {
        make();
        return;
    }
    if (attempt == std::ssize(kWaits))
        return;
    m_schedule(kWaits.at(static_cast<size_t>(attempt)), [self = QPointer(this), attempt] {
        if (self && !self->m_icon)
            self->look(attempt + 1);
    });
}

void StatusItem::make()
{
    m_icon = new QSystemTrayIcon(QIcon(QPixmap::fromImage(brandStatusImage())), this);
    m_icon->setToolTip(u"Brisko"_s);
    connect(m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        // The second click of a double click has been reported as a click already.
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::Context)
            Q_EMIT activated();
    });
    m_icon->show();
}

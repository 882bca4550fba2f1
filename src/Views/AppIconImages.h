// SPDX-License-Identifier: MIT
#pragma once

#include "Models/FileURL.h"

#include <QQuickImageProvider>

/// The icons of applications, read from their files away from the main thread: `image://appicon/…`, where the rest is
/// what `addressOf` answers for the file. What is no regular file, too large or no image gives no image.
class AppIconImages : public QQuickImageProvider
{
public:
    AppIconImages();

    /// The address of a file's image. It carries the path's exact bytes, which the text of a URL would not.
    [[nodiscard]] static QString addressOf(const FileURL &file);

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};

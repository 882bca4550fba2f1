// SPDX-License-Identifier: MIT
#include "Views/AppIconImages.h"

#include "Platform/Descriptor.h"
#include "Platform/FileReading.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>

#include <fcntl.h>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kMaxBytes = 16 * 1024 * 1024;
constexpr QSize kUsualSize{88, 88}; // when none is asked for: the row's icon on a dense screen

QByteArray contentOf(const FileURL &file)
{
    // By its bytes, for not every name is text; and a pipe must not make us wait for its writer.
    const Descriptor opened(::open(file.path().constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    const auto stamp = opened.isOpen() ? FileReading::stampOf(opened.get()) : std::nullopt;
    if (!stamp || stamp->size > kMaxBytes)
        return {};
    QByteArray content(stamp->size, Qt::Uninitialized);
    content.truncate(std::max<qint64>(0, FileReading::readAt(opened.get(), content.data(), content.size(), 0)));
    return content;
}

/// Of a file that holds its icon in several sizes, the smallest that is large enough.
void chooseImage(QImageReader &reader, QSize wanted)
{
    int best = -1;
    QSize bestSize;
    for (int number = 0; number < reader.imageCount() && reader.jumpToImage(number); ++number) {
        const QSize size = reader.size();
        const bool enough = size.width() >= wanted.width();
        const bool bestEnough = bestSize.width() >= wanted.width();
        if (best < 0 || (enough && (!bestEnough || size.width() < bestSize.width())) ||
            (!bestEnough && size.width() > bestSize.width())) {
            best = number;
            bestSize = size;
        }
    }
    if (best >= 0)
        reader.jumpToImage(best);
}

/// What stands for a file that holds no icon: one clear pixel, for a null image is an error that QML prints.
QImage nothing()
{
    QImage pixel(1, 1, QImage::Format_ARGB32_Premultiplied);
    pixel.fill(Qt::transparent);
    return pixel;
}

} // namespace

AppIconImages::AppIconImages()
    : QQuickImageProvider(QQmlImageProviderBase::Image, QQmlImageProviderBase::ForceAsynchronousImageLoading)
{
}

QString AppIconImages::addressOf(const FileURL &file)
{
    constexpr auto readable = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;
    return u"image://appicon/"_s + QString::fromLatin1(file.path().toBase64(readable));
}

QImage AppIconImages::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const auto path = QByteArray::fromBase64Encoding(id.toLatin1(), QByteArray::Base64UrlEncoding);
    const std::optional<FileURL> file = path ? FileURL::fromPath(*path) : std::nullopt;
    if (!file)
        return nothing();
    QByteArray content = contentOf(*file);
    QBuffer buffer(&content);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize wanted = requestedSize.isEmpty() ? kUsualSize : requestedSize;
    if (reader.imageCount() > 1)
        chooseImage(reader, wanted);
    const QSize own = reader.size();
    if (size)
        *size = own;
    if (own.isValid())
        reader.setScaledSize(own.scaled(wanted, Qt::KeepAspectRatio));
    const QImage image = reader.read();
    if (image.isNull())
        return nothing();
    if (own.isValid())
        return image;
    return image.scaled(wanted, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

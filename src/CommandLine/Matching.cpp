// SPDX-License-Identifier: MIT
#include "CommandLine/Matching.h"

#include "CommandLine/Printer.h"
#include "Platform/FileSystem.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <memory>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

struct Free {
    void operator()(char *text) const { std::free(text); }
};

std::optional<FileURL> resolvedBySystem(const QByteArray &path)
{
    const std::unique_ptr<char, Free> real(::realpath(path.constData(), nullptr));
    return real ? FileURL::fromPath(QByteArrayView(real.get())) : std::nullopt;
}

/// The bundles for which `fits` holds.
template <typename Fits>
QList<FileURL> bundlesThat(const QList<InstalledApp> &apps, Fits fits)
{
    QList<FileURL> found;
    for (const InstalledApp &app : apps) {
        if (fits(app))
            found.append(app.url);
    }
    return found;
}

QList<FileURL> bundlesOf(const QByteArray &argument, const std::optional<FileURL> &workingFolder,
                         const QList<InstalledApp> &apps)
{
    const auto isListed = [&apps](const FileURL &url) {
        return std::ranges::any_of(apps, [&url](const InstalledApp &app) { return app.url == url; });
    };
    if (const auto bundle = Matching::listedFile(argument, workingFolder, isListed))
        return {*bundle};
    // Bytes that are not UTF-8 are no text, and so neither an identifier nor a name.
    if (!argument.isValidUtf8())
        return {};
    const QString text = QString::fromUtf8(argument);
    QList<FileURL> found = bundlesThat(apps, [&text](const InstalledApp &app) { return app.bundleID == text; });
    if (found.isEmpty())
        found = bundlesThat(apps, [&text](const InstalledApp &app) { return app.name == text; });
    return found;
}

} // namespace

std::optional<FileURL> Matching::locate(const QByteArray &argument, const std::optional<FileURL> &workingFolder)
{
    if (!argument.startsWith('/') && !workingFolder)
        return std::nullopt;
    const bool climbs = ("/" + argument + "/").contains("/../");
    if (!climbs)
        return workingFolder ? FileURL::fromPath(argument, *workingFolder) : FileURL::fromPath(argument);
    // Behind a link, the folder above is not the one that the text suggests.
    const QByteArray absolute = argument.startsWith('/') ? argument : workingFolder->path() + '/' + argument;
    if (const auto real = resolvedBySystem(absolute))
        return real;
    return FileURL::fromPath(absolute);
}

std::optional<FileURL> Matching::listedFile(const QByteArray &argument, const std::optional<FileURL> &workingFolder,
                                            const std::function<bool(const FileURL &)> &isListed)
{
    QByteArray path = argument;
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    // The item itself may be a link and is never followed: only the folder before its name is located.
    const qsizetype slash = path.lastIndexOf('/');
    const QByteArray name = path.sliced(slash + 1);
    const auto folder = slash < 0 ? workingFolder : locate(path.first(std::max<qsizetype>(slash, 1)), workingFolder);
    if (!folder || name.isEmpty() || name == "." || name == "..")
        return std::nullopt;
    if (const FileURL own = folder->child(name); isListed(own))
        return own;
    if (const FileURL resolved = FileSystem::resolved(*folder).child(name); isListed(resolved))
        return resolved;
    return std::nullopt;
}

std::expected<QSet<FileURL>, QString> Matching::listedFiles(const QList<QByteArray> &arguments,
                                                            const std::optional<FileURL> &workingFolder,
                                                            const QSet<FileURL> &listed)
{
    QSet<FileURL> found;
    for (const QByteArray &argument : arguments) {
        const auto file =
            listedFile(argument, workingFolder, [&listed](const FileURL &url) { return listed.contains(url); });
        if (!file)
            return std::unexpected(u"not among the results: \""_s + escaped(argument) + u'"');
        found.insert(*file);
    }
    return found;
}

std::expected<QSet<FileURL>, QString> Matching::bundles(const QList<QByteArray> &arguments,
                                                        const std::optional<FileURL> &workingFolder,
                                                        const QList<InstalledApp> &apps)
{
    QSet<FileURL> found;
    for (const QByteArray &argument : arguments) {
        const QList<FileURL> fitting = bundlesOf(argument, workingFolder, apps);
        if (fitting.isEmpty())
            return std::unexpected(u"no such application: \""_s + escaped(argument) + u'"');
        if (fitting.size() > 1) {
            QStringList paths;
            for (const FileURL &bundle : fitting)
                paths.append(escaped(bundle.path()));
            return std::unexpected(u'"' + escaped(argument) +
                                   u"\" fits several applications, give one of the paths: "_s + paths.join(u", "_s));
        }
        found.insert(fitting.first());
    }
    return found;
}

} // namespace CommandLine

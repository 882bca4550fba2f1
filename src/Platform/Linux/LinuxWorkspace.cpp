// SPDX-License-Identifier: MIT
#include "Platform/Linux/LinuxWorkspace.h"

#include "Platform/FileSystem.h"
#include "Platform/Linux/LinuxPropertyList.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/// Whether an address may be handed to the desktop, which would also run files and reach into other programs.
bool mayBeOpened(const QUrl &address)
{
    if (!address.isValid())
        return false;
    if (address.scheme() == "https"_L1)
        return !address.host().isEmpty();
    return address.scheme() == "mailto"_L1 && !address.path().isEmpty();
}

/// The icon that a bundle names, with or without its ending; only a file of its own inside Resources.
std::optional<FileURL> iconOf(const FileURL &bundle, const QString &name)
{
    const QByteArray bytes = name.toUtf8();
    if (bytes.isEmpty() || bytes == "." || bytes == ".." || bytes.contains('/') || bytes.contains('\0'))
        return std::nullopt;
    const FileURL resources = bundle.appending("Contents/Resources");
    for (const QByteArray &candidate : {bytes, bytes + ".icns"}) {
        FileURL file = resources.child(candidate);
        // A link could lead out of the bundle, and to what must not be opened.
        if (const auto found = FileSystem::attributes(file); found && found->kind == FileSystem::Kind::regular)
            return file;
    }
    return std::nullopt;
}

/// Opens the folder that holds an item. Only a folder: an opener would run a file, or hand it to another program.
void openFolderOf(const FileURL &item, const LinuxWorkspace::Launch &launch)
{
    const FileURL folder = item.parent();
    const auto found = FileSystem::attributes(folder, FileSystem::Root::follow);
    if (found && found->kind == FileSystem::Kind::folder)
        launch(u"xdg-open"_s, {QString::fromLatin1(folder.encoded())});
}

} // namespace

LinuxWorkspace::LinuxWorkspace(Launch launch)
    : m_launch(std::move(launch))
{
}

bool LinuxWorkspace::open(const QUrl &address) const
{
    if (!mayBeOpened(address))
        return false;
    // Fully encoded, so that it is one word of plain characters; its scheme keeps it from being taken for an option.
    return m_launch(u"xdg-open"_s, {QString::fromLatin1(address.toEncoded())});
}

void LinuxWorkspace::showInFileManager(const FileURL &item) const
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(item, m_launch);
        return;
    }
    QDBusMessage call =
        QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                                       u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    call << QStringList{QString::fromLatin1(item.encoded())} << QString();
    // A file manager that is started for this call takes its time.
    constexpr int kPatience = 10'000; // ms
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(call, kPatience));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, item, launch = m_launch] {
        answer->deleteLater();
        if (answer->isError())
            openFolderOf(item, launch);
    });
}

QString LinuxWorkspace::displayName(const FileURL &bundle) const
{
    QString name = bundle.nameText();
    if (bundle.extension() == "app")
        name.chop(4);
    return name;
}

BundleInfo LinuxWorkspace::bundleInfo(const FileURL &bundle) const
{
    const auto info = LinuxPropertyList().read(bundle.appending("Contents/Info.plist"));
    if (!info)
        return {};
    return {.identifier = info->text(u"CFBundleIdentifier"_s),
            .version = info->text(u"CFBundleShortVersionString"_s),
            .icon = info->text(u"CFBundleIconFile"_s)
                        .transform([&bundle](const QString &name) { return iconOf(bundle, name); })
                        .value_or(std::nullopt)};
}

bool LinuxWorkspace::startDetached(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    // Whatever the opener prints must not end up in what our own command line prints.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

// SPDX-License-Identifier: MIT
#include "CommandLine/CommandLine.h"

#include "CommandLine/Commands.h"
#include "CommandLine/Help.h"
#include "CommandLine/Parser.h"
#include "CommandLine/PosixTerminal.h"
#include "CommandLine/Printer.h"
#include "Platform/FolderPanel.h"
#include "State/Outcomes.h"
#include "State/SettingsFile.h"
#include "Support/LanguageManager.h"
#include "Support/UserDefaults.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <array>
#include <cstdlib>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace CommandLine {
namespace {

/// Nobody is asked for folders here: what can be read is what is scanned.
class NoPanel final : public FolderPanel
{
public:
    QCoro::Task<std::optional<FileURL>> choose(std::optional<FileURL>, QString, QString) override
    {
        co_return std::nullopt;
    }
};

/// Standard error is the command's own: remarks of the toolkit, on the locale for one, have no place there.
void passOnWhatIsGrave(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg || type == QtCriticalMsg)
        std::fputs(qPrintable(u"brisko: "_s + message + u'\n'), stderr);
}

std::optional<FileURL> workingFolder()
{
    char *folder = ::getcwd(nullptr, 0);
    const QByteArray path(folder);
    std::free(folder); // NOLINT: getcwd allocates with malloc
    return FileURL::fromPath(path);
}

QCoro::Task<> drive(SessionPointer session, std::optional<ExitStatus> *status, QEventLoop *loop)
{
    *status = co_await carryOut(session);
    session.reset();
    loop->quit();
}

/// Lets what was told to stop come to its end, so that nothing is left of it when the state goes.
void settle(TaskPools &pools)
{
    do {
        pools.userInitiated.waitForDone();
        pools.utility.waitForDone();
        QCoreApplication::sendPostedEvents();
    } while (pools.userInitiated.activeThreadCount() > 0 || pools.utility.activeThreadCount() > 0);
}

/// What became of standard output. A reader that went away has seen what it wanted.
ExitStatus withOutput(ExitStatus status, Terminal &terminal)
{
    const std::error_code error = terminal.outputError();
    if (!error || error == std::errc::broken_pipe)
        return status;
    Printer(&terminal, Stream::error).text(u"brisko: standard output: ").text(Outcomes::words(error)).end();
    return status == ExitStatus::done ? ExitStatus::failed : status;
}

ExitStatus carryOutInvocation(const Invocation &invocation, PosixTerminal &terminal,
                              const std::function<std::shared_ptr<const Platform>()> &makePlatform)
{
    Interruption interruption;
    interruption.watchSignals();
    terminal.setWakeDescriptor(interruption.wakeDescriptor());

    const std::shared_ptr<const Platform> platform = makePlatform();
    UserDefaults defaults(SettingsFile::path(*platform->places));
    LanguageManager::activate(defaults);
    NoPanel panel;
    TaskPools pools;
    AppEnvironment environment;
    environment.platform = platform;
    environment.defaults = &defaults;
    environment.panel = &panel;
    environment.pools = &pools;
    AppState state(environment);
    if (const auto copy = defaults.brokenCopy())
        Printer(&terminal, Stream::error).text(SettingsFile::damageNotice(*copy)).end();

    std::optional<ExitStatus> status;
    QEventLoop loop;
    detach(drive(std::make_shared<Session>(invocation, Environment{.state = &state,
                                                                   .terminal = &terminal,
                                                                   .interruption = &interruption,
                                                                   .workingFolder = workingFolder()}),
                 &status, &loop));
    if (!status)
        loop.exec();
    const ExitStatus ended = withOutput(*status, terminal);
    // An exchange with a server cannot be called back, and nothing of ours waits for it.
    if (state.isCheckingForUpdates())
        std::_Exit(std::to_underlying(ended));
    settle(pools);
    return ended;
}

ExitStatus answer(const Request &request, PosixTerminal &terminal,
                  const std::function<std::shared_ptr<const Platform>()> &platform)
{
    if (const auto *help = std::get_if<HelpRequest>(&request)) {
        terminal.write(Stream::output, helpText(help->words));
        return withOutput(ExitStatus::done, terminal);
    }
    if (std::holds_alternative<VersionRequest>(request)) {
        terminal.write(Stream::output, "brisko " BRISKO_VERSION "\n");
        return withOutput(ExitStatus::done, terminal);
    }
    std::array name{'b', 'r', 'i', 's', 'k', 'o', '\0'};
    std::array<char *, 2> values{name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, values.data());
    return carryOutInvocation(std::get<Invocation>(request), terminal, platform);
}

} // namespace

QList<QByteArray> argumentsOf(int count, char **values)
{
    QList<QByteArray> arguments;
    for (int i = 1; i < count; ++i)
        arguments.append(QByteArray(values[i]));
    return arguments;
}

int run(const QList<QByteArray> &arguments, const std::function<std::shared_ptr<const Platform>()> &platform)
{
    qInstallMessageHandler(passOnWhatIsGrave);
    PosixTerminal terminal;
    const auto request = parse(arguments);
    if (!request) {
        Printer(&terminal, Stream::error)
            .text(u"brisko: ")
            .text(request.error().message)
            .text(u" (see `brisko --help`)")
            .end();
        return std::to_underlying(ExitStatus::wrongUse);
    }
    return std::to_underlying(answer(*request, terminal, platform));
}

int explainNoWindow()
{
    PosixTerminal terminal;
    Printer(&terminal, Stream::error)
        .text(u"brisko: there is no window to open here; give a command, such as `brisko scan all` (`brisko --help` "
              u"lists them)")
        .end();
    return std::to_underlying(ExitStatus::wrongUse);
}

int explainMissingWindow(const char *reason)
{
    PosixTerminal terminal;
    Printer(&terminal, Stream::error)
        .text(u"brisko: the window cannot be loaded: "_s + QString::fromLocal8Bit(reason))
        .end();
    return std::to_underlying(ExitStatus::failed);
}

} // namespace CommandLine

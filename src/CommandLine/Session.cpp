// SPDX-License-Identifier: MIT
#include "CommandLine/Session.h"

#include "CommandLine/JsonResults.h"
#include "CommandLine/PeopleResults.h"

using namespace Qt::StringLiterals;

namespace CommandLine {

Session::Session(Invocation invocation, Environment environment)
    : m_invocation(std::move(invocation))
    , m_environment(std::move(environment))
    , m_progress(m_environment.terminal, m_invocation.progress)
{
    connect(&state(), &AppState::scanDetailChanged, this, [this] { m_progress.show(state().scanDetail()); });
    connect(&state(), &AppState::toastChanged, this, [this] {
        if (state().toast())
            m_toast = state().toast();
        Q_EMIT moved();
    });
    for (const auto changed : {&AppState::appsChanged, &AppState::appDetailsLoadingChanged, &AppState::scanningChanged})
        connect(&state(), changed, this, &Session::moved);
    connect(m_environment.interruption, &Interruption::interrupted, this, [this] {
        state().stopScans();
        state().stopRemovals();
    });
}

void Session::print(const Result &result)
{
    m_progress.wipe();
    Terminal *terminal = m_environment.terminal;
    if (!m_invocation.json) {
        Printer output(terminal, Stream::output);
        Printer errors(terminal, Stream::error);
        writeForPeople(output, errors, result);
        return;
    }
    JsonWriter json([terminal](QByteArrayView bytes) { terminal->write(Stream::output, bytes); });
    writeJson(json, result);
    json.flush();
    terminal->write(Stream::output, "\n");
}

void Session::complain(const QString &message)
{
    m_progress.wipe();
    Printer(m_environment.terminal, Stream::error).text(message).end();
}

ExitStatus Session::refuse(const QString &message)
{
    complain(u"brisko: "_s + message);
    return ExitStatus::wrongUse;
}

bool Session::isAccepted(const ConfirmData &question)
{
    m_progress.wipe();
    Printer errors(m_environment.terminal, Stream::error);
    writeQuestion(errors, question);
    const std::optional<QByteArray> answer = m_environment.terminal->readLine();
    if (!answer) {
        errors.end(); // the cursor still stands behind the question
        return false;
    }
    const QByteArray word = answer->trimmed().toLower();
    return word == "y" || word == "yes";
}

} // namespace CommandLine

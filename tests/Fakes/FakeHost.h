// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/HostFacts.h"

#include <QHash>

#include <unistd.h>

/// An environment and a user database of the test's own.
struct FakeHost {
    QHash<QByteArray, QByteArray> variables;
    std::optional<QByteArray> account; // the user's home folder in the user database
    quint32 user = ::geteuid();

    [[nodiscard]] HostFacts facts() const
    {
        return {.variable = [all = variables](const char *name) -> std::optional<QByteArray> {
                    const auto found = all.constFind(name);
                    return found == all.cend() ? std::nullopt : std::optional(*found);
                },
                .user = user,
                .accountFolder = [known = user,
                                  folder = account](quint32 asked) { return asked == known ? folder : std::nullopt; }};
    }
};

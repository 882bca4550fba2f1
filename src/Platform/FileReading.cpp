// SPDX-License-Identifier: MIT
#include "Platform/FileReading.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>

qint64 FileReading::readAt(int descriptor, char *into, qint64 size, qint64 offset)
{
    qint64 done = 0;
    while (done < size) {
        const ssize_t got = ::pread(descriptor, into + done, static_cast<size_t>(size - done), offset + done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return -1;
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

int FileReading::descriptorLimit()
{
    constexpr rlim_t largest = std::numeric_limits<int>::max();
    constexpr int leastEverywhere = 20; // what POSIX promises
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return leastEverywhere;
    return static_cast<int>(std::min(limit.rlim_cur, largest));
}

// SPDX-License-Identifier: MIT

/// Asked by the thread sanitizer when it is built in. The toolkit is not built with it and locks by system calls that
/// it does not see, so that it takes what a pool of threads does at its end for races: putting away its condition
/// variables, and moving threads from one list of its own to another.
extern "C" const char *__tsan_default_suppressions();
extern "C" const char *__tsan_default_suppressions()
{
    return "race:QWaitCondition::~QWaitCondition\n"
           "race:QArrayData::reallocateUnaligned\n";
}

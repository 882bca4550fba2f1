// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

/// Runs something on the main thread after a while; handed in, so that a test is its own clock. What is run holds
/// weakly whatever may be gone by then.
using Scheduler = std::function<void(std::chrono::milliseconds delay, std::function<void()> action)>;

// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/JsonWriter.h"
#include "CommandLine/Results.h"

namespace CommandLine {

/// Writes a result as one JSON object: the form that other programs rely on.
void writeJson(JsonWriter &json, const Result &result);

} // namespace CommandLine

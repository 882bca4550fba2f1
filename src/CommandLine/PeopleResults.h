// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine/Printer.h"
#include "CommandLine/Results.h"
#include "Models/Notices.h"

namespace CommandLine {

/// Writes a result for people: lists whole, what they come to in the last line. What went wrong goes to `errors`.
void writeForPeople(Printer &output, Printer &errors, const Result &result);

/// Writes the confirmation that a page would show, down to the prompt that waits for the answer.
void writeQuestion(Printer &errors, const ConfirmData &question);

} // namespace CommandLine

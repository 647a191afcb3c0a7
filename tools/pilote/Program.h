#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

#include "Backend.h"
#include "Pilote.h"

namespace ondelis::pilote {

/// A fresh program that has not started yet.
using BackendFactory = std::function<std::unique_ptr<Backend>()>;

/// Answers a line as the driver does: one line of JSON.
[[nodiscard]] std::string answerLine(Pilote& pilote, const std::string& line);

/// Plays scenario files, each in a backend of its own, and prints what fails, then a count. Returns whether all went
/// as expected.
bool playFiles(std::span<char* const> files, const BackendFactory& makeBackend);

} // namespace ondelis::pilote

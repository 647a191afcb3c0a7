#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>

#include "Body.h"
#include "Pilote.h"

namespace ondelis::pilote {

/// A fresh program that has not started yet.
using NewBody = std::function<std::unique_ptr<Body>()>;

/// Answers a line as the driver does: one line of JSON.
[[nodiscard]] std::string answerLine(Pilote& pilote, const std::string& line);

/// Plays scenario files, each in a body of its own, and prints what fails, then a count. Returns whether all went
/// as expected.
bool playFiles(std::span<char* const> files, const NewBody& newBody);

} // namespace ondelis::pilote

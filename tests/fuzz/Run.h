#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

#include "Subject.h"

namespace ondelis::fuzz {

/// How long users are played: for a time, or until they have done so much.
struct Length {
    std::chrono::seconds time{};
    std::uint64_t actions = 0;
};

/// Plays users, and prints and writes down what is found. Gives the number of findings.
int run(const NewSubject& newSubject, const Length& length, std::uint64_t seed);

/// A whole number; throws where the word is none.
[[nodiscard]] std::uint64_t whole(std::string_view word);

/// The end of a session's process is waited for, and must not be lost before that.
void keepEndsOfProcesses();

} // namespace ondelis::fuzz

#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

#include "Subject.h"

namespace ondelis::fuzz {

/// How long users are played: for a time, or until they have done that much.
struct Length {
    std::chrono::seconds time{};
    std::uint64_t actions = 0;
};

/// Plays users, and prints and writes down what is found. Returns the number of findings.
int run(const NewSubject& newSubject, const Length& length, std::uint64_t seed);

/// A whole number; throws if the word is not one.
[[nodiscard]] std::uint64_t whole(std::string_view word);

/// Keeps the ends of the sessions' processes from being lost before they are waited for.
void keepEndsOfProcesses();

} // namespace ondelis::fuzz

#pragma once

#include <chrono>
#include <cstdint>
#include <string_view>

#include "Target.h"

namespace ondelis::fuzz {

/// How long users are played: for a time, or until they have done that much.
struct Budget {
    std::chrono::seconds time{};
    std::uint64_t actions = 0;
};

/// Plays users, and prints and writes down what is found. Returns the number of findings.
int run(const TargetFactory& makeTarget, const Budget& budget, std::uint64_t seed);

/// A whole number; throws if the word is not one.
[[nodiscard]] std::uint64_t whole(std::string_view word);

/// Blocks SIGCHLD, so that no end of a session's process is lost before it is waited for.
void blockChildSignals();

} // namespace ondelis::fuzz

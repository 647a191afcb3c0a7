// Random users of the program with no window: see docs/architecture.md.

#include <cinttypes>
#include <cstdio>
#include <iostream>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "Run.h"
#include "Session.h"

namespace ondelis::fuzz {
namespace {

/// Prints how the session of each user ended, a line each, for a comparison with another build.
void printEnds(std::uint64_t seed, std::uint64_t users)
{
    for (std::uint64_t user = seed; user - seed < users; ++user) {
        const Outcome outcome = watchUser(user);
        const std::string& end = outcome.trouble.empty() ? outcome.fault : outcome.trouble;
        std::printf("%" PRIu64 " %zu %s: %s %016" PRIx64 "\n", user, outcome.commands.size(), outcome.subject.c_str(),
            end.empty() ? "no fault" : end.c_str(), outcome.digest);
        std::fflush(stdout);
    }
}

} // namespace
} // namespace ondelis::fuzz

int main(int argc, char** argv)
{
    using namespace ondelis::fuzz;
    const std::span words{argv, static_cast<std::size_t>(argc)};
    try {
        blockChildSignals();
        if (argc == 4 && std::string_view{words[1]} == "ends") {
            printEnds(whole(words[2]), whole(words[3]));
            return 0;
        }
        const std::uint64_t seconds = argc > 1 ? whole(words[1]) : 60;
        const std::uint64_t seed = argc > 2 ? whole(words[2]) : std::random_device{}();
        return run(makeHeadlessTarget, {.time = std::chrono::seconds{seconds}}, seed) == 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "usage: fuzz [SECONDS [SEED]], or fuzz ends SEED USERS: " << error.what() << '\n';
        return 2;
    }
}

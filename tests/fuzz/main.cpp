#include <charconv>
#include <chrono>
#include <cinttypes>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <map>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "AllowedFaults.h"
#include "Shrink.h"

namespace ondelis::fuzz {
namespace {

/// What is wrong with the end of a session; "" where nothing is.
std::string wrong(const Outcome& outcome)
{
    if (!outcome.trouble.empty())
        return outcome.subject + ": " + outcome.trouble;
    if (!outcome.fault.empty() && !allowed(outcome.subject, outcome.fault))
        return outcome.subject + ": " + outcome.fault;
    return "";
}

/// Writes a finding as a scenario that fails until it is mended.
void writeScenario(const std::string& file, const std::string& words, const Outcome& outcome)
{
    std::ofstream out{file};
    out << "# " << words << '\n';
    for (const std::string& command : outcome.commands)
        out << command << '\n';
    out << "expect no fault\n";
}

/// Plays users for so long and gives the number of findings.
int run(std::chrono::seconds length, std::uint64_t seed)
{
    std::cout << "users from seed " << seed << ", " << length.count() << " s" << std::endl;
    std::map<std::string, int> faults; ///< those that are allowed, by panel
    std::map<std::string, int> findings;
    std::size_t steps = 0;
    std::uint64_t user = seed;
    const auto end = std::chrono::steady_clock::now() + length;
    for (; std::chrono::steady_clock::now() < end; ++user) {
        const Outcome outcome = playUser(user);
        steps += outcome.commands.size();
        if (const std::string words = wrong(outcome); !words.empty()) {
            if (++findings[words] > 1)
                continue;
            const std::string file = "fuzz-" + std::to_string(user) + ".scn";
            writeScenario(file, words, shrunk(outcome));
            std::cout << "FOUND " << words << ": " << file << std::endl;
        } else if (!outcome.fault.empty()) {
            ++faults[outcome.subject + ": " + outcome.fault];
        }
    }
    for (const auto& [words, count] : faults)
        std::cout << "allowed " << count << " x " << words << '\n';
    for (const auto& [words, count] : findings)
        std::cout << "FOUND " << count << " x " << words << '\n';
    std::cout << user - seed << " users, " << steps << " steps, " << findings.size() << " findings" << std::endl;
    return static_cast<int>(findings.size());
}

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

/// A whole number; throws where the word is none.
std::uint64_t whole(const char* word)
{
    std::uint64_t number = 0;
    const char* const end = word + std::strlen(word);
    if (const auto [stop, error] = std::from_chars(word, end, number); error != std::errc{} || stop != end)
        throw std::invalid_argument{word};
    return number;
}

} // namespace
} // namespace ondelis::fuzz

int main(int argc, char** argv)
{
    using namespace ondelis::fuzz;
    const std::span words{argv, static_cast<std::size_t>(argc)};
    try {
        // The end of a session's process is waited for, and must not be lost before that.
        sigset_t ends;
        sigemptyset(&ends);
        sigaddset(&ends, SIGCHLD);
        sigprocmask(SIG_BLOCK, &ends, nullptr);
        if (argc == 4 && std::string_view{words[1]} == "ends") {
            printEnds(whole(words[2]), whole(words[3]));
            return 0;
        }
        const std::uint64_t seconds = argc > 1 ? whole(words[1]) : 60;
        const std::uint64_t seed = argc > 2 ? whole(words[2]) : std::random_device{}();
        return run(std::chrono::seconds{seconds}, seed) == 0 ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "usage: fuzz [SECONDS [SEED]], or fuzz ends SEED USERS: " << error.what() << '\n';
        return 2;
    }
}

#include "Run.h"

#include <charconv>
#include <csignal>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

#include "AllowedFaults.h"
#include "Shrink.h"

namespace ondelis::fuzz {
namespace {

/// Whether the last command, or something that was done meanwhile, may end the program with this fault.
bool isAllowed(const Outcome& outcome)
{
    if (allowed(outcome.subject, outcome.fault))
        return true;
    if (outcome.commands.empty())
        return false;
    constexpr std::string_view meanwhile = "meanwhile ";
    for (auto command = std::next(outcome.commands.rbegin()); command != outcome.commands.rend(); ++command) {
        if (!command->starts_with(meanwhile))
            return false;
        if (allowed(subjectOf(std::string_view{*command}.substr(meanwhile.size())), outcome.fault))
            return true;
    }
    return false;
}

/// What is wrong with the end of a session; "" if nothing is.
std::string wrong(const Outcome& outcome)
{
    if (!outcome.trouble.empty())
        return outcome.subject + ": " + outcome.trouble;
    if (!outcome.difference.where.empty())
        return outcome.subject + ": differs in " + outcome.difference.where;
    if (!outcome.fault.empty() && !isAllowed(outcome))
        return outcome.subject + ": " + outcome.fault;
    return "";
}

/// Writes a finding as a scenario that fails until it is fixed.
void writeScenario(const std::string& file, const std::string& words, const Outcome& outcome)
{
    std::ofstream out{file};
    out << "# " << words << '\n';
    for (const std::string& command : outcome.commands)
        out << command << '\n';
    out << (outcome.difference.where.empty() ? "expect no fault" : outcome.difference.expectation) << '\n';
}

} // namespace

int run(const TargetFactory& makeTarget, const Budget& budget, std::uint64_t seed)
{
    std::cout << "users from seed " << seed << std::endl;
    std::map<std::string, int> faults; ///< those that are allowed, by panel
    std::map<std::string, int> findings;
    std::uint64_t steps = 0;
    std::uint64_t user = seed;
    const auto end = std::chrono::steady_clock::now() + budget.time;
    for (; steps < budget.actions || std::chrono::steady_clock::now() < end; ++user) {
        const Outcome outcome = playUser(makeTarget, user);
        steps += outcome.commands.size();
        if (const std::string words = wrong(outcome); !words.empty()) {
            if (++findings[words] > 1)
                continue;
            const std::string file = "fuzz-" + std::to_string(user) + ".scn";
            writeScenario(file, words, shrunk(makeTarget, outcome));
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

std::uint64_t whole(std::string_view word)
{
    std::uint64_t number = 0;
    const char* const end = word.data() + word.size();
    if (const auto [stop, error] = std::from_chars(word.data(), end, number); error != std::errc{} || stop != end)
        throw std::invalid_argument{std::string{word}};
    return number;
}

void blockChildSignals()
{
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGCHLD);
    sigprocmask(SIG_BLOCK, &ends, nullptr);
}

} // namespace ondelis::fuzz

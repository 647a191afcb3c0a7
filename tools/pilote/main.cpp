#include <iostream>
#include <span>
#include <string>

#include "Pilote.h"
#include "Scenario.h"

namespace {

using namespace ondelis::pilote;

/// Answers each line of standard input with one line of JSON.
void converse()
{
    std::ios::sync_with_stdio(false);
    Pilote pilote;
    std::string line;
    while (std::getline(std::cin, line))
        std::cout << pilote.answer(line).dump(-1, ' ', false, Json::error_handler_t::replace) << std::endl;
}

/// Plays scenario files; tells whether all went as expected.
bool play(std::span<char* const> files)
{
    Tally sum;
    for (const char* const file : files) {
        const Tally tally = playScenario(file, std::cout);
        sum.expectations += tally.expectations;
        sum.failures += tally.failures;
    }
    std::cout << files.size() << " scenarios, " << sum.expectations << " expectations, " << sum.failures
              << " failures\n";
    return sum.failures == 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1)
        return play(std::span{argv, static_cast<std::size_t>(argc)}.subspan(1)) ? 0 : 1;
    converse();
    return 0;
}

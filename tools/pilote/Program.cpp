#include "Program.h"

#include <iostream>

#include "Scenario.h"

namespace ondelis::pilote {

std::string answerLine(Pilote& pilote, const std::string& line)
{
    return pilote.answer(line).dump(-1, ' ', false, Json::error_handler_t::replace);
}

bool playFiles(std::span<char* const> files, const BackendFactory& makeBackend)
{
    Tally sum;
    for (const char* const file : files) {
        const std::unique_ptr<Backend> backend = makeBackend();
        const Tally tally = playScenario(file, *backend, std::cout);
        sum.expectations += tally.expectations;
        sum.failures += tally.failures;
    }
    std::cout << files.size() << " scenarios, " << sum.expectations << " expectations, " << sum.failures
              << " failures\n";
    return sum.failures == 0;
}

} // namespace ondelis::pilote

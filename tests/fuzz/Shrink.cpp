#include "Shrink.h"

#include <algorithm>

namespace ondelis::fuzz {
namespace {

bool sameEnd(const Outcome& one, const Outcome& other)
{
    return one.subject == other.subject && one.fault == other.fault && one.trouble == other.trouble
        && one.difference.where == other.difference.where;
}

} // namespace

Outcome shrunk(const TargetFactory& makeTarget, Outcome outcome)
{
    constexpr int mostTries = 300;
    int tries = 0;
    for (std::size_t cut = outcome.commands.size() / 2; cut > 0; cut /= 2)
        for (std::size_t from = 0; from < outcome.commands.size() && tries < mostTries; ++tries) {
            const auto first = outcome.commands.begin() + static_cast<std::ptrdiff_t>(from);
            const auto last = first + static_cast<std::ptrdiff_t>(std::min(cut, outcome.commands.size() - from));
            std::vector<std::string> fewer{outcome.commands.begin(), first};
            fewer.insert(fewer.end(), last, outcome.commands.end());
            if (Outcome shorter = playAgain(makeTarget, fewer); sameEnd(shorter, outcome))
                outcome = std::move(shorter);
            else
                from += cut;
        }
    return outcome;
}

} // namespace ondelis::fuzz

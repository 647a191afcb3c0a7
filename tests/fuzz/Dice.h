#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace ondelis::fuzz {

/// Random choices, the same for the same seed.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_{seed} { }

    /// A number from 0 to `count` - 1.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(engine_() % count); }
    /// A number from `first` to `last`.
    int between(int first, int last)
    {
        return first + static_cast<int>(below(static_cast<std::size_t>(last - first) + 1));
    }
    /// True that many times in a hundred.
    bool percent(std::size_t chance) { return below(100) < chance; }
    /// One of several things.
    template <class Things>
    const auto& one(const Things& things)
    {
        return things[below(std::size(things))];
    }

private:
    std::mt19937_64 engine_;
};

} // namespace ondelis::fuzz

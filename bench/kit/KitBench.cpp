// The kit's conversions beside the calls of the standard library that do the same work, in one run. Each pair
// reads or writes the same numbers; the table at the end gives the ratio of the medians and its goal.

#include <benchmark/benchmark.h>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "kit/Conversions.h"
#include "kit/Maths.h"
#include "kit/Region.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {
namespace {

using Numbers = std::vector<double>;
using Texts = std::vector<std::string>;

// Enough that the processor cannot learn the sequence: with a thousand, it predicts every branch of the library's
// functions, which it cannot do in real use.
constexpr int count = 20'000;

/// As people type them: one to four digits from 0.001 to 9999.
Numbers typedNumbers()
{
    std::mt19937_64 random{1};
    std::uniform_int_distribution<int> digits{1, 9999};
    std::uniform_int_distribution<int> decimals{0, 3};
    Numbers numbers(count);
    for (double& number : numbers)
        number = digits(random) / std::pow(10, decimals(random));
    return numbers;
}

/// As formulas give them: all digits, from 1E-12 to 1E+12.
Numbers computedNumbers()
{
    std::mt19937_64 random{2};
    std::uniform_real_distribution<double> decades{-12, 12};
    Numbers numbers(count);
    for (double& number : numbers)
        number = std::pow(10, decades(random));
    return numbers;
}

template <class Write>
Texts texts(const Numbers& numbers, Write write)
{
    Texts texts;
    for (const double number : numbers)
        texts.push_back(write(number));
    return texts;
}

const Region comma{.decimal = ",", .thousands = "\u202f"};

Texts textsWithComma(const Numbers& numbers)
{
    const ScopedRegion inside{comma};
    return texts(numbers, CStr);
}

std::size_t toChars(double number)
{
    std::array<char, 32> text; // NOLINT(cppcoreguidelines-pro-type-member-init): to_chars fills it
    const auto written = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::general, 15);
    benchmark::DoNotOptimize(text.data());
    return static_cast<std::size_t>(written.ptr - text.data());
}

double fromChars(const std::string& text)
{
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// The library calls needed to get from a number to its text with a multiplier word.
struct MultiplierCalls {
    double number;
    double fraction;
    double power;
    double shown;
};

std::vector<MultiplierCalls> multiplierCalls(const Numbers& numbers)
{
    std::vector<MultiplierCalls> calls;
    for (const double number : numbers) {
        const double x = std::log(number) * 0.434294481903252;
        const double fraction = x - std::trunc(x);
        const double power = std::fmod(std::floor(std::fabs(x)), 3);
        const double m = std::pow(10, fraction) * std::pow(10, power);
        calls.push_back({number, fraction, power, std::trunc(1000000 * m) / 1000000});
    }
    return calls;
}

std::size_t libraryCalls(const MultiplierCalls& call)
{
    benchmark::DoNotOptimize(std::log(call.number));
    benchmark::DoNotOptimize(std::pow(10, call.fraction));
    benchmark::DoNotOptimize(std::pow(10, call.power));
    return toChars(call.shown);
}

/// Medians by name, and the pairs in the order of their registration.
struct Pair {
    std::string name;
    double goal;
};
std::vector<Pair>& pairs()
{
    static std::vector<Pair> all;
    return all;
}

template <class Inputs, class Function>
void add(const std::string& name, const Region& region, Inputs inputs, Function function)
{
    benchmark::RegisterBenchmark(name.c_str(),
        [region, inputs = std::move(inputs), function](benchmark::State& state) {
            const ScopedRegion inside{region};
            for (auto _ : state)
                for (const auto& input : inputs)
                    benchmark::DoNotOptimize(function(input));
        })
        ->Repetitions(15)
        ->ReportAggregatesOnly();
}

/// A function of the kit and the calls that it cannot beat, on inputs that state the same numbers.
template <class Inputs, class Function, class FloorInputs, class Floor>
void compare(const std::string& name, double goal, const Region& region, const Inputs& inputs, Function function,
    const FloorInputs& floorInputs, Floor floor)
{
    add(name, region, inputs, function);
    add(name + " floor", region, floorInputs, floor);
    pairs().push_back({name, goal});
}

void compareAll(const std::string& kind, const Numbers& numbers)
{
    const Region point;
    const Texts plain = texts(numbers, CStr);
    compare("CStr " + kind, 1.5, point, numbers, CStr, numbers, toChars);
    compare("CStr, comma region " + kind, 1.5, comma, numbers, CStr, numbers, toChars);
    compare("Str " + kind, 1.5, point, numbers, Str, numbers, toChars);
    compare("Val " + kind, 2, point, plain, Val, plain, fromChars);
    compare("Val, leading blank " + kind, 2, point, texts(numbers, Str), Val, plain, fromChars);
    const auto cdbl = [](const std::string& text) { return CDbl(text); };
    compare("CDbl " + kind, 2, point, plain, cdbl, plain, fromChars);
    compare("CDbl, comma region " + kind, 2, comma, textsWithComma(numbers), cdbl, plain, fromChars);
    compare("TraitementMultiplicateur " + kind, 1.5, point, numbers, TraitementMultiplicateur, multiplierCalls(numbers),
        libraryCalls);
}

/// Shows the usual lines, and keeps the medians for the table.
class MedianReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                medians_[run.run_name.function_name] = run.GetAdjustedCPUTime() / count;
        ConsoleReporter::ReportRuns(runs);
    }

    /// In nanoseconds of one call; 0 where a filter left it out.
    [[nodiscard]] double median(const std::string& name) const
    {
        const auto found = medians_.find(name);
        return found == medians_.end() ? 0 : found->second;
    }

private:
    std::map<std::string, double> medians_;
};

void printRatios(const MedianReporter& reporter)
{
    std::printf("\n%-42s %9s %9s %7s %6s\n", "median of one call", "kit ns", "floor ns", "ratio", "goal");
    for (const auto& [name, goal] : pairs()) {
        const double kit = reporter.median(name);
        const double floor = reporter.median(name + " floor");
        if (kit == 0 || floor == 0)
            continue;
        std::printf("%-42s %9.1f %9.1f %7.2f %6.1f%s\n", name.c_str(), kit, floor, kit / floor, goal,
            kit / floor > goal ? "  missed" : "");
    }
}

} // namespace
} // namespace ondelis

int main(int argc, char** argv)
{
    std::vector<char*> arguments{argv, argv + argc};
    std::string interleaved = "--benchmark_enable_random_interleaving=true";
    std::string shortRuns = "--benchmark_min_time=0.02";
    arguments.insert(arguments.begin() + 1, {interleaved.data(), shortRuns.data()});
    int size = static_cast<int>(arguments.size());
    benchmark::Initialize(&size, arguments.data());
    ondelis::compareAll("typed", ondelis::typedNumbers());
    ondelis::compareAll("computed", ondelis::computedNumbers());
    ondelis::MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    ondelis::printRatios(reporter);
}

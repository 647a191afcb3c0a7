// From a keystroke, or a step of a bar, to all results stored, with no window. Goals: a median under 20 microseconds
// for a keystroke, under 200 for a step.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "ScriptedSurroundings.h"
#include "forms/Controls.h"
#include "forms/Desk.h"
#include "forms/User.h"
#include "shell/MDIOndelis.h"
#include "shell/Menu.h"

namespace {

using namespace ondelis;

struct Entry {
    const char* field;
    const char* text;
};

/// What is typed into a panel until it computes, and the field that the keystrokes then go to.
struct Subject {
    const char* menuEntry;
    std::vector<Entry> typed;
    const char* field;
};

const std::vector<Subject>& subjects()
{
    static const std::vector<Subject> table{
        {"MenuCircuitOscillant", {{"TxtFreq", "1"}, {"TxtRes", "1000"}, {"TxtCapa", "1000"}}, "TxtFreq"},
    };
    return table;
}

/// A bar that is dragged from end to end.
struct Sweep {
    const char* menuEntry;
    const char* bar;
};

const std::vector<Sweep>& sweeps()
{
    static const std::vector<Sweep> table{
        {"MenuRLCserie", "HScroll1"},
        {"MenuRLCparallele", "HScroll1"},
        {"MenuFiltrePasseBasEnPi", "Qscroll"},
        {"MenuFiltrePasseBasEnPi", "Pscroll"},
        {"mnuSelfNbSpires", "HscrlE"},
    };
    return table;
}

TextBox& fieldOf(const FeuilleCalcul& panel, const char* name)
{
    auto* const field = dynamic_cast<TextBox*>(panel.find(name));
    if (field == nullptr)
        throw std::runtime_error{panel.design().name + " has no field " + name};
    return *field;
}

/// Runs an action; gives the microseconds that it took.
template <class Action>
double timed(Action&& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::micro>{std::chrono::steady_clock::now() - start}.count();
}

void print(const FeuilleCalcul& panel, const char* control, std::vector<double>& times)
{
    std::ranges::sort(times);
    std::printf("%-28s %-12s %8.2f us %8.2f us\n", panel.design().name.c_str(), control, times[times.size() / 2],
        times[times.size() * 99 / 100]);
}

void measure(const Subject& subject)
{
    pilote::ScriptedSurroundings surroundings;
    Desk desk{surroundings};
    MDIOndelis frame{desk};
    User user{desk};
    frame.start();
    frame.click(*findMenuEntry(subject.menuEntry));
    const FeuilleCalcul& panel = *desk.loadedPanels().front();
    for (const Entry& entry : subject.typed)
        if (const auto refusal = user.type(fieldOf(panel, entry.field), entry.text))
            throw std::runtime_error{panel.design().name + "." + entry.field + ": " + *refusal};

    constexpr std::size_t rounds = 10'000;
    TextBox& field = fieldOf(panel, subject.field);
    std::vector<double> times;
    times.reserve(2 * rounds);
    for (std::size_t i = 0; i < rounds; ++i) {
        times.push_back(timed([&] { user.type(field, "5"); }));
        times.push_back(timed([&] { user.backspace(field); }));
    }
    if (desk.ended())
        throw std::runtime_error{panel.design().name + " ended the program"};
    print(panel, subject.field, times);
}

void measure(const Sweep& sweep)
{
    pilote::ScriptedSurroundings surroundings;
    Desk desk{surroundings};
    MDIOndelis frame{desk};
    User user{desk};
    frame.start();
    frame.click(*findMenuEntry(sweep.menuEntry));
    const FeuilleCalcul& panel = *desk.loadedPanels().front();
    auto& bar = dynamic_cast<ScrollBar&>(*panel.find(sweep.bar));
    std::vector<double> times;
    for (int value = bar.Min.get().value(); value <= bar.Max.get().value(); ++value)
        times.push_back(timed([&] { user.move(bar, value); }));
    print(panel, sweep.bar, times);
}

} // namespace

int main()
{
    std::printf("%-28s %-12s %11s %11s\n", "panel", "field", "median", "99 in 100");
    for (const Subject& subject : subjects())
        measure(subject);
    for (const Sweep& sweep : sweeps())
        measure(sweep);
    return 0;
}

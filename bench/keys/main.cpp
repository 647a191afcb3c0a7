// From a keystroke, or a step of a bar, to all results stored, with no window: the slowest field and the slowest bar of
// each panel, beside a field and a bar of a bare panel with no handlers, measured in the same run. Goals: a median
// under 20 microseconds for a keystroke, under 200 for a step.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "ScriptedHost.h"
#include "forms/Controls.h"
#include "forms/Runtime.h"
#include "forms/User.h"
#include "shell/MDIOndelis.h"
#include "shell/Menu.h"

namespace {

using namespace ondelis;

class BarePanel final : public FeuilleCalcul {
public:
    explicit BarePanel(Runtime& runtime) : FeuilleCalcul{runtime, {.name = "", .Caption = "", .Width = 0, .Height = 0}}
    {
    }

    TextBox Field{this, "field", {}};
    HScrollBar Bar{this, "bar", {.Max = 1000}};
};

struct Measured {
    std::string control;
    double median = 0; ///< microseconds
};

/// A fresh program in which a menu entry has opened its panel; without an entry, the bare panel.
class Program {
public:
    explicit Program(const MenuEntry* entry)
    {
        frame_.start();
        if (entry != nullptr)
            frame_.click(*entry);
        else
            runtime.get<BarePanel>().Show();
    }

    [[nodiscard]] const FeuilleCalcul& panel() const { return *runtime.loadedPanels().front(); }

private:
    pilote::ScriptedHost host_;

public:
    Runtime runtime{host_};
    User user{runtime};

private:
    MDIOndelis frame_{runtime};
};

/// The median time of an action; nothing if the program has ended or the person was refused.
template <class Action>
std::optional<double> medianOf(const Runtime& runtime, int rounds, Action&& action)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        const User::Refusal refusal = action(round);
        const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
        if (refusal || runtime.ended())
            return {};
        times.push_back(time.count());
    }
    std::ranges::nth_element(times, times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2));
    return times[times.size() / 2];
}

std::optional<double> keyIn(const MenuEntry* entry, const std::string& name)
{
    Program program{entry};
    auto* const field = dynamic_cast<TextBox*>(program.panel().find(name));
    if (field == nullptr)
        return {};
    constexpr int rounds = 4000;
    return medianOf(program.runtime, rounds,
        [&](int round) { return round % 2 == 0 ? program.user.type(*field, "5") : program.user.backspace(*field); });
}

std::optional<double> stepOf(const MenuEntry* entry, const std::string& name)
{
    Program program{entry};
    auto* const bar = dynamic_cast<ScrollBar*>(program.panel().find(name));
    if (bar == nullptr)
        return {};
    const int first = bar->Min.get().value();
    const int last = bar->Max.get().value();
    const int steps = std::min(std::abs(last - first), 2000);
    return medianOf(program.runtime, steps + 1,
        [&](int step) { return program.user.move(*bar, first < last ? first + step : first - step); });
}

using Measure = std::optional<double> (*)(const MenuEntry* entry, const std::string& control);

/// The control of a panel that takes longest.
Measured slowest(const MenuEntry* entry, Measure measure)
{
    Measured found;
    Program program{entry};
    for (const Control* const control : program.panel().controls())
        if (const auto median = measure(entry, control->name()); median && *median > found.median)
            found = {.control = control->name(), .median = *median};
    return found;
}

void compare(const char* what, Measure measure)
{
    const double floor = slowest(nullptr, measure).median;
    std::printf("%s; of the bare panel %.2f us\n", what, floor);
    for (const MenuEntry* const entry : panelEntries()) {
        const Measured one = slowest(entry, measure);
        if (!one.control.empty())
            std::printf("%-28s %-16s %8.2f us %6.1f times\n", Program{entry}.panel().design().name.c_str(),
                one.control.c_str(), one.median, one.median / floor);
    }
}

} // namespace

int main()
{
    compare("A key", keyIn);
    compare("A step of a bar", stepOf);
    return 0;
}

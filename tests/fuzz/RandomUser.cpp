#include "RandomUser.h"

#include <algorithm>

#include "OddTexts.h"
#include "Tokenizer.h"
#include "shell/Menu.h"

namespace ondelis::fuzz {
namespace {

/// The panels whose handlers show boxes, or let events through.
constexpr std::array<std::string_view, 7> waiting{"AntennesLPDA1", "AntennesTrappesCoaxiales", "CondensateurVariable",
    "FiltreEnDoublePi", "FiltrePasseBasEnPi", "GammaMatch", "RapportCyclique"};

} // namespace

std::string RandomUser::region()
{
    constexpr std::array<std::string_view, 3> regions{R"(region "." ",")", R"(region "," ".")", R"(region "," " ")"};
    return std::string{dice_.one(regions)};
}

std::string RandomUser::next(const Runtime& runtime)
{
    if (minimised_ && dice_.percent(60)) {
        minimised_ = false;
        return "restore MDIOndelis";
    }
    if (dice_.percent(2))
        return dice_.percent(50) ? "answer yes" : "answer no";
    if (dice_.percent(2))
        return toWindows(runtime);
    const bool mayWait = std::ranges::any_of(runtime.loadedPanels(),
        [](const FeuilleCalcul* panel) { return std::ranges::find(waiting, panel->design().name) != waiting.end(); });
    return (dice_.percent(mayWait ? 15 : 1) ? "meanwhile " : "") + gesture(runtime);
}

std::string RandomUser::gesture(const Runtime& runtime)
{
    const auto& panels = runtime.loadedPanels();
    if (panels.empty() || dice_.percent(3))
        return menuEntry();
    const FeuilleCalcul& panel = *dice_.one(panels);
    if (dice_.percent(1))
        return "close " + panel.design().name;
    return onPanel(panel);
}

std::string RandomUser::toWindows(const Runtime& runtime)
{
    const auto& panels = runtime.loadedPanels();
    switch (dice_.below(5)) {
    case 0:
        minimised_ = true;
        return "minimise MDIOndelis";
    case 1:
        // At least as large as the window: on smaller screens its menu may be out of reach.
        return "screen " + std::to_string(15 * dice_.between(1920, 3840)) + ' '
            + std::to_string(15 * dice_.between(1080, 2160));
    case 2:
        return "move MDIOndelis " + place() + ' ' + place();
    default:
        return panels.empty() ? "restore MDIOndelis"
                              : "move " + dice_.one(panels)->design().name + ' ' + place() + ' ' + place();
    }
}

std::string RandomUser::place()
{
    return std::to_string(15 * dice_.between(0, 500));
}

std::string RandomUser::menuEntry()
{
    if (dice_.percent(1))
        return dice_.percent(50) ? "menu " + std::string{quitEntry} : "close MDIOndelis";
    return "menu " + std::string{dice_.one(panelEntries())->control};
}

std::string RandomUser::onPanel(const FeuilleCalcul& panel)
{
    std::vector<Control*> reachable;
    std::ranges::copy_if(panel.controls(), std::back_inserter(reachable), [](const Control* control) {
        const auto* const box = dynamic_cast<const TextBox*>(control);
        return control->focusable() && (box == nullptr || !box->Locked);
    });
    return reachable.empty() ? "close " + panel.design().name : onControl(*dice_.one(reachable));
}

std::string RandomUser::onControl(Control& control)
{
    const std::string path = control.panel().design().name + '.' + control.name();
    if (dice_.percent(3))
        return "focus " + path;
    if (auto* const box = dynamic_cast<TextBox*>(&control))
        return write(*box, path);
    if (auto* const list = dynamic_cast<ListBox*>(&control))
        if (const int rows = list->ListCount().value(); rows > 0)
            return "select " + path + ' ' + std::to_string(dice_.between(0, rows - 1));
    if (auto* const bar = dynamic_cast<ScrollBar*>(&control); bar != nullptr && dice_.percent(15))
        return held(path, {"back", "forward"});
    if (auto* const bar = dynamic_cast<ScrollBar*>(&control))
        return "scroll " + path + ' ' + std::to_string(position(*bar));
    if (dynamic_cast<OptionButton*>(&control) != nullptr || dynamic_cast<CommandButton*>(&control) != nullptr)
        return "click " + path;
    return "focus " + path;
}

std::string RandomUser::write(TextBox& box, const std::string& path)
{
    if (dice_.percent(oddity_ > 10 ? 25 : 10))
        return "backspace " + path;
    if (dice_.percent(3))
        return held(path, {"backspace", R"("5")", R"("-")", R"(".")", R"("e")"});
    // Keys land after what is there: a number grows by a key or two before it is replaced.
    if (dice_.percent(20) && !std::string{box.Text}.empty())
        return "type " + path + ' ' + std::to_string(dice_.below(10));
    // Each key of a long text would be a step of its own: long texts are pasted.
    const std::string written = text();
    const std::string_view command = written.size() <= 20 && dice_.percent(30) ? "type " : "replace ";
    return std::string{command} + path + ' ' + pilote::inQuotes(written);
}

std::string RandomUser::held(const std::string& path, std::initializer_list<std::string_view> keys)
{
    const std::string key{std::data(keys)[dice_.below(keys.size())]};
    return "hold " + path + ' ' + key + ' ' + std::to_string(dice_.between(2, 40));
}

int RandomUser::position(ScrollBar& bar)
{
    const int min = bar.Min.get().value();
    const int max = bar.Max.get().value();
    const auto [low, high] = std::minmax(min, max);
    switch (dice_.below(6)) {
    case 0:
        return min;
    case 1:
        return max;
    case 2:
    case 3:
        return std::clamp(bar.Value.get().value() + dice_.between(-1, 1), low, high);
    default:
        return dice_.between(low, high);
    }
}

std::string RandomUser::text()
{
    return dice_.percent(oddity_) ? oddText(dice_) : plainNumber(dice_);
}

} // namespace ondelis::fuzz

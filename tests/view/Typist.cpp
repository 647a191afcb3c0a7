#include "Typist.h"

#include <array>

namespace ondelis {
namespace {

/// Each panel finds some of them too small, too large or too precise.
constexpr std::array numbers{"3", "7", "0.00031", "123456.789", "1234567", "0.000000123", "0.7", "11", "47.3", "1e-7",
    "98765432.1", "1e9", "-7", "0.0333", "145.275", "1e12", "1e-9", "2"};

} // namespace

void Typist::work(int rounds)
{
    for (int count = 0; count < rounds; ++count)
        round();
}

void Typist::round()
{
    const std::vector<FeuilleCalcul*> panels = session_.program().runtime.loadedPanels();
    for (const FeuilleCalcul* panel : panels)
        for (Control* control : panel->controls()) {
            const auto gesture = control->focusable() ? gestureOn(*control) : nullptr;
            if (!gesture)
                continue;
            if (!session_.perform(gesture)) {
                typed_.clear();
                return; // these panels are gone
            }
            recordTyped(*control);
            session_.lookAt([&](PanelWindow& window) { look_(window, typed_); });
        }
}

std::function<void(User&)> Typist::gestureOn(Control& control)
{
    number_.clear();
    if (auto* const box = dynamic_cast<TextBox*>(&control); box != nullptr && !box->Locked) {
        const char* const number = numbers.at(oneOf(numbers.size()));
        number_ = QString::fromLatin1(number);
        return [=](User& user) { user.replace(*box, number); };
    }
    if (auto* const list = dynamic_cast<ListBox*>(&control); list != nullptr && list->ListCount() > 0) {
        const auto row = static_cast<int>(oneOf(static_cast<unsigned>(list->ListCount().value())));
        return [=](User& user) { user.choose(*list, row); };
    }
    if (auto* const option = dynamic_cast<OptionButton*>(&control); option != nullptr && oneOf(3) == 0)
        return [=](User& user) { user.click(*option); };
    if (auto* const button = dynamic_cast<CommandButton*>(&control))
        return [=](User& user) { user.click(*button); };
    if (auto* const bar = dynamic_cast<ScrollBar*>(&control)) {
        const int first = bar->Min.get().value();
        const int last = bar->Max.get().value();
        const std::array places{first, last, first + (last - first) / 3};
        return [=, place = places.at(oneOf(places.size()))](User& user) { user.move(*bar, place); };
    }
    return nullptr;
}

void Typist::recordTyped(const Control& control)
{
    const auto* const box = dynamic_cast<const TextBox*>(&control);
    if (box == nullptr || number_.isEmpty())
        return;
    const QString text = toQString(box->Text.get());
    if (!text.isEmpty() && number_.startsWith(text)) // the field may hold no more
        typed_[box] = text;
    else
        typed_.erase(box);
}

} // namespace ondelis

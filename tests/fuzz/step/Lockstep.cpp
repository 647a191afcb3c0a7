#include "Lockstep.h"

#include "EngineActor.h"
#include "Tokenizer.h"

namespace ondelis::fuzz {
namespace {

/// Everything is compared once in so many commands.
constexpr int everything = 25;

/// A value as an expectation writes it.
std::string written(const pilote::Json& value)
{
    return value.is_string() ? pilote::inQuotes(value.get<std::string>()) : value.dump();
}

} // namespace

Lockstep::Lockstep()
{
    const auto record
        = [this](const Control& control) { changed_.emplace(control.panel().design().name, control.name()); };
    headless_.onChange(record);
    window_.onChange(record);
}

pilote::Json Lockstep::answer(const std::string& command)
{
    Json expected = headlessPilote_.answer(command);
    const Json actual = windowPilote_.answer(command);
    compareAnswers(expected, actual);
    if (difference_.where.empty() && expected["ok"] && !runtime().ended() && command.substr(0, 7) != "region ") {
        pilote::Tokenizer words{command};
        words.next();
        if (const std::string path = words.atEnd() ? "" : words.next(); path.find('.') != std::string::npos)
            changed_.emplace(path.substr(0, path.find('.')), path.substr(path.find('.') + 1));
        compareWindows();
        compareControls();
        if (difference_.where.empty() && !window_.focusAgrees())
            differ("keyboard", "# the keyboard is not where the runtime takes it to be");
    }
    return expected;
}

void Lockstep::compareAnswers(const Json& expected, const Json& actual)
{
    if (expected["ok"] != actual["ok"])
        return differ(expected["ok"] ? "refused" : "not refused",
            "# with no window " + expected.dump() + ", with one " + actual.dump());
    for (const char* const member : {"fault", "ended", "messages"})
        if (expected.value(member, Json{}) != actual.value(member, Json{}))
            return differ(member, "# with no window " + expected.dump() + ", with one " + actual.dump());
    if (expected.contains("meanwhile") != actual.contains("meanwhile"))
        differ("meanwhile", "# with no window " + expected.dump() + ", with one " + actual.dump());
}

void Lockstep::compareWindows()
{
    compare(
        "MDIOndelis", headless_.inspector().inspect(headless_.frame()), window_.inspector().inspect(window_.frame()));
    const auto& expected = headless_.frame().runtime().loadedPanels();
    const auto& actual = window_.frame().runtime().loadedPanels();
    if (expected.size() != actual.size())
        return differ("panels", "# other panels are loaded");
    for (const FeuilleCalcul* const panel : expected)
        if (const FeuilleCalcul* const same = shownPanel(*panel))
            compare(panel->design().name, headless_.inspector().inspect(*panel), window_.inspector().inspect(*same));
        else
            differ(panel->design().name, "expect " + panel->design().name + " visible");
}

void Lockstep::compareControls()
{
    const bool all = ++commands_ % everything == 0;
    for (const FeuilleCalcul* const panel : headless_.frame().runtime().loadedPanels())
        for (Control* const control : panel->controls())
            if (all || changed_.contains({panel->design().name, control->name()}))
                compareControl(*panel, *control);
    changed_.clear();
}

void Lockstep::compareControl(const FeuilleCalcul& panel, Control& expected)
{
    const FeuilleCalcul* const same = shownPanel(panel);
    if (same != nullptr)
        compare(panel.design().name + '.' + expected.name(), headless_.inspector().inspect(expected),
            window_.inspector().inspect(*same->find(expected.name())));
}

void Lockstep::compare(const std::string& of, const Json& expected, const Json& actual)
{
    for (const auto& [member, value] : expected.items()) {
        const Json& other = actual[member];
        // Only a window has the keyboard from the start, and lets the Tab key follow fields that code has moved.
        const bool itsOwn = member == "Focus" || member == "TabOrder";
        const bool sameSingle
            = value.is_number_float() && other.is_number() && value.get<float>() == other.get<float>();
        if (itsOwn || sameSingle || value == other)
            continue;
        std::string where = of;
        where.append(".").append(member);
        std::string expectation = "expect ";
        expectation.append(where).append(" ").append(written(value)).append(" # with a window ").append(written(other));
        differ(std::move(where), std::move(expectation));
    }
}

const FeuilleCalcul* Lockstep::shownPanel(const FeuilleCalcul& panel) const
{
    return pilote::findPanel(window_.frame(), panel.design().name);
}

void Lockstep::differ(std::string where, std::string expectation)
{
    if (difference_.where.empty())
        difference_ = {.where = std::move(where), .expectation = std::move(expectation)};
}

} // namespace ondelis::fuzz

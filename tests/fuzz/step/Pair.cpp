#include "Pair.h"

#include "UserHands.h"
#include "Words.h"

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

Pair::Pair()
{
    const auto note
        = [this](const Control& control) { changed_.emplace(control.panel().design().name, control.name()); };
    headless_.onChange(note);
    window_.onChange(note);
}

pilote::Json Pair::answer(const std::string& command)
{
    Json said = sayer_.answer(command);
    const Json shown = shower_.answer(command);
    compareAnswers(said, shown);
    if (difference_.where.empty() && said["ok"] && !desk().ended() && command.substr(0, 7) != "region ") {
        pilote::Words words{command};
        words.next();
        if (const std::string target = words.atEnd() ? "" : words.next(); target.find('.') != std::string::npos)
            changed_.emplace(target.substr(0, target.find('.')), target.substr(target.find('.') + 1));
        compareWindows();
        compareControls();
        if (difference_.where.empty() && !window_.agreesOnKeyboard())
            differ("keyboard", "# the keyboard is where the desk does not take it for");
    }
    return said;
}

void Pair::compareAnswers(const Json& said, const Json& shown)
{
    if (said["ok"] != shown["ok"])
        return differ(
            said["ok"] ? "refused" : "not refused", "# with no window " + said.dump() + ", with one " + shown.dump());
    for (const char* const member : {"fault", "ended", "messages"})
        if (said.value(member, Json{}) != shown.value(member, Json{}))
            return differ(member, "# with no window " + said.dump() + ", with one " + shown.dump());
    if (said.contains("meanwhile") != shown.contains("meanwhile"))
        differ("meanwhile", "# with no window " + said.dump() + ", with one " + shown.dump());
}

void Pair::compareWindows()
{
    compare("MDIOndelis", headless_.eyes().see(headless_.frame()), window_.eyes().see(window_.frame()));
    const auto& said = headless_.frame().desk().loadedPanels();
    const auto& shown = window_.frame().desk().loadedPanels();
    if (said.size() != shown.size())
        return differ("panels", "# other panels are loaded");
    for (const FeuilleCalcul* const panel : said)
        if (const FeuilleCalcul* const same = shownPanel(*panel))
            compare(panel->design().name, headless_.eyes().see(*panel), window_.eyes().see(*same));
        else
            differ(panel->design().name, "expect " + panel->design().name + " visible");
}

void Pair::compareControls()
{
    const bool all = ++commands_ % everything == 0;
    for (const FeuilleCalcul* const panel : headless_.frame().desk().loadedPanels())
        for (Control* const control : panel->controls())
            if (all || changed_.contains({panel->design().name, control->name()}))
                compareControl(*panel, *control);
    changed_.clear();
}

void Pair::compareControl(const FeuilleCalcul& panel, Control& said)
{
    const FeuilleCalcul* const same = shownPanel(panel);
    if (same != nullptr)
        compare(panel.design().name + '.' + said.name(), headless_.eyes().see(said),
            window_.eyes().see(*same->find(said.name())));
}

void Pair::compare(const std::string& of, const Json& said, const Json& shown)
{
    for (const auto& [member, value] : said.items()) {
        const Json& other = shown[member];
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

const FeuilleCalcul* Pair::shownPanel(const FeuilleCalcul& panel) const
{
    return pilote::findPanel(window_.frame(), panel.design().name);
}

void Pair::differ(std::string where, std::string expectation)
{
    if (difference_.where.empty())
        difference_ = {.where = std::move(where), .expectation = std::move(expectation)};
}

} // namespace ondelis::fuzz

#include <algorithm>
#include <stdexcept>

#include "Pilote.h"
#include "forms/FeuilleCalcul.h"

namespace ondelis::pilote {
namespace {

/// What an expectation asks for is not there; says why.
class Absent final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Numbers are compared as numbers; one with a fraction is a position, and compared as a Single.
bool same(const Json& wanted, const Json& got)
{
    if (got.is_number_float() && wanted.is_number())
        return wanted.get<float>() == got.get<float>();
    return wanted == got;
}

Json judged(const Json& wanted, const Json& got)
{
    if (same(wanted, got))
        return {{"ok", true}, {"got", got}};
    return {{"ok", false}, {"wanted", wanted}, {"got", got}};
}

/// A text, a number, true, false, null, or an array of these.
Json jsonValue(Tokenizer& words)
{
    if (words.quotedNext()) {
        Json text = words.next();
        words.finish();
        return text;
    }
    Json value = Json::parse(words.rest(), nullptr, false);
    const bool flat = value.is_primitive()
        || (value.is_array() && std::ranges::all_of(value, [](const Json& v) { return v.is_primitive(); }));
    if (value.is_discarded() || !flat)
        throw Malformed{"not a JSON value"};
    return value;
}

/// An object of captions by name.
Json namedCaptions(Tokenizer& words)
{
    Json value = Json::parse(words.rest(), nullptr, false);
    if (!value.is_object() || !std::ranges::all_of(value, [](const Json& v) { return v.is_string(); }))
        throw Malformed{"not a JSON object of captions"};
    return value;
}

/// The captions of menus or of entries, by their names, in their order.
Json captions(const Json& items)
{
    Json byName = Json::object();
    for (const Json& item : items)
        byName[item["Name"].get<std::string>()] = item["Caption"];
    return byName;
}

} // namespace

Json Pilote::expect(Tokenizer& words)
{
    const std::string subject = words.next();
    if (subject == "message")
        return expectMessage(words);
    if (subject == "no")
        return expectNothing(words);
    if (subject == "fault")
        return expectFault(words);
    if (subject == "refused")
        return expectRefused(words);
    if (subject == "menus")
        return expectFound(namedCaptions(words), [&] { return captions(backend_.inspector().menus()); });
    if (subject == "menu")
        return expectEntries(words);
    if (subject.find('.') == std::string::npos)
        return expectVisibility(subject, words);
    return expectMember(subject, words);
}

Json Pilote::expectMessage(Tokenizer& words)
{
    const std::string prompt = words.next();
    const auto& boxes = backend_.boxes();
    if (words.atEnd()) {
        const std::size_t next = expectedBoxes_++;
        return judged(prompt, next < boxes.size() ? Json(boxes[next].prompt) : Json{});
    }
    const std::string title = words.next();
    const Json buttons = jsonValue(words);
    const std::size_t next = expectedBoxes_++;
    return judged(Json::array({prompt, title, buttons}),
        next < boxes.size() ? Json::array({boxes[next].prompt, boxes[next].title, boxes[next].buttons}) : Json{});
}

Json Pilote::expectNothing(Tokenizer& words)
{
    const std::string what = words.next();
    words.finish();
    if (what == "message") {
        const auto& boxes = backend_.boxes();
        return judged({}, expectedBoxes_ < boxes.size() ? Json(boxes[expectedBoxes_].prompt) : Json{});
    }
    if (what == "fault") {
        const auto& fault = backend_.fault();
        return judged({}, fault ? Json(fault->what()) : Json{});
    }
    throw Malformed{"neither \"no message\" nor \"no fault\""};
}

Json Pilote::expectFault(Tokenizer& words)
{
    const std::string name = words.next();
    words.finish();
    const auto& fault = backend_.fault();
    return judged(name, fault ? Json(fault->what()) : Json{});
}

Json Pilote::expectRefused(Tokenizer& words)
{
    words.finish();
    if (const Refusal refusal = refusal_ ? refusal_ : backend_.meanwhileRefused())
        return {{"ok", true}, {"got", *refusal}};
    return {{"ok", false}, {"wanted", "refused"}, {"got", nullptr}};
}

Json Pilote::expectVisibility(const std::string& name, Tokenizer& words)
{
    const std::string wanted = words.next();
    words.finish();
    if (wanted != "visible" && wanted != "hidden" && wanted != "unloaded")
        throw Malformed{"neither visible nor hidden nor unloaded: " + wanted};
    const FeuilleCalcul* const loaded = panel(name);
    return judged(wanted,
        loaded == nullptr                                      ? "unloaded"
            : backend_.inspector().inspect(*loaded)["visible"] ? "visible"
                                                               : "hidden");
}

Json Pilote::expectMember(const std::string& path, Tokenizer& words)
{
    return expectFound(jsonValue(words), [&] { return member(path); });
}

Json Pilote::expectEntries(Tokenizer& words)
{
    const std::string name = words.next();
    return expectFound(namedCaptions(words), [&] {
        for (const Json& menu : backend_.inspector().menus())
            if (menu["Name"] == name)
                return captions(menu["Entries"]);
        throw Absent{"there is no such menu"};
    });
}

Json Pilote::expectFound(const Json& wanted, const std::function<Json()>& look) const
{
    try {
        if (!running())
            throw Absent{"the program does not run"};
        return judged(wanted, look());
    } catch (const Absent& absent) {
        return {{"ok", false}, {"wanted", wanted}, {"got", nullptr}, {"why", absent.what()}};
    }
}

Json Pilote::member(const std::string& path) const
{
    const std::size_t first = path.find('.');
    const std::size_t last = path.rfind('.');
    const std::string name = path.substr(0, first);
    const std::string memberName = path.substr(last + 1);
    Json state;
    if (name == "MDIOndelis" && first == last) {
        state = backend_.inspector().inspect(backend_.frame());
    } else {
        const FeuilleCalcul* const loaded = panel(name);
        if (loaded == nullptr)
            throw Absent{"the panel is not loaded"};
        if (first == last) {
            state = backend_.inspector().inspect(*loaded);
        } else {
            Control* const control = loaded->find(path.substr(first + 1, last - first - 1));
            if (control == nullptr)
                throw Absent{"the panel has no such control"};
            state = backend_.inspector().inspect(*control);
        }
    }
    if (!state.contains(memberName))
        throw Absent{"no such member"};
    return state[memberName];
}

} // namespace ondelis::pilote

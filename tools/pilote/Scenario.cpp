#include "Scenario.h"

#include <array>
#include <fstream>
#include <optional>
#include <utility>

#include "Pilote.h"

namespace ondelis::pilote {
namespace {

/// The members of a reply that an expectation must name, and the word by which it does.
constexpr std::array<std::pair<const char*, const char*>, 3> kinds{
    {{"refused", "refused"}, {"meanwhile", "refused"}, {"fault", "fault"}}};

class ScenarioPlayer {
public:
    ScenarioPlayer(std::string file, Backend& backend, std::ostream& out)
        : file_{std::move(file)}, out_{out}, pilote_{backend}
    {
    }

    void play(const std::string& line)
    {
        ++number_;
        try {
            Tokenizer words{line};
            if (words.atEnd())
                return;
            if (words.next() == "expect")
                expectation(line, words);
            else
                command(line);
        } catch (const Malformed& malformed) {
            fail(number_, line, malformed.what());
        }
    }

    Tally end()
    {
        reportUnexpected();
        return tally_;
    }

private:
    /// What a command did that an expectation must name.
    struct Unexpected {
        int number;
        std::string line;
        const char* kind; // "refused" or "fault"
        std::string what;
    };

    void command(const std::string& line)
    {
        reportUnexpected();
        const Json reply = pilote_.answer(line);
        if (reply.contains("error"))
            fail(number_, line, reply["error"].get<std::string>());
        for (const auto& [member, kind] : kinds)
            if (reply.contains(member) && reply[member].is_string())
                unexpected_ = {.number = number_, .line = line, .kind = kind, .what = reply[member]};
    }

    void expectation(const std::string& line, Tokenizer& words)
    {
        ++tally_.expectations;
        const Json reply = pilote_.answer(line);
        if (unexpected_ && !words.atEnd() && words.next() == unexpected_->kind)
            unexpected_.reset();
        if (reply.contains("error"))
            fail(number_, line, reply["error"].get<std::string>());
        else if (!reply["ok"].get<bool>())
            fail(number_, line,
                "wanted " + reply["wanted"].dump() + ", got " + reply["got"].dump()
                    + (reply.contains("why") ? ": " + reply["why"].get<std::string>() : ""));
    }

    void reportUnexpected()
    {
        if (unexpected_)
            fail(unexpected_->number, unexpected_->line, std::string{unexpected_->kind} + ": " + unexpected_->what);
        unexpected_.reset();
    }

    void fail(int number, const std::string& line, const std::string& why)
    {
        ++tally_.failures;
        out_ << file_ << ':' << number << ": " << line << ": " << why << '\n';
    }

    std::string file_;
    std::ostream& out_;
    Pilote pilote_;
    int number_ = 0;
    std::optional<Unexpected> unexpected_;
    Tally tally_;
};

} // namespace

Tally playScenario(const std::string& file, Backend& backend, std::ostream& out)
{
    std::ifstream in{file};
    ScenarioPlayer player{file, backend, out};
    std::string line;
    while (std::getline(in, line))
        player.play(line);
    Tally tally = player.end();
    if (!in.eof()) {
        ++tally.failures;
        out << file << ": cannot be read\n";
    }
    return tally;
}

} // namespace ondelis::pilote

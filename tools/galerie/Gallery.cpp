#include "Gallery.h"

#include <fstream>
#include <set>

#include "ScriptedSurroundings.h"
#include "Words.h"
#include "shell/Menu.h"

namespace ondelis::galerie {

std::vector<Subject> allSubjects()
{
    pilote::ScriptedSurroundings surroundings;
    Desk desk{surroundings};
    MDIOndelis frame{desk};
    frame.start();
    std::vector<Subject> subjects;
    for (const Menu& menu : menuTree())
        for (const MenuEntry& entry : menu.entries) {
            if (entry.control == quitEntry)
                continue;
            frame.click(entry);
            // The companion is loaded after the panel beside which it stands.
            subjects.push_back({.panel = std::string{desk.loadedPanels().front()->design().name},
                .entry = std::string{entry.control},
                .caption = std::string{entry.caption},
                .menu = std::string{menu.caption}});
        }
    return subjects;
}

Gallery::Gallery(std::filesystem::path examples, std::filesystem::path pictures, const Look& look)
    : examples_{std::move(examples)}, pictures_{std::move(pictures)}, look_{look.name()}
{
}

void Gallery::draw(const Subject& subject) const
{
    Player player;
    player.play("menu " + subject.entry);
    take(player, subject.panel, subject.panel);
    playExample(player, subject);
}

void Gallery::playExample(Player& player, const Subject& subject) const
{
    const std::filesystem::path file = examples_ / (subject.panel + ".txt");
    if (!exists(file))
        return; // there is no more to see than when it opens
    std::ifstream in{file};
    std::set<std::string> names;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        try {
            pilote::Words words{line};
            if (words.atEnd())
                continue;
            if (words.next() != "picture") {
                player.play(line);
                continue;
            }
            const std::string name = words.next();
            const std::string window = words.atEnd() ? subject.panel : words.next();
            words.finish();
            if (!names.insert(name).second)
                throw Refused{"a picture of this name has been taken"};
            take(player, window, subject.panel + '-' + name);
        } catch (const std::runtime_error& error) {
            throw Refused{file.string() + ':' + std::to_string(number) + ": " + line + ": " + error.what()};
        }
    }
    if (!in.eof())
        throw Refused{file.string() + ": cannot be read"};
}

void Gallery::take(const Player& player, std::string_view window, const std::string& name) const
{
    player.picture(window, pictures_ / (name + '-' + look_ + ".png"));
}

} // namespace ondelis::galerie

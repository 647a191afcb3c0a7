#include "Gallery.h"

#include <fstream>
#include <set>

#include "ScriptedHost.h"
#include "Tokenizer.h"
#include "shell/Menu.h"

namespace ondelis::galerie {

std::vector<GalleryItem> galleryItems()
{
    pilote::ScriptedHost host;
    Runtime runtime{host};
    MDIOndelis frame{runtime};
    frame.start();
    std::vector<GalleryItem> items;
    for (const Menu& menu : menuTree())
        for (const MenuEntry& entry : menu.entries) {
            if (entry.control == quitEntry)
                continue;
            frame.click(entry);
            // The companion is loaded after the panel beside which it stands.
            items.push_back({.panel = std::string{runtime.loadedPanels().front()->design().name},
                .entry = std::string{entry.control},
                .caption = std::string{entry.caption},
                .menu = std::string{menu.caption}});
        }
    return items;
}

Gallery::Gallery(std::filesystem::path examples, std::filesystem::path pictures, const Look& look)
    : examples_{std::move(examples)}, pictures_{std::move(pictures)}, look_{look.name()}
{
}

void Gallery::draw(const GalleryItem& item) const
{
    WindowedProgram program;
    program.play("menu " + item.entry);
    take(program, item.panel, item.panel);
    playExample(program, item);
}

void Gallery::playExample(WindowedProgram& program, const GalleryItem& item) const
{
    const std::filesystem::path file = examples_ / (item.panel + ".txt");
    if (!exists(file))
        return; // there is no more to see than when it opens
    std::ifstream in{file};
    std::set<std::string> names;
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        try {
            pilote::Tokenizer words{line};
            if (words.atEnd())
                continue;
            if (words.next() != "picture") {
                program.play(line);
                continue;
            }
            const std::string name = words.next();
            const std::string window = words.atEnd() ? item.panel : words.next();
            words.finish();
            if (!names.insert(name).second)
                throw Refused{"a picture of this name has been taken"};
            take(program, window, item.panel + '-' + name);
        } catch (const std::runtime_error& error) {
            throw Refused{file.string() + ':' + std::to_string(number) + ": " + line + ": " + error.what()};
        }
    }
    if (!in.eof())
        throw Refused{file.string() + ": cannot be read"};
}

void Gallery::take(const WindowedProgram& program, std::string_view window, const std::string& name) const
{
    program.picture(window, pictures_ / (name + '-' + look_ + ".png"));
}

} // namespace ondelis::galerie

// Pictures of the panels in the real view. Usage:
//
//     galerie [--openings] FOLDER [PANEL ...]
//
// For each panel of the menu, or for those that are named, light and dark, at 96, 120, 144 and 192 dpi:
//
//     FOLDER/PANEL-96.png ...              as it opens
//     FOLDER/PANEL-NAME-sombre-96.png ...  at the line "picture NAME" of its example, exemples/PANEL.txt
//     FOLDER/index.html                    all of them on one page
//
// With --openings only the pictures of panels as they open. An example is a file of gestures and answers in the
// driver's language, and of "picture" lines; "picture NAME WINDOW" takes a picture of another panel, or of the main
// window, MDIOndelis.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <span>

#include <sys/wait.h>
#include <unistd.h>

#include "Gallery.h"
#include "view/Application.h"

namespace {

using namespace ondelis;
using namespace ondelis::galerie;

/// Those of the menu's panels that are named; all if no name is given. Throws Refused.
std::vector<GalleryItem> chosen(std::span<char* const> names)
{
    std::vector<GalleryItem> all = galleryItems();
    if (names.empty())
        return all;
    std::vector<GalleryItem> some;
    for (const std::string name : names) {
        const auto found = std::ranges::find(all, name, &GalleryItem::panel);
        if (found == all.end())
            throw Refused{"the menu opens no panel " + name};
        some.push_back(*found);
    }
    return some;
}

struct Folders {
    std::filesystem::path examples; ///< empty for none
    std::filesystem::path pictures;
};

/// Draws in this process, which takes on this look; returns its exit status.
int drawAll(const Look& look, const std::vector<GalleryItem>& items, const Folders& folders)
{
    look.chooseResolution();
    std::string name{"galerie"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    int count = 1;
    const Application application{count, arguments.data()};
    look.apply();
    const Gallery gallery{folders.examples, folders.pictures, look};
    try {
        for (const GalleryItem& item : items)
            gallery.draw(item);
        return 0;
    } catch (const Refused& refused) {
        std::cerr << "galerie: " << refused.what() << '\n';
        return 1;
    }
}

/// Draws in a process for each look, all at once; returns whether all succeeded.
bool drawEach(std::span<const Look> some, const std::vector<GalleryItem>& items, const Folders& folders)
{
    std::vector<pid_t> processes;
    for (const Look& look : some) {
        processes.push_back(fork());
        if (processes.back() == 0)
            std::exit(drawAll(look, items, folders));
    }
    bool good = true;
    for (const pid_t process : processes) {
        int status = 1;
        waitpid(process, &status, 0);
        if (WIFSIGNALED(status))
            std::cerr << "galerie: ended by signal " << WTERMSIG(status) << '\n';
        good = status == 0 && good;
    }
    return good;
}

} // namespace

int main(int argc, char** argv)
{
    std::span<char* const> words = std::span{argv, static_cast<std::size_t>(argc)}.subspan(1);
    const bool openings = !words.empty() && words[0] == std::string_view{"--openings"};
    if (openings)
        words = words.subspan(1);
    if (words.empty()) {
        std::cerr << "usage: galerie [--openings] FOLDER [PANEL ...]\n";
        return 2;
    }
    try {
        const Folders folders{.examples = openings ? "" : EXAMPLES, .pictures = words[0]};
        const std::vector<GalleryItem> items = chosen(words.subspan(1));
        std::filesystem::create_directories(folders.pictures);
        // A faulty example is reported once: by the first look, alone.
        const std::span all{looks};
        if (!drawEach(all.first(1), items, folders) || !drawEach(all.subspan(1), items, folders))
            return 1;
        writeIndex(folders.pictures);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "galerie: " << error.what() << '\n';
        return 1;
    }
}

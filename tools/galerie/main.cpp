// Pictures of the panels in the real view. Usage:
//
//     galerie FOLDER [PANEL ...]
//
// For each panel of the menu, or for those that are named, at 96 and 192 dpi, light and dark:
//
//     FOLDER/PANEL-96.png ...              as it opens
//     FOLDER/PANEL-NAME-sombre-96.png ...  at the line "picture NAME" of its example, exemples/PANEL.txt
//     FOLDER/Ondelis-96.png ...            the main window with the first of the panels
//     FOLDER/index.html                    all of them on one page
//
// An example is a file of gestures in the driver's language, and of such lines.

#include <algorithm>
#include <iostream>
#include <span>

#include <sys/wait.h>
#include <unistd.h>

#include "Gallery.h"
#include "view/Application.h"

namespace {

using namespace ondelis;
using namespace ondelis::galerie;

/// Those of the menu's panels that are named; all where no name is given. Throws Refused.
std::vector<Subject> chosen(std::span<char* const> names)
{
    std::vector<Subject> all = allSubjects();
    if (names.empty())
        return all;
    std::vector<Subject> some;
    for (const std::string name : names) {
        const auto found = std::ranges::find(all, name, &Subject::panel);
        if (found == all.end())
            throw Refused{"the menu opens no panel " + name};
        some.push_back(*found);
    }
    return some;
}

/// Runs in a process of its own; gives its exit status.
int drawAll(const Look& look, const std::vector<Subject>& subjects, const char* folder, int argc, char** argv)
{
    look.chooseResolution();
    const Application application{argc, argv};
    look.applyPalette();
    const Gallery gallery{EXAMPLES, folder, look};
    try {
        gallery.drawMainWindow(subjects.front());
        for (const Subject& subject : subjects)
            gallery.draw(subject);
        return 0;
    } catch (const Refused& refused) {
        std::cerr << "galerie: " << refused.what() << '\n';
        return 1;
    }
}

/// Whether a process ends well.
bool succeeds(pid_t process)
{
    int status = 1;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::span arguments{argv, static_cast<std::size_t>(argc)};
    if (arguments.size() < 2) {
        std::cerr << "usage: galerie FOLDER [PANEL ...]\n";
        return 2;
    }
    try {
        const std::vector<Subject> subjects = chosen(arguments.subspan(2));
        std::filesystem::create_directories(arguments[1]);
        for (const Look& look : looks) {
            const pid_t process = fork();
            if (process == 0)
                return drawAll(look, subjects, arguments[1], argc, argv);
            if (!succeeds(process))
                return 1;
        }
        writeIndex(arguments[1]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "galerie: " << error.what() << '\n';
        return 1;
    }
}

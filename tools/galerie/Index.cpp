#include <algorithm>
#include <fstream>
#include <utility>

#include "Gallery.h"

namespace ondelis::galerie {
namespace {

using std::filesystem::path;

constexpr const char* head = R"(<!DOCTYPE html>
<html lang="fr">
<meta charset="utf-8">
<title>Ondelis</title>
<style>
body { font-family: sans-serif; margin: 2em; background: #eceff3; color: #1f2d3d }
figure { display: inline-block; margin: 0 1em 1em 0; vertical-align: top }
</style>
<h1>Ondelis</h1>
)";

/// "PANEL" and each "PANEL-NAME" of which there are pictures, in that order.
std::vector<std::string> picturesOf(const std::string& panel, const path& folder)
{
    const std::string end = '-' + looks.front().name() + ".png";
    std::vector<std::string> pictures;
    for (const auto& entry : std::filesystem::directory_iterator{folder}) {
        const std::string file = entry.path().filename();
        if (file.starts_with(panel + '-') && file.ends_with(end) && !file.ends_with("-sombre" + end))
            pictures.push_back(file.substr(0, file.size() - end.size()));
    }
    std::ranges::sort(pictures);
    return pictures;
}

/// A picture in light and dark, each a link to its large one, with links to the scales in between.
void show(const std::string& picture, std::ostream& page)
{
    page << "<figure><figcaption>" << picture;
    for (const auto& [palette, words] : {std::pair{"-", ""}, std::pair{"-sombre-", " sombre"}})
        for (const auto& [percent, dpi] : {std::pair{125, 120}, std::pair{150, 144}})
            page << " · <a href=\"" << picture << palette << dpi << ".png\">" << percent << " %" << words << "</a>";
    page << "</figcaption>\n";
    for (const char* const palette : {"-", "-sombre-"})
        page << "<a href=\"" << picture << palette << "192.png\"><img loading=\"lazy\" alt=\"" << picture << "\" src=\""
             << picture << palette << "96.png\"></a>\n";
    page << "</figure>\n";
}

} // namespace

void writeIndex(const path& folder)
{
    std::ofstream page{folder / "index.html"};
    page << head;
    std::string menu;
    for (const GalleryItem& item : galleryItems()) {
        const std::vector<std::string> pictures = picturesOf(item.panel, folder);
        if (pictures.empty())
            continue;
        if (std::exchange(menu, item.menu) != item.menu)
            page << "<h2>" << item.menu << "</h2>\n";
        page << "<h3>" << item.caption << "</h3>\n";
        for (const std::string& picture : pictures)
            show(picture, page);
    }
    if (!page.flush())
        throw Refused{"cannot write " + (folder / "index.html").string()};
}

} // namespace ondelis::galerie

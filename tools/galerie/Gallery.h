#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "Look.h"
#include "WindowedProgram.h"

namespace ondelis::galerie {

/// A panel that the menu opens, without its companion.
struct GalleryItem {
    std::string panel;
    std::string entry; ///< of the menu
    std::string caption; ///< of the entry
    std::string menu; ///< the caption of its drop-down
};

/// All panels, in the order of the menu.
[[nodiscard]] std::vector<GalleryItem> galleryItems();

/// Takes pictures of panels in one look: as they open, and where their examples say so.
class Gallery {
public:
    /// The folders of the examples, empty for none, and of the pictures, which exists.
    Gallery(std::filesystem::path examples, std::filesystem::path pictures, const Look& look);

    /// Takes a picture of one panel as it opens, in a fresh program, then plays its example. Throws Refused, with file
    /// and line if the example is at fault.
    void draw(const GalleryItem& item) const;

private:
    void playExample(WindowedProgram& program, const GalleryItem& item) const;
    void take(const WindowedProgram& program, std::string_view window, const std::string& name) const;

    std::filesystem::path examples_;
    std::filesystem::path pictures_;
    std::string look_;
};

/// Writes index.html into a folder of pictures, which shows them menu by menu. Throws Refused.
void writeIndex(const std::filesystem::path& folder);

} // namespace ondelis::galerie

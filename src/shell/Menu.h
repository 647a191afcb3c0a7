#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "forms/FeuilleCalcul.h"

namespace ondelis {

class Runtime;
class MDIOndelis;

/// One step of what an entry does once all panels are closed.
using MenuStep = std::function<void(MDIOndelis& frame)>;

/// An entry of the second level: its control, its caption, and what a click does, step by step.
struct MenuEntry {
    std::string_view control;
    std::string_view caption;
    std::vector<MenuStep> steps;
};

/// The entry that ends the program.
inline constexpr std::string_view quitEntry = "MenuQuitter";

/// A drop-down of the first level.
struct Menu {
    std::string_view control;
    std::string_view caption;
    std::vector<MenuEntry> entries;
};

/// The whole tree, in display order.
[[nodiscard]] const std::vector<Menu>& menuTree();

/// The entries that open panels, in display order: all but the one that ends the program.
[[nodiscard]] const std::vector<const MenuEntry*>& panelEntries();

/// The entry of that control; null if there is none.
[[nodiscard]] const MenuEntry* findMenuEntry(std::string_view control);

} // namespace ondelis

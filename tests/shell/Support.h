#pragma once

#include "forms/Support.h"
#include "shell/MDIOndelis.h"
#include "shell/Menu.h"

namespace ondelis {

/// The frame of the program, started on the screen of the test's host.
class FrameTest : public RuntimeTest {
protected:
    MDIOndelis frame{runtime};

    /// Clicks an entry of the menu; false if there is none of that name.
    bool click(std::string_view control)
    {
        const MenuEntry* const entry = findMenuEntry(control);
        if (entry == nullptr)
            return false;
        frame.click(*entry);
        return true;
    }

    /// The panel of that class if it is loaded, else null.
    [[nodiscard]] FeuilleCalcul* panel(std::string_view name) const
    {
        for (FeuilleCalcul* const loaded : runtime.loadedPanels())
            if (loaded->design().name == name)
                return loaded;
        return nullptr;
    }
};

} // namespace ondelis

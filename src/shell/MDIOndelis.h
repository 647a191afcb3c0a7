#pragma once

#include "forms/Property.h"
#include "forms/Runtime.h"
#include "shell/Menu.h"

namespace ondelis {

/// The main frame: the first and the last window of the program, and the place from which the user opens panels.
class MDIOndelis final : public PropertyOwner {
public:
    explicit MDIOndelis(Runtime& runtime) : runtime_{runtime} { }

    /// Place and outer size on the screen, in twips.
    Property<Single> Left{*this};
    Property<Single> Top{*this};
    Property<Single> Width{*this};
    Property<Single> Height{*this};
    Property<std::string> Caption{*this};

    /// Sizes and centres the frame. The program starts here.
    void start();
    /// The user clicks an entry of the menu.
    void click(const MenuEntry& entry);
    /// The close box of the frame: the program ends.
    void close();
    /// The user has moved or resized the window; twips.
    void geometryChanged(const Point& corner, const Size& size);

    [[nodiscard]] Runtime& runtime() const { return runtime_; }

    void ensureLoaded() override { }
    void changed() override;

private:
    void MDIForm_Load();
    /// Closes all panels, whatever was typed into them.
    void CacherFeuilles();

    Runtime& runtime_;
};

} // namespace ondelis

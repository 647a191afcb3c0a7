#pragma once

#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/ResumeNext.h"
#include "forms/Surroundings.h"

namespace ondelis {

class Desk;

/// A panel: controls, panel-level variables, handlers. Its object lives from the first reference to the end of the
/// program; each loading resets its controls to their design values, while its variables keep theirs.
class FeuilleCalcul : public Element {
public:
    struct Design {
        std::string name; ///< of the class
        std::string Caption;
        double Width;
        double Height;
    };
    FeuilleCalcul(Desk& desk, Design design);

    Property<std::string> Caption{*this};
    Property<Single> Left{*this};
    Property<Single> Top{*this};
    Property<Single> Width{*this};
    Property<Single> Height{*this};

    /// Loads the panel when needed and brings it on screen.
    void Show();
    /// Takes the panel off the screen; its controls stay. Loads it when needed.
    void Hide();
    /// Closes the panel: its controls go, its variables stay. Does nothing if it is not loaded.
    void Unload();

    [[nodiscard]] const Design& design() const { return design_; }
    [[nodiscard]] Desk& desk() const { return desk_; }
    [[nodiscard]] bool loaded() const { return loaded_; }
    [[nodiscard]] bool visible() const { return visible_; }
    /// How often it has been loaded: a handler of an earlier loading must not go on in a later one.
    [[nodiscard]] unsigned loading() const { return loading_; }
    /// In the order of the form, which is the tab order.
    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    /// Null if the panel has no control of that name.
    [[nodiscard]] Control* find(std::string_view name) const;

    /// The user has moved the panel; twips.
    void placed(const Extent& corner);

    void touch() final;
    void changed() final;

protected:
    /// Shows a message box with one "OK" button.
    void MsgBox(const std::string& prompt);
    /// Shows a message box; `buttons` 4 asks "Oui" or "Non".
    Answer MsgBox(const std::string& prompt, int buttons, const std::string& title);
    /// Lets the user's pending actions happen before the handler goes on.
    void DoEvents();

private:
    friend class Control;

    virtual void Form_Load() { }

    void load(bool hidden = false);

    Desk& desk_;
    Design design_;
    std::vector<Control*> controls_;
    bool loaded_ = false;
    bool visible_ = false;
    bool staysHidden_ = false; ///< asked while it loads
    unsigned loading_ = 0;
};

} // namespace ondelis

#pragma once

#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/Host.h"
#include "forms/ResumeNext.h"

namespace ondelis {

class Runtime;

/// A panel: controls, panel-level variables, handlers. Its object lives from the first reference to the end of the
/// program; each loading resets its controls to their design values, while its variables keep theirs.
class FeuilleCalcul : public PropertyOwner {
public:
    struct Design {
        std::string name; ///< of the class
        std::string Caption;
        double Width;
        double Height;
    };
    FeuilleCalcul(Runtime& runtime, Design design);

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
    [[nodiscard]] Runtime& runtime() const { return runtime_; }
    [[nodiscard]] bool loaded() const { return loaded_; }
    [[nodiscard]] bool visible() const { return visible_; }
    /// How often it has been loaded: a handler that an earlier load has started must not go on in a later one.
    [[nodiscard]] unsigned loadCount() const { return loadCount_; }
    /// In the order of the form, which is the tab order.
    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }
    /// Null if the panel has no control of that name.
    [[nodiscard]] Control* find(std::string_view name) const;

    /// The user has moved the panel; twips.
    void moved(const Point& corner);

    void ensureLoaded() final;
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

    Runtime& runtime_;
    Design design_;
    std::vector<Control*> controls_;
    bool loaded_ = false;
    bool visible_ = false;
    bool staysHidden_ = false; ///< asked while it loads
    unsigned loadCount_ = 0;
};

} // namespace ondelis

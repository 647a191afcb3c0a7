#pragma once

#include <string>
#include <string_view>

#include "forms/Handler.h"
#include "forms/Property.h"

namespace ondelis {

class ControlVisitor;
class Frame;

/// Where a control stands by design: twips from the upper left corner of its panel, or of its frame.
struct Box {
    double Left = 0;
    double Top = 0;
    double Width = 0;
    double Height = 0;
};

/// The place of a letter on a drawing: its centre as fractions of the drawing's width and height.
[[nodiscard]] constexpr Box letterBox(const Box& drawing, double x, double y)
{
    constexpr double width = 360;
    constexpr double height = 255;
    return {drawing.Left + x * drawing.Width - width / 2, drawing.Top + y * drawing.Height - height / 2, width, height};
}

/// How a text is aligned in its control.
enum class Align { Left, Right, Center };

/// The type of a control's text, in points; panels are written in the default one.
struct Font {
    double size = 9;
    bool bold = false;
};

/// The base of all controls: an element of one panel, with one name, at one place.
class Control : public PropertyOwner {
public:
    Control(FeuilleCalcul* panel, std::string_view name, Box at, Frame* container);

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] FeuilleCalcul& panel() const { return panel_; }
    [[nodiscard]] const Box& at() const { return at_; }
    /// The frame around it; null where it stands on the panel itself.
    [[nodiscard]] Frame* container() const { return container_; }

    /// Whether it is on screen when its panel is: neither it nor the frame around it is hidden.
    [[nodiscard]] bool onScreen() const;
    /// Whether a person can give it the keyboard.
    [[nodiscard]] virtual bool focusable() const { return false; }
    /// It has just got the keyboard.
    virtual void gotFocus() { }

    virtual void accept(ControlVisitor& visitor) = 0;
    /// Goes back to the properties of its design.
    virtual void reset() = 0;

    void ensureLoaded() final;
    void changed() final;

protected:
    /// Whether it is shown when the frame around it is.
    [[nodiscard]] virtual bool ownVisible() const { return true; }
    /// Runs the procedure that listens to an event of this control.
    void raise(const Handler& handler);

private:
    FeuilleCalcul& panel_;
    std::string name_;
    Box at_;
    Frame* container_;
};

} // namespace ondelis

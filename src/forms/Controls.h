#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/Color.h"
#include "forms/Control.h"
#include "forms/Designs.h"

namespace ondelis {

// The control classes. Each takes its panel, its name, its design, and the procedures that listen to its events. A
// store into a property that has an event raises it at once, nested, and only if the value is new.

/// What all classes of controls share: a design, and a way to be visited.
template <class Self, class DesignOfSelf>
class Designed : public Control {
public:
    using Design = DesignOfSelf;

    [[nodiscard]] const Design& design() const { return design_; }
    void accept(ControlVisitor& visitor) final;

protected:
    Designed(FeuilleCalcul* panel, std::string_view name, Design design)
        : Control{panel, name, boxOf(design), containerOf(design)}, design_{std::move(design)}
    {
    }

private:
    // A line has no box, and neither it nor a frame stands in a frame.
    static Box boxOf(const auto& design)
    {
        if constexpr (requires { design.at; })
            return design.at;
        else
            return {};
    }
    static Frame* containerOf(const auto& design)
    {
        if constexpr (requires { design.container; })
            return design.container;
        else
            return nullptr;
    }

    Design design_;
};

/// A control that code can hide.
template <class Self, class DesignOfSelf>
class Hideable : public Designed<Self, DesignOfSelf> {
public:
    Property<bool> Visible{*this};

    void reset() override { Visible.reset(this->design().Visible); }

protected:
    using Designed<Self, DesignOfSelf>::Designed;

private:
    [[nodiscard]] bool ownVisible() const final { return Visible; }
};

/// A fixed caption, or a result written as one.
class Label final : public Hideable<Label, LabelDesign> {
    void storeCaption(std::string caption);

public:
    Label(FeuilleCalcul* panel, std::string_view name, Design design);

    ActiveProperty<Label, std::string, &Label::storeCaption> Caption{*this};
    Property<Single> Top{*this};

    /// Whether code has stored its caption since the panel was loaded, even if it is the one of its design.
    [[nodiscard]] bool written() const { return written_; }

    void reset() override;

private:
    bool written_ = false;
};

/// A field. Raises `Change` after its text has changed, and `KeyPress` before a key enters it.
class TextBox final : public Hideable<TextBox, TextBoxDesign> {
    void storeText(std::string text);

public:
    TextBox(FeuilleCalcul* panel, std::string_view name, Design design, Handler change = {}, KeyHandler keyPress = {});

    ActiveProperty<TextBox, std::string, &TextBox::storeText> Text{*this};
    Property<Color> BackColor{*this};
    Property<Color> ForeColor{*this};
    Property<bool> Locked{*this};
    Property<Single> Top{*this};

    /// Gives the field the keyboard. Throws an invalid argument if the field is hidden.
    void SetFocus();

    /// Shows a key to the panel before it enters the field.
    void keyPress(Integer key);

    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void reset() override;

private:
    Handler change_;
    KeyHandler keyPress_;
};

/// The design of a field that shows a result, on the background of its role, and can be typed over.
[[nodiscard]] inline TextBox::Design openResultField(Box at, Label* label, Color background = resultColor)
{
    return {.at = at, .BackColor = background, .label = label};
}

/// The design of a field that only shows a result: locked, on the background of its role.
[[nodiscard]] inline TextBox::Design resultField(Box at, Label* label, Color background = resultColor)
{
    return {.at = at, .BackColor = background, .Locked = true, .label = label};
}

/// A list of texts of which at most one is chosen. Raises `Click` when `ListIndex` changes.
class ListBox final : public Hideable<ListBox, ListBoxDesign> {
    void storeListIndex(Integer row);

public:
    ListBox(FeuilleCalcul* panel, std::string_view name, Design design, Handler click = {}, Handler gotFocus = {});

    /// The chosen row from 0, -1 for none. A store beyond the list throws an invalid property value.
    ActiveProperty<ListBox, Integer, &ListBox::storeListIndex> ListIndex{*this};
    Property<Color> BackColor{*this};

    void AddItem(std::string text);
    /// Removes all rows, and so the choice; raises nothing.
    void Clear();
    /// The text of a row, "" if there is no such row.
    [[nodiscard]] std::string List(Integer row) const;
    [[nodiscard]] Integer ListCount() const;

    /// The text of the chosen row, "" if there is none.
    class ChosenText {
    public:
        explicit ChosenText(const ListBox& list) : list_{list} { }
        operator std::string() const { return list_.List(list_.ListIndex); } // NOLINT(google-explicit-constructor)

    private:
        const ListBox& list_;
    };
    const ChosenText Text{*this};

    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    /// A person clicks a row.
    void choose(Integer row);

    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void gotFocus() override;
    void reset() override;

private:
    Handler click_;
    Handler gotFocus_;
    std::vector<std::string> items_;
};

/// One of the options of its panel, or of its frame, of which at most one is chosen. Raises `Click` when it
/// becomes the chosen one.
class OptionButton final : public Hideable<OptionButton, OptionButtonDesign> {
    void storeValue(bool chosen);

public:
    OptionButton(FeuilleCalcul* panel, std::string_view name, Design design, Handler click = {});

    ActiveProperty<OptionButton, bool, &OptionButton::storeValue> Value{*this};
    Property<Color> ForeColor{*this};

    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void reset() override;

private:
    Handler click_;
};

/// A push button. Storing true into `Value` is a click.
class CommandButton final : public Hideable<CommandButton, CommandButtonDesign> {
    void storeValue(bool pressed);

public:
    CommandButton(FeuilleCalcul* panel, std::string_view name, Design design, Handler click = {});

    ActiveProperty<CommandButton, bool, &CommandButton::storeValue> Value{*this};

    [[nodiscard]] bool focusable() const override { return onScreen(); }

private:
    Handler click_;
};

enum class Orientation { Horizontal, Vertical };

/// A bar between two limits. `Min` is at its left or upper end, `Max` at the other, and `Min` may be the larger. Raises
/// `Change` when its value changes.
class ScrollBar : public Hideable<ScrollBar, ScrollBarDesign> {
    void storeValue(Integer value);
    void storeMin(Integer limit);
    void storeMax(Integer limit);

public:
    /// A store outside the limits throws an invalid property value.
    ActiveProperty<ScrollBar, Integer, &ScrollBar::storeValue> Value{*this};
    /// A limit that leaves `Value` outside moves it to the nearest limit.
    ActiveProperty<ScrollBar, Integer, &ScrollBar::storeMin> Min{*this};
    ActiveProperty<ScrollBar, Integer, &ScrollBar::storeMax> Max{*this};

    [[nodiscard]] Orientation orientation() const { return orientation_; }
    [[nodiscard]] bool allows(Integer value) const;
    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void reset() override;

protected:
    ScrollBar(Orientation orientation, FeuilleCalcul* panel, std::string_view name, Design design, Handler change);

private:
    void moveInside();

    Orientation orientation_;
    Handler change_;
};

class HScrollBar final : public ScrollBar {
public:
    HScrollBar(FeuilleCalcul* panel, std::string_view name, Design design, Handler change = {});
};

class VScrollBar final : public ScrollBar {
public:
    VScrollBar(FeuilleCalcul* panel, std::string_view name, Design design, Handler change = {});
};

/// A titled group of controls, or a titled drawing.
class Frame final : public Hideable<Frame, FrameDesign> {
public:
    Frame(FeuilleCalcul* panel, std::string_view name, Design design);
};

/// A drawing. Its two kinds differ in name only.
class Picture : public Hideable<Picture, PictureDesign> {
public:
    /// "PictureBox" or "Image".
    [[nodiscard]] const char* kind() const { return kind_; }

protected:
    Picture(const char* kind, FeuilleCalcul* panel, std::string_view name, Design design);

private:
    const char* kind_;
};

class PictureBox final : public Picture {
public:
    PictureBox(FeuilleCalcul* panel, std::string_view name, Design design);
};

class Image final : public Picture {
public:
    Image(FeuilleCalcul* panel, std::string_view name, Design design);
};

/// A straight line on the panel.
class Line final : public Hideable<Line, LineDesign> {
public:
    Line(FeuilleCalcul* panel, std::string_view name, Design design);

    Property<Single> X1{*this};
    Property<Single> Y1{*this};
    Property<Single> X2{*this};
    Property<Single> Y2{*this};

    void reset() override;
};

/// A rectangle drawn around what belongs together.
class Shape final : public Designed<Shape, ShapeDesign> {
public:
    Shape(FeuilleCalcul* panel, std::string_view name, Design design);

    void reset() override { }
};

/// A read-only display of a number in exponent form with three decimals: "1.200E-01".
class MaskEdBox final : public Designed<MaskEdBox, MaskEdBoxDesign> {
public:
    MaskEdBox(FeuilleCalcul* panel, std::string_view name, Design design);

    Property<std::string> Text{*this};

    /// What it shows without the keyboard; with it, it shows its text.
    [[nodiscard]] std::string display() const;

    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void reset() override;
};

/// Does something that depends on the class of a control: the view builds widgets, the driver writes its state.
class ControlVisitor {
public:
    ControlVisitor() = default;
    ControlVisitor(const ControlVisitor&) = delete;
    ControlVisitor& operator=(const ControlVisitor&) = delete;
    virtual ~ControlVisitor() = default;

    virtual void visit(Label& label) = 0;
    virtual void visit(TextBox& box) = 0;
    virtual void visit(ListBox& list) = 0;
    virtual void visit(OptionButton& option) = 0;
    virtual void visit(CommandButton& button) = 0;
    virtual void visit(ScrollBar& bar) = 0;
    virtual void visit(Frame& frame) = 0;
    virtual void visit(Picture& picture) = 0;
    virtual void visit(Line& line) = 0;
    virtual void visit(Shape& shape) = 0;
    virtual void visit(MaskEdBox& box) = 0;
};

template <class Self, class DesignOfSelf>
void Designed<Self, DesignOfSelf>::accept(ControlVisitor& visitor)
{
    visitor.visit(static_cast<Self&>(*this));
}

} // namespace ondelis

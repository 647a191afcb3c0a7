#pragma once

#include <string>
#include <vector>

#include "forms/Color.h"
#include "forms/Control.h"

namespace ondelis {

// The control classes. Each takes its panel, its name, its design, and the procedures that listen to its
// events. A store into a property that has an event raises it at once, nested, and only where the value is a
// new one.

/// A fixed caption, or a result written as one.
class Label final : public Control {
    void storeCaption(std::string caption);

public:
    struct Design {
        std::string Caption = {};
        Box at = {};
        Color ForeColor = windowTextColor;
        Align align = Align::Left;
        Font font = {};
        bool Visible = true;
        Frame* container = nullptr;
    };
    Label(FeuilleCalcul* panel, std::string name, Design design);

    ActiveProperty<Label, std::string, &Label::storeCaption> Caption{*this};
    Property<bool> Visible{*this};
    Property<Single> Top{*this};

    /// Whether its caption is one that code has stored since the panel was loaded, be it the one of its design.
    [[nodiscard]] bool written() const { return written_; }

    [[nodiscard]] const Design& design() const { return design_; }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
    bool written_ = false;
};

/// A field. Raises `Change` after its text has changed, and `KeyPress` before a key enters it.
class TextBox final : public Control {
    void storeText(std::string text);

public:
    struct Design {
        std::string Text = {};
        Box at = {};
        Color BackColor = windowColor;
        Color ForeColor = windowTextColor;
        bool Locked = false;
        int MaxLength = 0; ///< characters that can be typed; 0 for no limit
        bool multiLine = false;
        Align align = Align::Left;
        Font font = {};
        bool Visible = true;
        Label* label = nullptr; ///< the caption that names it
        Label* otherLabel = nullptr; ///< the caption that names it while `label` is hidden
        Frame* container = nullptr;
    };
    TextBox(FeuilleCalcul* panel, std::string name, Design design, Handler change = {}, KeyHandler keyPress = {});

    ActiveProperty<TextBox, std::string, &TextBox::storeText> Text{*this};
    Property<Color> BackColor{*this};
    Property<Color> ForeColor{*this};
    Property<bool> Locked{*this};
    Property<bool> Visible{*this};
    Property<Single> Top{*this};

    /// Gives the field the keyboard. Throws an invalid argument where the field is hidden.
    void SetFocus();

    /// Shows a key to the panel before it enters the field.
    void keyPress(Integer key);

    [[nodiscard]] const Design& design() const { return design_; }
    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
    Handler change_;
    KeyHandler keyPress_;
};

/// The design of a field that shows a result, on the background of its role, and can be typed over.
[[nodiscard]] inline TextBox::Design openResultField(Box at, Label* label, Color background = 0xFFFFC0)
{
    return {.at = at, .BackColor = background, .label = label};
}

/// The design of a field that only shows a result: locked, on the background of its role.
[[nodiscard]] inline TextBox::Design resultField(Box at, Label* label, Color background = 0xFFFFC0)
{
    return {.at = at, .BackColor = background, .Locked = true, .label = label};
}

/// A list of texts of which at most one is chosen. Raises `Click` when `ListIndex` changes.
class ListBox final : public Control {
    void storeListIndex(Integer row);

public:
    struct Design {
        std::vector<std::string> Items = {};
        Box at = {};
        Color BackColor = windowColor;
        bool clickOnChosenRow = false; ///< a person's click on the chosen row raises `Click` too
        bool Visible = true;
        Label* label = nullptr; ///< the caption that names it
        Frame* container = nullptr;
    };
    ListBox(FeuilleCalcul* panel, std::string name, Design design, Handler click = {}, Handler gotFocus = {});

    /// The chosen row from 0, -1 for none. A store beyond the list throws an invalid property value.
    ActiveProperty<ListBox, Integer, &ListBox::storeListIndex> ListIndex{*this};
    Property<Color> BackColor{*this};
    Property<bool> Visible{*this};

    void AddItem(std::string text);
    /// No row is left, and none chosen; raises nothing.
    void Clear();
    /// The text of a row, "" where there is no such row.
    [[nodiscard]] std::string List(Integer row) const;
    [[nodiscard]] Integer ListCount() const;

    /// The text of the chosen row, "" when none.
    class ChosenText {
    public:
        explicit ChosenText(const ListBox& list) : list_{list} { }
        operator std::string() const { return list_.List(list_.ListIndex); } // NOLINT(google-explicit-constructor)
        friend bool operator==(const ChosenText& chosen, std::string_view text) { return std::string{chosen} == text; }

    private:
        const ListBox& list_;
    };
    const ChosenText Text{*this};

    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    /// A person clicks a row.
    void choose(Integer row);
    /// The list, which did not have the keyboard, has got it.
    void gotFocus();

    [[nodiscard]] const Design& design() const { return design_; }
    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
    Handler click_;
    Handler gotFocus_;
    std::vector<std::string> items_;
};

/// One of the options of its panel, or of its frame, of which at most one is chosen. Raises `Click` when it
/// becomes the chosen one.
class OptionButton final : public Control {
    void storeValue(bool chosen);

public:
    struct Design {
        std::string Caption = {};
        Box at = {};
        bool Value = false;
        Color ForeColor = windowTextColor;
        bool Visible = true;
        Label* label = nullptr; ///< the caption that names it, where it has none of its own
        Frame* container = nullptr;
    };
    OptionButton(FeuilleCalcul* panel, std::string name, Design design, Handler click = {});

    ActiveProperty<OptionButton, bool, &OptionButton::storeValue> Value{*this};
    Property<Color> ForeColor{*this};
    Property<bool> Visible{*this};

    [[nodiscard]] const Design& design() const { return design_; }
    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
    Handler click_;
};

/// A push button. Storing true into `Value` is a click.
class CommandButton final : public Control {
    void storeValue(bool pressed);

public:
    struct Design {
        std::string Caption = {};
        Box at = {};
        bool Visible = true;
        Frame* container = nullptr;
    };
    CommandButton(FeuilleCalcul* panel, std::string name, Design design, Handler click = {});

    ActiveProperty<CommandButton, bool, &CommandButton::storeValue> Value{*this};
    Property<bool> Visible{*this};

    [[nodiscard]] const Design& design() const { return design_; }
    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
    Handler click_;
};

/// A bar between two limits. `Min` stands at its left or upper end, `Max` at the other one, and `Min` may be
/// the larger. Raises `Change` when its value changes.
class ScrollBar : public Control {
    void storeValue(Integer value);
    void storeMin(Integer limit);
    void storeMax(Integer limit);

public:
    struct Design {
        Integer Min = 0;
        Integer Max = 32767;
        Integer Value = 0;
        Integer SmallChange = 1;
        Integer LargeChange = 1;
        Box at = {};
        bool Visible = true;
        Label* label = nullptr; ///< the caption that names it
        Frame* container = nullptr;
    };
    ScrollBar(FeuilleCalcul* panel, std::string name, Design design, Handler change);

    /// A store outside the limits throws an invalid property value.
    ActiveProperty<ScrollBar, Integer, &ScrollBar::storeValue> Value{*this};
    /// A limit that leaves `Value` outside moves it to the nearest limit.
    ActiveProperty<ScrollBar, Integer, &ScrollBar::storeMin> Min{*this};
    ActiveProperty<ScrollBar, Integer, &ScrollBar::storeMax> Max{*this};
    Property<bool> Visible{*this};

    [[nodiscard]] bool allows(Integer value) const;
    [[nodiscard]] const Design& design() const { return design_; }
    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }
    void moveInside();

    Design design_;
    Handler change_;
};

class HScrollBar final : public ScrollBar {
public:
    HScrollBar(FeuilleCalcul* panel, std::string name, Design design, Handler change = {});
    void accept(ControlVisitor& visitor) override;
};

class VScrollBar final : public ScrollBar {
public:
    VScrollBar(FeuilleCalcul* panel, std::string name, Design design, Handler change = {});
    void accept(ControlVisitor& visitor) override;
};

/// A titled group of controls, or a titled drawing.
class Frame final : public Control {
public:
    struct Design {
        std::string Caption = {};
        Box at = {};
        std::string picture = {}; ///< the drawing inside it: a name in resources/dessins
        bool Visible = true;
    };
    Frame(FeuilleCalcul* panel, std::string name, Design design);

    Property<bool> Visible{*this};

    [[nodiscard]] const Design& design() const { return design_; }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
};

/// A drawing. Its two kinds differ in name only.
class Picture : public Control {
public:
    struct Design {
        std::string picture = {}; ///< a name in resources/dessins
        Box at = {};
        bool Visible = true;
        Frame* container = nullptr;
    };
    Picture(FeuilleCalcul* panel, std::string name, Design design);

    Property<bool> Visible{*this};

    [[nodiscard]] const Design& design() const { return design_; }
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
};

class PictureBox final : public Picture {
public:
    using Picture::Picture;
    void accept(ControlVisitor& visitor) override;
};

class Image final : public Picture {
public:
    using Picture::Picture;
    void accept(ControlVisitor& visitor) override;
};

class Shape;

/// A straight line on the panel.
class Line final : public Control {
public:
    struct Design {
        double X1 = 0;
        double Y1 = 0;
        double X2 = 0;
        double Y2 = 0;
        Color BorderColor = windowTextColor;
        int BorderWidth = 1; ///< in pixels at 96 dpi
        bool Visible = true;
        const Shape* within = nullptr; ///< where a diagram is drawn: what reaches beyond is not shown
    };
    Line(FeuilleCalcul* panel, std::string name, Design design);

    Property<Single> X1{*this};
    Property<Single> Y1{*this};
    Property<Single> X2{*this};
    Property<Single> Y2{*this};
    Property<bool> Visible{*this};

    [[nodiscard]] const Design& design() const { return design_; }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return Visible; }

    Design design_;
};

/// A rectangle drawn around what belongs together.
class Shape final : public Control {
public:
    struct Design {
        Box at = {};
        Frame* container = nullptr;
    };
    Shape(FeuilleCalcul* panel, std::string name, Design design);

    void accept(ControlVisitor& visitor) override;
    void reset() override { }

private:
    [[nodiscard]] bool ownVisible() const override { return true; }
};

/// A read-only display of a number in exponent form with three decimals: "1.200E-01".
class MaskEdBox final : public Control {
public:
    struct Design {
        Box at = {};
        Color BackColor = windowColor;
        Label* label = nullptr; ///< the caption that names it
        Frame* container = nullptr;
    };
    MaskEdBox(FeuilleCalcul* panel, std::string name, Design design);

    Property<std::string> Text{*this};

    /// What it shows without the keyboard; with it, it shows its text.
    [[nodiscard]] std::string display() const;

    [[nodiscard]] const Design& design() const { return design_; }
    [[nodiscard]] bool focusable() const override { return onScreen(); }
    void accept(ControlVisitor& visitor) override;
    void reset() override;

private:
    [[nodiscard]] bool ownVisible() const override { return true; }

    Design design_;
};

/// Does something by the class of a control: the view builds widgets, the driver writes its state.
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
    virtual void visit(HScrollBar& bar) = 0;
    virtual void visit(VScrollBar& bar) = 0;
    virtual void visit(Frame& frame) = 0;
    virtual void visit(PictureBox& picture) = 0;
    virtual void visit(Image& image) = 0;
    virtual void visit(Line& line) = 0;
    virtual void visit(Shape& shape) = 0;
    virtual void visit(MaskEdBox& box) = 0;
};

} // namespace ondelis

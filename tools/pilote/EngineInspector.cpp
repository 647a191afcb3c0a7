#include "EngineInspector.h"

#include <cmath>

#include "forms/Controls.h"
#include "forms/Runtime.h"
#include "shell/Menu.h"

namespace ondelis::pilote {
namespace {

/// A position; a whole one as a whole number.
Json twips(const Property<Single>& position)
{
    const double value = Double{position}.value();
    constexpr double wholeBelow = 9007199254740992; // every whole number below it is a double
    if (std::trunc(value) == value && std::abs(value) < wholeBelow)
        return static_cast<std::int64_t>(value);
    return value;
}

int number(const Property<Integer>& property)
{
    return property.get().value();
}

std::string text(const Property<std::string>& property)
{
    return property;
}

bool yes(const Property<bool>& property)
{
    return property;
}

Color color(const Property<Color>& property)
{
    return plainColor(property);
}

/// The name of the caption that names a control; "" if none does.
std::string labelOf(const Label* label)
{
    return label == nullptr ? "" : label->name();
}

const char* name(Align align)
{
    switch (align) {
    case Align::Left:
        return "left";
    case Align::Right:
        return "right";
    case Align::Center:
        return "center";
    }
    return "";
}

/// How the text of a control is aligned, and its font.
template <class Design>
Json typeOf(const Design& design)
{
    return {{"Alignment", name(design.align)}, {"FontSize", design.font.size}, {"FontBold", design.font.bold}};
}

template <class Form>
Json placeAndCaption(const Form& form)
{
    return {{"Left", twips(form.Left)}, {"Top", twips(form.Top)}, {"Width", twips(form.Width)},
        {"Height", twips(form.Height)}, {"Caption", text(form.Caption)}};
}

class ControlState final : public ControlVisitor {
public:
    Json state;

    void visit(Label& label) override
    {
        state = {{"kind", "Label"}, {"Caption", text(label.Caption)}, {"Visible", yes(label.Visible)},
            {"Top", twips(label.Top)}, {"ForeColor", plainColor(label.design().ForeColor)}};
        state.update(typeOf(label.design()));
    }
    void visit(TextBox& box) override
    {
        state = {{"kind", "TextBox"}, {"Text", text(box.Text)}, {"BackColor", color(box.BackColor)},
            {"ForeColor", color(box.ForeColor)}, {"Locked", yes(box.Locked)}, {"Visible", yes(box.Visible)},
            {"Top", twips(box.Top)}, {"MaxLength", box.design().MaxLength}, {"MultiLine", box.design().multiLine},
            {"Label", labelOf(box.design().label)}};
        state.update(typeOf(box.design()));
    }
    void visit(ListBox& list) override
    {
        state = {{"kind", "ListBox"}, {"ListIndex", number(list.ListIndex)}, {"ListCount", list.ListCount().value()},
            {"Text", std::string{list.Text}}, {"Items", list.items()}, {"Visible", yes(list.Visible)},
            {"BackColor", color(list.BackColor)}, {"Label", labelOf(list.design().label)}};
    }
    void visit(OptionButton& option) override
    {
        state = {{"kind", "OptionButton"}, {"Caption", option.design().Caption}, {"Value", yes(option.Value)},
            {"ForeColor", color(option.ForeColor)}, {"Visible", yes(option.Visible)}};
    }
    void visit(CommandButton& button) override
    {
        state = {{"kind", "CommandButton"}, {"Caption", button.design().Caption}, {"Value", yes(button.Value)},
            {"Visible", yes(button.Visible)}};
    }
    void visit(ScrollBar& bar) override
    {
        state = {{"kind", bar.orientation() == Orientation::Horizontal ? "HScrollBar" : "VScrollBar"},
            {"Value", number(bar.Value)}, {"Min", number(bar.Min)}, {"Max", number(bar.Max)},
            {"SmallChange", bar.design().SmallChange.value()}, {"LargeChange", bar.design().LargeChange.value()},
            {"Visible", yes(bar.Visible)}, {"Label", labelOf(bar.design().label)}};
    }
    void visit(Frame& frame) override
    {
        state = {{"kind", "Frame"}, {"Caption", frame.design().Caption}, {"Picture", frame.design().picture},
            {"Visible", yes(frame.Visible)}};
    }
    void visit(Picture& picture) override
    {
        state = {{"kind", picture.kind()}, {"Picture", picture.design().picture}, {"Visible", yes(picture.Visible)}};
    }
    void visit(Line& line) override
    {
        state = {{"kind", "Line"}, {"X1", twips(line.X1)}, {"Y1", twips(line.Y1)}, {"X2", twips(line.X2)},
            {"Y2", twips(line.Y2)}, {"BorderColor", plainColor(line.design().BorderColor)},
            {"BorderWidth", line.design().BorderWidth}, {"Visible", yes(line.Visible)}};
    }
    void visit(Shape& /*shape*/) override { state = {{"kind", "Shape"}}; }
    void visit(MaskEdBox& box) override
    {
        state = {{"kind", "MaskEdBox"}, {"Text", text(box.Text)}, {"Display", box.display()},
            {"BackColor", plainColor(box.design().BackColor)}, {"Label", labelOf(box.design().label)}};
    }
};

/// The controls that the tab key leads to, in its order.
Json tabOrder(const FeuilleCalcul& panel)
{
    Json names = Json::array();
    for (const Control* control : panel.controls())
        if (control->focusable())
            names.push_back(control->name());
    return names;
}

} // namespace

Json EngineInspector::inspect(const MDIOndelis& frame) const
{
    Json state = placeAndCaption(frame);
    const Control* const focused = frame.runtime().focused();
    state["Focus"] = focused == nullptr ? "" : focused->panel().design().name + '.' + focused->name();
    return state;
}

Json EngineInspector::inspect(const FeuilleCalcul& panel) const
{
    Json state{{"visible", panel.visible()}};
    state.update(placeAndCaption(panel));
    state["TabOrder"] = tabOrder(panel);
    return state;
}

Json EngineInspector::inspect(Control& control) const
{
    ControlState visitor;
    control.accept(visitor);
    visitor.state["Frame"] = control.container() == nullptr ? "" : control.container()->name();
    return visitor.state;
}

Json EngineInspector::menus() const
{
    Json tree = Json::array();
    for (const Menu& menu : menuTree()) {
        Json entries = Json::array();
        for (const MenuEntry& entry : menu.entries)
            entries.push_back({{"Name", entry.control}, {"Caption", entry.caption}});
        tree.push_back({{"Name", menu.control}, {"Caption", menu.caption}, {"Entries", std::move(entries)}});
    }
    return tree;
}

} // namespace ondelis::pilote

#include "forms/Controls.h"

#include <algorithm>
#include <utility>

#include "forms/Runtime.h"
#include "kit/Conversions.h"
#include "kit/ExponentForm.h"

namespace ondelis {

Label::Label(FeuilleCalcul* panel, std::string_view name, Design design) : Hideable{panel, name, design} { }

void Label::storeCaption(std::string caption)
{
    written_ = true;
    if (Caption.assign(std::move(caption)))
        changed();
}

void Label::reset()
{
    written_ = false;
    Caption.reset(design().Caption);
    Hideable::reset();
    Top.reset(Double{design().at.Top});
}

TextBox::TextBox(FeuilleCalcul* panel, std::string_view name, Design design, Handler change, KeyHandler keyPress)
    : Hideable{panel, name, design}, change_{change}, keyPress_{keyPress}
{
}

void TextBox::storeText(std::string text)
{
    if (!Text.assign(std::move(text)))
        return;
    changed();
    raise(change_);
}

void TextBox::SetFocus()
{
    ensureLoaded();
    if (!focusable())
        throw Fault{FaultKind::InvalidArgument};
    panel().runtime().setFocused(this);
    panel().runtime().host().focusMoved(*this);
}

void TextBox::keyPress(Integer key)
{
    if (keyPress_)
        panel().runtime().raise(panel(), keyPress_, key);
}

void TextBox::reset()
{
    Text.reset(design().Text);
    BackColor.reset(design().BackColor);
    ForeColor.reset(design().ForeColor);
    Locked.reset(design().Locked);
    Hideable::reset();
    Top.reset(Double{design().at.Top});
}

ListBox::ListBox(FeuilleCalcul* panel, std::string_view name, Design design, Handler click, Handler gotFocus)
    : Hideable{panel, name, std::move(design)}, click_{click}, gotFocus_{gotFocus}
{
}

void ListBox::storeListIndex(Integer row)
{
    if (row < -1 || row >= ListCount())
        throw Fault{FaultKind::InvalidPropertyValue};
    if (!ListIndex.assign(row))
        return;
    changed();
    raise(click_);
}

void ListBox::AddItem(std::string text)
{
    ensureLoaded();
    items_.push_back(std::move(text));
    changed();
}

void ListBox::Clear()
{
    ensureLoaded();
    items_.clear();
    ListIndex.assign(-1);
    changed();
}

std::string ListBox::List(Integer row) const
{
    panel().ensureLoaded();
    if (row < 0 || row >= ListCount())
        return {};
    return items_[static_cast<std::size_t>(row.value())];
}

Integer ListBox::ListCount() const
{
    panel().ensureLoaded();
    return static_cast<int>(items_.size());
}

void ListBox::choose(Integer row)
{
    if (row == ListIndex && design().clickOnChosenRow)
        raise(click_);
    else
        ListIndex = row;
}

void ListBox::gotFocus()
{
    raise(gotFocus_);
}

void ListBox::reset()
{
    items_ = design().Items;
    ListIndex.reset(-1);
    BackColor.reset(design().BackColor);
    Hideable::reset();
}

OptionButton::OptionButton(FeuilleCalcul* panel, std::string_view name, Design design, Handler click)
    : Hideable{panel, name, design}, click_{click}
{
}

void OptionButton::storeValue(bool chosen)
{
    if (!Value.assign(chosen))
        return;
    changed();
    if (!chosen)
        return;
    for (Control* control : panel().controls()) {
        auto* const other = dynamic_cast<OptionButton*>(control);
        if (other != nullptr && other != this && other->container() == container() && other->Value.assign(false))
            other->changed();
    }
    raise(click_);
}

void OptionButton::reset()
{
    Value.reset(design().Value);
    ForeColor.reset(design().ForeColor);
    Hideable::reset();
}

CommandButton::CommandButton(FeuilleCalcul* panel, std::string_view name, Design design, Handler click)
    : Hideable{panel, name, design}, click_{click}
{
}

void CommandButton::storeValue(bool pressed)
{
    // A button springs back: its value reads false, and each store of true is a click.
    if (pressed)
        raise(click_);
}

ScrollBar::ScrollBar(
    Orientation orientation, FeuilleCalcul* panel, std::string_view name, Design design, Handler change)
    : Hideable{panel, name, design}, orientation_{orientation}, change_{change}
{
}

void ScrollBar::storeValue(Integer value)
{
    if (!allows(value))
        throw Fault{FaultKind::InvalidPropertyValue};
    if (!Value.assign(value))
        return;
    changed();
    raise(change_);
}

void ScrollBar::storeMin(Integer limit)
{
    if (!Min.assign(limit))
        return;
    changed();
    moveInside();
}

void ScrollBar::storeMax(Integer limit)
{
    if (!Max.assign(limit))
        return;
    changed();
    moveInside();
}

bool ScrollBar::allows(Integer value) const
{
    const auto [low, high] = std::minmax(Min.get(), Max.get());
    return value >= low && value <= high;
}

void ScrollBar::moveInside()
{
    const auto [low, high] = std::minmax(Min.get(), Max.get());
    Value = std::clamp(Value.get(), low, high);
}

void ScrollBar::reset()
{
    Min.reset(design().Min);
    Max.reset(design().Max);
    Value.reset(design().Value);
    Hideable::reset();
}

HScrollBar::HScrollBar(FeuilleCalcul* panel, std::string_view name, Design design, Handler change)
    : ScrollBar{Orientation::Horizontal, panel, name, design, change}
{
}

VScrollBar::VScrollBar(FeuilleCalcul* panel, std::string_view name, Design design, Handler change)
    : ScrollBar{Orientation::Vertical, panel, name, design, change}
{
}

Frame::Frame(FeuilleCalcul* panel, std::string_view name, Design design) : Hideable{panel, name, design} { }

Picture::Picture(const char* kind, FeuilleCalcul* panel, std::string_view name, Design design)
    : Hideable{panel, name, design}, kind_{kind}
{
}

PictureBox::PictureBox(FeuilleCalcul* panel, std::string_view name, Design design)
    : Picture{"PictureBox", panel, name, design}
{
}

Image::Image(FeuilleCalcul* panel, std::string_view name, Design design) : Picture{"Image", panel, name, design} { }

Line::Line(FeuilleCalcul* panel, std::string_view name, Design design) : Hideable{panel, name, design} { }

void Line::reset()
{
    X1.reset(Double{design().X1});
    Y1.reset(Double{design().Y1});
    X2.reset(Double{design().X2});
    Y2.reset(Double{design().Y2});
    Hideable::reset();
}

Shape::Shape(FeuilleCalcul* panel, std::string_view name, Design design) : Designed{panel, name, design} { }

MaskEdBox::MaskEdBox(FeuilleCalcul* panel, std::string_view name, Design design) : Designed{panel, name, design} { }

std::string MaskEdBox::display() const
{
    std::string text = Text;
    try {
        return exponentForm(CDbl(text));
    } catch (const Fault&) { // an empty text, or one that is no number, shows as it is
        return text;
    }
}

void MaskEdBox::reset()
{
    Text.reset({});
}

} // namespace ondelis

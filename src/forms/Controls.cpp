#include "forms/Controls.h"

#include <algorithm>
#include <utility>

#include "forms/Desk.h"
#include "kit/Conversions.h"
#include "kit/ExponentForm.h"

namespace ondelis {

Label::Label(FeuilleCalcul* panel, std::string name, Design design)
    : Control{panel, std::move(name), design.at, design.container}, design_{std::move(design)}
{
}

void Label::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void Label::storeCaption(std::string caption)
{
    written_ = true;
    if (Caption.keep(std::move(caption)))
        changed();
}

void Label::reset()
{
    written_ = false;
    Caption.reset(design_.Caption);
    Visible.reset(design_.Visible);
    Top.reset(Double{design_.at.Top});
}

TextBox::TextBox(FeuilleCalcul* panel, std::string name, Design design, Handler change, KeyHandler keyPress)
    : Control{panel, std::move(name), design.at, design.container}, design_{std::move(design)}, change_{change},
      keyPress_{keyPress}
{
}

void TextBox::storeText(std::string text)
{
    if (!Text.keep(std::move(text)))
        return;
    changed();
    raise(change_);
}

void TextBox::SetFocus()
{
    touch();
    if (!focusable())
        throw Fault{FaultKind::InvalidArgument};
    panel().desk().setFocused(this);
    panel().desk().surroundings().focusMoved(*this);
}

void TextBox::keyPress(Integer key)
{
    if (keyPress_)
        panel().desk().raise(panel(), keyPress_, key);
}

void TextBox::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void TextBox::reset()
{
    Text.reset(design_.Text);
    BackColor.reset(design_.BackColor);
    ForeColor.reset(design_.ForeColor);
    Locked.reset(design_.Locked);
    Visible.reset(design_.Visible);
    Top.reset(Double{design_.at.Top});
}

ListBox::ListBox(FeuilleCalcul* panel, std::string name, Design design, Handler click, Handler gotFocus)
    : Control{panel, std::move(name), design.at, design.container}, design_{std::move(design)}, click_{click},
      gotFocus_{gotFocus}
{
}

void ListBox::storeListIndex(Integer row)
{
    if (row < -1 || row >= ListCount())
        throw Fault{FaultKind::InvalidPropertyValue};
    if (!ListIndex.keep(row))
        return;
    changed();
    raise(click_);
}

void ListBox::AddItem(std::string text)
{
    touch();
    items_.push_back(std::move(text));
    changed();
}

void ListBox::Clear()
{
    touch();
    items_.clear();
    ListIndex.keep(-1);
    changed();
}

std::string ListBox::List(Integer row) const
{
    panel().touch();
    if (row < 0 || row >= ListCount())
        return {};
    return items_[static_cast<std::size_t>(row.value())];
}

Integer ListBox::ListCount() const
{
    panel().touch();
    return static_cast<int>(items_.size());
}

void ListBox::choose(Integer row)
{
    if (row == ListIndex && design_.clickOnChosenRow)
        raise(click_);
    else
        ListIndex = row;
}

void ListBox::gotFocus()
{
    raise(gotFocus_);
}

void ListBox::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void ListBox::reset()
{
    items_ = design_.Items;
    ListIndex.reset(-1);
    BackColor.reset(design_.BackColor);
    Visible.reset(design_.Visible);
}

OptionButton::OptionButton(FeuilleCalcul* panel, std::string name, Design design, Handler click)
    : Control{panel, std::move(name), design.at, design.container}, design_{std::move(design)}, click_{click}
{
}

void OptionButton::storeValue(bool chosen)
{
    if (!Value.keep(chosen))
        return;
    changed();
    if (!chosen)
        return;
    for (Control* control : panel().controls()) {
        auto* const other = dynamic_cast<OptionButton*>(control);
        if (other != nullptr && other != this && other->container() == container() && other->Value.keep(false))
            other->changed();
    }
    raise(click_);
}

void OptionButton::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void OptionButton::reset()
{
    Value.reset(design_.Value);
    ForeColor.reset(design_.ForeColor);
    Visible.reset(design_.Visible);
}

CommandButton::CommandButton(FeuilleCalcul* panel, std::string name, Design design, Handler click)
    : Control{panel, std::move(name), design.at, design.container}, design_{std::move(design)}, click_{click}
{
}

void CommandButton::storeValue(bool pressed)
{
    // A button springs back: its value reads false, and each store of true is a click.
    if (pressed)
        raise(click_);
}

void CommandButton::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void CommandButton::reset()
{
    Visible.reset(design_.Visible);
}

ScrollBar::ScrollBar(FeuilleCalcul* panel, std::string name, Design design, Handler change)
    : Control{panel, std::move(name), design.at, design.container}, design_{design}, change_{change}
{
}

void ScrollBar::storeValue(Integer value)
{
    if (!allows(value))
        throw Fault{FaultKind::InvalidPropertyValue};
    if (!Value.keep(value))
        return;
    changed();
    raise(change_);
}

void ScrollBar::storeMin(Integer limit)
{
    if (!Min.keep(limit))
        return;
    changed();
    moveInside();
}

void ScrollBar::storeMax(Integer limit)
{
    if (!Max.keep(limit))
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
    Min.reset(design_.Min);
    Max.reset(design_.Max);
    Value.reset(design_.Value);
    Visible.reset(design_.Visible);
}

HScrollBar::HScrollBar(FeuilleCalcul* panel, std::string name, Design design, Handler change)
    : ScrollBar{panel, std::move(name), design, change}
{
}

void HScrollBar::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

VScrollBar::VScrollBar(FeuilleCalcul* panel, std::string name, Design design, Handler change)
    : ScrollBar{panel, std::move(name), design, change}
{
}

void VScrollBar::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

Frame::Frame(FeuilleCalcul* panel, std::string name, Design design)
    : Control{panel, std::move(name), design.at, nullptr}, design_{std::move(design)}
{
}

void Frame::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void Frame::reset()
{
    Visible.reset(design_.Visible);
}

Picture::Picture(FeuilleCalcul* panel, std::string name, Design design)
    : Control{panel, std::move(name), design.at, design.container}, design_{std::move(design)}
{
}

void Picture::reset()
{
    Visible.reset(design_.Visible);
}

void PictureBox::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void Image::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

Line::Line(FeuilleCalcul* panel, std::string name, Design design)
    : Control{panel, std::move(name), {}, nullptr}, design_{design}
{
}

void Line::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void Line::reset()
{
    X1.reset(Double{design_.X1});
    Y1.reset(Double{design_.Y1});
    X2.reset(Double{design_.X2});
    Y2.reset(Double{design_.Y2});
    Visible.reset(design_.Visible);
}

Shape::Shape(FeuilleCalcul* panel, std::string name, Design design)
    : Control{panel, std::move(name), design.at, design.container}
{
}

void Shape::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

MaskEdBox::MaskEdBox(FeuilleCalcul* panel, std::string name, Design design)
    : Control{panel, std::move(name), design.at, design.container}, design_{design}
{
}

std::string MaskEdBox::display() const
{
    std::string text = Text;
    try {
        return exponentForm(CDbl(text));
    } catch (const Fault&) { // an empty text, or one that is no number, shows as it is
        return text;
    }
}

void MaskEdBox::accept(ControlVisitor& visitor)
{
    visitor.visit(*this);
}

void MaskEdBox::reset()
{
    Text.reset({});
}

} // namespace ondelis

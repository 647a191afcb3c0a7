#include "view/WidgetMaker.h"

#include <algorithm>

#include "view/ButtonWidgets.h"
#include "view/DrawingWidgets.h"
#include "view/FieldWidgets.h"
#include "view/LabelWidget.h"
#include "view/LinesWidget.h"
#include "view/ListBoxWidget.h"
#include "view/ScrollBarWidget.h"

namespace ondelis {

ControlWidget* WidgetMaker::make(Control& control)
{
    made_ = nullptr;
    control.accept(*this);
    return made_;
}

void WidgetMaker::stack()
{
    const auto lower = [](const std::vector<QWidget*>& widgets) {
        std::for_each(widgets.rbegin(), widgets.rend(), [](QWidget* widget) { widget->lower(); });
    };
    lower(captions_);
    for (const auto& [parent, lines] : lines_)
        lines->lower();
    lower(drawings_);
}

void WidgetMaker::visit(Label& label)
{
    auto* const made = new LabelWidget{window_, label, parentOf(label)};
    captions_.push_back(made);
    take(*made, label);
}

void WidgetMaker::visit(TextBox& box)
{
    ControlWidget* made = nullptr;
    if (box.design().multiLine)
        made = new TextAreaWidget{window_, box, parentOf(box)};
    else
        made = new TextBoxWidget{window_, box, parentOf(box)};
    take(*made, box);
    window_.names().nameAfter(box.design().label, made_->widget());
    if (box.design().otherLabel != nullptr)
        window_.names().nameAfter(box.design().otherLabel, made_->widget());
}

void WidgetMaker::visit(ListBox& list)
{
    take(*new ListBoxWidget{window_, list, parentOf(list)}, list);
    window_.names().nameAfter(list.design().label, made_->widget());
}

void WidgetMaker::visit(OptionButton& option)
{
    take(*new OptionButtonWidget{window_, option, parentOf(option)}, option);
    if (std::string_view{option.design().Caption}.empty())
        window_.names().nameAfter(option.design().label, made_->widget());
}

void WidgetMaker::visit(CommandButton& button)
{
    take(*new CommandButtonWidget{window_, button, parentOf(button)}, button);
}

void WidgetMaker::visit(ScrollBar& bar)
{
    const Qt::Orientation orientation = bar.orientation() == Orientation::Horizontal ? Qt::Horizontal : Qt::Vertical;
    take(*new ScrollBarWidget{window_, bar, orientation, parentOf(bar)}, bar);
    window_.names().nameAfter(bar.design().label, made_->widget());
}

void WidgetMaker::visit(Frame& frame)
{
    auto* const made = new FrameWidget{window_, frame, parentOf(frame)};
    frames_.emplace(&frame, made);
    take(*made, frame);
}

void WidgetMaker::visit(Picture& picture)
{
    auto* const made = new PictureWidget{window_, picture, parentOf(picture)};
    drawings_.push_back(made);
    take(*made, picture);
}

void WidgetMaker::visit(Line& line)
{
    linesOn(line).add(line);
}

void WidgetMaker::visit(Shape& shape)
{
    linesOn(shape).add(shape);
}

void WidgetMaker::visit(MaskEdBox& box)
{
    take(*new MaskEdBoxWidget{window_, box, parentOf(box)}, box);
    window_.names().nameAfter(box.design().label, made_->widget());
}

QWidget* WidgetMaker::parentOf(const Control& control) const
{
    return control.container() == nullptr ? &window_.form() : frames_.at(control.container());
}

void WidgetMaker::take(ControlWidget& made, const Control& control)
{
    made_ = &made;
    made.widget().setObjectName(toQString(control.name()));
}

LinesWidget& WidgetMaker::linesOn(const Control& control)
{
    QWidget* const parent = parentOf(control);
    LinesWidget*& lines = lines_[parent];
    if (lines == nullptr)
        lines = new LinesWidget{window_, parent};
    made_ = lines;
    return *lines;
}

} // namespace ondelis

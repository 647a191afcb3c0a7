#include "view/WidgetFactory.h"

#include <algorithm>

#include "view/ButtonWidgets.h"
#include "view/DrawingWidgets.h"
#include "view/FieldWidgets.h"
#include "view/LabelWidget.h"
#include "view/LinesWidget.h"
#include "view/ListBoxWidget.h"
#include "view/ScrollBarWidget.h"

namespace ondelis {

ControlWidget* WidgetFactory::make(Control& control)
{
    made_ = nullptr;
    control.accept(*this);
    return made_;
}

void WidgetFactory::stack()
{
    const auto lower = [](const std::vector<QWidget*>& widgets) {
        std::for_each(widgets.rbegin(), widgets.rend(), [](QWidget* widget) { widget->lower(); });
    };
    lower(captions_);
    for (const auto& [parent, lines] : lines_)
        lines->lower();
    lower(drawings_);
}

void WidgetFactory::visit(Label& label)
{
    auto* const made = new LabelWidget{window_, label, parentOf(label)};
    captions_.push_back(made);
    add(*made, label);
}

void WidgetFactory::visit(TextBox& box)
{
    ControlWidget* made = nullptr;
    if (box.design().multiLine)
        made = new TextAreaWidget{window_, box, parentOf(box)};
    else
        made = new TextBoxWidget{window_, box, parentOf(box)};
    add(*made, box);
    window_.names().nameAfter(box.design().label, made_->widget());
    if (box.design().otherLabel != nullptr)
        window_.names().nameAfter(box.design().otherLabel, made_->widget());
}

void WidgetFactory::visit(ListBox& list)
{
    add(*new ListBoxWidget{window_, list, parentOf(list)}, list);
    window_.names().nameAfter(list.design().label, made_->widget());
}

void WidgetFactory::visit(OptionButton& option)
{
    add(*new OptionButtonWidget{window_, option, parentOf(option)}, option);
    if (std::string_view{option.design().Caption}.empty())
        window_.names().nameAfter(option.design().label, made_->widget());
}

void WidgetFactory::visit(CommandButton& button)
{
    add(*new CommandButtonWidget{window_, button, parentOf(button)}, button);
}

void WidgetFactory::visit(ScrollBar& bar)
{
    const Qt::Orientation orientation = bar.orientation() == Orientation::Horizontal ? Qt::Horizontal : Qt::Vertical;
    add(*new ScrollBarWidget{window_, bar, orientation, parentOf(bar)}, bar);
    window_.names().nameAfter(bar.design().label, made_->widget());
}

void WidgetFactory::visit(Frame& frame)
{
    auto* const made = new FrameWidget{window_, frame, parentOf(frame)};
    frames_.emplace(&frame, made);
    add(*made, frame);
}

void WidgetFactory::visit(Picture& picture)
{
    auto* const made = new PictureWidget{window_, picture, parentOf(picture)};
    drawings_.push_back(made);
    add(*made, picture);
}

void WidgetFactory::visit(Line& line)
{
    linesWidgetFor(line).add(line);
}

void WidgetFactory::visit(Shape& shape)
{
    linesWidgetFor(shape).add(shape);
}

void WidgetFactory::visit(MaskEdBox& box)
{
    add(*new MaskEdBoxWidget{window_, box, parentOf(box)}, box);
    window_.names().nameAfter(box.design().label, made_->widget());
}

QWidget* WidgetFactory::parentOf(const Control& control) const
{
    return control.container() == nullptr ? &window_.form() : frames_.at(control.container());
}

void WidgetFactory::add(ControlWidget& made, const Control& control)
{
    made_ = &made;
    made.widget().setObjectName(toQString(control.name()));
}

LinesWidget& WidgetFactory::linesWidgetFor(const Control& control)
{
    QWidget* const parent = parentOf(control);
    LinesWidget*& lines = lines_[parent];
    if (lines == nullptr)
        lines = new LinesWidget{window_, parent};
    made_ = lines;
    return *lines;
}

} // namespace ondelis

#pragma once

#include <QWidget>
#include <unordered_map>
#include <vector>

#include "forms/Controls.h"

namespace ondelis {

class ControlWidget;
class LinesWidget;
class PanelWindow;

/// Makes the widget of each control of a panel, in the order of the form, which gives them its tab order.
class WidgetFactory final : private ControlVisitor {
public:
    explicit WidgetFactory(PanelWindow& window) : window_{window} { }

    ControlWidget* make(Control& control);
    /// Puts the drawings under the lines, the lines under the captions, and these under all other controls.
    void stack();

private:
    void visit(Label& label) override;
    void visit(TextBox& box) override;
    void visit(ListBox& list) override;
    void visit(OptionButton& option) override;
    void visit(CommandButton& button) override;
    void visit(ScrollBar& bar) override;
    void visit(Frame& frame) override;
    void visit(Picture& picture) override;
    void visit(Line& line) override;
    void visit(Shape& shape) override;
    void visit(MaskEdBox& box) override;

    /// The frame around the control, or the panel.
    [[nodiscard]] QWidget* parentOf(const Control& control) const;
    void add(ControlWidget& made, const Control& control);
    /// The widget that paints the lines and shapes on the panel, or in the frame.
    LinesWidget& linesWidgetFor(const Control& control);

    PanelWindow& window_;
    std::unordered_map<const Control*, QWidget*> frames_;
    std::vector<QWidget*> captions_;
    std::vector<QWidget*> drawings_;
    std::unordered_map<QWidget*, LinesWidget*> lines_; ///< by what they are on
    ControlWidget* made_ = nullptr;
};

} // namespace ondelis

#pragma once

#include <QColor>
#include <QRect>
#include <functional>
#include <set>
#include <string>

#include "Inspector.h"
#include "forms/Controls.h"
#include "view/PanelWindow.h"

namespace ondelis::fenetre {

using pilote::Json;

/// A caption without the marks that keep "&" from being a shortcut.
[[nodiscard]] QString captionOf(QString shown);

/// Reads the members of a control from its widget.
class ControlReader final : private ControlVisitor {
public:
    /// `stated` is what the engine says about the control.
    ControlReader(const PanelWindow& window, Json stated) : window_{window}, stated_(std::move(stated)) { }

    /// The members that the engine states, as the widget shows them. Throws if one of them is neither read nor
    /// declared unseen.
    [[nodiscard]] Json read(Control& control);

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

    template <class Widget>
    [[nodiscard]] Widget& widgetOf(const Control& control) const;

    /// Records what the widget shows for a member.
    void seen(const char* member, Json value);
    /// Records that a member cannot be seen.
    void unseen(const char* member) { read_.insert(member); }
    void readVisible(const Control& control);
    /// A position in pixels, along one axis.
    void seenPlace(const char* member, const Property<Single>& stated, int pixels, const QWidget& widget);
    void seenText(const char* member, const QString& text);
    /// The colour of a text painted on that background; the engine says what it was before it was made readable.
    void seenTextColor(const char* member, Color stated, const QColor& painted, const QColor& background);
    /// How a text is aligned in its widget, and its font.
    void seenType(const QWidget& widget, Qt::Alignment alignment);
    /// The caption by which a screen reader names the widget.
    void seenLabel(const Label* label, const Label* otherLabel, const QWidget& widget);

    const PanelWindow& window_;
    Json stated_;
    std::set<std::string> read_;
};

} // namespace ondelis::fenetre

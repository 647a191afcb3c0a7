#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/Controls.h"

namespace ondelis {

/// The gap between neighbours on one row.
inline constexpr double rowGap = 60;

/// The place right of a caption, on its row: that of a field.
[[nodiscard]] inline Box beside(const Label& caption, double width)
{
    constexpr double lift = 30; // a field is taller than the line of text beside it
    return {caption.at().Left + caption.at().Width + rowGap, caption.at().Top - lift, width, 315};
}

/// A field to type into, named by the caption on its left.
[[nodiscard]] inline TextBox::Design inputField(Label& caption, double width)
{
    return {.at = beside(caption, width), .label = &caption, .container = caption.container()};
}

/// A field that shows a result and can be typed over, named by the caption on its left.
[[nodiscard]] inline TextBox::Design openResultField(Label& caption, double width, Color background = resultColor)
{
    return {.at = beside(caption, width), .BackColor = background, .label = &caption, .container = caption.container()};
}

/// A field that only shows a result, named by the caption on its left.
[[nodiscard]] inline TextBox::Design resultField(Label& caption, double width, Color background = resultColor)
{
    return {.at = beside(caption, width),
        .BackColor = background,
        .Locked = true,
        .label = &caption,
        .container = caption.container()};
}

/// The height of a list that shows so many rows.
[[nodiscard]] constexpr double listHeight(int rows)
{
    return 60 + 240 * rows;
}

/// The line of text right of a field, on its row: the unit, as a rule.
[[nodiscard]] inline Label::Design unitOf(const Control& field, const char* unit, double width)
{
    constexpr double lift = 30;
    const Box& at = field.at();
    return {.Caption = unit,
        .at = {at.Left + at.Width + rowGap, at.Top + lift, width, 255},
        .container = field.container()};
}

/// The letter of a part on a drawing: its centre as fractions of the drawing's width and height.
[[nodiscard]] inline Label::Design letter(const char* text, const Box& drawing, double x, double y)
{
    return {.Caption = text, .at = letterBox(drawing, x, y), .align = Align::Center};
}

/// The place to the right of a control, as high as the control.
[[nodiscard]] inline Box rightOf(const Control& neighbour, double width)
{
    const Box& at = neighbour.at();
    return {at.Left + at.Width + rowGap, at.Top, width, at.Height};
}

/// The same place, tall enough for so many lines of text.
[[nodiscard]] constexpr Box lines(Box place, int count)
{
    place.Height = 255 * count;
    return place;
}

/// The place under a control, a given distance below its bottom, starting at its left edge.
[[nodiscard]] inline Box under(const Control& neighbour, double width, double height = 315, double lower = 15)
{
    const Box& at = neighbour.at();
    return {at.Left, at.Top + at.Height + lower, width, height};
}

/// A column of rows on a form, each with a caption and, right of it, what it names. Only the caption states the row:
/// fields and lists take their places from it. Twips from the upper left corner of the panel, or of a frame.
struct Column {
    double left = 240;
    double captions = 0; ///< the width of its captions
    double inputs = 1320; ///< the width of its fields to type into, and of its lists
    double results = 2400; ///< the width of its results
    double top = 240; ///< of its row 0
    double pitch = 360; ///< from row to row
    Color resultBackground = resultColor;

    /// The same column, starting at another height.
    [[nodiscard]] constexpr Column from(double height) const
    {
        Column column{*this};
        column.top = height;
        return column;
    }

    /// The place of a row's caption; halves and quarters of rows set groups apart.
    [[nodiscard]] constexpr Box at(double row) const
    {
        constexpr double drop = 30;
        return {left, top + pitch * row + drop, captions, 255};
    }

    [[nodiscard]] Label::Design caption(double row, const char* words, Frame* frame = nullptr) const
    {
        return {.Caption = words, .at = at(row), .container = frame};
    }

    [[nodiscard]] TextBox::Design input(Label& caption) const { return inputField(caption, inputs); }
    [[nodiscard]] TextBox::Design result(Label& caption) const
    {
        return resultField(caption, results, resultBackground);
    }
    [[nodiscard]] TextBox::Design openResult(Label& caption) const
    {
        return openResultField(caption, results, resultBackground);
    }

    /// A list that shows all of its rows.
    [[nodiscard]] ListBox::Design list(Label& caption, std::vector<std::string> items) const
    {
        Box place = beside(caption, inputs);
        place.Height = listHeight(static_cast<int>(items.size()));
        return {.Items = std::move(items), .at = place, .label = &caption, .container = caption.container()};
    }

    /// The place from the left of a row's caption to the right of its result.
    [[nodiscard]] constexpr Box across(double row) const
    {
        Box place = at(row);
        place.Width += rowGap + results;
        return place;
    }

    /// The place of an option that has a row of the column to itself.
    [[nodiscard]] constexpr Box optionAt(double row) const { return {left, top + pitch * row, captions, 300}; }
    [[nodiscard]] OptionButton::Design option(double row, const char* words) const
    {
        return {.Caption = words, .at = optionAt(row)};
    }

    /// A button in the column of the fields, as wide as they are.
    [[nodiscard]] CommandButton::Design button(double row, const char* words) const
    {
        return {.Caption = words, .at = {left + captions + rowGap, top + pitch * row, inputs, 375}};
    }
};

} // namespace ondelis

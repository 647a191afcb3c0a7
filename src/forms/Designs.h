#pragma once

#include <string>
#include <vector>

#include "forms/Color.h"
#include "forms/Control.h"

namespace ondelis {

class Label;
class Shape;

// What a form specifies for a control of each class. The control starts with these values each time its panel is
// loaded. Its texts are literals.

struct LabelDesign {
    const char* Caption = "";
    Box at = {};
    Color ForeColor = windowTextColor;
    Align align = Align::Left;
    Font font = {};
    bool Visible = true;
    Frame* container = nullptr;
};

struct TextBoxDesign {
    const char* Text = "";
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

struct ListBoxDesign {
    std::vector<std::string> Items = {};
    Box at = {};
    Color BackColor = windowColor;
    bool clickOnChosenRow = false; ///< a person's click on the chosen row raises `Click` too
    bool Visible = true;
    Label* label = nullptr; ///< the caption that names it
    Frame* container = nullptr;
};

struct OptionButtonDesign {
    const char* Caption = "";
    Box at = {};
    bool Value = false;
    Color ForeColor = windowTextColor;
    bool Visible = true;
    Label* label = nullptr; ///< the caption that names it, where it has none of its own
    Frame* container = nullptr;
};

struct CommandButtonDesign {
    const char* Caption = "";
    Box at = {};
    bool Visible = true;
    Frame* container = nullptr;
};

struct ScrollBarDesign {
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

struct FrameDesign {
    const char* Caption = "";
    Box at = {};
    const char* picture = ""; ///< the drawing inside it: a name in resources/dessins
    bool Visible = true;
};

struct PictureDesign {
    const char* picture = ""; ///< a name in resources/dessins
    Box at = {};
    bool Visible = true;
    Frame* container = nullptr;
};

struct LineDesign {
    double X1 = 0;
    double Y1 = 0;
    double X2 = 0;
    double Y2 = 0;
    Color BorderColor = windowTextColor;
    int BorderWidth = 1; ///< in pixels at 96 dpi
    bool Visible = true;
    const Shape* within = nullptr; ///< where a diagram is drawn: what reaches beyond is not shown
};

struct ShapeDesign {
    Box at = {};
    Frame* container = nullptr;
};

struct MaskEdBoxDesign {
    Box at = {};
    Color BackColor = windowColor;
    Label* label = nullptr; ///< the caption that names it
    Frame* container = nullptr;
};

} // namespace ondelis

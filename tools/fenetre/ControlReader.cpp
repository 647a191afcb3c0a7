#include "ControlReader.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <cmath>
#include <stdexcept>

#include "view/Colors.h"
#include "view/ControlWidget.h"
#include "view/LinesWidget.h"
#include "view/Scale.h"
#include "view/ScrollBarWidget.h"

namespace ondelis::fenetre {
namespace {

Color colorOf(const QColor& color)
{
    return static_cast<Color>(color.blue()) << 16U | static_cast<Color>(color.green()) << 8U
        | static_cast<Color>(color.red());
}

/// A coordinate of a line as a panel holds it; a whole one as a whole number.
Json coordinate(double twips)
{
    const auto single = static_cast<double>(static_cast<float>(twips));
    if (std::trunc(single) == single)
        return static_cast<std::int64_t>(single);
    return single;
}

double distance(const QPointF& point, const QLineF& line)
{
    const QPointF way = point - line.p1();
    return line.length() == 0 ? std::hypot(way.x(), way.y())
                              : std::abs(way.x() * line.dy() - way.y() * line.dx()) / line.length();
}

/// Whether a line reaches out of its diagram, and the part of it that runs inside is what is painted.
bool isClipped(const std::optional<QLineF>& painted, const QLineF& whole, const QRectF& diagram)
{
    if (diagram.contains(whole.p1()) && diagram.contains(whole.p2()))
        return false;
    constexpr double sharpness = 0.01; // pixels
    const QRectF inner = diagram.adjusted(2, 2, -2, -2);
    if (!painted) { // then it must pass the diagram by
        for (int step = 0; step <= 1000; ++step)
            if (inner.contains(whole.pointAt(step / 1000.0)))
                return false;
        return true;
    }
    const auto ends = [&](const QPointF& shown, const QPointF& stated) {
        const bool cut = !diagram.contains(stated) && !inner.contains(shown);
        return cut ? distance(shown, whole) < sharpness : shown == stated;
    };
    return ends(painted->p1(), whole.p1()) && ends(painted->p2(), whole.p2());
}

} // namespace

QString captionOf(QString shown)
{
    return shown.replace(QLatin1String{"&&"}, QLatin1String{"&"});
}

Json ControlReader::read(Control& control)
{
    unseen("kind"); // the class of the widget is what is read below
    control.accept(*this);
    const auto* const frame = qobject_cast<const QGroupBox*>(widgetOf<QWidget>(control).parentWidget());
    seenText("Frame", frame == nullptr ? QString{} : frame->objectName());
    for (const auto& [member, value] : stated_.items())
        if (!read_.contains(member))
            throw std::logic_error{"nobody has looked for " + member + " of a " + stated_["kind"].get<std::string>()};
    return stated_;
}

template <class Widget>
Widget& ControlReader::widgetOf(const Control& control) const
{
    return dynamic_cast<Widget&>(window_.find(control)->widget());
}

void ControlReader::seen(const char* member, Json value)
{
    stated_[member] = std::move(value);
    read_.insert(member);
}

void ControlReader::seenText(const char* member, const QString& text)
{
    seen(member, text.toStdString());
}

void ControlReader::readVisible(const Control& control)
{
    seen("Visible", !widgetOf<QWidget>(control).isHidden());
}

void ControlReader::seenPlace(const char* member, const Property<Single>& stated, int pixels, const QWidget& widget)
{
    const Scale scale{widget};
    if (scale.pixels(Double{stated}.value()) == pixels)
        unseen(member);
    else
        seen(member, scale.twips(pixels));
}

void ControlReader::seenTextColor(const char* member, Color stated, const QColor& painted, const QColor& background)
{
    const bool readableOnItsBackground = isSystemColor(stated) && (painted == Qt::black || painted == Qt::white)
        && contrast(painted, background) >= textContrast;
    const bool same = readableOnItsBackground || painted == shownStroke(stated, background);
    seen(member, same ? plainColor(stated) : colorOf(painted));
}

void ControlReader::seenType(const QWidget& widget, Qt::Alignment alignment)
{
    seen("Alignment",
        alignment.testFlag(Qt::AlignRight)         ? "right"
            : alignment.testFlag(Qt::AlignHCenter) ? "center"
                                                   : "left");
    seen("FontSize", widget.font().pointSizeF());
    seen("FontBold", widget.font().bold());
}

void ControlReader::seenLabel(const Label* label, const Label* otherLabel, const QWidget& widget)
{
    const auto captions = [&](const Label* one) {
        const QString written = widgetOf<QLabel>(*one).text();
        return written.isEmpty() ? toQString(one->design().Caption) : written;
    };
    const QString name = widget.accessibleName();
    const bool named = label == nullptr
        ? name == window_.windowTitle()
        : name == captions(label) || (otherLabel != nullptr && name == captions(otherLabel));
    // Captions with the same text cannot be told apart. With both hidden there is nothing to name.
    const bool hidden = label != nullptr && widgetOf<QLabel>(*label).isHidden() && widget.isHidden();
    if (named || (hidden && name.isEmpty()))
        unseen("Label");
    else
        seenText("Label", name);
}

void ControlReader::visit(Label& label)
{
    const auto& widget = widgetOf<QLabel>(label);
    seenText("Caption", widget.text());
    readVisible(label);
    seenPlace("Top", label.Top, widget.y(), widget);
    seenTextColor("ForeColor", label.design().ForeColor, widget.palette().color(QPalette::WindowText),
        QApplication::palette().color(QPalette::Window));
    seenType(widget, widget.alignment());
}

void ControlReader::visit(TextBox& box)
{
    const auto& widget = widgetOf<QWidget>(box);
    const QColor background = widget.palette().color(QPalette::Base);
    seen("BackColor", colorOf(background));
    seenTextColor("ForeColor", box.ForeColor, widget.palette().color(QPalette::Text), background);
    readVisible(box);
    seenPlace("Top", box.Top, widget.y(), widget);
    seenLabel(box.design().label, box.design().otherLabel, widget);
    unseen("MaxLength");
    if (const auto* const line = qobject_cast<const QLineEdit*>(&widget)) {
        seenText("Text", line->text());
        seen("Locked", line->isReadOnly());
        seen("MultiLine", false);
        seenType(widget, line->alignment());
    } else {
        const auto& area = dynamic_cast<const QPlainTextEdit&>(widget);
        seenText("Text", area.toPlainText());
        seen("Locked", area.isReadOnly());
        seen("MultiLine", true);
        seenType(widget, area.document()->defaultTextOption().alignment());
    }
}

void ControlReader::visit(ListBox& list)
{
    const auto& widget = widgetOf<QListWidget>(list);
    Json rows = Json::array();
    for (int row = 0; row < widget.count(); ++row)
        rows.push_back(widget.item(row)->text().toStdString());
    const QList<QListWidgetItem*> chosen = widget.selectedItems();
    seen("ListIndex", chosen.isEmpty() ? -1 : widget.row(chosen.first()));
    seen("ListCount", widget.count());
    seenText("Text", chosen.isEmpty() ? QString{} : chosen.first()->text());
    seen("Items", std::move(rows));
    readVisible(list);
    seen("BackColor", colorOf(widget.palette().color(QPalette::Base)));
    seenLabel(list.design().label, nullptr, widget);
}

void ControlReader::visit(OptionButton& option)
{
    const auto& widget = widgetOf<QRadioButton>(option);
    seenText("Caption", captionOf(widget.text()));
    seen("Value", widget.isChecked());
    seenTextColor("ForeColor", option.ForeColor, widget.palette().color(QPalette::WindowText),
        QApplication::palette().color(QPalette::Window));
    readVisible(option);
}

void ControlReader::visit(CommandButton& button)
{
    const auto& widget = widgetOf<QPushButton>(button);
    seenText("Caption", captionOf(widget.text()));
    seen("Value", widget.isDown());
    readVisible(button);
}

void ControlReader::visit(ScrollBar& bar)
{
    const auto& widget = widgetOf<ScrollBarWidget>(bar);
    seen("Value", widget.shownValue());
    seen("Min", widget.limitAtStart());
    seen("Max", widget.limitAtEnd());
    seen("SmallChange", widget.singleStep());
    seen("LargeChange", widget.pageStep());
    readVisible(bar);
    seenLabel(bar.design().label, nullptr, widget);
}

void ControlReader::visit(Frame& frame)
{
    seenText("Caption", captionOf(widgetOf<QGroupBox>(frame).title()));
    unseen("Picture");
    readVisible(frame);
}

void ControlReader::visit(Picture& picture)
{
    readVisible(picture);
    unseen("Picture");
}

void ControlReader::visit(Line& line)
{
    const auto& widget = widgetOf<LinesWidget>(line);
    unseen("BorderColor");
    unseen("BorderWidth");
    const Scale scale{widget};
    const auto pixels = [&](const Property<Single>& twips) { return scale.exact(Double{twips}.value()); };
    const QLineF stated{pixels(line.X1), pixels(line.Y1), pixels(line.X2), pixels(line.Y2)};
    const std::optional<QLineF> painted = widget.painted(line);
    const Shape* const diagram = line.design().within;
    if (diagram != nullptr && line.Visible && isClipped(painted, stated, scale.pixels(diagram->at()))) {
        for (const char* const member : {"X1", "Y1", "X2", "Y2", "Visible"})
            unseen(member); // what lies outside the diagram
        return;
    }
    seen("Visible", painted.has_value());
    const QLineF shown = painted.value_or(stated);
    const auto end = [&](const char* member, double at) { seen(member, coordinate(at / scale.exact(1))); };
    end("X1", shown.x1());
    end("Y1", shown.y1());
    end("X2", shown.x2());
    end("Y2", shown.y2());
}

void ControlReader::visit(Shape& shape)
{
    static_cast<void>(widgetOf<LinesWidget>(shape));
}

void ControlReader::visit(MaskEdBox& box)
{
    const auto& widget = widgetOf<QLineEdit>(box);
    seenText(widget.hasFocus() ? "Text" : "Display", widget.text());
    unseen(widget.hasFocus() ? "Display" : "Text");
    seen("BackColor", colorOf(widget.palette().color(QPalette::Base)));
    seenLabel(box.design().label, nullptr, widget);
}

} // namespace ondelis::fenetre

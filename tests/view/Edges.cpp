#include "Edges.h"

#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyleOptionGroupBox>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "view/ControlWidget.h"
#include "view/Scale.h"

namespace ondelis {
namespace {

/// One side of a rectangle: its first pixel, the way along it, and the way inside.
struct Side {
    const char* name;
    QPoint start;
    QPoint along;
    QPoint inside;
    int length;
};

std::array<Side, 4> sidesOf(const QRect& place)
{
    constexpr QPoint right{1, 0};
    constexpr QPoint down{0, 1};
    return {{{"top", place.topLeft(), right, down, place.width()},
        {"bottom", place.bottomLeft(), right, -down, place.width()},
        {"left", place.topLeft(), down, right, place.height()},
        {"right", place.topRight(), down, -right, place.height()}}};
}

/// The pixels of a side that are looked at.
template <class Look>
void walk(const Side& side, int corner, Look&& look)
{
    for (int step = corner; step < side.length - corner; ++step)
        look(side.start + step * side.along);
}

/// A thing that has an edge, in pixels of the main window.
struct Edged {
    QString name;
    QRect place;
};

bool hasEdge(const QWidget& widget)
{
    if (const auto* const frame = qobject_cast<const QFrame*>(&widget))
        return frame->frameShape() != QFrame::NoFrame;
    return qobject_cast<const QLineEdit*>(&widget) != nullptr || qobject_cast<const QScrollBar*>(&widget) != nullptr
        || qobject_cast<const QGroupBox*>(&widget) != nullptr;
}

QRect edgeOf(const QWidget& widget)
{
    if (qobject_cast<const QGroupBox*>(&widget) == nullptr)
        return widget.rect();
    QStyleOptionGroupBox option;
    option.initFrom(&widget);
    option.text = qobject_cast<const QGroupBox*>(&widget)->title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.lineWidth = 1;
    option.textAlignment = Qt::AlignLeft;
    return widget.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxFrame, &widget);
}

std::vector<Edged> edgedIn(const PanelWindow& window)
{
    const QWidget* const main = window.window();
    const QString panel = window.objectName();
    std::vector<Edged> found{{panel, {window.mapTo(main, QPoint{}), window.size()}}};
    const auto add = [&](const Control& control, const QWidget& on, const QRect& rect) {
        found.push_back(
            {panel + QLatin1Char{'.'} + toQString(control.name()), rect.translated(on.mapTo(main, QPoint{}))});
    };
    for (const Control* control : window.panel().controls()) {
        ControlWidget* const shown = window.find(*control);
        if (!control->onScreen() || shown == nullptr || shown->widget().hasFocus())
            continue;
        const QWidget& widget = shown->widget();
        if (dynamic_cast<const Shape*>(control) != nullptr)
            add(*control, *widget.parentWidget(), Scale{widget}.pixels(control->at()));
        else if (hasEdge(widget))
            add(*control, widget, edgeOf(widget));
    }
    return found;
}

} // namespace

QStringList sidesWithoutEdge(const QImage& picture, const QRect& place, int pixels)
{
    const int corner = 8 * pixels;
    const auto sides = sidesOf(place);
    QHash<QRgb, int> counts;
    for (const Side& side : sides)
        walk(side, corner, [&](const QPoint& at) { ++counts[picture.pixel(at)]; });
    if (counts.isEmpty())
        return {};
    const QRgb color = std::max_element(counts.cbegin(), counts.cend()).key();
    QStringList missing;
    for (const Side& side : sides) {
        int good = 0;
        int all = 0;
        walk(side, corner, [&](const QPoint& at) {
            bool edge = picture.pixel(at + pixels * side.inside) != color;
            for (int depth = 0; depth < pixels; ++depth)
                edge = edge && picture.pixel(at + depth * side.inside) == color;
            good += edge ? 1 : 0;
            ++all;
        });
        if (good * 4 < all * 3) // something on the edge or beside it may cover a part
            missing.append(QString::fromLatin1(side.name));
    }
    return missing;
}

QStringList missingEdges(const PanelWindow& window)
{
    // This part of the main window begins on a device pixel at all scales of the screen.
    constexpr int step = 20;
    QWidget& main = *window.window();
    const QPoint corner = window.mapTo(&main, QPoint{});
    const QPoint origin{(corner.x() / step - 1) * step, (corner.y() / step - 1) * step};
    const QSize size = QSize{corner.x() - origin.x(), corner.y() - origin.y()} + window.size() + QSize{step, step};
    const QImage picture = main.grab({origin, size}).toImage().convertToFormat(QImage::Format_RGB32);

    const double scale = main.devicePixelRatioF();
    QStringList missing;
    for (const Edged& thing : edgedIn(window)) {
        const QRect place = thing.place.translated(-origin);
        const QPoint first{qRound(place.x() * scale), qRound(place.y() * scale)};
        const QPoint last{qRound((place.x() + place.width()) * scale), qRound((place.y() + place.height()) * scale)};
        const QRect pixels{first, QSize{last.x() - first.x(), last.y() - first.y()}};
        for (const QString& side : sidesWithoutEdge(picture, pixels, std::max(1, static_cast<int>(scale))))
            missing.append(thing.name + QLatin1String{": "} + side);
    }
    return missing;
}

int edgedThings(const PanelWindow& window)
{
    return static_cast<int>(edgedIn(window).size());
}

} // namespace ondelis

#include "FormCheck.h"

#include <QAccessible>
#include <QFile>
#include <QGroupBox>
#include <QListWidget>
#include <QScrollBar>
#include <QStyleOptionTitleBar>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>

#include "TextFit.h"
#include "forms/Controls.h"
#include "panels/CouleursDessins.h"
#include "view/ControlWidget.h"

namespace ondelis {
namespace {

/// A list with as many rows or fewer shows them all.
constexpr int fewRows = 8;

// In twips.
constexpr double optionHeight = 300;
constexpr double boldHeight = 315;
constexpr double listRow = 240;
constexpr double listBorders = 60;
constexpr double twipsPerPixel = 15;

constexpr double dimensionSize = 8; // in points

class Check {
public:
    Check(const PanelWindow& window, const Typed& typed) : window_{window}, typed_{typed} { }

    std::vector<FormFault> run()
    {
        place_ = toQString(window_.panel().design().name);
        checkTitle();
        for (const Control* control : window_.panel().controls()) {
            if (!isShown(*control))
                continue;
            turnTo(*control);
            QWidget& widget = window_.find(*control)->widget();
            checkTexts(widget);
            checkRows(widget);
            checkMeasures();
            checkPlace(widget);
            checkDrawing();
            checkSize();
            checkName(widget);
        }
        checkOverlaps();
        return std::move(faults_);
    }

private:
    [[nodiscard]] bool isShown(const Control& control) const
    {
        return control.onScreen() && window_.find(control) != nullptr;
    }

    void turnTo(const Control& control)
    {
        control_ = &control;
        place_ = toQString(window_.panel().design().name + "." + control.name());
    }

    void fault(const QString& words, int missing = 0) { faults_.push_back({place_, words, missing}); }

    void cut(const QString& text, int missing)
    {
        fault(text.isEmpty() ? QStringLiteral("it is too low for any text")
                             : QStringLiteral("the text \"%1\" is cut").arg(text),
            missing);
    }

    void checkTitle()
    {
        QStyleOptionTitleBar option;
        option.initFrom(&window_);
        option.titleBarFlags = window_.windowFlags();
        option.subControls = QStyle::SC_All;
        const QStyle& style = *window_.style();
        option.rect.setHeight(style.pixelMetric(QStyle::PM_TitleBarHeight, &option, &window_));
        const QRect room = style.subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel, &window_);
        constexpr int margin = 14; // of Fusion, at both sides together
        const int missing = window_.fontMetrics().horizontalAdvance(window_.windowTitle()) + margin - room.width();
        if (missing > 0)
            cut(window_.windowTitle(), missing);
    }

    void checkTexts(const QWidget& widget)
    {
        const auto typed = typed_.find(control_);
        for (const TextCut& one : cutsIn(widget))
            if (typed == typed_.end() || typed->second != one.text)
                cut(one.text, one.missing);
    }

    void checkRows(const QWidget& widget)
    {
        const auto* const list = dynamic_cast<const QListWidget*>(&widget);
        if (list != nullptr && list->count() <= fewRows && list->verticalScrollBar()->maximum() > 0)
            fault(QStringLiteral("the list does not show all of its few rows"));
    }

    /// The measures that docs/look.md gives.
    void checkMeasures()
    {
        const double height = control_->at().Height;
        if (dynamic_cast<const OptionButton*>(control_) != nullptr && height != optionHeight)
            fault(QStringLiteral("the option is not as high as all others"));
        // In some fonts bold accented capitals are taller than a plain caption.
        if (const auto* const label = dynamic_cast<const Label*>(control_);
            label != nullptr && label->design().font.bold && height < boldHeight)
            fault(QStringLiteral("the bold caption is lower than a field"));
        const auto* const list = dynamic_cast<const ListBox*>(control_);
        if (list == nullptr)
            return;
        const double rows = (height - listBorders) / listRow;
        if (rows != std::floor(rows))
            fault(QStringLiteral("the list cuts a row"));
        // A list that the panel fills at run time may have fewer rows than it has room for.
        if (const auto items = static_cast<double>(list->design().Items.size()); items > 0 && rows > items)
            fault(QStringLiteral("the list is blank below its last row"));
    }

    void checkPlace(const QWidget& widget)
    {
        if (dynamic_cast<const Line*>(control_) != nullptr || dynamic_cast<const Shape*>(control_) != nullptr)
            return;
        const QWidget& around = *widget.parentWidget();
        if (!around.rect().contains(widget.geometry()))
            fault(QStringLiteral("it reaches beyond its panel or frame"));
        if (const QRect title = titleOf(around); title.isValid() && widget.y() <= title.bottom())
            fault(QStringLiteral("it covers the title of its frame"));
    }

    void checkDrawing()
    {
        std::string name;
        const auto* const picture = dynamic_cast<const Picture*>(control_);
        if (picture != nullptr)
            name = picture->design().picture;
        else if (const auto* const frame = dynamic_cast<const Frame*>(control_))
            name = frame->design().picture;
        if (name.empty())
            return;
        const QString file = QStringLiteral(":/dessins/%1.svg").arg(toQString(name));
        if (!QFile::exists(file))
            fault(QStringLiteral("there is no drawing %1").arg(toQString(name)));
        else if (picture != nullptr && !isOfItsSize(*picture, QSvgRenderer{file}.defaultSize()))
            fault(QStringLiteral("the drawing is not shown in its size"));
    }

    /// Whether a control shows a drawing at its own size: with room to spare in one direction at most.
    static bool isOfItsSize(const Picture& picture, const QSize& pixels)
    {
        const double across = picture.at().Width / (twipsPerPixel * pixels.width());
        const double down = picture.at().Height / (twipsPerPixel * pixels.height());
        return std::min(across, down) == 1;
    }

    /// One size for all texts, but for the dimensions on drawings.
    void checkSize()
    {
        const auto* const label = dynamic_cast<const Label*>(control_);
        if (label == nullptr)
            return;
        const double size = label->design().ForeColor == dessin::cote ? dimensionSize : Font{}.size;
        if (label->design().font.size != size)
            fault(QStringLiteral("its text is not of the size of all others"));
    }

    void checkName(QWidget& widget)
    {
        if (control_->focusable() && QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).isEmpty())
            fault(QStringLiteral("it has no name for a screen reader"));
    }

    /// The part of a control that nothing else may cover, in pixels of the client area: nothing of drawings and lines,
    /// the title of a frame, the whole of others.
    [[nodiscard]] QRect solidPartOf(const Control& control) const
    {
        if (!isShown(control))
            return {};
        const QWidget& widget = window_.find(control)->widget();
        const auto* const label = dynamic_cast<const Label*>(&control);
        const bool whole = control.focusable() || (label != nullptr && !label->Caption.get().empty());
        const QRect part = whole ? widget.rect() : titleOf(widget);
        return part.isValid() ? part.translated(widget.mapTo(&window_.form(), QPoint{})) : QRect{};
    }

    /// A caption that another control hides completely.
    static bool isHidden(const Control& control, const QRect& part, const QRect& other)
    {
        return dynamic_cast<const Label*>(&control) != nullptr && other.contains(part);
    }

    void checkOverlaps()
    {
        const std::vector<Control*>& controls = window_.panel().controls();
        std::vector<QRect> parts;
        parts.reserve(controls.size());
        for (const Control* control : controls)
            parts.push_back(solidPartOf(*control));
        for (std::size_t one = 0; one < parts.size(); ++one)
            for (std::size_t other = one + 1; other < parts.size(); ++other)
                if (parts[one].intersects(parts[other]) && controls[other]->container() != controls[one]
                    && !isHidden(*controls[one], parts[one], parts[other])
                    && !isHidden(*controls[other], parts[other], parts[one])) {
                    turnTo(*controls[one]);
                    fault(QStringLiteral("it overlaps %1").arg(toQString(controls[other]->name())));
                }
    }

    const PanelWindow& window_;
    const Typed& typed_;
    const Control* control_ = nullptr;
    QString place_;
    std::vector<FormFault> faults_;
};

} // namespace

QString FormFault::line() const
{
    return missing == 0 ? place + ": " + words : QStringLiteral("%1: %2, by %3 pixels").arg(place, words).arg(missing);
}

std::vector<FormFault> faultsOf(const PanelWindow& window, const Typed& typed)
{
    return Check{window, typed}.run();
}

} // namespace ondelis

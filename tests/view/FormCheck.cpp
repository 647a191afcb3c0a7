#include "FormCheck.h"

#include <QAccessible>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>

#include "forms/Controls.h"
#include "view/ControlWidget.h"

namespace ondelis {
namespace {

/// A list with as many rows or fewer shows them all.
constexpr int fewRows = 8;

/// The text of a button as it is read.
QString readText(QString text)
{
    return text.replace(QStringLiteral("&&"), QStringLiteral("&"));
}

QString cutText(const QString& text)
{
    return QStringLiteral("the text \"%1\" is cut").arg(text);
}

class Check {
public:
    explicit Check(const PanelWindow& window) : window_{window} { }

    QStringList run()
    {
        for (const Control* control : window_.panel().controls()) {
            const ControlWidget* const shown = window_.find(*control);
            if (shown == nullptr || !control->onScreen())
                continue;
            control_ = control;
            QWidget& widget = window_.find(*control)->widget();
            checkText(widget);
            checkPlace(widget);
            checkDrawing();
            checkName(widget);
        }
        checkOverlaps();
        return faults_;
    }

private:
    void fault(const QString& words)
    {
        faults_.append(toQString(window_.panel().design().name + "." + control_->name() + ": ") + words);
    }

    void require(bool fits, const QString& text)
    {
        if (!fits)
            fault(cutText(text));
    }

    void checkText(const QWidget& widget)
    {
        if (const auto* const label = dynamic_cast<const QLabel*>(&widget))
            checkLabel(*label);
        else if (const auto* const field = dynamic_cast<const QLineEdit*>(&widget))
            checkField(*field);
        else if (const auto* const list = dynamic_cast<const QListWidget*>(&widget))
            checkList(*list);
        else if (const auto* const option = dynamic_cast<const QRadioButton*>(&widget))
            require(fits(option->sizeHint(), option->size()), readText(option->text()));
        else if (const auto* const button = dynamic_cast<const QPushButton*>(&widget))
            checkButton(*button);
        else if (const auto* const frame = dynamic_cast<const QGroupBox*>(&widget))
            checkFrame(*frame);
    }

    static bool fits(const QSize& inner, const QSize& outer)
    {
        return inner.width() <= outer.width() && inner.height() <= outer.height();
    }

    void checkLabel(const QLabel& label)
    {
        const QFontMetrics metrics = label.fontMetrics();
        const QRect room{0, 0, label.width(), label.wordWrap() ? QWIDGETSIZE_MAX : label.height()};
        const int flags = label.wordWrap() ? Qt::TextWordWrap : 0;
        require(fits(metrics.boundingRect(room, flags, label.text()).size(), label.size()), label.text());
    }

    void checkField(const QLineEdit& field)
    {
        QStyleOptionFrame option;
        option.initFrom(&field);
        option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
        const QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
        const QFontMetrics metrics = field.fontMetrics();
        if (room.height() < metrics.height())
            fault(QStringLiteral("the field is too low for its text"));
        constexpr int innerMargin = 2; // of the widget, at either side
        if (field.isReadOnly())
            require(metrics.horizontalAdvance(field.text()) + 2 * innerMargin <= room.width(), field.text());
    }

    void checkList(const QListWidget& list)
    {
        const QFontMetrics metrics = list.fontMetrics();
        const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
        for (int row = 0; row < list.count(); ++row) {
            const QString text = list.item(row)->text();
            const QSize room{list.viewport()->width() - 2 * margin, list.item(row)->sizeHint().height()};
            require(fits({metrics.horizontalAdvance(text), metrics.height()}, room), text);
        }
        if (list.count() <= fewRows && list.verticalScrollBar()->maximum() > 0)
            fault(QStringLiteral("the list does not show all of its few rows"));
    }

    void checkButton(const QPushButton& button)
    {
        const QString text = readText(button.text());
        const int margin = button.style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, &button);
        const QSize needed{button.fontMetrics().horizontalAdvance(text) + margin, button.fontMetrics().height()};
        require(fits(needed, button.size()), text);
    }

    void checkFrame(const QGroupBox& frame)
    {
        const QString title = readText(frame.title());
        require(frame.fontMetrics().horizontalAdvance(title) <= frame.width(), title);
    }

    void checkPlace(const QWidget& widget)
    {
        if (dynamic_cast<const Line*>(control_) != nullptr || dynamic_cast<const Shape*>(control_) != nullptr)
            return;
        const QWidget& around = *widget.parentWidget();
        if (!around.rect().contains(widget.geometry()))
            fault(QStringLiteral("it reaches beyond its panel or frame"));
        if (const auto* const frame = dynamic_cast<const QGroupBox*>(&around))
            if (widget.y() < titleHeight(*frame))
                fault(QStringLiteral("it covers the title of its frame"));
    }

    static int titleHeight(const QGroupBox& frame)
    {
        return frame.title().isEmpty() ? 0 : frame.fontMetrics().height();
    }

    void checkDrawing()
    {
        std::string name;
        if (const auto* const picture = dynamic_cast<const Picture*>(control_))
            name = picture->design().picture;
        else if (const auto* const frame = dynamic_cast<const Frame*>(control_))
            name = frame->design().picture;
        if (!name.empty() && !QFile::exists(QStringLiteral(":/dessins/%1.svg").arg(toQString(name))))
            fault(QStringLiteral("there is no drawing %1").arg(toQString(name)));
    }

    void checkName(QWidget& widget)
    {
        if (control_->focusable() && QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name).isEmpty())
            fault(QStringLiteral("it has no name for a screen reader"));
    }

    /// Whether nothing else may stand on it. Drawings and lines may lie under other controls, and a frame lies under
    /// what it holds.
    [[nodiscard]] bool isSolid(const Control& control) const
    {
        const ControlWidget* const shown = window_.find(control);
        if (shown == nullptr || !control.onScreen())
            return false;
        if (const auto* const label = dynamic_cast<const Label*>(&control))
            return !label->Caption.get().empty();
        return control.focusable();
    }

    [[nodiscard]] QRect placeOf(const Control& control) const
    {
        const QWidget& widget = window_.find(control)->widget();
        return {widget.mapTo(&window_.form(), QPoint{}), widget.size()};
    }

    void checkOverlaps()
    {
        const std::vector<Control*>& controls = window_.panel().controls();
        for (auto one = controls.begin(); one != controls.end(); ++one)
            for (auto other = one + 1; other != controls.end(); ++other)
                if (isSolid(**one) && isSolid(**other) && placeOf(**one).intersects(placeOf(**other))) {
                    control_ = *one;
                    fault(QStringLiteral("it overlaps %1").arg(toQString((*other)->name())));
                }
    }

    const PanelWindow& window_;
    const Control* control_ = nullptr;
    QStringList faults_;
};

} // namespace

QStringList faultsOf(const PanelWindow& window)
{
    return Check{window}.run();
}

} // namespace ondelis

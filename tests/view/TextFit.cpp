#include "TextFit.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>
#include <algorithm>

namespace ondelis {
namespace {

/// The text of a button as it is read.
QString readText(QString text)
{
    return text.replace(QStringLiteral("&&"), QStringLiteral("&"));
}

/// The pixels of height that a line of text lacks in a room in whose middle it stands: only its ink counts.
int missingHeight(const QFontMetrics& metrics, int room)
{
    const QRect ink = metrics.tightBoundingRect(QStringLiteral("ÉÀÇgjpqy"));
    const int base = (room - metrics.height()) / 2 + metrics.ascent();
    return std::max(-(base + ink.top()), base + ink.bottom() + 1 - room);
}

class Measure {
public:
    std::vector<TextCut> cuts;

    void label(const QLabel& label)
    {
        const QFontMetrics metrics = label.fontMetrics();
        if (label.wordWrap()) {
            const QRect room{0, 0, label.width(), QWIDGETSIZE_MAX};
            require(metrics.boundingRect(room, Qt::TextWordWrap, label.text()).size(), label.size(), label.text());
        } else {
            requireLine(metrics, label.text(), label.size());
        }
    }

    void field(const QLineEdit& field)
    {
        QStyleOptionFrame option;
        option.initFrom(&field);
        option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
        const QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
        constexpr int innerMargin = 2; // of the widget, at either side
        const QFontMetrics metrics = field.fontMetrics();
        if (const int missing = missingHeight(metrics, room.height()); missing > 0) // whatever is typed
            cuts.push_back({{}, missing});
        require({metrics.horizontalAdvance(field.text()), 0}, {room.width() - 2 * innerMargin, 0}, field.text());
    }

    void area(const QPlainTextEdit& area)
    {
        const QScrollBar& bar = *area.verticalScrollBar(); // counts lines
        require({}, {0, -(bar.maximum() - bar.minimum()) * area.fontMetrics().lineSpacing()}, area.toPlainText());
    }

    void list(const QListWidget& list)
    {
        const QFontMetrics metrics = list.fontMetrics();
        const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
        for (int row = 0; row < list.count(); ++row) {
            const QSize room{list.viewport()->width() - 2 * margin, list.item(row)->sizeHint().height()};
            requireLine(metrics, list.item(row)->text(), room);
        }
    }

    void option(const QRadioButton& button)
    {
        QStyleOptionButton option;
        option.initFrom(&button);
        const QRect room = button.style()->subElementRect(QStyle::SE_RadioButtonContents, &option, &button);
        requireLine(button.fontMetrics(), readText(button.text()), room.size());
    }

    void button(const QPushButton& button)
    {
        const int margin = button.style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, &button);
        requireLine(button.fontMetrics(), readText(button.text()), button.size() - QSize{margin, 0});
    }

    void frame(const QGroupBox& frame)
    {
        const QRect title = titleOf(frame);
        require(title.size(), title.intersected(frame.rect()).size(), readText(frame.title()));
    }

private:
    void requireLine(const QFontMetrics& metrics, const QString& text, const QSize& room)
    {
        const int width = metrics.horizontalAdvance(text);
        const int missing = std::max(width - room.width(), missingHeight(metrics, room.height()));
        if (!text.isEmpty() && missing > 0)
            cuts.push_back({text, missing});
    }

    void require(const QSize& needed, const QSize& room, const QString& text)
    {
        const int missing = std::max(needed.width() - room.width(), needed.height() - room.height());
        if (missing > 0)
            cuts.push_back({text, missing});
    }
};

} // namespace

std::vector<TextCut> cutsIn(const QWidget& widget)
{
    Measure measure;
    if (const auto* const label = dynamic_cast<const QLabel*>(&widget))
        measure.label(*label);
    else if (const auto* const field = dynamic_cast<const QLineEdit*>(&widget))
        measure.field(*field);
    else if (const auto* const area = dynamic_cast<const QPlainTextEdit*>(&widget))
        measure.area(*area);
    else if (const auto* const list = dynamic_cast<const QListWidget*>(&widget))
        measure.list(*list);
    else if (const auto* const option = dynamic_cast<const QRadioButton*>(&widget))
        measure.option(*option);
    else if (const auto* const button = dynamic_cast<const QPushButton*>(&widget))
        measure.button(*button);
    else if (const auto* const frame = dynamic_cast<const QGroupBox*>(&widget))
        measure.frame(*frame);
    return std::move(measure.cuts);
}

QRect titleOf(const QWidget& widget)
{
    const auto* const frame = dynamic_cast<const QGroupBox*>(&widget);
    if (frame == nullptr || frame->title().isEmpty())
        return {};
    QStyleOptionGroupBox option;
    option.initFrom(frame);
    option.text = frame->title();
    option.textAlignment = frame->alignment();
    option.subControls = QStyle::SC_GroupBoxLabel | QStyle::SC_GroupBoxFrame;
    return frame->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, frame);
}

} // namespace ondelis

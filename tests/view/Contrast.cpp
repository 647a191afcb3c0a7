#include "Contrast.h"

#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <QStyleOptionTitleBar>
#include <algorithm>

#include "TextFit.h"
#include "view/Colors.h"
#include "view/ControlWidget.h"

namespace ondelis {
namespace {

constexpr double enough = 4.5;

/// Looks at a window as it is painted.
class Eye {
public:
    explicit Eye(QWidget& window) : window_{window}, image_{window.grab().toImage()} { }

    QStringList faults;

    void look(const QWidget& widget, const QString& name)
    {
        widget_ = &widget;
        name_ = name;
        if (const auto* const label = dynamic_cast<const QLabel*>(&widget))
            lookAtLabel(*label);
        else if (const auto* const field = dynamic_cast<const QLineEdit*>(&widget))
            lookAtField(*field);
        else if (const auto* const area = dynamic_cast<const QPlainTextEdit*>(&widget))
            lookAtPlace(QPalette::Text, area->rect());
        else if (const auto* const list = dynamic_cast<const QListWidget*>(&widget))
            lookAtList(*list);
        else if (const auto* const option = dynamic_cast<const QRadioButton*>(&widget))
            lookAtButton(*option, QPalette::WindowText, QStyle::SE_RadioButtonContents);
        else if (const auto* const button = dynamic_cast<const QPushButton*>(&widget))
            lookAtButton(*button, QPalette::ButtonText, QStyle::SE_PushButtonContents);
        else if (const QRect title = titleOf(widget); title.isValid())
            lookAtPlace(QPalette::WindowText, title);
        const bool selectable = widget.inherits("QLineEdit") || widget.inherits("QAbstractScrollArea");
        if (selectable)
            lookAtSelection();
    }

    void lookAtTitle(const QMdiSubWindow& window)
    {
        QStyleOptionTitleBar option;
        option.initFrom(&window);
        option.titleBarFlags = window.windowFlags();
        option.subControls = QStyle::SC_All;
        option.rect.setHeight(window.style()->pixelMetric(QStyle::PM_TitleBarHeight, &option, &window));
        const QRect title
            = window.style()->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarLabel, &window);
        const bool active = window.windowState().testFlag(Qt::WindowActive);
        const QColor ink = active ? Qt::white : window.palette().color(QPalette::Inactive, QPalette::Text);
        name_ += QStringLiteral(" (title)");
        // The background is a gradient: it is judged line by line, beside the text.
        const QFontMetrics metrics = window.fontMetrics();
        const int beside = title.center().x() - metrics.horizontalAdvance(window.windowTitle()) / 2 - 5;
        const int above = (title.height() - metrics.height()) / 2;
        for (int y = title.top() + above; y <= title.bottom() - above; ++y)
            judge(ink, image_.pixel(beside, y));
        name_ = name_.replace(QStringLiteral("(title)"), QStringLiteral("(close box)"));
        lookAtSign(
            window.style()->subControlRect(QStyle::CC_TitleBar, &option, QStyle::SC_TitleBarCloseButton, &window));
    }

    void lookAt(const QColor& ink, const QRect& place, const QString& name)
    {
        name_ = name;
        judge(ink, commonestColor(place));
    }

private:
    void lookAtLabel(const QLabel& label)
    {
        const QRect text = label.style()->itemTextRect(
            label.fontMetrics(), label.contentsRect(), static_cast<int>(label.alignment()), true, label.text());
        if (!label.text().isEmpty())
            lookAtPlace(label.foregroundRole(), text.adjusted(-2, 0, 2, 0) & label.rect());
    }

    void lookAtField(const QLineEdit& field)
    {
        QStyleOptionFrame option;
        option.initFrom(&field);
        const QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
        constexpr int strip = 4; // at the end, where there is least text
        if (!field.hasSelectedText())
            lookAtPlace(QPalette::Text, room.adjusted(room.width() - strip, 0, 0, 0));
        judge(color(QPalette::Text), color(QPalette::Base).rgb());
    }

    void lookAtList(const QListWidget& list)
    {
        for (int row = 0; row < list.count(); ++row) {
            const QRect place = list.visualItemRect(list.item(row)) & list.viewport()->rect();
            const auto role = list.item(row)->isSelected() ? QPalette::HighlightedText : QPalette::Text;
            if (!place.isEmpty())
                lookAtPlace(role, place.translated(list.viewport()->pos()));
        }
        judge(color(QPalette::Text), color(QPalette::Base).rgb());
    }

    void lookAtButton(const QAbstractButton& button, QPalette::ColorRole role, QStyle::SubElement contents)
    {
        QStyleOptionButton option;
        option.initFrom(&button);
        if (!button.text().isEmpty())
            lookAtPlace(role, button.style()->subElementRect(contents, &option, &button));
    }

    void lookAtSelection()
    {
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            judge(widget_->palette().color(group, QPalette::HighlightedText),
                widget_->palette().color(group, QPalette::Highlight).rgb());
    }

    void lookAtPlace(QPalette::ColorRole role, const QRect& place)
    {
        judge(color(role), commonestColor(place.translated(widget_->mapTo(&window_, QPoint{}))));
    }

    /// The middle of a place, where a sign stands: one of its colours must stand out from the commonest.
    void lookAtSign(const QRect& place)
    {
        const QRect middle = place.adjusted(4, 4, -4, -4);
        const QColor ground{commonestColor(middle)};
        QColor sign = ground;
        for (int y = middle.top(); y <= middle.bottom(); ++y)
            for (int x = middle.left(); x <= middle.right(); ++x)
                if (const QColor pixel{image_.pixel(x, y)}; contrast(pixel, ground) > contrast(sign, ground))
                    sign = pixel;
        judge(sign, ground.rgb());
    }

    [[nodiscard]] QColor color(QPalette::ColorRole role) const { return widget_->palette().color(role); }

    /// The background: most of a text's place is not ink.
    [[nodiscard]] QRgb commonestColor(const QRect& place) const
    {
        const QRect seen = place & image_.rect();
        QHash<QRgb, int> counts;
        for (int y = seen.top(); y <= seen.bottom(); ++y)
            for (int x = seen.left(); x <= seen.right(); ++x)
                ++counts[image_.pixel(x, y)];
        const auto commonest = std::max_element(counts.cbegin(), counts.cend());
        return commonest == counts.cend() ? window_.palette().color(QPalette::Window).rgb() : commonest.key();
    }

    void judge(const QColor& ink, QRgb ground)
    {
        const double found = contrast(ink, QColor{ground});
        const QString fault = QStringLiteral("%1: a text has a contrast of %2").arg(name_).arg(found, 0, 'f', 2);
        if (found < enough && !faults.contains(fault))
            faults.append(fault);
    }

    QWidget& window_;
    QImage image_;
    const QWidget* widget_ = nullptr;
    QString name_;
};

} // namespace

QStringList contrastFaultsOf(PanelWindow& window)
{
    Eye eye{window};
    const QString panel = toQString(window.panel().design().name);
    for (const Control* control : window.panel().controls())
        if (ControlWidget* const shown = window.find(*control); shown != nullptr && control->onScreen())
            eye.look(shown->widget(), panel + QLatin1Char{'.'} + toQString(control->name()));
    eye.look(window, panel);
    eye.lookAtTitle(window);
    return eye.faults;
}

QStringList contrastFaultsOfMenus(QMenuBar& bar)
{
    Eye barEye{bar};
    for (QAction* const heading : bar.actions())
        barEye.lookAt(bar.palette().color(QPalette::Text), bar.actionGeometry(heading), heading->text());
    QStringList faults = barEye.faults;
    for (QAction* const heading : bar.actions()) {
        QMenu& menu = *heading->menu();
        menu.setActiveAction(menu.actions().first());
        Eye eye{menu};
        for (QAction* const entry : menu.actions()) {
            const auto role = entry == menu.activeAction() ? QPalette::HighlightedText : QPalette::Text;
            eye.lookAt(menu.palette().color(role), menu.actionGeometry(entry), entry->text());
        }
        faults += eye.faults;
    }
    return faults;
}

QStringList contrastFaultsOfBox(QWidget& box)
{
    Eye eye{box};
    for (const QWidget* child : box.findChildren<QWidget*>())
        if (child->isVisible())
            eye.look(*child, child->objectName());
    return eye.faults;
}

} // namespace ondelis

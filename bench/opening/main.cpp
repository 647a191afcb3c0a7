// From the click on a menu entry to its panel painted, and from a key to its results painted, in the real view: the
// medians, marked "!" where they miss their goal. The keys go to the field, bar or list that the panel's example in the
// gallery uses last. A box that a panel shows is answered at once.

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <vector>

#include "Gallery.h"
#include "Words.h"
#include "forms/Controls.h"
#include "shell/Menu.h"
#include "view/Application.h"
#include "view/ControlWidget.h"
#include "view/PanelWindow.h"

namespace {

using namespace ondelis;
using namespace ondelis::galerie;
using Clock = std::chrono::steady_clock;

constexpr double openingGoal = 30; // milliseconds, for the median
constexpr double keyGoal = 8;

/// Waits until a widget has been painted, together with all else that is to be painted.
class Painting final : public QObject {
public:
    explicit Painting(QWidget& widget)
    {
        auto* const area = qobject_cast<QAbstractScrollArea*>(&widget);
        (area == nullptr ? &widget : area->viewport())->installEventFilter(this);
    }

    void wait()
    {
        const Clock::time_point deadline = Clock::now() + std::chrono::seconds{5};
        while (!painted_ && Clock::now() < deadline)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (!painted_)
            throw Refused{"nothing was painted"};
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool painted_ = false;
};

/// Milliseconds, one a trial.
class Times {
public:
    void add(Clock::time_point start)
    {
        all_.push_back(std::chrono::duration<double, std::milli>{Clock::now() - start}.count());
    }

    /// The median, marked where it is over the goal, and the longest.
    void print(double goal)
    {
        std::ranges::sort(all_);
        const double median = all_[all_.size() / 2];
        std::printf(" %7.1f ms%c%7.1f ms", median, median < goal ? ' ' : '!', all_.back());
    }

private:
    std::vector<double> all_;
};

Times openings(Player& player, const Subject& subject)
{
    const MenuEntry& entry = *findMenuEntry(subject.entry);
    Times times;
    for (int trial = 0; trial < 15; ++trial) {
        const auto start = Clock::now();
        player.view().click(entry);
        Painting{player.view().find(*player.frame().desk().loadedPanels().front())->form()}.wait();
        times.add(start);
    }
    return times;
}

/// A control that a person can type into; null where the panel has none.
Control* firstField(const FeuilleCalcul& panel)
{
    const auto found = std::ranges::find_if(panel.controls(), [](const Control* control) {
        const auto* const box = dynamic_cast<const TextBox*>(control);
        return box != nullptr && box->onScreen() && !box->Locked;
    });
    return found == panel.controls().end() ? nullptr : *found;
}

/// Plays the example of a panel up to its first picture; returns the field, bar or list that it uses last, or else the
/// panel's first field.
Control* playExample(Player& player, const Subject& subject)
{
    const FeuilleCalcul& panel = *player.frame().desk().loadedPanels().front();
    Control* used = firstField(panel);
    std::ifstream in{EXAMPLES "/" + subject.panel + ".txt"};
    for (std::string line; std::getline(in, line);) {
        pilote::Words words{line};
        if (words.atEnd())
            continue;
        const std::string gesture = words.next();
        if (gesture == "picture")
            break;
        player.play(line);
        const std::string target = words.next(); // PANEL.CONTROL
        if (Control* const control = panel.find(target.substr(target.find('.') + 1)); control && gesture != "click")
            used = control;
    }
    return used;
}

struct Key {
    Qt::Key key;
    const char* text = "";
};

/// Two keys of which each undoes what the other does.
std::array<Key, 2> keysOf(const Control& control)
{
    if (dynamic_cast<const TextBox*>(&control) != nullptr)
        return {{{Qt::Key_5, "5"}, {Qt::Key_Backspace}}};
    return {{{Qt::Key_Up}, {Qt::Key_Down}}};
}

Times keys(QWidget& widget, const std::array<Key, 2>& pair)
{
    widget.setFocus();
    Times times;
    for (std::size_t trial = 0; trial < 30; ++trial) {
        const Key& key = pair.at(trial % 2);
        const auto start = Clock::now();
        Painting painting{widget};
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event{type, key.key, Qt::NoModifier, QString::fromUtf8(key.text)};
            QCoreApplication::sendEvent(&widget, &event);
        }
        painting.wait();
        times.add(start);
    }
    return times;
}

void measure(const Subject& subject)
{
    Player player;
    std::printf("%-28s", subject.panel.c_str());
    openings(player, subject).print(openingGoal);
    if (const Control* const control = playExample(player, subject)) {
        keys(player.view().find(control->panel())->find(*control)->widget(), keysOf(*control)).print(keyGoal);
        std::printf("  %s", control->name().c_str());
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const Application application{argc, argv};
    std::printf("%-28s %10s %10s %10s %10s  %s\n", "panel", "opening", "longest", "key", "longest", "in");
    try {
        for (const Subject& subject : allSubjects())
            measure(subject);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

// From the click on a menu entry to its panel painted, in the real view. Goal: a median under 50 milliseconds for every
// panel, 300 for the one that searches as it opens. A box that a panel shows as it opens is answered at once.

#include <QAbstractButton>
#include <QMessageBox>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "forms/Desk.h"
#include "shell/MDIOndelis.h"
#include "shell/Menu.h"
#include "view/Application.h"
#include "view/PanelWindow.h"
#include "view/View.h"

namespace {

using namespace ondelis;

/// Tells when a widget has been painted.
class Painted final : public QObject {
public:
    explicit Painted(QWidget& widget) { widget.installEventFilter(this); }

    explicit operator bool() const { return painted_; }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool painted_ = false;
};

void answerBox()
{
    if (const auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        box->buttons().constFirst()->click();
}

/// Milliseconds of one opening.
double opening(View& view, MDIOndelis& frame, const MenuEntry& entry)
{
    const auto start = std::chrono::steady_clock::now();
    view.act([&](User&) { frame.click(entry); });
    const Painted painted{view.find(*frame.desk().loadedPanels().front())->form()};
    while (!painted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return std::chrono::duration<double, std::milli>{std::chrono::steady_clock::now() - start}.count();
}

} // namespace

int main(int argc, char** argv)
{
    const Application application{argc, argv};
    View view;
    Desk desk{view};
    MDIOndelis frame{desk};
    view.open(frame);
    QTimer boxes;
    QObject::connect(&boxes, &QTimer::timeout, answerBox);
    boxes.start(0);

    std::printf("%-32s %10s %10s\n", "panel", "median", "longest");
    for (const Menu& menu : menuTree()) {
        for (const MenuEntry& entry : menu.entries) {
            if (entry.control == "MenuQuitter" || entry.steps.empty())
                continue;
            std::vector<double> times(15);
            for (double& time : times)
                time = opening(view, frame, entry);
            std::ranges::sort(times);
            std::printf("%-32s %7.1f ms %7.1f ms\n", desk.loadedPanels().front()->design().name.c_str(),
                times[times.size() / 2], times.back());
            std::fflush(stdout);
        }
    }
}

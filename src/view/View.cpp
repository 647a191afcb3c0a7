#include "view/View.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QScopedValueRollback>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "shell/MDIOndelis.h"
#include "view/ClientArea.h"
#include "view/ControlWidget.h"
#include "view/Dialogs.h"
#include "view/Guide.h"
#include "view/MainWindow.h"
#include "view/PanelWindow.h"
#include "view/Scale.h"

namespace ondelis {
namespace {

/// Counts up by one for the duration of a scope.
class ScopedCount {
public:
    explicit ScopedCount(unsigned& counter) : counter_{++counter} { }
    ~ScopedCount() { --counter_; }
    ScopedCount(const ScopedCount&) = delete;
    ScopedCount& operator=(const ScopedCount&) = delete;

private:
    unsigned& counter_;
};

template <class Changed>
void addOnce(std::vector<Changed*>& list, Changed& one)
{
    if (std::ranges::find(list, &one) == list.end())
        list.push_back(&one);
}

} // namespace

View::View() = default;

View::~View()
{
    for (const auto& [panel, window] : windows_)
        window->detach();
}

void View::open(MDIOndelis& frame)
{
    frame_ = &frame;
    mainWindow_ = std::make_unique<MainWindow>(*this, frame);
    frame.start();
    refresh();
    mainWindow_->show();
}

int View::run()
{
    return status_ ? *status_ : QApplication::exec();
}

PanelWindow* View::find(const FeuilleCalcul& panel) const
{
    const auto found = windows_.find(&panel);
    return found == windows_.end() ? nullptr : found->second;
}

void View::perform(const std::function<void(User&)>& action)
{
    if (waitingBoxes_ > 0 || refreshing_ || frame_->runtime().ended())
        return;
    {
        const ScopedCount running{actions_};
        User user{frame_->runtime()};
        action(user);
    }
    refresh();
    deleteClosedWindows();
}

void View::click(const MenuEntry& entry)
{
    perform([&](User&) { frame_->click(entry); });
}

void View::close()
{
    frame_->close();
}

void View::showGuide()
{
    if (isBusy())
        return;
    const QMdiSubWindow* const active = mainWindow_->area().activeSubWindow();
    openGuide(
        *mainWindow_, active == nullptr ? QStringLiteral("index") : active->objectName(), [this](const QString& words) {
            if (isBusy())
                return;
            const ScopedCount waiting{waitingBoxes_};
            showMessageBox(*mainWindow_, {.prompt = words.toStdString()});
        });
}

bool View::isBusy() const
{
    return waitingBoxes_ > 0 || actions_ > 0 || frame_->runtime().ended();
}

Answer View::showBox(const MessageBox& box)
{
    refresh();
    const ScopedCount waiting{waitingBoxes_};
    ++boxesShown_;
    return showMessageBox(*mainWindow_, box);
}

void View::showFault(const Fault& fault)
{
    refresh();
    const ScopedCount waiting{waitingBoxes_};
    ++boxesShown_;
    showFaultBox(*mainWindow_, fault);
}

void View::runPendingEvents()
{
    refresh();
    QCoreApplication::processEvents();
}

Size View::screen() const
{
    // If there was a screen at the start, the toolkit keeps one, or a substitute for it, to the end.
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const Scale scale{qRound(screen.logicalDotsPerInchY())};
    return {scale.twips(screen.size().width()), scale.twips(screen.size().height())};
}

void View::frameChanged()
{
    frameChanged_ = true;
}

void View::panelLoaded(FeuilleCalcul& panel)
{
    addOnce(changedPanels_, panel);
}

void View::panelChanged(FeuilleCalcul& panel)
{
    addOnce(changedPanels_, panel);
}

void View::panelRaised(FeuilleCalcul& panel)
{
    addOnce(changedPanels_, panel);
    if (raised_ == nullptr) // the first one is what the person asked for, the others accompany it
        raised_ = &panel;
}

void View::panelUnloaded(FeuilleCalcul& panel)
{
    std::erase(changedPanels_, &panel);
    std::erase_if(changedControls_, [&](const Control* control) { return &control->panel() == &panel; });
    if (raised_ == &panel)
        raised_ = nullptr;
    if (focused_ != nullptr && &focused_->panel() == &panel)
        focused_ = nullptr;
    if (const auto found = windows_.find(&panel); found != windows_.end()) {
        found->second->detach();
        closedWindows_.push_back(found->second);
        windows_.erase(found);
    }
}

void View::controlChanged(Control& control)
{
    addOnce(changedControls_, control);
}

void View::focusMoved(Control& control)
{
    focused_ = &control;
}

void View::programEnded(int status)
{
    status_ = status;
    for (const auto& [panel, window] : windows_)
        window->detach();
    QCoreApplication::exit(status);
}

void View::refresh()
{
    if (status_)
        return;
    {
        const QScopedValueRollback refreshing{refreshing_, true};
        refreshWindows();
        refreshControls();
    }
    reportFocus();
}

void View::refreshWindows()
{
    if (std::exchange(frameChanged_, false))
        mainWindow_->refresh();
    ClientArea& area = mainWindow_->area();
    for (PanelWindow* window : closedWindows_)
        if (window->mdiArea() != nullptr)
            area.removeSubWindow(window);
    QMdiSubWindow* const active = area.activeSubWindow();
    for (FeuilleCalcul* panel : std::exchange(changedPanels_, {}))
        if (panel->loaded())
            refreshWindow(*panel);
    // The area activates whatever appears, even a panel that has only been written to.
    if (raised_ == nullptr && active != nullptr && !active->isHidden())
        area.setActiveSubWindow(active);
}

void View::refreshWindow(FeuilleCalcul& panel)
{
    PanelWindow* window = find(panel);
    if (window == nullptr && panel.visible()) {
        window = new PanelWindow{*this, panel};
        windows_.emplace(&panel, window);
        mainWindow_->area().addSubWindow(window);
    }
    if (window == nullptr)
        return;
    opened_ = opened_ || (panel.visible() && window->isHidden());
    window->refresh();
    window->setVisible(panel.visible());
}

void View::refreshControls()
{
    const FeuilleCalcul* const raised = std::exchange(raised_, nullptr);
    const Control* const focused = std::exchange(focused_, nullptr);
    for (Control* control : std::exchange(changedControls_, {}))
        if (PanelWindow* const window = find(control->panel()))
            window->refresh(*control);
    // A panel that appears has the keyboard in its first field, or where its code has put it.
    if (raised != nullptr)
        if (PanelWindow* const window = find(*raised))
            window->activate();
    if (focused != nullptr)
        if (const PanelWindow* const window = find(focused->panel()))
            if (ControlWidget* const shown = window->find(*focused))
                shown->widget().setFocus(Qt::OtherFocusReason);
    if (std::exchange(opened_, false))
        mainWindow_->area().ensurePanelsVisible();
}

void View::reportFocus()
{
    const QWidget* const focused = QApplication::focusWidget();
    for (const auto& [panel, window] : windows_)
        if (Control* const control = window->controlOf(focused)) {
            if (control != frame_->runtime().focused() && panel->visible() && control->focusable())
                perform([control](User& user) { user.focus(*control); });
            return;
        }
}

void View::deleteClosedWindows()
{
    if (actions_ > 0)
        return;
    for (PanelWindow* window : std::exchange(closedWindows_, {}))
        window->deleteLater();
}

} // namespace ondelis

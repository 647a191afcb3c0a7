#include "WidgetInspector.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>

#include "ControlReader.h"
#include "view/ClientArea.h"
#include "view/MainWindow.h"
#include "view/Scale.h"

namespace ondelis::fenetre {
namespace {

/// Place and size of a window, in the words that the engine uses for them.
template <class Form>
void readPlace(Json& state, const Form& form, const QRect& shown, const QWidget& window)
{
    const Scale scale{window};
    const auto read = [&](const char* member, const Property<Single>& stated, int pixels) {
        if (scale.pixels(Double{stated}.value()) != pixels)
            state[member] = scale.twips(pixels);
    };
    read("Left", form.Left, shown.left());
    read("Top", form.Top, shown.top());
    read("Width", form.Width, shown.width());
    read("Height", form.Height, shown.height());
    state["Caption"] = window.windowTitle().toStdString();
}

/// The controls that the tab key leads to, in its order; of a group of options it finds the chosen one, and the arrow
/// keys the others.
Json tabOrder(const PanelWindow& window)
{
    Json names = Json::array();
    const QWidget* const form = &window.form();
    for (const QWidget* next = form->nextInFocusChain(); next != form; next = next->nextInFocusChain())
        if (form->isAncestorOf(next) && window.controlOf(next) != nullptr && next->focusPolicy() != Qt::NoFocus
            && next->isVisibleTo(form))
            names.push_back(next->objectName().toStdString());
    return names;
}

} // namespace

Json WidgetInspector::inspect(const MDIOndelis& frame) const
{
    Json state = engine_.inspect(frame);
    const MainWindow& window = view_.mainWindow();
    readPlace(state, frame, window.frameGeometry(), window);
    const QWidget* const focused = QApplication::focusWidget();
    state["Focus"] = "";
    for (const FeuilleCalcul* const panel : frame.runtime().loadedPanels())
        if (const PanelWindow* const open = view_.find(*panel); open != nullptr && open->controlOf(focused) != nullptr)
            state["Focus"] = (open->objectName() + QLatin1Char{'.'} + focused->objectName()).toStdString();
    return state;
}

Json WidgetInspector::inspect(const FeuilleCalcul& panel) const
{
    Json state = engine_.inspect(panel);
    const PanelWindow* const window = view_.find(panel);
    state["visible"] = window != nullptr && !window->isHidden();
    if (window == nullptr || window->isHidden())
        return state;
    const ClientArea& area = view_.mainWindow().area();
    const QPoint scrolled{area.horizontalScrollBar()->value(), area.verticalScrollBar()->value()};
    readPlace(state, panel, window->geometry().translated(scrolled), *window);
    state["TabOrder"] = tabOrder(*window);
    return state;
}

Json WidgetInspector::inspect(Control& control) const
{
    Json stated = engine_.inspect(control);
    const PanelWindow* const window = view_.find(control.panel());
    return window == nullptr || window->isHidden() ? stated : ControlReader{*window, std::move(stated)}.read(control);
}

Json WidgetInspector::menus() const
{
    Json tree = Json::array();
    for (const QAction* const title : view_.mainWindow().menuBar()->actions()) {
        Json entries = Json::array();
        for (const QAction* const action : title->menu()->actions())
            entries.push_back(
                {{"Name", action->objectName().toStdString()}, {"Caption", captionOf(action->text()).toStdString()}});
        tree.push_back({{"Name", title->menu()->objectName().toStdString()},
            {"Caption", captionOf(title->text()).toStdString()}, {"Entries", std::move(entries)}});
    }
    return tree;
}

} // namespace ondelis::fenetre

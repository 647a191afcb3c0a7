#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QSignalBlocker>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "Pilote.h"
#include "WindowBackend.h"

namespace ondelis::fenetre {

/// A driver of the program in its windows, and short ways to look at its answers and at the widgets.
class WindowTest : public testing::Test {
protected:
    pilote::Json say(std::string_view line) { return driver.answer(line); }
    std::string refusal(std::string_view line) { return say(line).value("refused", ""); }
    /// The value of a member, as an expectation reads it.
    pilote::Json seen(const std::string& member) { return say("expect " + member + " null")["got"]; }

    static QWidget& mainWindow()
    {
        for (QWidget* const window : QApplication::topLevelWidgets())
            if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible())
                return *window;
        throw std::logic_error{"no main window"};
    }
    template <class Widget = QWidget>
    static Widget& widget(const char* name)
    {
        return *mainWindow().findChild<Widget*>(QString::fromUtf8(name));
    }

    /// Does something to a widget that it does not report to the engine.
    template <class Widget, class Act>
    static void behindTheEngine(Widget& widget, Act&& act)
    {
        const QSignalBlocker quiet{widget};
        act(widget);
    }

    WindowBackend backend;
    pilote::Pilote driver{backend};
};

} // namespace ondelis::fenetre

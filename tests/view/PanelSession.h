#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "Program.h"

namespace ondelis {

/// A person at the panels. After a fault, which ends the program, it goes on in another program.
class PanelSession {
public:
    [[nodiscard]] Program& program() const { return *program_; }
    /// Opens the panels of an entry of the menu.
    void open(const MenuEntry& entry);
    /// Opens other panels: what this does is done again after a fault.
    void open(std::function<void(Program&)> opening);
    /// A person does something. False if it has ended the program: then the panels have been reopened.
    bool perform(const std::function<void(User&)>& action);
    /// The control of a panel that is open now; null if there is none.
    [[nodiscard]] Control* find(const std::string& panel, const std::string& control) const;

    /// Makes each choice that the panels offer, one after another, and looks at the panels as they open and after each
    /// choice.
    void choose(const std::function<void(PanelWindow&)>& look);
    /// Looks at each panel that is on screen.
    void lookAt(const std::function<void(PanelWindow&)>& look) const;

private:
    void reopen();

    std::function<void(Program&)> opening_;
    BoxCloser boxCloser_;
    std::unique_ptr<Program> program_ = std::make_unique<Program>();
};

} // namespace ondelis

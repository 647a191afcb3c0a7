#pragma once

#include <string>

#include "kit/Fault.h"

namespace ondelis {

class Control;
class FeuilleCalcul;

/// A message box: `buttons` is 0 for "OK" alone, 4 for "Oui" and "Non".
struct MessageBox {
    std::string prompt;
    int buttons = 0;
    std::string title = "Ondelis";
};

/// What `MsgBox` returns.
enum class Answer { Ok = 1, Yes = 6, No = 7 };

/// Where a window stands: the upper left corner, in twips.
struct Point {
    double Left;
    double Top;
};

/// A width and a height in twips.
struct Size {
    double Width;
    double Height;
};

/// What the engine runs in: all that it asks of the outside world, or reports to it. The view implements it with Qt,
/// the driver and the tests with a script.
class Host {
public:
    Host() = default;
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    virtual ~Host() = default;

    /// Shows a box and waits for the answer.
    virtual Answer showBox(const MessageBox& box) = 0;
    /// Names the fault that ends the program, and waits until it has been read.
    virtual void showFault(const Fault& fault) = 0;
    /// Processes what the user has done meanwhile.
    virtual void runPendingEvents() = 0;
    [[nodiscard]] virtual Size screen() const = 0;

    /// The main frame has new properties.
    virtual void frameChanged() = 0;
    /// The panel has fresh controls; it is not on screen yet.
    virtual void panelLoaded(FeuilleCalcul& panel) = 0;
    /// The panel has a new place, size, caption or visibility.
    virtual void panelChanged(FeuilleCalcul& panel) = 0;
    /// The panel was shown by code: it comes before the others.
    virtual void panelRaised(FeuilleCalcul& panel) = 0;
    virtual void panelUnloaded(FeuilleCalcul& panel) = 0;
    virtual void controlChanged(Control& control) = 0;
    /// Code or the user gave the keyboard to a control.
    virtual void focusMoved(Control& control) = 0;
    /// The program is over; called once.
    virtual void programEnded(int status) = 0;
};

} // namespace ondelis

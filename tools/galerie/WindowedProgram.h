#pragma once

#include <QTimer>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>

#include "EngineActor.h"
#include "forms/Runtime.h"
#include "shell/MDIOndelis.h"
#include "view/View.h"

namespace ondelis::galerie {

/// The program did not do what it was told, and why.
class Refused final : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One run of the program in its real windows, which does what it is told and can be pictured.
class WindowedProgram {
public:
    WindowedProgram();
    /// Closes all panels, so that no window of this program outlives it.
    ~WindowedProgram();
    WindowedProgram(const WindowedProgram&) = delete;
    WindowedProgram& operator=(const WindowedProgram&) = delete;

    /// Carries out one line in the driver's language: a gesture, or the answer to the next box that asks for
    /// one. Throws Refused if a person could not do it or it ends the program, and Malformed.
    void play(std::string_view line);

    [[nodiscard]] View& view() { return view_; }
    [[nodiscard]] MDIOndelis& frame() { return frame_; }

    /// Writes a picture of a window: that of a panel, or "MDIOndelis". Throws Refused.
    void picture(std::string_view window, const std::string& file) const;

private:
    void run(const pilote::Gesture& gesture);
    /// Answers the box now on screen, if there is one: as it was told, or else with "OK" or "Oui".
    void answerBox();

    View view_;
    Runtime runtime_{view_};
    MDIOndelis frame_{runtime_};
    pilote::EngineActor actor_{frame_};
    QTimer boxes_;
    std::deque<Answer> answers_;
    std::string lastBox_; ///< its first line
};

} // namespace ondelis::galerie

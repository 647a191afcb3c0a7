#pragma once

#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <memory>
#include <optional>

#include "Process.h"

namespace ondelis::bench {

/// A private X server with nothing on it, 1920 by 1080 at 96 dpi, and a watch on what programs draw there. While it
/// lives, DISPLAY names it.
class Screen {
public:
    using Clock = std::chrono::steady_clock;

    /// Throws std::runtime_error if the server does not start.
    Screen();

    /// Waits until the first main window on the screen has been fully painted, and returns the time of the drawing that
    /// completed it. Any earlier window must be gone. Throws std::runtime_error after ten seconds.
    [[nodiscard]] Clock::time_point waitForPaintedWindow();

private:
    [[nodiscard]] xcb_screen_t& root() const;
    void watchFor(xcb_window_t window);
    [[nodiscard]] bool painted() const;
    /// The next event; empty if none came in time.
    [[nodiscard]] std::shared_ptr<xcb_generic_event_t> nextEvent(Clock::time_point deadline) const;

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    std::unique_ptr<Process> server_;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    std::optional<xcb_window_t> window_; ///< the main window, once it is on the screen
    std::uint8_t damageNotify_ = 0; ///< the number of the event that reports a drawing
};

} // namespace ondelis::bench

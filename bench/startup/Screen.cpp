#include "Screen.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace ondelis::bench {
namespace {

/// No program draws this colour: where it shows, nothing has been painted.
constexpr std::uint32_t unpainted = 0xA1B2C3;
constexpr std::uint32_t colorBits = 0xFFFFFF;
/// Menus and tool tips are smaller than any main window.
constexpr int mainWindowWidth = 600;
/// The menu bar is somewhere in these upper rows of the window.
constexpr int menuRows = 24;
constexpr std::chrono::seconds timeout{10};

template <class Reply>
auto owned(Reply* reply)
{
    return std::unique_ptr<Reply, decltype(&std::free)>{reply, &std::free};
}

/// An event of a known kind.
template <class Event>
const Event& as(const xcb_generic_event_t& event)
{
    return reinterpret_cast<const Event&>(event); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast): so X has it
}

/// Starts a server on a free display, whose number it reports.
std::unique_ptr<Process> startServer(std::string& display)
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error{"no pipe"};
    auto server
        = std::make_unique<Process>(std::vector<std::string>{"Xvfb", "-displayfd", std::to_string(ends[1]), "-screen",
                                        "0", "1920x1080x24", "-dpi", "96", "-nolisten", "tcp", "-noreset"},
            ends[1]);
    close(ends[1]);
    display = ":";
    for (char character = 0; read(ends[0], &character, 1) == 1 && character != '\n';)
        display += character;
    close(ends[0]);
    if (display == ":")
        throw std::runtime_error{"the X server does not start"};
    return server;
}

} // namespace

Screen::Screen()
{
    std::string display;
    server_ = startServer(display);
    setenv("DISPLAY", display.c_str(), 1);
    connection_.reset(xcb_connect(display.c_str(), nullptr));
    if (xcb_connection_has_error(connection_.get()) != 0)
        throw std::runtime_error{"no connection to the X server"};

    const xcb_query_extension_reply_t* const damage = xcb_get_extension_data(connection_.get(), &xcb_damage_id);
    if (damage == nullptr || damage->present == 0)
        throw std::runtime_error{"the X server does not report what is drawn"};
    damageNotify_ = static_cast<std::uint8_t>(damage->first_event + XCB_DAMAGE_NOTIFY);
    owned(
        xcb_damage_query_version_reply(connection_.get(), xcb_damage_query_version(connection_.get(), 1, 1), nullptr));

    const std::array<std::uint32_t, 2> values{unpainted, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
    xcb_change_window_attributes(connection_.get(), root().root, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
    xcb_clear_area(connection_.get(), 0, root().root, 0, 0, 0, 0);
    xcb_flush(connection_.get());
}

Screen::Clock::time_point Screen::waitForPaintedWindow()
{
    window_.reset();
    const Clock::time_point deadline = Clock::now() + timeout;
    while (const auto event = nextEvent(deadline)) {
        const Clock::time_point now = Clock::now();
        const unsigned kind = event->response_type & 0x7FU;
        if (kind == XCB_MAP_NOTIFY)
            watchFor(as<xcb_map_notify_event_t>(*event).window);
        if ((kind == XCB_MAP_NOTIFY || kind == damageNotify_) && painted())
            return now;
    }
    throw std::runtime_error{"no window was painted"};
}

xcb_screen_t& Screen::root() const
{
    return *xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data;
}

void Screen::watchFor(xcb_window_t window)
{
    const auto geometry
        = owned(xcb_get_geometry_reply(connection_.get(), xcb_get_geometry(connection_.get(), window), nullptr));
    if (window_ || geometry == nullptr || geometry->width < mainWindowWidth)
        return;
    window_ = window;
    xcb_damage_create(
        connection_.get(), xcb_generate_id(connection_.get()), window, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(connection_.get());
}

bool Screen::painted() const
{
    if (!window_)
        return false;
    const auto geometry
        = owned(xcb_get_geometry_reply(connection_.get(), xcb_get_geometry(connection_.get(), *window_), nullptr));
    if (geometry == nullptr)
        return false;
    const auto image = owned(xcb_get_image_reply(connection_.get(),
        xcb_get_image(
            connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, *window_, 0, 0, geometry->width, geometry->height, colorBits),
        nullptr));
    if (image == nullptr) // a part of it is off the screen
        throw std::runtime_error{"the window cannot be looked at"};
    std::vector<std::uint32_t> pixels(std::size_t{geometry->width} * geometry->height);
    std::memcpy(pixels.data(), xcb_get_image_data(image.get()), pixels.size() * sizeof pixels[0]);
    const auto isUnpainted = [](std::uint32_t pixel) { return (pixel & colorBits) == unpainted; };
    const std::span menu = std::span{pixels}.first(std::size_t{geometry->width} * menuRows);
    const bool lettered = std::ranges::any_of(menu, [&](std::uint32_t pixel) { return pixel != menu.front(); });
    return lettered && std::ranges::none_of(pixels, isUnpainted);
}

std::shared_ptr<xcb_generic_event_t> Screen::nextEvent(Clock::time_point deadline) const
{
    for (;;) {
        if (xcb_generic_event_t* const event = xcb_poll_for_event(connection_.get()))
            return {event, &std::free};
        if (xcb_connection_has_error(connection_.get()) != 0)
            throw std::runtime_error{"the X server has gone"};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
        pollfd descriptor{.fd = xcb_get_file_descriptor(connection_.get()), .events = POLLIN, .revents = 0};
        if (left.count() <= 0 || poll(&descriptor, 1, static_cast<int>(left.count())) == 0)
            return nullptr;
    }
}

} // namespace ondelis::bench

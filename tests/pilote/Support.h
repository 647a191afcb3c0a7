#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "HeadlessBackend.h"
#include "Pilote.h"

namespace ondelis::pilote {

/// A driver, and short ways to look at its answers.
class DriverTest : public testing::Test {
protected:
    Json say(std::string_view line) { return driver.answer(line); }
    bool ok(std::string_view line) { return say(line)["ok"]; }
    std::string refusal(std::string_view line) { return say(line).value("refused", ""); }
    std::string error(std::string_view line) { return say(line).value("error", ""); }

    /// Starts the program and opens the panel that these tests play with.
    void open()
    {
        say("start");
        say("menu MenuCircuitOscillant");
    }

    HeadlessBackend backend;
    Pilote driver{backend};
};

} // namespace ondelis::pilote

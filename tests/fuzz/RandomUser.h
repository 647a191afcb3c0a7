#pragma once

#include <array>
#include <initializer_list>
#include <string>

#include "Dice.h"
#include "forms/Controls.h"
#include "forms/Runtime.h"

namespace ondelis::fuzz {

/// A user of whatever is on screen, in the driver's language, one command after another.
class RandomUser {
public:
    explicit RandomUser(std::uint64_t seed) : dice_{seed}, oddity_{dice_.one(oddities)} { }

    /// The separators of this user's country.
    std::string region();
    /// What the user does next, by what is on screen.
    std::string next(const Runtime& runtime);

private:
    /// How many texts in a hundred are odd: with few a session lasts longer, with many it meets more.
    static constexpr std::array<std::size_t, 4> oddities{2, 10, 30, 80};

    /// What the user does to what is on screen.
    std::string gesture(const Runtime& runtime);
    std::string menuEntry();
    /// What the user does to a window, or to the screen.
    std::string toWindows(const Runtime& runtime);
    /// Twips that are a whole number of pixels.
    std::string place();
    std::string onPanel(const FeuilleCalcul& panel);
    std::string onControl(Control& control);
    std::string write(TextBox& box, const std::string& path);
    std::string held(const std::string& path, std::initializer_list<std::string_view> keys);
    int position(ScrollBar& bar);
    std::string text();

    Dice dice_;
    std::size_t oddity_;
    bool minimised_ = false;
};

} // namespace ondelis::fuzz

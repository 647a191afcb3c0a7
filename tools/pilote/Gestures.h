#pragma once

#include <string_view>

#include "Hands.h"
#include "Words.h"
#include "forms/Surroundings.h"

namespace ondelis::pilote {

/// Reads the words of a gesture, of what a person does, after its first one: "menu", "type", "click". Returns no
/// gesture, and reads nothing, if that word names none. Throws Malformed.
[[nodiscard]] Gesture readGesture(std::string_view word, Words& words);

/// The answer to a box: the next word, "yes" or "no".
[[nodiscard]] Answer readAnswer(Words& words);

/// A number that is the whole word; throws Malformed if the word is no number.
[[nodiscard]] double readNumber(const std::string& word);

} // namespace ondelis::pilote

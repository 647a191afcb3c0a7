#pragma once

#include <string_view>

#include "Hands.h"
#include "Words.h"
#include "forms/Surroundings.h"

namespace ondelis::pilote {

/// Reads the words of a gesture, of what a person does, behind its first one: "menu", "type", "click". Gives no
/// gesture, and reads nothing, where that is the word of none. Throws Malformed.
[[nodiscard]] Gesture readGesture(std::string_view word, Words& words);

/// The answer to a box: the next word, "yes" or "no".
[[nodiscard]] Answer readAnswer(Words& words);

/// A number that is written out whole; throws Malformed where the word is none.
[[nodiscard]] double readNumber(const std::string& word);

} // namespace ondelis::pilote

#pragma once

#include <string_view>

#include "Actor.h"
#include "Tokenizer.h"
#include "forms/Host.h"

namespace ondelis::pilote {

/// Reads a gesture, something that a person does, from the words after its first one, `word`: "menu", "type", "click".
/// Returns no gesture, and reads nothing, if `word` names none. Throws Malformed.
[[nodiscard]] Gesture readGesture(std::string_view word, Tokenizer& words);

/// The answer to a box: the next word, "yes" or "no".
[[nodiscard]] Answer readAnswer(Tokenizer& words);

/// A number that is the whole word; throws Malformed if the word is no number.
[[nodiscard]] double readNumber(const std::string& word);

} // namespace ondelis::pilote

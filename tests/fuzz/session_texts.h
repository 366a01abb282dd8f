#pragma once
// The texts of a fuzzed session: what a tester types into fields, and the values that hostile files carry.
// All of them are Windows-1252 bytes, as the program holds text.

#include <string>

#include "session_input.h"

namespace lw::fuzz {

// Any bytes but NUL, which no edge of the program hands in.
std::string anyText(SessionInput& in, std::size_t maxLength);
// What a tester types into a field: any text, a run of digits, or one of the values the field rules turn
// on (dates, numbers, amounts, name blocks, the separators of the files), alone or with more after it.
std::string fieldText(SessionInput& in);
// Letters and digits only: a name typed into a box that names a file, which must stay in its folder.
std::string safeName(SessionInput& in, std::size_t maxLength);

// The text with control codes and bytes past ASCII written as \xNN, for the trace of a session.
std::string printable(const std::string& text);

// Values of the taxpayer store and of data files.
std::string nameBlock(SessionInput& in);  // lines joined by "»"
std::string taxpayerNumber(SessionInput& in);
std::string dateText(SessionInput& in);

}  // namespace lw::fuzz

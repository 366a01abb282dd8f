#pragma once
// Where a line of Windows-1252 text may break inside a run of characters with no blank among them:
// after a hyphen, before an opening bracket, after a closing one and so on, by the classes of the
// Unicode line breaking rules the characters fall in, as the desktop's text engine applies them.
// Between words, after their blanks, a line may always break.

#include <string_view>
#include <vector>

namespace lw::face {

// A blank that ends a word: the space. The no-break space binds the words either side of it.
bool isBlank(char c);

// For each position i of the text, whether a line may end just before text[i] where text[i - 1] and
// text[i] are no blanks; false at 0 and next to blanks.
std::vector<bool> breaksInsideWords(std::string_view text);

}  // namespace lw::face

#pragma once
// Text of the model as a face shows it: Windows-1252, its lines ended by line feeds, and a caption
// without the marks of its access key.

#include <string>

namespace lw::face {

// Every CR LF of the model's text, and every lone CR, as one line feed.
std::string withLineFeeds(const std::string& text);
// The caption of a button or label with its access key marker taken out: "&Save" shows "Save", "&&"
// an "&".
std::string withoutAccessMarks(const std::string& caption);

}  // namespace lw::face

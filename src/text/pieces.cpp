#include "text/pieces.h"

namespace lw::text {

std::string trimLeft(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string trimRight(std::string_view text) {
    const std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string trim(std::string_view text) { return trimLeft(trimRight(text)); }

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string out;
    std::size_t start = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from, start)) {
        out.append(text.substr(start, at - start));
        out.append(to);
        start = at + from.size();
    }
    out.append(text.substr(start));
    return out;
}

std::vector<std::string> split(std::string_view text, std::string_view separator) {
    std::vector<std::string> pieces;
    if (text.empty()) return pieces;
    if (separator.empty()) {
        pieces.emplace_back(text);
        return pieces;
    }
    std::size_t start = 0;
    for (std::size_t at = text.find(separator); at != std::string_view::npos;
         at = text.find(separator, start)) {
        pieces.emplace_back(text.substr(start, at - start));
        start = at + separator.size();
    }
    pieces.emplace_back(text.substr(start));
    return pieces;
}

}  // namespace lw::text

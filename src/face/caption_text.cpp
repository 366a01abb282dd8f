#include "face/caption_text.h"

namespace lw::face {

std::string withLineFeeds(const std::string& text) {
    std::string shown;
    shown.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r') {
            if (i + 1 < text.size() && text[i + 1] == '\n') ++i;
            shown += '\n';
            continue;
        }
        shown += text[i];
    }
    return shown;
}

std::string withoutAccessMarks(const std::string& caption) {
    std::string shown;
    shown.reserve(caption.size());
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&') {
            if (i + 1 < caption.size() && caption[i + 1] == '&') {
                shown += '&';
                ++i;
            }
            continue;
        }
        shown += caption[i];
    }
    return shown;
}

}  // namespace lw::face

#include "text/words.h"

namespace lw::text {

std::vector<std::string> splitWords(const std::string& line) {
    std::vector<std::string> words;
    std::size_t i = 0;
    const std::size_t n = line.size();
    auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (i < n && blank(line[i])) ++i;
    if (i == n || line[i] == '#') return words;
    while (i < n) {
        while (i < n && blank(line[i])) ++i;
        if (i == n) break;
        // A word runs to the next blank outside quotes; quotes may also open inside it, as in key="a b".
        std::string word;
        while (i < n && !blank(line[i])) {
            if (line[i] != '"') {
                word.push_back(line[i++]);
                continue;
            }
            ++i;
            bool closed = false;
            while (i < n) {
                char c = line[i++];
                if (c == '"') {
                    closed = true;
                    break;
                }
                if (c != '\\') {
                    word.push_back(c);
                    continue;
                }
                if (i == n) throw WordsError("a backslash ends the line");
                char e = line[i++];
                switch (e) {
                    case '"': word.push_back('"'); break;
                    case '\\': word.push_back('\\'); break;
                    case 'r': word.push_back('\r'); break;
                    case 'n': word.push_back('\n'); break;
                    case 't': word.push_back('\t'); break;
                    default: throw WordsError(std::string("unknown escape \\") + e);
                }
            }
            if (!closed) throw WordsError("a quoted word is not closed");
        }
        words.push_back(std::move(word));
    }
    return words;
}

}  // namespace lw::text

#include "text/like.h"

#include <stdexcept>
#include <utility>
#include <vector>

namespace lw::text {

namespace {

enum class TokenKind { AnyRun, AnyOne, Digit, Literal, List, Nothing };

struct Token {
    TokenKind kind = TokenKind::Literal;
    unsigned char literal = 0;
    bool negated = false;
    std::vector<std::pair<unsigned char, unsigned char>> ranges;  // single characters as c-c

    bool admits(unsigned char c) const {
        switch (kind) {
            case TokenKind::AnyOne:
                return true;
            case TokenKind::Digit:
                return c >= '0' && c <= '9';
            case TokenKind::Literal:
                return c == literal;
            case TokenKind::List: {
                bool inList = false;
                for (const auto& [low, high] : ranges)
                    if (c >= low && c <= high) inList = true;
                return inList != negated;
            }
            default:
                return false;
        }
    }
};

[[noreturn]] void invalidPattern() { throw std::invalid_argument("Invalid pattern string"); }

// The characters between "[" and "]"; `at` points behind the "[" and is left behind the "]".
Token readList(std::string_view pattern, std::size_t& at) {
    const std::size_t close = pattern.find(']', at);
    if (close == std::string_view::npos) invalidPattern();
    std::string_view body = pattern.substr(at, close - at);
    at = close + 1;
    Token token;
    token.kind = TokenKind::List;
    if (body.empty()) {
        token.kind = TokenKind::Nothing;
        return token;
    }
    if (body.front() == '!') {
        token.negated = true;
        body.remove_prefix(1);
    }
    for (std::size_t i = 0; i < body.size(); ++i) {
        const auto c = static_cast<unsigned char>(body[i]);
        // A "-" with a character on each side makes a range; first or last it is itself.
        if (i + 2 < body.size() && body[i + 1] == '-') {
            const auto high = static_cast<unsigned char>(body[i + 2]);
            if (high < c) invalidPattern();
            token.ranges.emplace_back(c, high);
            i += 2;
            continue;
        }
        token.ranges.emplace_back(c, c);
    }
    return token;
}

std::vector<Token> tokensOf(std::string_view pattern) {
    std::vector<Token> tokens;
    for (std::size_t at = 0; at < pattern.size();) {
        const char c = pattern[at++];
        Token token;
        switch (c) {
            case '*':
                // A run of stars is one star.
                if (!tokens.empty() && tokens.back().kind == TokenKind::AnyRun) continue;
                token.kind = TokenKind::AnyRun;
                break;
            case '?':
                token.kind = TokenKind::AnyOne;
                break;
            case '#':
                token.kind = TokenKind::Digit;
                break;
            case '[':
                token = readList(pattern, at);
                break;
            default:
                token.kind = TokenKind::Literal;
                token.literal = static_cast<unsigned char>(c);
                break;
        }
        tokens.push_back(std::move(token));
    }
    return tokens;
}

}  // namespace

bool likeMatch(std::string_view text, std::string_view pattern) {
    const std::vector<Token> tokens = tokensOf(pattern);
    // reach[i]: the first i characters of the text are matched by the tokens seen so far.
    std::vector<char> reach(text.size() + 1, 0);
    reach[0] = 1;
    for (const Token& token : tokens) {
        std::vector<char> next(text.size() + 1, 0);
        for (std::size_t i = 0; i <= text.size(); ++i) {
            switch (token.kind) {
                case TokenKind::AnyRun:
                    next[i] = reach[i] || (i > 0 && next[i - 1]);
                    break;
                case TokenKind::Nothing:
                    next[i] = reach[i];
                    break;
                default:
                    next[i] = i > 0 && reach[i - 1] && token.admits(static_cast<unsigned char>(text[i - 1]));
                    break;
            }
        }
        reach.swap(next);
    }
    return reach[text.size()] != 0;
}

}  // namespace lw::text

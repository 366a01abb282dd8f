#include "face/line_breaks.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace lw::face {

namespace {

// The classes the code page's characters fall in, with those of like behaviour taken together: the
// currency signs and the percent, the closing marks that never begin a line (! / ? } ...).
enum BreakClass : std::uint8_t {
    kQuote,       // " ' and the curly quotes and guillemets
    kGlue,        // the no-break space
    kOpening,     // ( [ { and the low quotes and inverted marks
    kBefore,      // the acute accent, which breaks before it
    kMark,        // controls, which take the class of the character before them
    kLetter,      // letters and most signs
    kDigit,       // 0 to 9
    kClosing,     // ) ]
    kMoney,       // $ % + \ and the other signs that go with numbers
    kInfix,       // , . : ;
    kHyphen,      // -
    kDash,        // the em dash
    kNoneBefore,  // ! ? and the ellipsis: no break comes before them
    kSolidus,     // /, which behaves as they do but may stand inside a number
    kBrace,       // }, which behaves as they do but may end a number
    kAfter,       // | the en dash and the soft hyphen, which break after them
    kClassCount,
};

BreakClass classOf(unsigned char c) {
    switch (c) {
        case '"':
        case '\'':
        case 0x8B:
        case 0x91:
        case 0x92:
        case 0x93:
        case 0x94:
        case 0x9B:
        case 0xAB:
        case 0xBB:
            return kQuote;
        case 0xA0:
            return kGlue;
        case '(':
        case '[':
        case '{':
        case 0x82:
        case 0x84:
        case 0xA1:
        case 0xBF:
            return kOpening;
        case 0xB4:
            return kBefore;
        case 0x81:
        case 0x8D:
        case 0x8F:
        case 0x90:
        case 0x9D:
        case 0x7F:
            return kMark;
        case ')':
        case ']':
            return kClosing;
        case '$':
        case '%':
        case '+':
        case '\\':
        case 0x80:
        case 0x89:
        case 0xA2:
        case 0xA3:
        case 0xA4:
        case 0xA5:
        case 0xB0:
        case 0xB1:
            return kMoney;
        case ',':
        case '.':
        case ':':
        case ';':
            return kInfix;
        case '-':
            return kHyphen;
        case 0x97:
            return kDash;
        case '!':
        case '?':
        case 0x85:
            return kNoneBefore;
        case '/':
            return kSolidus;
        case '}':
            return kBrace;
        case '\t':
        case '|':
        case 0x96:
        case 0xAD:
            return kAfter;
        default:
            if (c >= '0' && c <= '9') return kDigit;
            if (c < 0x20) return kMark;
            return kLetter;
    }
}

// breakAfter[a] holds, as bits by class, the classes before which a line may break right after a.
using Row = std::uint16_t;
constexpr Row bit(BreakClass c) { return static_cast<Row>(1u << c); }
constexpr Row kAlways = bit(kBefore) | bit(kDash);
constexpr Row kAfterClosing = kAlways | bit(kOpening) | bit(kMoney);

constexpr std::array<Row, kClassCount> kBreakAfter = {
    0,                                                                        // quote
    0,                                                                        // glue
    0,                                                                        // opening
    0,                                                                        // before
    kAlways,                                                                  // mark (at the start of a text)
    kAlways,                                                                  // letter
    kAlways,                                                                  // digit
    kAfterClosing,                                                            // closing
    kAfterClosing,                                                            // money
    kAfterClosing | bit(kDigit),                                              // infix
    kAfterClosing | bit(kGlue) | bit(kLetter),                                // hyphen
    bit(kBefore) | bit(kOpening) | bit(kMoney) | bit(kLetter) | bit(kDigit),  // dash
    kAfterClosing | bit(kLetter) | bit(kDigit),                               // none before
    kAfterClosing | bit(kLetter) | bit(kDigit),                               // solidus
    kAfterClosing | bit(kLetter) | bit(kDigit),                               // brace
    kAfterClosing | bit(kGlue) | bit(kLetter) | bit(kDigit),                  // after
};

// A number with the signs around it: (PR|PO)? (OP|HY)? NU (NU|SY|IS)* (CL|CP)? (PR|PO)?, inside which no
// line breaks.
enum NumberPart : std::uint8_t { kOther, kSign, kLead, kNumeral, kJoin, kEnd, kPartCount };

// The signs of arithmetic among the letters (< = > ~ and the not, times and division signs) join the
// parts of a number as a comma does.
bool isMathSign(unsigned char c) {
    return c == '<' || c == '=' || c == '>' || c == '~' || c == 0xAC || c == 0xD7 || c == 0xF7;
}

NumberPart partOf(unsigned char character, BreakClass c) {
    if (c == kLetter && isMathSign(character)) return kJoin;
    switch (c) {
        case kMoney:
            return kSign;
        case kOpening:
        case kHyphen:
            return kLead;
        case kDigit:
            return kNumeral;
        case kSolidus:
        case kInfix:
            return kJoin;
        case kClosing:
        case kBrace:
            return kEnd;
        default:
            return kOther;
    }
}

// What the next part does to a number: nothing, starts one, goes on with it, or ends it.
enum NumberStep : std::uint8_t { kNone, kStart, kGoOn, kEndIt };

// By the part before (row) and the next part (column).
constexpr NumberStep kNumberSteps[kPartCount][kPartCount] = {
    // other  sign    lead    numeral join    end
    {kNone, kStart, kStart, kStart, kNone, kNone},    // other
    {kNone, kStart, kGoOn, kGoOn, kNone, kNone},      // sign
    {kNone, kStart, kStart, kGoOn, kNone, kNone},     // lead
    {kEndIt, kEndIt, kEndIt, kGoOn, kGoOn, kGoOn},    // numeral
    {kEndIt, kEndIt, kEndIt, kGoOn, kGoOn, kGoOn},    // join
    {kEndIt, kGoOn, kEndIt, kEndIt, kEndIt, kEndIt},  // end
};

}  // namespace

bool isBlank(char c) { return c == ' '; }

namespace {

// Follows the numbers of a text, and takes back the breaks found inside each once it has ended.
class NumberTracker {
public:
    explicit NumberTracker(std::vector<bool>& breaks) : breaks_(breaks) {}

    void next(std::size_t at, NumberPart part) {
        switch (kNumberSteps[last_][part]) {
            case kEndIt:
                keepWhole(at);
                last_ = kOther;
                break;
            case kNone:
                last_ = kOther;
                break;
            case kStart:
                start_ = at;
                last_ = part;
                break;
            case kGoOn:
                last_ = part;
                break;
        }
    }
    // The text ends: a number that ends it, its digits there, is kept whole.
    void end() {
        if (kNumberSteps[last_][kOther] == kEndIt) keepWhole(breaks_.size());
    }

private:
    void keepWhole(std::size_t end) {
        for (std::size_t i = start_ + 1; i < end; ++i) breaks_[i] = false;
    }

    std::vector<bool>& breaks_;
    NumberPart last_ = kOther;
    std::size_t start_ = 0;
};

}  // namespace

std::vector<bool> breaksInsideWords(std::string_view text) {
    std::vector<bool> breaks(text.size(), false);
    NumberTracker numbers(breaks);
    BreakClass before = kLetter;
    // The first character of the text or of a line is no part of a number, as the desktop reads them.
    bool lineStart = true;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\n' || isBlank(c)) {
            // Numbers go on past blanks.
            lineStart = c == '\n';
            continue;
        }
        BreakClass current = classOf(static_cast<unsigned char>(c));
        const bool touches = i > 0 && !isBlank(text[i - 1]) && text[i - 1] != '\n';
        // A control goes with the character before it and takes its class.
        if (current == kMark) {
            if (touches) continue;
            current = kLetter;
        }
        if (!lineStart) numbers.next(i, partOf(static_cast<unsigned char>(c), current));
        lineStart = false;
        if (touches) breaks[i] = (kBreakAfter[before] & bit(current)) != 0;
        before = current;
    }
    numbers.end();
    return breaks;
}

}  // namespace lw::face

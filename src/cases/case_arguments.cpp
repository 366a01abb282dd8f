#include "cases/case_arguments.h"

#include <cerrno>
#include <cstdlib>

namespace lw::cases {

const char* const kCasesUsage =
    "usage: ledgerwick-cases --count N --seed S --year YYYY --out FOLDER [--profile NAME]...\n"
    "                        [--edition Venturo|OthAgcy] [--pdf]\n"
    "       ledgerwick-cases --window\n"
    "       ledgerwick-cases --list-profiles\n";

namespace {

bool wholeNumber(const std::string& text, unsigned long long& value) {
    if (text.empty() || text.size() > 20 || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    errno = 0;
    value = std::strtoull(text.c_str(), nullptr, 10);
    return errno == 0;
}

}  // namespace

std::optional<CaseArguments> parseCaseArguments(const std::vector<std::string>& arguments, std::string& error) {
    CaseArguments parsed;
    if (arguments.empty()) {
        parsed.window = true;
        return parsed;
    }
    bool count = false, seed = false, year = false, out = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        auto value = [&]() -> std::optional<std::string> {
            if (i + 1 >= arguments.size()) {
                error = word + " needs a value";
                return std::nullopt;
            }
            return arguments[++i];
        };
        unsigned long long number = 0;
        if (word == "--window") {
            parsed.window = true;
        } else if (word == "--list-profiles") {
            parsed.listProfiles = true;
        } else if (word == "--pdf") {
            parsed.options.pdf = true;
        } else if (word == "--count" || word == "--seed" || word == "--year") {
            auto text = value();
            if (!text) return std::nullopt;
            if (!wholeNumber(*text, number)) {
                error = word + " takes a whole number, not \"" + *text + "\"";
                return std::nullopt;
            }
            if (word == "--count") {
                parsed.options.count = number > 100000 ? 100000 : static_cast<int>(number);
                count = true;
            } else if (word == "--seed") {
                parsed.options.seed = number;
                seed = true;
            } else if (number > 9999) {
                error = "--year takes a year such as 2025, not \"" + *text + "\"";
                return std::nullopt;
            } else {
                parsed.options.year = static_cast<int>(number);
                year = true;
            }
        } else if (word == "--out") {
            auto text = value();
            if (!text) return std::nullopt;
            parsed.options.out = *text;
            out = true;
        } else if (word == "--profile") {
            auto text = value();
            if (!text) return std::nullopt;
            parsed.options.profiles.push_back(*text);
        } else if (word == "--edition") {
            auto text = value();
            if (!text) return std::nullopt;
            parsed.options.edition = *text;
        } else {
            error = "unknown argument \"" + word + "\"";
            return std::nullopt;
        }
    }
    if (parsed.window || parsed.listProfiles) return parsed;
    if (!count || !seed || !year || !out) {
        error = "--count, --seed, --year and --out are all needed";
        return std::nullopt;
    }
    return parsed;
}

}  // namespace lw::cases

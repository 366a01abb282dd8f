#include <cstdlib>

#include "render/render_job.h"

namespace lw::render {

const char* const kUsage =
    "usage: ledgerwick-render [--edition Venturo|OthAgcy] [--year YYYY] --pdf OUT.pdf FILE...\n"
    "       ledgerwick-render [--edition Venturo|OthAgcy] [--year YYYY] --png FOLDER [--zoom Z] FILE...\n";

std::optional<RenderOptions> parseArguments(const std::vector<std::string>& arguments, std::string& error) {
    RenderOptions options;
    auto valueAfter = [&](std::size_t& i) -> std::optional<std::string> {
        if (i + 1 >= arguments.size()) {
            error = arguments[i] + " needs a value";
            return std::nullopt;
        }
        return arguments[++i];
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (word == "--edition") {
            auto value = valueAfter(i);
            if (!value) return std::nullopt;
            if (*value != "Venturo" && *value != "OthAgcy") {
                error = "the edition is Venturo or OthAgcy, not " + *value;
                return std::nullopt;
            }
            options.edition = "Ledgerwick_" + *value;
        } else if (word == "--year") {
            auto value = valueAfter(i);
            if (!value) return std::nullopt;
            const int year = std::atoi(value->c_str());
            if (value->size() != 4 || year < 2000 || year > 2099) {
                error = "the year is four digits, such as 2025, not " + *value;
                return std::nullopt;
            }
            options.year = year;
        } else if (word == "--pdf") {
            auto value = valueAfter(i);
            if (!value) return std::nullopt;
            options.pdf = *value;
        } else if (word == "--png") {
            auto value = valueAfter(i);
            if (!value) return std::nullopt;
            options.pngFolder = *value;
        } else if (word == "--zoom") {
            auto value = valueAfter(i);
            if (!value) return std::nullopt;
            options.zoom = std::atof(value->c_str());
            if (options.zoom <= 0 || options.zoom > 8) {
                error = "the zoom lies between 0 and 8, not " + *value;
                return std::nullopt;
            }
        } else if (word.rfind("--", 0) == 0) {
            error = "unknown option " + word;
            return std::nullopt;
        } else {
            options.files.push_back(word);
        }
    }
    if (options.pdf.empty() == options.pngFolder.empty()) {
        error = "give either --pdf OUT.pdf or --png FOLDER";
        return std::nullopt;
    }
    if (options.files.empty()) {
        error = "no document to render";
        return std::nullopt;
    }
    return options;
}

}  // namespace lw::render

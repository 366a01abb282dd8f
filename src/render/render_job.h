#pragma once
// ledgerwick-render: saved documents drawn with the print look into one PDF, or one picture per page,
// read by the program itself with no window on the screen.

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace lw::render {

struct RenderOptions {
    std::string edition = "Ledgerwick_Venturo";
    std::optional<int> year;  // the tax year the documents open under; the present one when not given
    std::string pdf;          // the book to write, or
    std::string pngFolder;    // the folder of the pictures
    double zoom = 1.0;
    std::vector<std::string> files;
};

// Reads the command line; nothing, with `error` set, when it cannot be used.
std::optional<RenderOptions> parseArguments(const std::vector<std::string>& arguments, std::string& error);
extern const char* const kUsage;

// Renders every file it can; a line per file on `out`, a line per failure on `err`. Returns the exit
// status: 0 when all were rendered, 1 when any failed.
int renderDocuments(const RenderOptions& options, const std::string& executableFolder, std::ostream& out,
                    std::ostream& err);

}  // namespace lw::render

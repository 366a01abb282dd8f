#pragma once
// What the edition fixes at start: where its INF files, pictures and guide are, the extension and filter
// of its data files, and the colours of its legend.

#include <array>
#include <string>

#include "model/color.h"

namespace lw {

struct EditionSettings {
    std::string formsInfFile;
    std::string ssmcInfFile;
    std::string k1HelpInfFile;
    std::string picturesFolder;
    std::string userInfFile;
    std::string userGuideFile;
    std::string fileExtension;
    std::string fileFilter;  // description, NUL, pattern, NUL
    std::array<Color, 10> legendColors{};
};

}  // namespace lw

#include <string>
#include <vector>

#include "fields/edit_ctl.h"
#include "people/name_format.h"
#include "text/case.h"
#include "text/cp1252.h"
#include "text/pieces.h"

namespace lw {

bool editNameBlock(Control& ctl) {
    static const std::string kLineBreak = "\r\n";
    std::string block = ctl.text;
    while (block.compare(0, kLineBreak.size(), kLineBreak) == 0) block.erase(0, kLineBreak.size());
    // A block of blank lines only keeps the focus with no message: editField paints it red.
    if (block.empty()) return false;

    const std::vector<std::string> lines = text::split(block, kLineBreak);
    // The normalized name line, up to a separator typed into it.
    const std::string nameLine = taxpayerNameParts(lines.front()).line;
    std::string result = nameLine.substr(0, nameLine.find(text::kFieldSeparator));
    for (std::size_t i = 1; i < lines.size(); ++i) result += kLineBreak + lines[i];
    ctl.text = text::toUpper(result);
    return true;
}

}  // namespace lw

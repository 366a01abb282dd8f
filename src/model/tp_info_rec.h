#pragma once
// A person of the store as the forms want it: the whole block, or its name, street and city lines.

#include <string>

namespace lw {

struct TPInfoRec {
    std::string SSN;
    std::string DOB;
    std::string NameAddr;      // the block, lines ended by CR LF
    std::string Name;          // the first line
    std::string Address;       // everything after the first line
    std::string Street;        // second to last-but-one line, joined by blanks
    std::string CityStateZip;  // the last line, when the block has three lines or more
};

}  // namespace lw

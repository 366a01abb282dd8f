#pragma once
// A person of the store as the forms want it: the whole block, or its name, street and city lines.

#include <string>

namespace lw {

struct TPInfoRec {
    std::string ssn;
    std::string dob;
    std::string nameAddr;      // the block, lines ended by CR LF
    std::string name;          // the first line
    std::string address;       // everything after the first line
    std::string street;        // second to last-but-one line, joined by blanks
    std::string cityStateZip;  // the last line, when the block has three lines or more
};

}  // namespace lw

#pragma once
// The first line of a person's block cut into name parts: the line as shown, first and last name, and
// the two spellings that file names use.

#include <string>

namespace lw {

struct TPNameParts {
    std::string line;       // the name line without trailing points, its suffix kept at the end
    std::string first;      // first word; empty for a name of one word
    std::string last;       // last word with its suffix
    std::string firstLast;  // "JOHN DOE JR"; the last name alone for a name of one word
    std::string lastFirst;  // "DOE JR,JOHN"; the last name alone for a name of one word
};

// Suffixes JR, SR, II, III, IV, V, 2ND, 3RD, 4TH and 5TH are recognised at the end of the line, in
// capitals only; every other word between the first and the last is dropped.
TPNameParts taxpayerNameParts(const std::string& Name);

// The line, "·", then the name for the file: first-last when the file name template fileNameFormat puts
// the first name before the last, else last-first. An empty name gives an empty text.
std::string formatTaxpayerName(const std::string& Name, const std::string& fileNameFormat);

}  // namespace lw

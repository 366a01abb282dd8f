#pragma once
// The words households are made of: names, streets, towns and the businesses that send the documents,
// read from CaseLists.inf.

#include <string>
#include <vector>

namespace lw::cases {

struct Town {
    std::string name;
    std::string state;
    std::string zip;
    std::string areaCode;
};

struct Employer {
    std::string name;
    std::string occupation;
    long long lowestPay = 0;  // the yearly pay the occupation runs to, whole dollars
    long long highestPay = 0;
};

struct CaseLists {
    std::vector<std::string> givenFemale, givenMale, surnames, streets;
    std::vector<Town> towns;
    std::vector<Employer> employers;
    std::vector<std::string> banks, funds, lenders, servicers, schools, clients, platforms, pensions,
        casinos, partnerships, insurers;
    std::vector<int> portraitsFemale, portraitsMale;  // numbers of the license portraits, 1 to 16
};

// Reads the lists; throws std::runtime_error naming the file and the list that is missing or empty.
CaseLists readCaseLists(const std::string& file);

}  // namespace lw::cases

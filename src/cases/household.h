#pragma once
// A household of a practice case: the people on its taxpayer sheet, where they live, and the documents
// that will be filled for them.

#include <string>
#include <vector>

#include "cases/case_lists.h"
#include "cases/case_profiles.h"
#include "cases/dice.h"

namespace lw::cases {

struct Person {
    std::string first;
    std::string middleInitial;
    std::string last;
    std::string number;     // SSN or ITIN as the cards show it, ddd-dd-dddd
    std::string birthDate;  // mm/dd/yyyy
    std::string relation;   // for the others on the sheet: SON, DAUGHTER ...
    bool female = false;

    std::string fullName() const;  // JOHN Q SMITH
};

struct Household {
    const Profile* profile = nullptr;
    int taxYear = 0;
    Person taxpayer;
    bool hasSpouse = false;
    Person spouse;
    std::vector<Person> dependents;
    std::string street;  // 123 MAIN ST
    Town town;
    std::string telephone;

    std::string cityLine() const;  // SPRINGFIELD, IL 62701
    std::string filingStatus() const;
};

Household makeHousehold(const Profile& profile, int taxYear, const CaseLists& lists, Dice& dice);

// An organisation's block as the forms take it: name, street, city line and, where asked, telephone.
struct Organisation {
    std::string name;
    std::string street;
    Town town;
    std::string ein;
    std::string telephone;

    std::string block(bool withTelephone) const;  // lines split by "\n"
    // Puts the organisation in `place`, its telephone number under the area code of that town.
    void moveTo(const Town& place);
};

Organisation makeOrganisation(const std::string& name, const CaseLists& lists, Dice& dice);

}  // namespace lw::cases

#include "cases/household.h"

#include <algorithm>
#include <cstdio>

#include "cases/fake_numbers.h"

namespace lw::cases {

namespace {

std::string twoDigits(long long n) {
    char buffer[8];
    std::snprintf(buffer, sizeof buffer, "%02lld", n);
    return buffer;
}

// A birth date that makes the person `age` at the end of the tax year.
std::string birthDate(int taxYear, long long age, Dice& dice) {
    const long long month = dice.between(1, 12);
    const long long day = dice.between(1, 28);
    return twoDigits(month) + "/" + twoDigits(day) + "/" + std::to_string(taxYear - age);
}

Person makePerson(const std::string& last, bool female, int taxYear, long long age, const CaseLists& lists,
                  Dice& dice) {
    Person person;
    person.female = female;
    person.first = dice.pick(female ? lists.givenFemale : lists.givenMale);
    person.middleInitial = std::string(1, static_cast<char>('A' + dice.between(0, 25)));
    person.last = last;
    // About one person in twelve files with an ITIN; a household whose taxpayers work for wages or draw
    // benefits has their Social Security numbers put in afterwards.
    person.number = dice.chance(8) ? individualTaxpayerNumber(dice) : socialSecurityNumber(dice);
    person.birthDate = birthDate(taxYear, age, dice);
    return person;
}

std::string streetAddress(const CaseLists& lists, Dice& dice) {
    return std::to_string(dice.between(100, 9899)) + " " + dice.pick(lists.streets);
}

bool needsSocialSecurityNumbers(const Profile& profile) {
    for (const DocumentRule& rule : profile.documents)
        switch (rule.kind) {
            case DocumentKind::W2:
            case DocumentKind::SocialSecurity:
            case DocumentKind::Railroad:
            case DocumentKind::FederalAnnuity:
                if (rule.count.hi > 0) return true;
                break;
            default:
                break;
        }
    return false;
}

}  // namespace

std::string Person::fullName() const { return first + " " + middleInitial + " " + last; }

std::string Household::cityLine() const { return town.name + ", " + town.state + " " + town.zip; }

std::string Household::filingStatus() const {
    if (hasSpouse) return "Married filing jointly";
    return dependents.empty() ? "Single" : "Head of household";
}

Household makeHousehold(const Profile& profile, int taxYear, const CaseLists& lists, Dice& dice) {
    Household household;
    household.profile = &profile;
    household.taxYear = taxYear;
    const std::string last = dice.pick(lists.surnames);
    const bool taxpayerFemale = dice.chance(50);
    const long long age = dice.between(profile.ages.lo, profile.ages.hi);
    household.taxpayer = makePerson(last, taxpayerFemale, taxYear, age, lists, dice);
    household.hasSpouse = dice.chance(profile.spousePercent);
    long long youngestParent = age;
    if (household.hasSpouse) {
        // A spouse is within eight years of the taxpayer, and within four of the profile's ages.
        const long long spouseAge = std::max<long long>(
            18, dice.between(std::max(profile.ages.lo - 4, age - 8), std::min(profile.ages.hi + 4, age + 8)));
        household.spouse = makePerson(last, !taxpayerFemale, taxYear, spouseAge, lists, dice);
        youngestParent = std::min(age, spouseAge);
    }
    // A child is at least eighteen years younger than both parents.
    const long long oldestChild = std::max<long long>(0, std::min(profile.childAges.hi, youngestParent - 18));
    const Range childAges{std::min(profile.childAges.lo, oldestChild), oldestChild};
    const long long children = dice.between(profile.dependents.lo, profile.dependents.hi);
    for (long long i = 0; i < children; ++i) {
        const bool female = dice.chance(50);
        Person child =
            makePerson(last, female, taxYear, dice.between(childAges.lo, childAges.hi), lists, dice);
        child.relation = female ? "DAUGHTER" : "SON";
        household.dependents.push_back(child);
    }
    // Wages and benefits are paid only to holders of a Social Security number.
    if (needsSocialSecurityNumbers(profile)) {
        for (Person* earner : {&household.taxpayer, &household.spouse})
            if (isUnissuedTaxpayerNumber(earner->number)) earner->number = socialSecurityNumber(dice);
    }
    household.street = streetAddress(lists, dice);
    household.town = dice.pick(lists.towns);
    household.telephone = telephoneNumber(dice, household.town.areaCode);
    return household;
}

std::string Organisation::block(bool withTelephone) const {
    std::string text = name + "\n" + street + "\n" + town.name + ", " + town.state + " " + town.zip;
    if (withTelephone) text += "\n" + telephone;
    return text;
}

void Organisation::moveTo(const Town& place) {
    town = place;
    telephone = "(" + place.areaCode + ")" + telephone.substr(telephone.find(')') + 1);
}

Organisation makeOrganisation(const std::string& name, const CaseLists& lists, Dice& dice) {
    Organisation organisation;
    organisation.name = name;
    organisation.street = streetAddress(lists, dice);
    organisation.town = dice.pick(lists.towns);
    organisation.ein = employerNumber(dice);
    organisation.telephone = telephoneNumber(dice, organisation.town.areaCode);
    return organisation;
}

}  // namespace lw::cases

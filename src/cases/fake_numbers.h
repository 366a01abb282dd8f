#pragma once
// Numbers that look real on a form and can belong to nobody.

#include <string>

#include "cases/dice.h"

namespace lw::cases {

// ddd-00-dddd: group 00 was never issued. The area is never 000, 666 or 9xx.
std::string socialSecurityNumber(Dice& dice);
// 9dd-93-dddd: 93 lies outside every middle range an ITIN is issued in.
std::string individualTaxpayerNumber(Dice& dice);
// dd-ddddddd with a prefix the IRS does not assign.
std::string employerNumber(Dice& dice);
// (AAA) 555-01dd: the 555-0100 to 555-0199 block is kept for fiction.
std::string telephoneNumber(Dice& dice, const std::string& areaCode);
// Nine digits with a valid check digit and a first pair that no Federal Reserve district uses.
std::string routingNumber(Dice& dice);

// The tests of the same rules, for the answer key's checks and the tests.
bool isUnissuedSocialSecurityNumber(const std::string& number);
bool isUnissuedTaxpayerNumber(const std::string& number);
bool isUnassignedEmployerNumber(const std::string& number);

}  // namespace lw::cases

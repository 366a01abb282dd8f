#include "cases/fake_numbers.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace lw::cases {

namespace {

constexpr std::array<const char*, 14> kUnassignedEinPrefixes = {"07", "08", "09", "17", "18", "19", "28",
                                                                 "29", "49", "69", "70", "78", "79", "89"};

bool digitsAt(const std::string& text, std::size_t from, std::size_t count) {
    if (text.size() < from + count) return false;
    return std::all_of(text.begin() + static_cast<long>(from), text.begin() + static_cast<long>(from + count),
                       [](unsigned char c) { return std::isdigit(c) != 0; });
}

}  // namespace

std::string socialSecurityNumber(Dice& dice) {
    std::string area;
    do {
        area = dice.digits(3);
    } while (area == "000" || area == "666" || area[0] == '9');
    return area + "-00-" + dice.digits(4);
}

std::string individualTaxpayerNumber(Dice& dice) { return "9" + dice.digits(2) + "-93-" + dice.digits(4); }

std::string employerNumber(Dice& dice) {
    return std::string(dice.pick(std::vector<const char*>(kUnassignedEinPrefixes.begin(),
                                                          kUnassignedEinPrefixes.end()))) +
           "-" + dice.digits(7);
}

std::string telephoneNumber(Dice& dice, const std::string& areaCode) {
    return "(" + areaCode + ") 555-01" + dice.digits(2);
}

std::string routingNumber(Dice& dice) {
    // The first two digits of a routing number name a district (01-12, 21-32, 61-72, 80); 50-59 none.
    std::string number = "5" + dice.digits(7);
    const int weights[] = {3, 7, 1, 3, 7, 1, 3, 7};
    int sum = 0;
    for (int i = 0; i < 8; ++i) sum += (number[static_cast<std::size_t>(i)] - '0') * weights[i];
    return number + static_cast<char>('0' + (10 - sum % 10) % 10);
}

bool isUnissuedSocialSecurityNumber(const std::string& number) {
    return number.size() == 11 && digitsAt(number, 0, 3) && number.compare(3, 4, "-00-") == 0 &&
           digitsAt(number, 7, 4) && number[0] != '9';
}

bool isUnissuedTaxpayerNumber(const std::string& number) {
    return number.size() == 11 && number[0] == '9' && digitsAt(number, 0, 3) &&
           number.compare(3, 4, "-93-") == 0 && digitsAt(number, 7, 4);
}

bool isUnassignedEmployerNumber(const std::string& number) {
    if (number.size() != 10 || number[2] != '-' || !digitsAt(number, 0, 2) || !digitsAt(number, 3, 7))
        return false;
    return std::any_of(kUnassignedEinPrefixes.begin(), kUnassignedEinPrefixes.end(),
                       [&](const char* prefix) { return number.compare(0, 2, prefix) == 0; });
}

}  // namespace lw::cases

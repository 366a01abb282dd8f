#include "cases/case_lists.h"

#include <stdexcept>

#include "store/inf_store.h"
#include "text/pieces.h"

namespace lw::cases {

namespace {

// Big enough for any list a trainer could want; the program's own settings read through 1024 characters.
constexpr std::size_t kListBuffer = 1 << 20;

std::vector<std::string> entries(const std::string& file, const std::string& section) {
    std::vector<std::string> lines = store::readInfSection(section, file, kListBuffer);
    if (lines.empty()) throw std::runtime_error(file + " has no entries under [" + section + "]");
    return lines;
}

std::vector<std::string> fieldsOf(const std::string& line, std::size_t count, const std::string& file,
                                  const std::string& section) {
    std::vector<std::string> fields = text::split(line, "|");
    for (std::string& field : fields) field = text::trim(field);
    if (fields.size() != count)
        throw std::runtime_error(file + " [" + section + "]: \"" + line + "\" should have " +
                                 std::to_string(count) + " parts split by |");
    return fields;
}

std::vector<int> portraits(const std::string& file, const std::string& section) {
    std::vector<int> numbers;
    for (const std::string& line : entries(file, section)) {
        const std::string number = text::trim(line);
        if (number.empty() || number.size() > 2 ||
            number.find_first_not_of("0123456789") != std::string::npos || std::stoi(number) < 1 ||
            std::stoi(number) > 16)
            throw std::runtime_error(file + " [" + section + "]: \"" + line +
                                     "\" is no portrait from 1 to 16");
        numbers.push_back(std::stoi(number));
    }
    return numbers;
}

}  // namespace

CaseLists readCaseLists(const std::string& file) {
    CaseLists lists;
    lists.givenFemale = entries(file, "GivenFemale");
    lists.givenMale = entries(file, "GivenMale");
    lists.surnames = entries(file, "Surnames");
    lists.streets = entries(file, "Streets");
    for (const std::string& line : entries(file, "Towns")) {
        auto f = fieldsOf(line, 4, file, "Towns");
        lists.towns.push_back({f[0], f[1], f[2], f[3]});
    }
    for (const std::string& line : entries(file, "Employers")) {
        auto f = fieldsOf(line, 4, file, "Employers");
        const auto pay = [&](const std::string& dollars) {
            if (dollars.empty() || dollars.find_first_not_of("0123456789") != std::string::npos ||
                dollars.size() > 9)
                throw std::runtime_error(file + " [Employers]: \"" + line + "\" has no yearly pay from-to");
            return std::stoll(dollars);
        };
        lists.employers.push_back({f[0], f[1], pay(f[2]), pay(f[3])});
    }
    lists.banks = entries(file, "Banks");
    lists.funds = entries(file, "Funds");
    lists.lenders = entries(file, "Lenders");
    lists.servicers = entries(file, "Servicers");
    lists.schools = entries(file, "Schools");
    lists.clients = entries(file, "Clients");
    lists.platforms = entries(file, "Platforms");
    lists.pensions = entries(file, "Pensions");
    lists.casinos = entries(file, "Casinos");
    lists.partnerships = entries(file, "Partnerships");
    lists.insurers = entries(file, "Insurers");
    lists.portraitsFemale = portraits(file, "PortraitsFemale");
    lists.portraitsMale = portraits(file, "PortraitsMale");
    return lists;
}

}  // namespace lw::cases

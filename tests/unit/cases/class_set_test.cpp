#include "cases/class_set.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <thread>

#include "cases/case_profiles.h"
#include "cases/fake_numbers.h"
#include "qt_offscreen.h"

namespace lw::cases {
namespace {

namespace fs = std::filesystem;

const auto* const kQt = testing::addQtOffscreen();
const std::string kShipped = LW_BIN_DIR;

fs::path freshFolder(const std::string& name) {
    const fs::path folder = fs::temp_directory_path() / ("lw-class-set-" + name);
    fs::remove_all(folder);
    return folder;
}

std::string bytesOf(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// Every file under a folder, by its path below it, with its bytes.
std::map<std::string, std::string> filesUnder(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        if (entry.is_regular_file()) files[fs::relative(entry.path(), folder).string()] = bytesOf(entry.path());
    return files;
}

int make(ClassSetOptions options, const std::string& userRoot = "") {
    ClassSet set(std::move(options), kShipped, userRoot);
    std::ostringstream log;
    const int failed = set.make(log);
    EXPECT_EQ(log.str(), "");
    return failed;
}

ClassSetOptions optionsFor(const fs::path& out, int count, std::uint64_t seed, std::vector<std::string> profiles = {}) {
    ClassSetOptions options;
    options.count = count;
    options.seed = seed;
    options.year = 2025;
    options.out = out.string();
    options.profiles = std::move(profiles);
    return options;
}

// The value of a field of a saved line, as an amount in cents; 0 when the line lacks it.
long long centsIn(const std::string& line, const std::string& key) {
    const std::string marker = "\xB7" + key + "=";
    const std::size_t at = line.find(marker);
    if (at == std::string::npos) return 0;
    std::string digits;
    for (std::size_t i = at + marker.size(); i < line.size() && line[i] != '\xB7' && line[i] != '\r'; ++i)
        if (line[i] >= '0' && line[i] <= '9') digits += line[i];
    return digits.empty() ? 0 : std::stoll(digits);
}

// The text of a field of a saved line; empty when the line lacks it.
std::string fieldIn(const std::string& line, const std::string& key) {
    const std::string marker = "\xB7" + key + "=";
    const std::size_t at = line.find(marker);
    if (at == std::string::npos) return "";
    const std::size_t from = at + marker.size();
    return line.substr(from, line.find_first_of("\xB7\r\n", from) - from);
}

std::vector<std::string> csvLine(const std::string& line) {
    std::vector<std::string> fields(1);
    bool quoted = false;
    for (char c : line) {
        if (c == '"') quoted = !quoted;
        else if (c == ',' && !quoted) fields.emplace_back();
        else fields.back() += c;
    }
    return fields;
}

TEST(ClassSet, EveryProfileMakesWholeCasesWithTheirSheetAndDocuments) {
    for (const Profile& profile : readProfiles(kShipped + "/CaseProfiles.inf")) {
        const fs::path out = freshFolder("profile-" + profile.name);
        ASSERT_EQ(make(optionsFor(out, 2, 11, {profile.name})), 0) << profile.name;
        for (const char* name : {"case-01", "case-02"}) {
            ASSERT_TRUE(fs::is_directory(out / name)) << profile.name;
            int sheets = 0, documents = 0;
            for (const auto& entry : fs::directory_iterator(out / name)) {
                const std::string line = bytesOf(entry.path());
                sheets += line.rfind("TPINFO\xB7", 0) == 0;
                ++documents;
            }
            EXPECT_EQ(sheets, 1) << profile.name << " " << name;
            EXPECT_GE(documents, 3) << profile.name << " " << name;
        }
        EXPECT_FALSE(fs::exists(out / "case-01.partial"));
        EXPECT_TRUE(fs::exists(out / "answers.csv"));
        EXPECT_TRUE(fs::exists(out / "answers.md"));
    }
}

TEST(ClassSet, TheSameSeedMakesTheSameCasesByteForByte) {
    const fs::path first = freshFolder("seed-a"), second = freshFolder("seed-b"), other = freshFolder("seed-c");
    ASSERT_EQ(make(optionsFor(first, 7, 2024)), 0);
    ASSERT_EQ(make(optionsFor(second, 7, 2024)), 0);
    ASSERT_EQ(make(optionsFor(other, 7, 2025)), 0);
    const auto a = filesUnder(first), b = filesUnder(second), c = filesUnder(other);
    EXPECT_GT(a.size(), 30u);
    EXPECT_EQ(a, b);
    EXPECT_NE(a, c);
}

TEST(ClassSet, TheSameSeedMakesTheSamePrintedPagesAtAnyMoment) {
    const fs::path first = freshFolder("pdf-a"), second = freshFolder("pdf-b");
    auto options = optionsFor(first, 1, 2024);
    options.pdf = true;
    ASSERT_EQ(make(options), 0);
    // The second set is made in a later second of the machine's clock.
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    options.out = second.string();
    ASSERT_EQ(make(options), 0);
    const std::string pages = bytesOf(first / "case-01" / "case.pdf");
    EXPECT_GT(pages.size(), 1000u);
    EXPECT_TRUE(pages == bytesOf(second / "case-01" / "case.pdf"));
}

TEST(ClassSet, NumbersOnTheDocumentsCanBelongToNobody) {
    const fs::path out = freshFolder("numbers");
    ASSERT_EQ(make(optionsFor(out, 14, 99)), 0);
    const std::regex tin(R"((?:^|[^0-9-])(\d{3}-\d{2}-\d{4})(?:$|[^0-9]))");
    const std::regex ein(R"((?:^|[^0-9-])(\d{2}-\d{7})(?:$|[^0-9]))");
    const std::regex phone(R"(\((\d{3})\) (\d{3})-(\d{4}))");
    int tins = 0, eins = 0, phones = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        if (path.rfind("answers", 0) == 0) continue;
        for (std::sregex_iterator it(line.begin(), line.end(), tin), end; it != end; ++it, ++tins) {
            const std::string number = (*it)[1];
            EXPECT_TRUE(isUnissuedSocialSecurityNumber(number) || isUnissuedTaxpayerNumber(number))
                << number << " in " << path;
        }
        for (std::sregex_iterator it(line.begin(), line.end(), ein), end; it != end; ++it, ++eins) {
            const std::string number = (*it)[1];
            // The railroad board's and the personnel office's own numbers stand printed on their forms.
            if (number == "36-3314600" || number == "52-6083699") continue;
            EXPECT_TRUE(isUnassignedEmployerNumber(number)) << number << " in " << path;
        }
        for (std::sregex_iterator it(line.begin(), line.end(), phone), end; it != end; ++it, ++phones) {
            EXPECT_EQ((*it)[2], "555") << path;
            EXPECT_EQ(std::string((*it)[3]).substr(0, 2), "01") << path;
        }
    }
    EXPECT_GT(tins, 50);
    EXPECT_GT(eins, 20);
    EXPECT_GT(phones, 10);
}

TEST(ClassSet, TheAnswerKeyIsTheSumOfTheSavedDocuments) {
    const fs::path out = freshFolder("answers");
    ASSERT_EQ(
        make(optionsFor(out, 8, 5, {"married-with-children", "retiree", "investor", "marketplace-family"})),
        0);
    std::istringstream csv(bytesOf(out / "answers.csv"));
    std::string header, row;
    std::getline(csv, header);
    const auto titles = csvLine(header);
    auto column = [&](const std::string& title) {
        return static_cast<std::size_t>(std::find(titles.begin(), titles.end(), title) - titles.begin());
    };
    // The boxes of federal income tax withheld, by the document's first field.
    const std::map<std::string, std::string> withholding = {
        {"W-2", "TXT3"},      {"W-2G", "TXT4"},    {"1099-INT", "TXT8"}, {"1099-DIV", "TXT11"},
        {"1099-NEC", "TXT6"}, {"1099-K", "TXT10"}, {"1099-R", "TXT6"},   {"CSA", "TXT8"},
        {"SSA", "TXT13"},     {"RRB", "TXT11"},    {"1099-G", "TXT6"}};
    int rows = 0;
    while (std::getline(csv, row)) {
        const auto fields = csvLine(row);
        long long wages = 0, interest = 0, ordinary = 0, qualified = 0, socialSecurity = 0, withheld = 0,
                  premiums = 0;
        for (const auto& [path, line] : filesUnder(out / fields[0])) {
            const std::string kind = line.substr(0, line.find('\xB7'));
            if (kind == "W-2") wages += centsIn(line, "TXT2");
            if (kind == "1099-INT") interest += centsIn(line, "TXT2");
            if (kind == "1099-DIV") ordinary += centsIn(line, "TXT1"), qualified += centsIn(line, "TXT2");
            // A partner's share of interest and dividends is carried to the return with the others.
            if (kind == "K11065") interest += centsIn(line, "TX36"), ordinary += centsIn(line, "TX37");
            if (kind == "SSA") socialSecurity += centsIn(line, "TXT4");
            if (kind == "RRB") socialSecurity += centsIn(line, "TXT6");
            if (kind == "1095-A") premiums += centsIn(line, "TXT50");
            if (withholding.count(kind)) withheld += centsIn(line, withholding.at(kind));
        }
        auto cents = [&](const std::string& title) {
            std::string text = fields.at(column(title));
            text.erase(std::remove(text.begin(), text.end(), '.'), text.end());
            return std::stoll(text);
        };
        EXPECT_EQ(cents("Wages (W-2 box 1)"), wages) << fields[0];
        EXPECT_EQ(cents("Taxable interest"), interest) << fields[0];
        EXPECT_EQ(cents("Ordinary dividends"), ordinary) << fields[0];
        EXPECT_EQ(cents("Qualified dividends"), qualified) << fields[0];
        EXPECT_EQ(cents("Social security benefits (net, box 5)"), socialSecurity) << fields[0];
        EXPECT_EQ(cents("Federal income tax withheld"), withheld) << fields[0];
        EXPECT_EQ(cents("Marketplace premiums (1095-A)"), premiums) << fields[0];
        ++rows;
    }
    EXPECT_EQ(rows, 8);
}

TEST(ClassSet, TheW2TaxesAreTheFormsOwnForTheYear) {
    const fs::path out = freshFolder("w2");
    ASSERT_EQ(make(optionsFor(out, 6, 8, {"married-with-children"})), 0);
    int checked = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        if (line.rfind("W-2\xB7", 0) != 0) continue;
        const long long socialSecurityWages = centsIn(line, "TXT5");
        const long long medicareWages = centsIn(line, "TXT7");
        // 2025: 6.2% up to 176,100 and 1.45% below the 200,000 change point; the form rounds to the cent.
        EXPECT_LE(socialSecurityWages, 17610000);
        EXPECT_NEAR(centsIn(line, "TXT6"), socialSecurityWages * 62 / 1000.0, 1.0) << path;
        EXPECT_NEAR(centsIn(line, "TXT8"), medicareWages * 145 / 10000.0, 1.0) << path;
        ++checked;
    }
    EXPECT_GE(checked, 12);
}

TEST(ClassSet, ATelephoneNumberHasTheAreaCodeOfTheTownAboveIt) {
    std::map<std::string, std::string> areaCodes;
    for (const Town& town : readCaseLists(kShipped + "/CaseLists.inf").towns)
        areaCodes[town.name + ", " + town.state + " " + town.zip] = "(" + town.areaCode + ")";
    const fs::path out = freshFolder("telephones");
    ASSERT_EQ(make(optionsFor(out, 4, 5, {"self-employed"})), 0);
    int checked = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        // The lines of a block stand split by the code page's guillemet.
        std::vector<std::string> pieces(1);
        for (char c : line) {
            if (c == '\xBB' || c == '\xB7' || c == '=')
                pieces.emplace_back();
            else
                pieces.back() += c;
        }
        for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
            const auto town = areaCodes.find(pieces[i]);
            if (town == areaCodes.end() || pieces[i + 1].rfind("(", 0) != 0) continue;
            EXPECT_EQ(pieces[i + 1].substr(0, 5), town->second) << path;
            ++checked;
        }
    }
    EXPECT_GE(checked, 6);
}

TEST(ClassSet, TheRailroadClaimNumberIsMadeOfTheRecipientsOwnNumber) {
    const fs::path out = freshFolder("claims");
    ASSERT_EQ(make(optionsFor(out, 4, 11, {"retiree"})), 0);
    int statements = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        if (line.rfind("RRB\xB7", 0) != 0) continue;
        ++statements;
        std::string recipient = fieldIn(line, "TXT2");
        recipient.erase(std::remove(recipient.begin(), recipient.end(), '-'), recipient.end());
        EXPECT_EQ(fieldIn(line, "TXT1"), "A" + recipient + " 10") << path;
    }
    EXPECT_GE(statements, 1);
}

TEST(ClassSet, ALicenseShowsAPortraitThatFitsItsHolder) {
    const CaseLists lists = readCaseLists(kShipped + "/CaseLists.inf");
    const std::set<std::string> women(lists.givenFemale.begin(), lists.givenFemale.end());
    auto fits = [&](const std::string& block, const std::string& portrait) {
        const std::string first = block.substr(0, block.find(' '));
        const auto& kind = women.count(first) ? lists.portraitsFemale : lists.portraitsMale;
        return std::find(kind.begin(), kind.end(), std::stoi(portrait)) != kind.end();
    };
    const fs::path out = freshFolder("portraits");
    ASSERT_EQ(make(optionsFor(out, 8, 6, {"married-with-children", "single-worker"})), 0);
    int portraits = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        if (line.rfind("DL\xB7", 0) != 0) continue;
        EXPECT_TRUE(fits(fieldIn(line, "TXT0"), fieldIn(line, "PIC1"))) << path;
        ++portraits;
        if (fieldIn(line, "TXT4").empty()) continue;
        EXPECT_TRUE(fits(fieldIn(line, "TXT4"), fieldIn(line, "PIC2"))) << path;
        ++portraits;
    }
    EXPECT_GE(portraits, 10);
}

TEST(ClassSet, NoTwoCasesShareALicenseNumber) {
    const fs::path out = freshFolder("licenses");
    ASSERT_EQ(make(optionsFor(out, 5, 3, {"single-worker"})), 0);
    std::set<std::string> numbers;
    int licenses = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        if (line.rfind("DL\xB7", 0) != 0) continue;
        ++licenses;
        numbers.insert(fieldIn(line, "TXT2"));
    }
    EXPECT_EQ(licenses, 5);
    EXPECT_EQ(numbers.size(), 5u);
}

// Checks that the amounts of every document of a set agree with each other as real ones do.
void expectAmountsThatAgree(const fs::path& out) {
    for (const auto& [path, line] : filesUnder(out)) {
        auto cents = [&](int box) { return centsIn(line, "TXT" + std::to_string(box)); };
        if (line.rfind("W-2\xB7", 0) == 0) {
            EXPECT_LE(cents(5), cents(7)) << path;  // social security wages within Medicare wages
            EXPECT_LE(cents(2), cents(7)) << path;  // box 1 is what is left after a deferral
            EXPECT_LE(cents(5), 17610000) << path;  // the 2025 wage base
        } else if (line.rfind("1099-DIV\xB7", 0) == 0) {
            EXPECT_LE(cents(2), cents(1)) << path;  // qualified within ordinary dividends
        } else if (line.rfind("1099-R\xB7", 0) == 0 || line.rfind("CSA\xB7", 0) == 0) {
            const int gross = line.rfind("CSA", 0) == 0 ? 6 : 1;
            EXPECT_LE(cents(gross + 1), cents(gross)) << path;  // taxable within gross
        } else if (line.rfind("1099-K\xB7", 0) == 0) {
            long long months = 0;
            for (int box = 11; box <= 22; ++box) months += cents(box);
            EXPECT_EQ(months, cents(6)) << path;
        } else if (line.rfind("1095-A\xB7", 0) == 0) {
            for (int first : {38, 51, 64}) {
                long long months = 0;
                for (int box = first; box < first + 12; ++box) months += cents(box);
                EXPECT_EQ(months, cents(first + 12)) << path;
            }
            for (int month = 0; month < 12; ++month)
                EXPECT_LE(cents(64 + month), cents(38 + month)) << path;  // advance credit within the premium
        }
    }
}

TEST(ClassSet, TheAmountsOfEachDocumentAgree) {
    const fs::path mixed = freshFolder("agree-mixed");
    ASSERT_EQ(make(optionsFor(mixed, 28, 21)), 0);
    expectAmountsThatAgree(mixed);
    // A set where a monthly advance credit drawn from the benchmark would pass the premium.
    const fs::path marketplace = freshFolder("agree-marketplace");
    ASSERT_EQ(make(optionsFor(marketplace, 4, 35, {"marketplace-family"})), 0);
    expectAmountsThatAgree(marketplace);
    // A trainer's profile of pay above the wage base.
    const fs::path root = freshFolder("agree-root");
    fs::create_directories(root / "LedgerwickInfFiles");
    std::ofstream(root / "LedgerwickInfFiles" / "CaseProfiles.inf")
        << "[high-pay]\r\nW2=1\r\nW2.Wages=178000-185000\r\n";
    const fs::path highPay = freshFolder("agree-high-pay");
    ASSERT_EQ(make(optionsFor(highPay, 3, 1), root.string()), 0);
    expectAmountsThatAgree(highPay);
}

TEST(ClassSet, ParentsAreOfAnAgeToHaveTheirChildren) {
    const fs::path out = freshFolder("ages");
    ASSERT_EQ(make(optionsFor(out, 12, 17, {"married-with-children", "marketplace-family", "self-employed"})),
              0);
    int households = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        if (line.rfind("TPINFO\xB7", 0) != 0) continue;
        // The sheet works out each age: the taxpayers' in TX20 and TX21, the others' from TX22 on.
        std::vector<long long> parents, children;
        for (int row = 0; row < 9; ++row) {
            const std::string age = fieldIn(line, "TX2" + std::to_string(row));
            if (!age.empty()) (row < 2 ? parents : children).push_back(std::stoll(age));
        }
        ASSERT_FALSE(parents.empty()) << path;
        if (parents.size() == 2) EXPECT_LE(std::llabs(parents[0] - parents[1]), 8) << path;
        for (long long child : children)
            EXPECT_GE(*std::min_element(parents.begin(), parents.end()) - child, 18) << path;
        households += !children.empty();
    }
    EXPECT_GE(households, 8);
}

TEST(ClassSet, ABenefitStatementComesOnceAYearToEachPerson) {
    const fs::path out = freshFolder("statements");
    ASSERT_EQ(make(optionsFor(out, 8, 4, {"retiree"})), 0);
    int statements = 0;
    for (const auto& entry : fs::directory_iterator(out)) {
        if (!entry.is_directory()) continue;
        std::map<std::string, int> perPerson;
        for (const auto& [path, line] : filesUnder(entry.path())) {
            if (line.rfind("SSA\xB7", 0) == 0) ++perPerson["SSA " + fieldIn(line, "TXT1")];
            if (line.rfind("RRB\xB7", 0) == 0) ++perPerson["RRB " + fieldIn(line, "TXT2")];
        }
        for (const auto& [who, count] : perPerson) {
            EXPECT_EQ(count, 1) << entry.path() << " " << who;
            ++statements;
        }
    }
    EXPECT_GE(statements, 8);
}

TEST(ClassSet, WhatCannotBeMadeIsRefusedBeforeAnythingIsWritten) {
    const fs::path out = freshFolder("refused");
    auto refusal = [&](ClassSetOptions options) {
        try {
            ClassSet set(std::move(options), kShipped, "");
            return std::string("no refusal");
        } catch (const ClassSetRefused& refused) {
            return refused.why;
        }
    };
    EXPECT_EQ(refusal(optionsFor(out, 0, 1)), "the count must be a number from 1 to 500");
    EXPECT_EQ(refusal(optionsFor(out, 501, 1)), "the count must be a number from 1 to 500");
    EXPECT_NE(refusal(optionsFor(out, 1, 1, {"astronaut"})).find("there is no profile \"astronaut\""),
              std::string::npos);
    auto noRates = optionsFor(out, 1, 1);
    noRates.year = 1999;
    EXPECT_NE(refusal(noRates).find("no Social Security and Medicare figures for the year 1999"), std::string::npos);
    // A folder below a plain file cannot be made, for root as for anyone.
    const fs::path file = freshFolder("a-file");
    std::ofstream(file) << "x";
    EXPECT_EQ(refusal(optionsFor(file / "inside", 1, 1)),
              "the folder \"" + (file / "inside").string() + "\" cannot be written");
    // Refused for what it asks, a set does not even make its folder.
    EXPECT_FALSE(fs::exists(out));
}

TEST(ClassSet, ASetStoppedHalfWayLeavesNoAnswerKeyOfAnEarlierSet) {
    const fs::path out = freshFolder("stopped");
    ASSERT_EQ(make(optionsFor(out, 2, 1)), 0);
    ASSERT_TRUE(fs::exists(out / "answers.csv"));
    ClassSet again(optionsFor(out, 2, 2), kShipped, "");
    std::ostringstream log;
    struct Stopped {};
    EXPECT_THROW(again.make(log, [](int, int) { throw Stopped{}; }), Stopped);
    EXPECT_TRUE(fs::is_directory(out / "case-01"));
    EXPECT_FALSE(fs::exists(out / "answers.csv"));
    EXPECT_FALSE(fs::exists(out / "answers.md"));
}

TEST(ClassSet, ACaseTheProgramRefusesIsLeftOutWhole) {
    // A trainer's profile of benefits smaller than the Medicare premium taken from them: the form refuses
    // the negative amount paid, and that case is absent.
    const fs::path root = freshFolder("own-root");
    fs::create_directories(root / "LedgerwickInfFiles");
    std::ofstream(root / "LedgerwickInfFiles" / "CaseProfiles.inf")
        << "[too-poor]\r\nSSA=1\r\nSSA.Amount=100-100\r\n";
    const fs::path out = freshFolder("refused-case");
    ClassSet set(optionsFor(out, 2, 1), kShipped, root.string());
    std::ostringstream log;
    EXPECT_EQ(set.make(log), 2);
    EXPECT_NE(log.str().find("case-01 was not made"), std::string::npos) << log.str();
    EXPECT_FALSE(fs::exists(out / "case-01"));
    EXPECT_FALSE(fs::exists(out / "case-01.partial"));
    EXPECT_TRUE(fs::exists(out / "answers.csv"));
}

}  // namespace
}  // namespace lw::cases

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <vector>

#include "cases/case_lists.h"
#include "made_sets.h"
#include "qt_offscreen.h"

// The documents of the cases a set makes, held against each other and against the household.
namespace lw::cases {
namespace {

namespace fs = std::filesystem;

const auto* const kQt = testing::addQtOffscreen();

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
        if (parents.size() == 2) {
            EXPECT_LE(std::llabs(parents[0] - parents[1]), 8) << path;
        }
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

TEST(ClassSet, WagesAndBenefitsGoToHoldersOfASocialSecurityNumber) {
    const fs::path out = freshFolder("earners");
    ASSERT_EQ(make(optionsFor(out, 40, 12, {"retiree", "single-worker", "student"})), 0);
    int checked = 0;
    for (const auto& [path, line] : filesUnder(out)) {
        std::string number;
        if (line.rfind("W-2\xB7", 0) == 0) number = fieldIn(line, "TXT0");
        if (line.rfind("SSA\xB7", 0) == 0) number = fieldIn(line, "TXT1");
        if (line.rfind("RRB\xB7", 0) == 0) number = fieldIn(line, "TXT2");
        if (line.rfind("CSA\xB7", 0) == 0) number = fieldIn(line, "TXT1");
        if (number.empty()) continue;
        EXPECT_NE(number[0], '9') << path << " is paid to " << number;
        ++checked;
    }
    EXPECT_GE(checked, 40);
}

}  // namespace
}  // namespace lw::cases

#include "cases/class_set.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <set>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <thread>

#include "cases/case_profiles.h"
#include "cases/fake_numbers.h"
#include "made_sets.h"
#include "qt_offscreen.h"

namespace lw::cases {
namespace {

namespace fs = std::filesystem;

const auto* const kQt = testing::addQtOffscreen();

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

TEST(ClassSet, AWageBaseThatIsNoAmountIsNoFigureAtAll) {
    // The shipped lists and profiles beside figures of the case's own.
    const fs::path shipped = freshFolder("own-figures");
    fs::create_directories(shipped);
    for (const char* name : {"CaseLists.inf", "CaseProfiles.inf"})
        fs::copy_file(fs::path(kShipped) / name, shipped / name);
    auto refusal = [&](const std::string& wageBase) {
        std::ofstream(shipped / "SSMC.inf", std::ios::binary | std::ios::trunc)
            << "[2025]\r\nSSRate=6.2\r\nSSMax=" << wageBase << "\r\n";
        auto options = optionsFor(freshFolder("own-figures-out"), 1, 1);
        options.year = 2025;
        try {
            ClassSet set(std::move(options), shipped.string(), "");
            return std::string("no refusal");
        } catch (const ClassSetRefused& refused) {
            return refused.why;
        }
    };
    EXPECT_NE(refusal("lots").find("no Social Security and Medicare figures for the year 2025"),
              std::string::npos);
    EXPECT_NE(refusal("").find("no Social Security and Medicare figures for the year 2025"),
              std::string::npos);
    EXPECT_EQ(refusal("176,100"), "no refusal");
    EXPECT_EQ(refusal("176100"), "no refusal");
    fs::remove_all(shipped);
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

TEST(ClassSet, HalfMadeCasesOfAStoppedSetAreClearedAndAGoodCaseGivesWayOnlyToAWholeOne) {
    const fs::path out = freshFolder("made-again");
    ASSERT_EQ(make(optionsFor(out, 1, 3)), 0);
    fs::create_directories(out / "case-07.partial");
    std::ofstream(out / "case-07.partial" / "half.venturo") << "W-2";
    const auto before = filesUnder(out / "case-01");
    // The same folder again, with a profile the program refuses: the case made before stays as it was.
    const fs::path root = freshFolder("made-again-root");
    fs::create_directories(root / "LedgerwickInfFiles");
    std::ofstream(root / "LedgerwickInfFiles" / "CaseProfiles.inf") << "[too-poor]\r\nSSA=1\r\nSSA.Amount=100-100\r\n";
    ClassSet set(optionsFor(out, 1, 3), kShipped, root.string());
    std::ostringstream log;
    EXPECT_EQ(set.make(log), 1);
    EXPECT_FALSE(fs::exists(out / "case-07.partial"));
    EXPECT_EQ(filesUnder(out / "case-01"), before);
}

TEST(ClassSet, StudentsWorkPartTimeInManyKindsOfJob) {
    const fs::path out = freshFolder("students");
    ASSERT_EQ(make(optionsFor(out, 24, 5, {"student"})), 0);
    std::set<std::string> employers;
    for (const auto& [path, line] : filesUnder(out)) {
        if (line.rfind("W-2\xB7", 0) != 0) continue;
        const std::string block = fieldIn(line, "TXT4");
        employers.insert(block.substr(0, block.find('\xBB')));
        const long long pay = centsIn(line, "TXT7");
        EXPECT_GE(pay, 450000) << path;
        EXPECT_LE(pay, 1900000) << path;
    }
    EXPECT_GE(employers.size(), 6u);
}

}  // namespace
}  // namespace lw::cases

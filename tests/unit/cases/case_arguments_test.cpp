#include <gtest/gtest.h>

#include "cases/case_arguments.h"

namespace lw::cases {
namespace {

std::optional<CaseArguments> parse(std::vector<std::string> words, std::string& error) {
    return parseCaseArguments(words, error);
}

TEST(CaseArguments, AWholeLineIsRead) {
    std::string error;
    auto parsed = parse({"--count", "30", "--seed", "12345", "--year", "2025", "--out", "/tmp/x", "--profile",
                         "retiree", "--profile", "student", "--edition", "OthAgcy", "--pdf"},
                        error);
    ASSERT_TRUE(parsed) << error;
    EXPECT_EQ(parsed->options.count, 30);
    EXPECT_EQ(parsed->options.seed, 12345u);
    EXPECT_EQ(parsed->options.year, 2025);
    EXPECT_EQ(parsed->options.out, "/tmp/x");
    EXPECT_EQ(parsed->options.profiles, (std::vector<std::string>{"retiree", "student"}));
    EXPECT_EQ(parsed->options.edition, "OthAgcy");
    EXPECT_TRUE(parsed->options.pdf);
    EXPECT_FALSE(parsed->window);
}

TEST(CaseArguments, EverySeedOfSixtyFourBitsIsTaken) {
    std::string error;
    auto parsed =
        parse({"--count", "1", "--seed", "18446744073709551615", "--year", "2025", "--out", "x"}, error);
    ASSERT_TRUE(parsed) << error;
    EXPECT_EQ(parsed->options.seed, 18446744073709551615u);
}

TEST(CaseArguments, NoArgumentOpensTheWindow) {
    std::string error;
    auto parsed = parse({}, error);
    ASSERT_TRUE(parsed);
    EXPECT_TRUE(parsed->window);
}

TEST(CaseArguments, WhatCannotBeUsedIsSaidClearly) {
    std::string error;
    EXPECT_FALSE(parse({"--count", "ten", "--seed", "1", "--year", "2025", "--out", "x"}, error));
    EXPECT_EQ(error, "--count takes a whole number, not \"ten\"");
    EXPECT_FALSE(parse({"--count", "-3", "--seed", "1", "--year", "2025", "--out", "x"}, error));
    EXPECT_FALSE(parse({"--count", "3", "--seed", "1", "--year", "2025", "--out"}, error));
    EXPECT_EQ(error, "--out needs a value");
    EXPECT_FALSE(parse({"--count", "3", "--year", "2025", "--out", "x"}, error));
    EXPECT_EQ(error, "--count, --seed, --year and --out are all needed");
    EXPECT_FALSE(parse({"--count", "3", "--seed", "1", "--year", "20250", "--out", "x"}, error));
    EXPECT_EQ(error, "--year takes a year such as 2025, not \"20250\"");
    EXPECT_FALSE(
        parse({"--count", "3", "--seed", "18446744073709551616", "--year", "2025", "--out", "x"}, error));
    EXPECT_EQ(error, "--seed takes a whole number, not \"18446744073709551616\"");
    EXPECT_FALSE(parse({"--frobnicate"}, error));
    EXPECT_EQ(error, "unknown argument \"--frobnicate\"");
}

}  // namespace
}  // namespace lw::cases

#include "people/name_format.h"

#include <gtest/gtest.h>

#include <string>

namespace lw::test {
namespace {

const char* const kLastFirstTemplate = "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>";
const char* const kFirstLastTemplate = "<FIRST>_<LAST>_<FORM>_<OTHER>_<SEQ>";

struct NameRow {
    std::string name;
    std::string line;
    std::string first;
    std::string last;
};

std::ostream& operator<<(std::ostream& os, const NameRow& r) { return os << "\"" << r.name << "\""; }

class NameParts : public ::testing::TestWithParam<NameRow> {};

TEST_P(NameParts, CutsTheLineIntoFirstAndLastName) {
    const TPNameParts parts = taxpayerNameParts(GetParam().name);
    EXPECT_EQ(parts.line, GetParam().line);
    EXPECT_EQ(parts.first, GetParam().first);
    EXPECT_EQ(parts.last, GetParam().last);
}

INSTANTIATE_TEST_SUITE_P(
    Table, NameParts,
    ::testing::Values(
        NameRow{"JOHN Q DOE JR.", "JOHN Q DOE JR", "JOHN", "DOE JR"},
        NameRow{"TIFIMRU", "TIFIMRU", "", "TIFIMRU"},
        NameRow{"MARY DOE-SMITH III", "MARY DOE-SMITH III", "MARY", "DOE-SMITH III"},
        NameRow{"MARY DOE II", "MARY DOE II", "MARY", "DOE II"},
        NameRow{"AL BO SR", "AL BO SR", "AL", "BO SR"}, NameRow{"AL BO IV", "AL BO IV", "AL", "BO IV"},
        NameRow{"AL BO 2ND", "AL BO 2ND", "AL", "BO 2ND"},
        NameRow{"AL BO 5TH...", "AL BO 5TH", "AL", "BO 5TH"},
        // The suffix test is exact and in capitals.
        NameRow{"john doe jr", "john doe jr", "john", "jr"},
        NameRow{"JOHN DOE Jr", "JOHN DOE Jr", "JOHN", "Jr"},
        // Only an ending counts.
        NameRow{"ANN V LEE", "ANN V LEE", "ANN", "LEE"}, NameRow{"ANN LEE V", "ANN LEE V", "ANN", "LEE V"},
        NameRow{"ANN LEEV", "ANN LEEV", "ANN", "LEEV"},
        // The suffix found is removed wherever it stands, blind to case, before it is put back at the end.
        NameRow{"ANN VAN LEE V", "ANNAN LEE V", "ANNAN", "LEE V"},
        NameRow{"BOB JRX SMITH JR", "BOBX SMITH JR", "BOBX", "SMITH JR"},
        NameRow{"BOB jr SMITH JR", "BOB SMITH JR", "BOB", "SMITH JR"},
        // A trailing blank with no other suffix takes every blank away.
        NameRow{"JOHN DOE ", "JOHNDOE ", "", "JOHNDOE "},
        NameRow{"JOHN DOE JR ", "JOHNDOEJR ", "", "JOHNDOEJR "},
        NameRow{"ANN   MARIE    LEE", "ANN MARIE LEE", "ANN", "LEE"},
        NameRow{" ANN LEE", " ANN LEE", "", "LEE"},
        NameRow{"JOHN DOE\r\n1 MAIN ST", "JOHN DOE", "JOHN", "DOE"}, NameRow{"...", "", "", ""},
        NameRow{" ", " ", "", ""}, NameRow{"JR", "JR", "", "JR"}, NameRow{" JR", " JR", "", ""},
        NameRow{"", "", "", ""}));

TEST(FormatTPName, GivesTheLineAndTheNameForTheFile) {
    EXPECT_EQ(formatTaxpayerName("JOHN Q DOE JR.", kLastFirstTemplate),
              "JOHN Q DOE JR\xB7"
              "DOE JR,JOHN");
    EXPECT_EQ(formatTaxpayerName("MARY DOE-SMITH III", kLastFirstTemplate),
              "MARY DOE-SMITH III\xB7"
              "DOE-SMITH III,MARY");
    EXPECT_EQ(formatTaxpayerName("TIFIMRU", kLastFirstTemplate), "TIFIMRU\xB7TIFIMRU");
    EXPECT_EQ(formatTaxpayerName("ANN LEE V", kLastFirstTemplate), "ANN LEE V\xB7LEE V,ANN");
}

TEST(FormatTPName, TheFirstNameGoesFirstWhenTheTemplatePutsItFirst) {
    EXPECT_EQ(formatTaxpayerName("JOHN Q DOE JR.", kFirstLastTemplate), "JOHN Q DOE JR\xB7JOHN DOE JR");
    EXPECT_EQ(formatTaxpayerName("TIFIMRU", kFirstLastTemplate), "TIFIMRU\xB7TIFIMRU");
    EXPECT_EQ(formatTaxpayerName("ANN LEE", "<FORM>_<FIRST>_<LAST>_<OTHER>_<SEQ>"),
              "ANN LEE\xB7"
              "ANN LEE");
    EXPECT_EQ(formatTaxpayerName("ANN LEE", "<FORM>_<LAST>_<FIRST>_<OTHER>_<SEQ>"), "ANN LEE\xB7LEE,ANN");
}

TEST(FormatTPName, AnEmptyNameGivesAnEmptyText) {
    EXPECT_EQ(formatTaxpayerName("", kLastFirstTemplate), "");
    EXPECT_EQ(formatTaxpayerName(".", kLastFirstTemplate), "\xB7");
}

}  // namespace
}  // namespace lw::test

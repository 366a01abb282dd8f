#include "people/name_format.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "model/ports.h"
#include "model/program.h"

namespace lw::test {
namespace {

// Nothing of the outside world is asked for when a name is formatted.
class NoUi : public UiPort {
public:
    void runModal(Form&) override {}
    void copyPictureToClipboard(Form&) override {}
    std::string clipboardText() override { return {}; }
    void setClipboardText(const std::string&) override {}
    bool openDocument(const std::string&) override { return false; }
    void quit() override {}
};

class NoPlatform : public PlatformPort {
public:
    DateTime now() override { return {}; }
    std::optional<std::string> environment(const std::string&) override { return std::nullopt; }
    std::string executableName() override { return {}; }
    std::string executableFolder() override { return {}; }
    std::string commandLine() override { return {}; }
    std::string rootFolder() override { return {}; }
    bool earlierInstanceRunning() override { return false; }
    void activateEarlierInstance(const std::string&) override {}
    void sleep(int) override {}
    std::vector<std::string> printers() override { return {}; }
    int screenWidthTwips() override { return 0; }
};

const char* const kLastFirstTemplate = "<LAST>_<FIRST>_<FORM>_<OTHER>_<SEQ>";
const char* const kFirstLastTemplate = "<FIRST>_<LAST>_<FORM>_<OTHER>_<SEQ>";

class FormatTPName : public ::testing::Test {
protected:
    void SetUp() override {
        program_ = std::make_unique<Program>(ui_, platform_);
        program_->g.choices.fileNameFormat = kLastFirstTemplate;
    }
    void useTemplate(const char* t) { program_->g.choices.fileNameFormat = t; }

private:
    NoUi ui_;
    NoPlatform platform_;
    std::unique_ptr<Program> program_;
};

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

TEST_F(FormatTPName, GivesTheLineAndTheNameForTheFile) {
    EXPECT_EQ(formatTaxpayerName("JOHN Q DOE JR."),
              "JOHN Q DOE JR\xB7"
              "DOE JR,JOHN");
    EXPECT_EQ(formatTaxpayerName("MARY DOE-SMITH III"),
              "MARY DOE-SMITH III\xB7"
              "DOE-SMITH III,MARY");
    EXPECT_EQ(formatTaxpayerName("TIFIMRU"), "TIFIMRU\xB7TIFIMRU");
    EXPECT_EQ(formatTaxpayerName("ANN LEE V"), "ANN LEE V\xB7LEE V,ANN");
}

TEST_F(FormatTPName, TheFirstNameGoesFirstWhenTheTemplatePutsItFirst) {
    useTemplate(kFirstLastTemplate);
    EXPECT_EQ(formatTaxpayerName("JOHN Q DOE JR."), "JOHN Q DOE JR\xB7JOHN DOE JR");
    EXPECT_EQ(formatTaxpayerName("TIFIMRU"), "TIFIMRU\xB7TIFIMRU");
    useTemplate("<FORM>_<FIRST>_<LAST>_<OTHER>_<SEQ>");
    EXPECT_EQ(formatTaxpayerName("ANN LEE"),
              "ANN LEE\xB7"
              "ANN LEE");
    useTemplate("<FORM>_<LAST>_<FIRST>_<OTHER>_<SEQ>");
    EXPECT_EQ(formatTaxpayerName("ANN LEE"), "ANN LEE\xB7LEE,ANN");
}

TEST_F(FormatTPName, AnEmptyNameGivesAnEmptyText) {
    EXPECT_EQ(formatTaxpayerName(""), "");
    EXPECT_EQ(formatTaxpayerName("."), "\xB7");
}

}  // namespace
}  // namespace lw::test

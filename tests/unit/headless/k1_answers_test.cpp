#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "fixed_platform.h"
#include "forms/k1_help.h"
#include "headless/headless_ui.h"
#include "model/program.h"

namespace lw::headless {
namespace {

// The script's answers to the list of K-1 codes, on a small K-1 with one coded row.
struct ScriptK1Answers : ::testing::Test {
    std::ostringstream out;
    Session session;
    HeadlessUi ui{session};
    testing::FixedPlatform platform;
    std::unique_ptr<Program> program;
    std::filesystem::path folder;
    Form* form = nullptr;
    K1DesignValues kept;
    K1HelpMembers members;

    void SetUp() override {
        std::string pattern = (std::filesystem::temp_directory_path() / "lw-k1-XXXXXX").string();
        folder = mkdtemp(pattern.data());
        session.out = &out;
        program = std::make_unique<Program>(ui, platform);
        program->g.edition.k1HelpInfFile = (folder / "K1Help.inf").string();
        std::ofstream(program->g.edition.k1HelpInfFile, std::ios::binary)
            << "[K1-1120S-Box12]\r\n"
               "A|Cash contributions (60%) {Schedule A}|\r\n"
               "J|Section 59(e)(2) expenditures {statement}|\tX\r\n";
        auto owned = std::make_unique<Form>("TF_K11120S");
        owned->add(ControlKind::TextBox, "Text2", 0).tag = "K1HELP\xB7K1-1120S-Box12";
        owned->add(ControlKind::TextBox, "Text3", 0).tag = "MONEY";
        form = &program->desktop.load(std::move(owned));
        kept = keptDesignValues(*form);
    }
    void TearDown() override {
        program.reset();
        std::error_code ec;
        std::filesystem::remove_all(folder, ec);
    }
    void queue(const std::string& code) { session.answers.push_back({7, "k1", {code}}); }
    void callList() {
        Control& code = form->at("Text2", 0);
        program->desktop.setFocus(code);
        program->desktop.dispatch(
            [&] { openK1CodeList(*form, code, kept, program->g.edition.k1HelpInfFile, members); });
    }
};

TEST_F(ScriptK1Answers, TheQueuedCodesRowIsClickedAndTheListIsWrittenAndKept) {
    queue("J");
    callList();
    EXPECT_EQ(form->at("Text2", 0).text, "J");
    EXPECT_EQ(form->at("Text3", 0).tag, "");
    EXPECT_EQ(out.str(), "k1 list \"Valid Entries for K1 1120S Box 12\" with 2 codes: A J -> J\n");
    ASSERT_TRUE(session.lastK1List.has_value());
    EXPECT_EQ(session.lastK1List->caption, "Valid Entries for K1 1120S Box 12");
    EXPECT_EQ(session.lastK1List->rows,
              (std::vector<std::string>{"A|Cash contributions (60%)|Schedule A|",
                                        "J|Section 59(e)(2) expenditures|statement|X"}));
    EXPECT_FALSE(session.scriptError.has_value());
}

TEST_F(ScriptK1Answers, CancelAndNoAnswerBothPressCancel) {
    form->at("Text2", 0).text = "A";
    queue("cancel");
    callList();
    EXPECT_EQ(form->at("Text2", 0).text, "A");
    callList();
    EXPECT_EQ(form->at("Text2", 0).text, "A");
    EXPECT_EQ(form->at("Text3", 0).tag, "MONEY");
    EXPECT_NE(out.str().find("-> cancel\nk1 list"), std::string::npos) << out.str();
    EXPECT_FALSE(session.scriptError.has_value());
}

TEST_F(ScriptK1Answers, BytesOfTheListOutsideTheCodePageAreWrittenWithoutHarm) {
    std::ofstream(program->g.edition.k1HelpInfFile, std::ios::binary)
        << "[K1-1120S-Box12]\r\nA|Caf\xE9 \x81 {\x9D\xB7}|\r\n";
    queue("A");
    callList();
    EXPECT_EQ(form->at("Text2", 0).text, "A");
    ASSERT_TRUE(session.lastK1List.has_value());
    ASSERT_EQ(session.lastK1List->rows.size(), 1u);
    EXPECT_EQ(session.lastK1List->rows[0], "A|Caf\u00E9 \u0081|\u009D\u00B7|");
}

TEST_F(ScriptK1Answers, ACodeTheListDoesNotHoldIsAFaultOfTheScript) {
    queue("Q");
    callList();
    EXPECT_EQ(form->at("Text2", 0).text, "");
    ASSERT_TRUE(session.scriptError.has_value());
    EXPECT_EQ(session.scriptError->first, 7);
    EXPECT_EQ(session.scriptError->second, "the list has no code \"Q\"");
}

}  // namespace
}  // namespace lw::headless

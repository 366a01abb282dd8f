#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "script/script_runner.h"

namespace lw::script {
namespace {

namespace fs = std::filesystem;

// A script that names no root gets a fresh private folder in the temporary folder of the environment.
struct TemporaryRoot : ::testing::Test {
    fs::path temporary;
    std::string savedTmpdir;
    bool hadTmpdir = false;

    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "lw-temporary-root-XXXXXX").string();
        temporary = mkdtemp(pattern.data());
        if (const char* value = std::getenv("TMPDIR")) {
            hadTmpdir = true;
            savedTmpdir = value;
        }
        setenv("TMPDIR", temporary.c_str(), 1);
    }
    void TearDown() override {
        if (hadTmpdir)
            setenv("TMPDIR", savedTmpdir.c_str(), 1);
        else
            unsetenv("TMPDIR");
        std::error_code ec;
        fs::remove_all(temporary, ec);
    }
    int play(const std::string& script) {
        std::ostringstream out;
        ScriptRunner runner(out, temporary.string());
        std::istringstream in(script);
        return runner.run(in);
    }
};

TEST_F(TemporaryRoot, EachRunGetsAFreshPrivateFolderOfItsOwn) {
    const int runs = 20;
    for (int i = 0; i < runs; ++i)
        ASSERT_EQ(play("write ~root/probe \"run\"\nexpect exists ~root/probe\n"), 0);
    std::set<std::string> roots;
    for (const auto& entry : fs::directory_iterator(temporary)) {
        const std::string name = entry.path().filename().string();
        ASSERT_EQ(name.rfind("ledgerwick-script-", 0), 0u) << name;
        EXPECT_EQ(name.size(), std::string("ledgerwick-script-").size() + 6) << name;
        EXPECT_TRUE(fs::exists(entry.path() / "probe")) << name;
        struct stat status {};
        ASSERT_EQ(stat(entry.path().c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0700u) << name;
        roots.insert(name);
    }
    EXPECT_EQ(roots.size(), static_cast<std::size_t>(runs));
}

TEST_F(TemporaryRoot, ATemporaryFolderThatCannotTakeOneIsAScriptError) {
    setenv("TMPDIR", (temporary / "missing" / "deeper").c_str(), 1);
    std::ostringstream out;
    ScriptRunner runner(out, temporary.string());
    std::istringstream in("write ~root/probe \"run\"\n");
    EXPECT_EQ(runner.run(in), 2);
    EXPECT_NE(out.str().find("ERROR line 1: cannot make a temporary root folder"), std::string::npos)
        << out.str();
}

}  // namespace
}  // namespace lw::script

// The machine of the window program: names, folders, the command line and the single instance.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <deque>

#include "ui/qt_platform_port.h"

namespace lw::ui::test {
namespace {

// Sets an environment variable for the life of a test and puts the old value back.
class ScopedVariable {
public:
    ScopedVariable(const char* name, const QByteArray& value)
        : name_(name), had_(qEnvironmentVariableIsSet(name)) {
        old_ = qgetenv(name);
        if (value.isNull())
            qunsetenv(name);
        else
            qputenv(name, value);
    }
    ~ScopedVariable() {
        if (had_)
            qputenv(name_, old_);
        else
            qunsetenv(name_);
    }

private:
    const char* name_;
    bool had_;
    QByteArray old_;
};

QtPlatformPort portOf(std::initializer_list<const char*> words) {
    static std::deque<std::string> keep;  // elements stay where they are as more are added
    std::vector<char*> argv;
    for (const char* word : words) {
        keep.emplace_back(word);
        argv.push_back(keep.back().data());
    }
    return QtPlatformPort(static_cast<int>(argv.size()), argv.data());
}

TEST(QtPlatformPort, NameAndCommandLineComeFromTheArguments) {
    QtPlatformPort port = portOf({"/opt/lw/Ledgerwick_Venturo", "debug", "Taskbar"});
    EXPECT_EQ(port.executableName(), "Ledgerwick_Venturo");
    EXPECT_EQ(port.commandLine(), "debug Taskbar");
    EXPECT_EQ(portOf({"Ledgerwick_OthAgcy"}).commandLine(), "");
}

TEST(QtPlatformPort, TheRootFolderFollowsTheEnvironment) {
    QtPlatformPort port = portOf({"Ledgerwick_Venturo"});
    {
        ScopedVariable root("LEDGERWICK_ROOT", "/tmp/lw-root");
        EXPECT_EQ(port.rootFolder(), "/tmp/lw-root");
    }
    ScopedVariable noRoot("LEDGERWICK_ROOT", QByteArray());
    {
        ScopedVariable data("XDG_DATA_HOME", "/tmp/data");
        EXPECT_EQ(port.rootFolder(), "/tmp/data/ledgerwick");
    }
    ScopedVariable noData("XDG_DATA_HOME", QByteArray());
    EXPECT_EQ(port.rootFolder(), (QDir::homePath() + "/.local/share/ledgerwick").toStdString());
}

TEST(QtPlatformPort, VariablesAreReadInTheCodePage) {
    QtPlatformPort port = portOf({"Ledgerwick_Venturo"});
    ScopedVariable set("LW_TEST_VALUE", "Caf\xC3\xA9");
    EXPECT_EQ(port.environment("LW_TEST_VALUE"), std::optional<std::string>("Caf\xE9"));
    ScopedVariable unset("LW_TEST_MISSING", QByteArray());
    EXPECT_EQ(port.environment("LW_TEST_MISSING"), std::nullopt);
    ScopedVariable user("USER", "trainer");
    ScopedVariable userName("UserName", QByteArray());
    EXPECT_EQ(port.environment("UserName"), std::optional<std::string>("trainer"));
    EXPECT_TRUE(port.environment("ComputerName").has_value());
}

TEST(QtPlatformPort, TheClockAndTheScreenAreThere) {
    QtPlatformPort port = portOf({"Ledgerwick_Venturo"});
    EXPECT_GE(port.now().year, 2024);
    EXPECT_GT(port.screenWidthTwips(), 0);
    EXPECT_FALSE(port.debuggerAttached());
}

TEST(QtPlatformPort, ASecondInstanceFindsTheFirstAndRaisesIt) {
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    ScopedVariable place("LEDGERWICK_ROOT", root.path().toLocal8Bit());
    QtPlatformPort first = portOf({"/opt/lw/Ledgerwick_Venturo"});
    int raised = 0;
    first.setRaiseHandler([&] { ++raised; });
    EXPECT_FALSE(first.earlierInstanceRunning());
    EXPECT_TRUE(QFileInfo::exists(root.path() + "/ledgerwick_venturo.lock"));

    QtPlatformPort second = portOf({"/usr/bin/LEDGERWICK_VENTURO"});
    EXPECT_TRUE(second.earlierInstanceRunning());
    second.activateEarlierInstance("Ledgerwick");
    QTRY_COMPARE_WITH_TIMEOUT(raised, 1, 3000);

    // Another executable is another program.
    QtPlatformPort other = portOf({"Ledgerwick_OthAgcy"});
    EXPECT_FALSE(other.earlierInstanceRunning());
}

TEST(QtPlatformPort, EachLaterStartRaisesTheFirstOnceWhateverAnEarlierRunLeft) {
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    ScopedVariable place("LEDGERWICK_ROOT", root.path().toLocal8Bit());
    QFile left(root.path() + "/ledgerwick_venturo.requests");
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.write("raise\n");
    left.close();
    QtPlatformPort first = portOf({"Ledgerwick_Venturo"});
    int raised = 0;
    first.setRaiseHandler([&] { ++raised; });
    EXPECT_FALSE(first.earlierInstanceRunning());
    QTest::qWait(200);
    EXPECT_EQ(raised, 0);

    // Two later starts raise it twice.
    QtPlatformPort second = portOf({"Ledgerwick_Venturo"});
    second.activateEarlierInstance("Ledgerwick");
    QTRY_COMPARE_WITH_TIMEOUT(raised, 1, 3000);
    QtPlatformPort third = portOf({"Ledgerwick_Venturo"});
    third.activateEarlierInstance("Ledgerwick");
    QTRY_COMPARE_WITH_TIMEOUT(raised, 2, 3000);
}

TEST(QtPlatformPort, TheFirstInstanceTakesItsLockAndRequestFileAwayWhenItEnds) {
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    ScopedVariable place("LEDGERWICK_ROOT", root.path().toLocal8Bit());
    {
        QtPlatformPort first = portOf({"Ledgerwick_Venturo"});
        EXPECT_FALSE(first.earlierInstanceRunning());
        EXPECT_TRUE(QFileInfo::exists(root.path() + "/ledgerwick_venturo.requests"));
    }
    EXPECT_FALSE(QFileInfo::exists(root.path() + "/ledgerwick_venturo.requests"));
    EXPECT_FALSE(QFileInfo::exists(root.path() + "/ledgerwick_venturo.lock"));
    QtPlatformPort next = portOf({"Ledgerwick_Venturo"});
    EXPECT_FALSE(next.earlierInstanceRunning()) << "the next start is the first again";
}

}  // namespace
}  // namespace lw::ui::test

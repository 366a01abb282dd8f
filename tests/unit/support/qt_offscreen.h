#pragma once
// Tests that draw forms need a Qt application; the offscreen platform of the test environment serves.

#include <gtest/gtest.h>

#include <QApplication>

namespace lw::testing {

class QtOffscreen : public ::testing::Environment {
public:
    void SetUp() override {
        static int argc = 1;
        static char name[] = "ledgerwick-test";
        static char* argv[] = {name, nullptr};
        if (!QApplication::instance()) new QApplication(argc, argv);
    }
};

// Registers the environment once per test program: `const auto* const kQt = addQtOffscreen();`
inline ::testing::Environment* addQtOffscreen() {
    return ::testing::AddGlobalTestEnvironment(new QtOffscreen);
}

}  // namespace lw::testing

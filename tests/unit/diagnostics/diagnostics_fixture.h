#pragma once
// A fresh program on fake ports for each test, with the boxes' and reports' memory emptied.

#include <gtest/gtest.h>

#include <memory>

#include "diagnostics/error_report_form.h"
#include "diagnostics/message_box.h"
#include "fake_ports.h"
#include "model/program.h"

namespace lw::test {

class DiagnosticsTest : public ::testing::Test {
protected:
    void SetUp() override {
        resetMessageBoxes();
        resetErrorReports();
        program_ = std::make_unique<Program>(ui, platform);
    }
    void TearDown() override { program_.reset(); }

    Program& prog() { return *program_; }

    FakeUi ui;
    FakePlatform platform;

private:
    std::unique_ptr<Program> program_;
};

}  // namespace lw::test

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <filesystem>

#include "cases/cases_window.h"
#include "qt_offscreen.h"

namespace lw::cases {
namespace {

namespace fs = std::filesystem;

const auto* const kQt = testing::addQtOffscreen();

TEST(CasesWindow, MakesTheTickedKindsIntoTheFolderAndOffersToOpenIt) {
    const fs::path out = fs::temp_directory_path() / "lw-cases-window";
    fs::remove_all(out);
    CasesWindow window(LW_BIN_DIR, "");
    auto* profiles = window.findChild<QListWidget*>("profiles");
    ASSERT_NE(profiles, nullptr);
    ASSERT_EQ(profiles->count(), 7);
    EXPECT_EQ(profiles->item(2)->text(), "Retiree with Social Security and a pension");
    profiles->item(2)->setCheckState(Qt::Checked);
    window.findChild<QSpinBox*>("count")->setValue(2);
    window.findChild<QSpinBox*>("year")->setValue(2025);
    window.findChild<QLineEdit*>("seed")->setText("31");
    window.findChild<QLineEdit*>("folder")->setText(QString::fromStdString(out.string()));
    auto* open = window.findChild<QPushButton*>("open");
    EXPECT_FALSE(open->isEnabled());
    window.findChild<QPushButton*>("make")->click();
    EXPECT_EQ(window.findChild<QProgressBar*>("progress")->value(), 2);
    EXPECT_EQ(window.findChild<QLabel*>("status")->text(), "2 cases and their answer key are in the folder.");
    EXPECT_TRUE(open->isEnabled());
    EXPECT_TRUE(fs::is_directory(out / "case-02"));
    EXPECT_TRUE(fs::exists(out / "answers.csv"));
}

TEST(CasesWindow, AYearWithoutFiguresIsToldInTheWindow) {
    CasesWindow window(LW_BIN_DIR, "");
    window.findChild<QSpinBox*>("year")->setValue(2001);
    window.findChild<QLineEdit*>("folder")->setText("/tmp/lw-cases-window-refused");
    window.findChild<QPushButton*>("make")->click();
    EXPECT_TRUE(window.findChild<QLabel*>("status")->text().contains("no Social Security and Medicare figures"));
    EXPECT_FALSE(window.findChild<QPushButton*>("open")->isEnabled());
    window.findChild<QLineEdit*>("seed")->setText("seven");
    window.findChild<QPushButton*>("make")->click();
    EXPECT_EQ(window.findChild<QLabel*>("status")->text(), "The seed must be a whole number.");
}

}  // namespace
}  // namespace lw::cases

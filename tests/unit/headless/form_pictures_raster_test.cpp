#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "headless/form_pictures.h"
#include "model/form.h"
#include "picture_sizes.h"

namespace lw::headless {
namespace {

// The runner built with its own painter (the WebAssembly build), tried natively.
TEST(RasterFormPictures, HaveThePaintersSizesAtEachZoom) {
    testing::expectPainterSizes();
}

TEST(RasterFormPictures, GiveTheColourOfAPointAndWriteAPng) {
    testing::expectColourAndPng("lw-raster-picture-test.png");
}

std::string printed(const Form& form) {
    const auto file = std::filesystem::temp_directory_path() / "lw-raster-page-test.pdf";
    EXPECT_TRUE(printFormToPdf(form, file.string()));
    std::ifstream in(file, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    std::filesystem::remove(file);
    return bytes;
}

TEST(RasterFormPictures, PrintAPageOfLetterTurnedWhenTheFormIsWide) {
    Form form("TF_Test");
    form.caption = "Test (form)";
    form.width = 13440;
    form.height = 7860;
    const std::string wide = printed(form);
    EXPECT_EQ(wide.rfind("%PDF-1.4\n", 0), 0u);
    EXPECT_NE(wide.find("/MediaBox [0 0 792.00 612.00]"), std::string::npos);
    EXPECT_NE(wide.find("/Title (Test \\(form\\))"), std::string::npos);
    EXPECT_NE(wide.find("/Width 1650 /Height 1275"), std::string::npos);
    EXPECT_NE(wide.find("%%EOF"), std::string::npos);

    form.width = 9000;
    form.height = 12000;
    EXPECT_NE(printed(form).find("/MediaBox [0 0 612.00 792.00]"), std::string::npos);
    EXPECT_FALSE(printFormToPdf(form, "/nonexistent-folder/page.pdf"));
}

}  // namespace
}  // namespace lw::headless

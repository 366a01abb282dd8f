#include <gtest/gtest.h>

#include <filesystem>

#include "headless/form_pictures.h"
#include "model/form.h"
#include "picture_sizes.h"

namespace lw::headless {
namespace {

// The runner built without a painter: its pictures have the painter's sizes and no pixels.
TEST(UndrawnFormPictures, HaveThePaintersSizesAtEachZoom) {
    EXPECT_FALSE(picturesDrawn());
    testing::expectPainterSizes();
}

TEST(UndrawnFormPictures, HaveNoPixelsAndWriteNoFile) {
    Form form("TF_Test");
    form.width = 1500;
    form.height = 750;
    const auto picture = drawForm(form);
    EXPECT_TRUE(picture->contains(10, 10));
    EXPECT_FALSE(picture->colourAt(10, 10).has_value());
    const auto file = std::filesystem::temp_directory_path() / "lw-undrawn-picture-test.png";
    EXPECT_FALSE(picture->savePng(file.string()));
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_FALSE(printFormToPdf(form, file.string()));
}

}  // namespace
}  // namespace lw::headless

#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>

#include "headless/form_pictures.h"
#include "model/form.h"
#include "picture_sizes.h"
#include "qt_offscreen.h"

namespace lw::headless {
namespace {

const auto* const kQt = lw::testing::addQtOffscreen();

TEST(DrawnFormPictures, HaveTheFormsPixelSizeAtEachZoom) {
    testing::expectPainterSizes();
}

TEST(DrawnFormPictures, GiveTheColourOfAPointAndWriteAPng) {
    Form form("TF_Test");
    form.width = 1500;
    form.height = 750;
    form.backColor = 0x00FF8040;  // blue 0xFF, green 0x80, red 0x40 in the model's order
    const auto picture = drawForm(form);
    EXPECT_EQ(picture->colourAt(10, 10), "#4080FF");
    EXPECT_FALSE(picture->colourAt(100, 10).has_value());
    EXPECT_FALSE(picture->contains(100, 10));
    EXPECT_TRUE(picture->contains(99, 49));

    const auto file = std::filesystem::temp_directory_path() / "lw-drawn-picture-test.png";
    ASSERT_TRUE(picture->savePng(file.string()));
    QImage read(QString::fromStdString(file.string()));
    std::filesystem::remove(file);
    EXPECT_EQ(read.width(), 100);
    EXPECT_EQ(read.height(), 50);
    EXPECT_FALSE(picture->savePng("/nonexistent-folder/picture.png"));
}

}  // namespace
}  // namespace lw::headless

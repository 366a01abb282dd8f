#pragma once
// What the runner's pictures must do whichever painter draws them (the window's or the runner's own):
// forms of various sizes and zooms with the pixel size of their picture, the colour of a point, a PNG.

#include <gtest/gtest.h>

#include <QImage>
#include <filesystem>
#include <string>
#include <vector>

#include "headless/form_pictures.h"
#include "model/form.h"

namespace lw::headless::testing {

struct PictureSize {
    int widthTwips;
    int heightTwips;
    double zoom;
    int width;
    int height;
};

inline const std::vector<PictureSize>& pictureSizes() {
    static const std::vector<PictureSize> sizes = {
        {13440, 7860, 1.0, 896, 524},  // the W-2
        {13440, 7860, 2.0, 1792, 1048},
        {12007, 22, 1.0, 800, 1},  // parts of a pixel rounded
        {12008, 23, 1.0, 801, 2},
        {0, 7, 1.0, 1, 1},   // never less than one pixel
        {5, 15, 1.5, 1, 2},  // a half pixel at a zoom
        {25, 35, 1.5, 3, 4},
        {9000, 6000, 0.5, 300, 200},
    };
    return sizes;
}

// Every size of the table, as the runner's pictures give it.
inline void expectPainterSizes() {
    for (const auto& size : pictureSizes()) {
        Form form("TF_Test");
        form.width = size.widthTwips;
        form.height = size.heightTwips;
        const auto picture = drawForm(form, size.zoom);
        EXPECT_EQ(picture->width(), size.width) << size.widthTwips << " twips at " << size.zoom;
        EXPECT_EQ(picture->height(), size.height) << size.heightTwips << " twips at " << size.zoom;
    }
}

// A form of one colour: the colour of a point inside, none outside, and the PNG it writes read back.
inline void expectColourAndPng(const std::string& fileName) {
    Form form("TF_Test");
    form.width = 1500;
    form.height = 750;
    form.backColor = 0x00FF8040;  // blue 0xFF, green 0x80, red 0x40 in the model's order
    const auto picture = drawForm(form);
    EXPECT_EQ(picture->colourAt(10, 10), "#4080FF");
    EXPECT_FALSE(picture->colourAt(100, 10).has_value());
    EXPECT_FALSE(picture->contains(100, 10));
    EXPECT_TRUE(picture->contains(99, 49));

    const auto file = std::filesystem::temp_directory_path() / fileName;
    ASSERT_TRUE(picture->savePng(file.string()));
    QImage read(QString::fromStdString(file.string()));
    std::filesystem::remove(file);
    EXPECT_EQ(read.width(), 100);
    EXPECT_EQ(read.height(), 50);
    EXPECT_EQ(read.pixelColor(10, 10).name().toUpper().toStdString(), "#4080FF");
    EXPECT_FALSE(picture->savePng("/nonexistent-folder/picture.png"));
}

}  // namespace lw::headless::testing

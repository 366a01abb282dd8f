#pragma once
// Forms of various sizes and zooms with the pixel size of their picture, shared by the tests of the
// drawn pictures and of the undrawn ones, so that both builds of the runner report the same sizes.

#include <gtest/gtest.h>

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

}  // namespace lw::headless::testing

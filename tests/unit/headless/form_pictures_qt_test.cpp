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
    testing::expectColourAndPng("lw-drawn-picture-test.png");
}

}  // namespace
}  // namespace lw::headless

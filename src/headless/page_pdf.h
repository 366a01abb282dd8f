#pragma once
// A printed page as a PDF file holding one picture: the page as the printer would put it on paper.

#include <string>

#include "headless/raster_image.h"

namespace lw::headless {

// Writes a page of a size in points (a seventy-second of an inch) that shows the picture over the whole
// page; false when the file cannot be written.
bool writePagePdf(const std::string& path, const RasterImage& page, double widthPoints, double heightPoints,
                  const std::string& title);

}  // namespace lw::headless

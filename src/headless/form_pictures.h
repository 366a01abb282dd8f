#pragma once
// The pictures the runner keeps of a form (the clipboard's, the last printed page, a snapshot) and what
// draws them. The native runner draws with the window's painter; a build without it knows a picture's
// size from the model but draws no pixels, so the checks that look at pixels cannot run there.

#include <memory>
#include <optional>
#include <string>

#include "model/form.h"

namespace lw::headless {

class FormPicture {
public:
    virtual ~FormPicture() = default;
    virtual int width() const = 0;
    virtual int height() const = 0;
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width() && y < height(); }
    // "#RRGGBB" of a point inside the picture; nothing where the picture has no pixels.
    virtual std::optional<std::string> colourAt(int x, int y) const = 0;
    // Writes the picture as a PNG file; false when it cannot.
    virtual bool savePng(const std::string& path) const = 0;
};

// True when this build draws the pixels of its pictures.
bool picturesDrawn();
// The form's client area at its pixel size, at a zoom (2 as a screen of twice the density shows it).
std::shared_ptr<const FormPicture> drawForm(const Form& form, double zoom = 1.0);
// Writes the printed page of the form to a PDF file; false when it cannot.
bool printFormToPdf(const Form& form, const std::string& path);

}  // namespace lw::headless

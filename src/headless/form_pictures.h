#pragma once
// The pictures the runner keeps of a form (the clipboard's, the last printed page, a snapshot) and what
// draws them. The native runner draws with the window's painter; a build without it (WebAssembly) paints
// the engine's description of the form's face itself.

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
    // "#RRGGBB" of a point inside the picture; nothing outside it.
    virtual std::optional<std::string> colourAt(int x, int y) const = 0;
    // Writes the picture as a PNG file; false when it cannot.
    virtual bool savePng(const std::string& path) const = 0;
};

// The form's client area at its pixel size, at a zoom (2 as a screen of twice the density shows it).
std::shared_ptr<const FormPicture> drawForm(const Form& form, double zoom = 1.0);
// Writes the printed page of the form to a PDF file; false when it cannot.
bool printFormToPdf(const Form& form, const std::string& path);

}  // namespace lw::headless

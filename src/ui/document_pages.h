#pragma once
// Forms as pages of a document: a PDF book with one page per form, or one picture file per page. Both
// are drawn by the painter of the screen and the printer, at the form's true size.

#include <QPdfWriter>
#include <QString>
#include <memory>

#include "model/form.h"

class QPainter;

namespace lw::ui {

class PdfBook {
public:
    explicit PdfBook(const QString& path);
    ~PdfBook();
    // Adds the form as it stands as the next page; false when the file cannot be written.
    bool addPage(const Form& form);
    // Ends the file; false when it could not be written whole.
    bool finish();
    int pages() const { return pages_; }

private:
    QPdfWriter writer_;
    std::unique_ptr<QPainter> painter_;
    int pages_ = 0;
};

// Writes the form as a PNG picture, at a zoom of the screen's 96 dots to the inch.
bool writePagePicture(const Form& form, const QString& path, double zoom);

}  // namespace lw::ui

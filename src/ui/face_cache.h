#pragma once
// The painted faces of forms kept between openings: a form opened again looks as it looked when it went,
// unless a painted control reads otherwise now (a new tax year rewrites captions), so its face is shown
// at once instead of being painted again.

#include <QPixmap>
#include <QString>
#include <cstddef>
#include <list>

#include "model/form.h"

namespace lw::ui {

// A fingerprint of everything a view paints into a form's face: the form's colour and size, and every
// control the view does not host as an editor, with its place on the form, the state of the picture file
// it shows, and the device ratio and ground colour the face is painted at.
std::size_t faceLookOf(const Form& form, const QSize& pixels, qreal ratio, const QColor& ground);

class FaceCache {
public:
    static FaceCache& instance();

    // Hands out the face kept for this form and look at this ratio and size, or a null pixmap. The face
    // leaves the cache: its holder paints on it and gives it back with keep().
    QPixmap take(const std::string& form, std::size_t look, const QSize& pixels, qreal ratio);
    // Keeps a face that shows the form with this look, in place of any kept before for the same form and
    // ratio; the faces used longest ago go when the cache holds more than its budget.
    void keep(const std::string& form, std::size_t look, const QPixmap& face);
    void clear() { entries_.clear(); }
    qint64 bytes() const;
    int count() const { return static_cast<int>(entries_.size()); }
    // A budget of 0 keeps nothing.
    void setBudget(qint64 bytes);
    qint64 budget() const { return budget_; }

private:
    FaceCache();
    struct Entry {
        std::string form;
        std::size_t look;
        QPixmap face;
    };
    void trim();

    std::list<Entry> entries_;  // the face given back last stands first
    qint64 budget_;
};

}  // namespace lw::ui

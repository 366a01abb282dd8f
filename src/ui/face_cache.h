#pragma once
// The painted faces of forms kept between openings: a form opened again looks as it looked when it went,
// unless a painted control reads otherwise now (a new tax year rewrites captions), so its face is shown
// at once instead of being painted again. A tab control's pages are faces of their own, so a page turned
// back is shown as it was. Faces are kept with one byte a pixel where their colours allow, which a form's
// few inks and the shades of their letters do.

#include <QImage>
#include <QRegion>
#include <QString>
#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <vector>

#include "model/form.h"

class QPainter;

namespace lw::ui {

// A fingerprint of everything a view paints into a form's face: the form's colour and size, and every
// control the view does not host as an editor, with its place on the form and the state of the picture
// file it shows, and the size, device ratio and ground colour the face is painted at.
std::size_t faceLookOf(const Form& form, const QSize& pixels, qreal ratio, const QColor& ground);

// A face held in bands of rows, each with a table of its colours when it has no more than 256, else as
// it was painted: the same pixels in a quarter of the memory.
class CompactFace {
public:
    explicit CompactFace(const QImage& painted);
    // Paints a face of this size in device pixels a strip of rows at a time, each strip kept compact before
    // the next is painted, so that the face never stands whole at 32 bits a pixel. `paint` fills an area
    // of the face, given in its logical coordinates.
    using AreaPainter = std::function<void(QPainter&, const QRect&)>;
    CompactFace(const QSize& pixels, qreal ratio, const AreaPainter& paint);
    // The face `before` with the areas (in logical coordinates) painted again: only the bands they touch
    // stand at 32 bits a pixel, one at a time.
    CompactFace(const CompactFace& before, const QRegion& areas, const AreaPainter& paint);

    QSize size() const { return size_; }  // in device pixels
    qreal devicePixelRatio() const { return ratio_; }
    qint64 bytes() const;
    // Draws the part of the face that lies in `area` (in the face's own logical coordinates) there.
    void draw(QPainter& painter, const QRect& area) const;
    // The face as one picture of 32 bits a pixel, to paint on.
    QImage toImage() const;

private:
    void addBands(const QImage& painted);
    void gatherBands();

    std::vector<uchar> pixels_;  // every band's pixels
    std::vector<QImage> bands_;
    QSize size_;
    qreal ratio_ = 1;
};

using SharedFace = std::shared_ptr<const CompactFace>;

class FaceCache {
public:
    static FaceCache& instance();

    // The face kept for this form with this look, at this size and ratio in device pixels, or none.
    SharedFace find(const std::string& form, std::size_t look, const QSize& pixels, qreal ratio);
    // Keeps a face showing the form with this look; the faces used longest ago go when the cache holds
    // more than its budget.
    void keep(const std::string& form, std::size_t look, SharedFace face);
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
        SharedFace face;
    };
    void trim();

    std::list<Entry> entries_;  // the face used last stands first
    qint64 budget_;
};

}  // namespace lw::ui

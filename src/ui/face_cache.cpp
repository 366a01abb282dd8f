#include "ui/face_cache.h"

#include <QFileInfo>
#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <map>

#include "fields/box_dollar_sign.h"
#include "model/containers.h"
#include "model/hash_mix.h"
#include "model/look_tracker.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

// Room for the faces of the last few forms of a session, both pages of a K-1 among them, in the one
// byte a pixel that most faces take.
constexpr qint64 kDefaultBudget = 2 * 1024 * 1024;
constexpr int kBandRows = 32;
constexpr int kStripRows = 4 * kBandRows;

// The rows of a band with a table of their colours, or as they are when they hold more than 256.
QImage compactBand(const QImage& painted, int top, int rows) {
    // A small open table keyed by colour; most neighbouring pixels share the colour of the one before.
    constexpr std::size_t kSlots = 1024;
    std::array<QRgb, kSlots> colours{};
    std::array<int, kSlots> indexes;
    indexes.fill(-1);
    QList<QRgb> table;
    QImage band(painted.width(), rows, QImage::Format_Indexed8);
    QRgb last = 0;
    uchar lastIndex = 0;
    bool started = false;
    for (int y = 0; y < rows; ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(painted.constScanLine(top + y));
        uchar* to = band.scanLine(y);
        for (int x = 0; x < painted.width(); ++x) {
            const QRgb colour = from[x];
            if (started && colour == last) {
                to[x] = lastIndex;
                continue;
            }
            std::size_t slot = (colour * 2654435761u) % kSlots;
            while (indexes[slot] >= 0 && colours[slot] != colour) slot = (slot + 1) % kSlots;
            if (indexes[slot] < 0) {
                if (table.size() == 256) return painted.copy(0, top, painted.width(), rows);
                colours[slot] = colour;
                indexes[slot] = static_cast<int>(table.size());
                table.append(colour);
            }
            last = colour;
            lastIndex = static_cast<uchar>(indexes[slot]);
            started = true;
            to[x] = lastIndex;
        }
    }
    band.setColorTable(table);
    return band;
}

// A part of a band at 32 bits a pixel, ready to be copied to the screen: Qt draws a picture with a table
// of colours pixel by pixel, many times slower than this one look-up a pixel. The strip is reused.
const QImage& expanded(const QImage& band, const QRect& source) {
    static QImage strip;
    if (band.format() != QImage::Format_Indexed8) {
        strip = band.copy(source);
        return strip;
    }
    if (strip.width() < source.width() || strip.height() < source.height() ||
        strip.format() != QImage::Format_RGB32)
        strip = QImage(std::max(strip.width(), source.width()), kBandRows, QImage::Format_RGB32);
    const QList<QRgb> table = band.colorTable();
    const QRgb* colours = table.constData();
    const int width = source.width();
    for (int y = 0; y < source.height(); ++y) {
        const uchar* from = band.constScanLine(source.top() + y) + source.left();
        auto* to = reinterpret_cast<QRgb*>(strip.scanLine(y));
        int x = 0;
        while (x < width) {
            const uchar index = from[x];
            const QRgb colour = colours[index];
            to[x++] = colour;
            // A face is mostly long runs of one colour: they are filled eight pixels at a time.
            const quint64 eight = 0x0101010101010101ULL * index;
            quint64 next = 0;
            while (x + 8 <= width && (std::memcpy(&next, from + x, 8), next == eight)) {
                std::fill_n(to + x, 8, colour);
                x += 8;
            }
            while (x < width && from[x] == index) to[x++] = colour;
        }
    }
    return strip;
}

}  // namespace

std::size_t faceLookOf(const Form& form, const QSize& pixels, qreal ratio, const QColor& ground) {
    std::size_t seed = std::hash<std::string>{}(form.name());
    mix(seed, form.backColor);
    mix(seed, form.width);
    mix(seed, form.height);
    mix(seed, pixels.width());
    mix(seed, pixels.height());
    mix(seed, ratio);
    mix(seed, ground.rgba());
    for (const auto& owned : form.controls()) {
        const Control& c = *owned;
        if (hasEditor(c.kind)) {
            // A field's editor is no part of the face, but the "$" its box prints beside it is.
            if (takesBoxDollarSign(c)) {
                mix(seed, c.name);
                mix(seed, c.index);
                mix(seed, isShown(c));
                mix(seed, formLeft(c));
                mix(seed, formTop(c));
            }
            continue;
        }
        mix(seed, c.name);
        mix(seed, c.index);
        mix(seed, lookOf(c));
        // Beyond its own look, a control is drawn where its containers put it, a grid by its columns.
        mix(seed, formLeft(c));
        mix(seed, formTop(c));
        mix(seed, c.page);
        for (int width : c.colWidths) mix(seed, width);
        for (int alignment : c.colAlignments) mix(seed, alignment);
        // A picture missing when the face was painted shows once its file is there.
        if (!c.picture.empty()) mix(seed, QFileInfo::exists(toFilePath(c.picture)));
    }
    return seed;
}

CompactFace::CompactFace(const QImage& painted) : size_(painted.size()), ratio_(painted.devicePixelRatio()) {
    addBands(painted);
    gatherBands();
}

CompactFace::CompactFace(const QSize& pixels, qreal ratio, const AreaPainter& paint)
    : size_(pixels), ratio_(ratio) {
    // A strip begins on a whole logical row, so that every control is drawn where a painting of the whole
    // face draws it.
    const int device = static_cast<int>(ratio);
    const bool strips = ratio == device && kStripRows % device == 0;
    const int rows = strips ? kStripRows : pixels.height();
    for (int top = 0; top < pixels.height(); top += rows) {
        QImage strip(pixels.width(), std::min(rows, pixels.height() - top), QImage::Format_RGB32);
        strip.setDevicePixelRatio(ratio);
        QPainter painter(&strip);
        const int logicalTop = strips ? top / device : 0;
        painter.translate(0, -logicalTop);
        paint(painter, QRect(0, logicalTop, qCeil(pixels.width() / ratio), qCeil(strip.height() / ratio)));
        painter.end();
        addBands(strip);
    }
    gatherBands();
}

CompactFace::CompactFace(const CompactFace& before, const QRegion& areas, const AreaPainter& paint)
    : size_(before.size_), ratio_(before.ratio_) {
    const int device = static_cast<int>(ratio_);
    if (ratio_ != device || kBandRows % device != 0) {
        // Bands that do not begin on whole logical rows: the face is painted again whole.
        QImage whole = before.toImage();
        QPainter painter(&whole);
        for (const QRect& area : areas) paint(painter, area);
        painter.end();
        addBands(whole);
        gatherBands();
        return;
    }
    for (std::size_t i = 0; i < before.bands_.size(); ++i) {
        const QImage& band = before.bands_[i];
        const int top = static_cast<int>(i) * kBandRows;
        const QRect rows(0, top / device, qCeil(size_.width() / ratio_), qCeil(band.height() / ratio_));
        const QRegion touched = areas.intersected(rows);
        if (touched.isEmpty()) {
            bands_.push_back(band.copy());
            continue;
        }
        QImage strip = band.convertToFormat(QImage::Format_RGB32);
        strip.setDevicePixelRatio(ratio_);
        QPainter painter(&strip);
        painter.translate(0, -rows.top());
        for (const QRect& area : touched) paint(painter, area);
        painter.end();
        bands_.push_back(compactBand(strip, 0, strip.height()));
    }
    gatherBands();
}

void CompactFace::addBands(const QImage& painted) {
    const QImage rgb =
        painted.format() == QImage::Format_RGB32 ? painted : painted.convertToFormat(QImage::Format_RGB32);
    for (int top = 0; top < rgb.height(); top += kBandRows)
        bands_.push_back(compactBand(rgb, top, std::min(kBandRows, rgb.height() - top)));
}

// The bands move into one block of their own: a face let go gives its memory back whole, instead of
// leaving band-sized holes among the smaller blocks of the heap.
void CompactFace::gatherBands() {
    qsizetype total = 0;
    for (const QImage& band : bands_) total += band.sizeInBytes();
    pixels_.resize(static_cast<std::size_t>(total));
    uchar* at = pixels_.data();
    for (QImage& band : bands_) {
        std::copy_n(band.constBits(), band.sizeInBytes(), at);
        QImage moved(at, band.width(), band.height(), band.bytesPerLine(), band.format());
        moved.setColorTable(band.colorTable());
        moved.setDevicePixelRatio(ratio_);
        band = moved;
        at += band.sizeInBytes();
    }
}

qint64 CompactFace::bytes() const {
    qint64 total = 0;
    for (const QImage& band : bands_) total += band.sizeInBytes();
    return total;
}

void CompactFace::draw(QPainter& painter, const QRect& area) const {
    const QRectF wanted(QPointF(area.topLeft()) * ratio_, QSizeF(area.size()) * ratio_);
    for (std::size_t i = 0; i < bands_.size(); ++i) {
        const int top = static_cast<int>(i) * kBandRows;
        const QRectF part = wanted.intersected(QRectF(0, top, size_.width(), bands_[i].height()));
        if (part.isEmpty()) continue;
        const QRect source = part.translated(0, -top).toAlignedRect();
        painter.drawImage(QRectF(part.topLeft() / ratio_, part.size() / ratio_), expanded(bands_[i], source),
                          QRect(QPoint(0, 0), source.size()));
    }
}

QImage CompactFace::toImage() const {
    QImage whole(size_, QImage::Format_RGB32);
    for (std::size_t i = 0; i < bands_.size(); ++i) {
        const QImage band = bands_[i].convertToFormat(QImage::Format_RGB32);
        const int top = static_cast<int>(i) * kBandRows;
        for (int y = 0; y < band.height(); ++y)
            std::copy_n(band.constScanLine(y), band.bytesPerLine(), whole.scanLine(top + y));
    }
    whole.setDevicePixelRatio(ratio_);
    return whole;
}

FaceCache::FaceCache() : budget_(kDefaultBudget) {}

FaceCache& FaceCache::instance() {
    static FaceCache cache;
    return cache;
}

SharedFace FaceCache::find(const std::string& form, std::size_t look, const QSize& pixels, qreal ratio) {
    for (auto it = entries_.begin(); it != entries_.end(); ++it) {
        if (it->look != look || it->form != form || it->face->size() != pixels ||
            it->face->devicePixelRatio() != ratio)
            continue;
        entries_.splice(entries_.begin(), entries_, it);
        return entries_.front().face;
    }
    return nullptr;
}

void FaceCache::keep(const std::string& form, std::size_t look, SharedFace face) {
    if (!face) return;
    for (auto it = entries_.begin(); it != entries_.end(); ++it) {
        if (it->look == look && it->form == form &&
            it->face->devicePixelRatio() == face->devicePixelRatio()) {
            entries_.erase(it);
            break;
        }
    }
    entries_.push_front(Entry{form, look, std::move(face)});
    trim();
}

qint64 FaceCache::bytes() const {
    qint64 total = 0;
    for (const Entry& entry : entries_) total += entry.face->bytes();
    return total;
}

void FaceCache::setBudget(qint64 bytes) {
    budget_ = std::max<qint64>(0, bytes);
    trim();
}

void FaceCache::trim() {
    while (!entries_.empty() && bytes() > budget_) entries_.pop_back();
}

}  // namespace lw::ui

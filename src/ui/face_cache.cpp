#include "ui/face_cache.h"

#include <QFileInfo>
#include <algorithm>
#include <functional>

#include "model/containers.h"
#include "model/look_tracker.h"
#include "ui/form_painter.h"
#include "ui/qt_text.h"

namespace lw::ui {

namespace {

// Enough for the last few forms of a session, the largest K-1 among them.
constexpr qint64 kDefaultBudget = 10 * 1024 * 1024;

template <typename T>
void mix(std::size_t& seed, const T& value) {
    seed ^= std::hash<T>{}(value) + 0x9e3779b97f4a7c15ULL + (seed << 6) + (seed >> 2);
}

qint64 bytesOf(const QPixmap& face) {
    return static_cast<qint64>(face.width()) * face.height() * std::max(1, face.depth() / 8);
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
        if (hasEditor(c.kind)) continue;
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

FaceCache::FaceCache() : budget_(kDefaultBudget) {}

FaceCache& FaceCache::instance() {
    static FaceCache cache;
    return cache;
}

QPixmap FaceCache::take(const std::string& form, std::size_t look, const QSize& pixels, qreal ratio) {
    for (auto it = entries_.begin(); it != entries_.end(); ++it) {
        if (it->form != form || it->face.devicePixelRatio() != ratio) continue;
        // A face of another look will not be asked for again: the view paints a new one and keeps that.
        const bool same = it->look == look && it->face.size() == pixels;
        QPixmap face = std::move(it->face);
        entries_.erase(it);
        return same ? face : QPixmap();
    }
    return {};
}

void FaceCache::keep(const std::string& form, std::size_t look, const QPixmap& face) {
    if (face.isNull()) return;
    for (auto it = entries_.begin(); it != entries_.end(); ++it) {
        if (it->form == form && it->face.devicePixelRatio() == face.devicePixelRatio()) {
            entries_.erase(it);
            break;
        }
    }
    entries_.push_front(Entry{form, look, face});
    trim();
}

qint64 FaceCache::bytes() const {
    qint64 total = 0;
    for (const Entry& entry : entries_) total += bytesOf(entry.face);
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

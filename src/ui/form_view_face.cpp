// The face of a view: the form's painted controls, kept between openings and made again only where
// a change touched them; the view shows it under its editors.
#include <QPaintEvent>
#include <QPainter>

#include "face/face_description.h"
#include "ui/face_cache.h"
#include "ui/face_painter.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/qt_text_measure.h"

namespace lw::ui {

void FormView::keepFace() {
    if (form_ && keptFace_) FaceCache::instance().keep(form_->name(), faceLook_, keptFace_);
    keptFace_.reset();
}

QImage FormView::face() const { return keptFace_ ? keptFace_->toImage() : QImage(); }

std::size_t FormView::currentFaceLook() const {
    const qreal ratio = devicePixelRatioF();
    return faceLookOf(*form_, size() * ratio, ratio, palette().window().color());
}

namespace {
// Many small areas at once (a page of a tab control turned) cost less painted as one.
constexpr int kMostAreasApart = 8;
}  // namespace

void FormView::ensureFace() {
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (keptFace_ && keptFace_->size() == pixels && keptFace_->devicePixelRatio() == ratio) return;
    keptFace_.reset();
    if (!form_) return;
    faceLook_ = currentFaceLook();
    keptFace_ = FaceCache::instance().find(form_->name(), faceLook_, pixels, ratio);
    if (keptFace_) return;
    keptFace_ = std::make_shared<const CompactFace>(pixels, ratio, wholeFacePainter());
    FaceCache::instance().keep(form_->name(), faceLook_, keptFace_);
}

CompactFace::AreaPainter FormView::facePainter() const {
    const QRect formArea(QPoint(0, 0), formSize(*form_, kScreenScale));
    const QColor ground = palette().window().color();
    const Form* form = form_;
    return [formArea, ground, form](QPainter& painter, const QRect& area) {
        painter.fillRect(area, ground);
        FormPainter(kScreenScale).paintArea(painter, *form, area.intersected(formArea), true);
    };
}

// A face made whole is described once and painted a strip at a time.
CompactFace::AreaPainter FormView::wholeFacePainter() const {
    const QRect formArea(QPoint(0, 0), formSize(*form_, kScreenScale));
    const QColor ground = palette().window().color();
    const auto described = std::make_shared<const face::FaceDescription>(
        face::describeFace(*form_, face::FaceRequest{kScreenScale, true, {}}, qtTextMeasure()));
    return [formArea, ground, described](QPainter& painter, const QRect& area) {
        painter.fillRect(area, ground);
        paintFaceArea(painter, *described, toRect(area.intersected(formArea)));
    };
}

// Painted controls changed: the face for their new look is taken from the cache when it holds one (a
// page of a tab control turned back), else made from the face shown with the changed places painted
// again.
void FormView::showLook(std::size_t look, const QRegion& damaged) {
    // Many small areas at once (a page of a tab control turned) cost less painted as one, and reach the
    // screen faster as one.
    const QRegion area = damaged.rectCount() > kMostAreasApart ? QRegion(damaged.boundingRect()) : damaged;
    if (look != faceLook_) {
        const qreal ratio = devicePixelRatioF();
        SharedFace kept = FaceCache::instance().find(form_->name(), look, size() * ratio, ratio);
        // When most of the face changed, as when a page of a tab control turns, both faces are kept for
        // the way back and forth; not one for every check box ticked.
        qint64 changed = 0;
        for (const QRect& rect : area) changed += static_cast<qint64>(rect.width()) * rect.height();
        const bool turned = changed * 4 >= static_cast<qint64>(width()) * height();
        if (turned) FaceCache::instance().keep(form_->name(), faceLook_, keptFace_);
        if (!kept) {
            kept = std::make_shared<const CompactFace>(*keptFace_, area, facePainter());
            if (turned) FaceCache::instance().keep(form_->name(), look, kept);
        }
        keptFace_ = std::move(kept);
        faceLook_ = look;
    }
    update(area);
}

void FormView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (!form_) {
        painter.fillRect(rect(), palette().window());
        return;
    }
    ensureFace();
    for (const QRect& rect : event->region()) keptFace_->draw(painter, rect);
}

}  // namespace lw::ui

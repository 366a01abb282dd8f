#pragma once
// Draws a model form onto any QPainter: the screen, the clipboard picture and the printer share it.

#include <QFont>
#include <QPainter>
#include <QRect>
#include <QRectF>
#include <vector>

#include "face/face_geometry.h"
#include "model/form.h"

namespace lw::ui {

// Twips to a pixel on a 96 dpi screen.
constexpr double kTwipsPerPixel = face::kTwipsPerPixel;
constexpr double kScreenScale = face::kScreenScale;

// Makes Tahoma and Arial Narrow fall back to their metric twins where those are installed. Runs once.
void installFontSubstitutes();

// The font of a widget that shows a control at a scale of device pixels per twip: the face as the
// painter measures it, at the largest whole pixel size that does not outgrow the painted text.
QFont scaledFont(const std::string& name, double points, bool bold, bool italic, double scale);
QFont controlFont(const Control& control, double scale);

// The engine's places as Qt's.
inline QRect toQRect(const face::Rect& r) { return QRect(r.x, r.y, r.width, r.height); }
inline face::Rect toRect(const QRect& r) { return face::Rect{r.x(), r.y(), r.width(), r.height()}; }
inline QRectF toQRectF(const face::RectF& r) { return QRectF(r.x, r.y, r.width, r.height); }

// Whole device pixels of a length or position in twips.
using face::toPixels;
QRect controlRect(const Control& control, double scale);
// Everything a control's painting may touch: its rectangle (a line's two ends) and the width of its
// border and strokes.
QRect paintedExtent(const Control& control, double scale);
QSize formSize(const Form& form, double scale);
// Where the box prints the "$" of an amount whose text carries none: in the room left of the field.
QRect boxDollarSignRect(const Control& field, double scale);
QFont boxDollarSignFont(double scale);

// The kinds a form view hosts as real editors instead of painting them, and the order controls are
// drawn in.
using face::hasEditor;
using face::paintOrder;

// The height of a tab control's strip of captions, and the height of a row of a grid or list.
int tabStripHeight(const Control& control, double scale);
int rowHeight(const Control& control, double scale);
// The entry of a tab control, grid or list under a point of the form, or -1.
int entryAt(const Control& control, QPoint point, double scale);

// Paints forms from the description of their faces, at a scale of device pixels per twip.
class FormPainter {
public:
    explicit FormPainter(double scale = kScreenScale) : scale_(scale) {}

    // Paints the form's background and its visible controls; with skipEditors the kinds a view hosts
    // as widgets are left out.
    void paintForm(QPainter& painter, const Form& form, bool skipEditors = false) const;
    // As paintForm, within one area only: the background there and the controls that reach into it.
    void paintArea(QPainter& painter, const Form& form, const QRect& area, bool skipEditors) const;
    void paintControl(QPainter& painter, const Control& control) const;
    // The "$" a box prints beside a field; the field itself may be an editor of the view.
    void paintBoxDollarSign(QPainter& painter, const Control& field) const;

private:
    double scale_;
};

}  // namespace lw::ui

#pragma once
// How each kind of control looks, added to a form's face inside its rectangle at the drawing's scale.

#include <optional>

#include "face/face_drawing.h"
#include "face/face_metrics.h"
#include "face/text_blocks.h"
#include "model/control.h"

namespace lw::face {

class ControlFaces {
public:
    ControlFaces(FaceDrawing& drawing, double scale, const FaceMetrics& metrics)
        : drawing_(drawing), scale_(scale), metrics_(metrics) {}

    void control(const Control& c);
    // The "$" a box prints beside a field whose amount carries none: in the room left of the field.
    void boxDollarSign(const Control& field);

private:
    void label(const Control& c, const PixelRect& r);
    void checkLabel(const Control& c, const PixelRect& r);
    void shape(const Control& c, const PixelRect& r);
    void line(const Control& c);
    void frame(const Control& c, const PixelRect& r);
    void textBox(const Control& c, const PixelRect& r);
    void button(const Control& c, const PixelRect& r);
    void option(const Control& c, const PixelRect& r);
    void combo(const Control& c, const PixelRect& r);
    void picture(const Control& c, const PixelRect& r);
    void tabs(const Control& c, const PixelRect& r);
    void rows(const Control& c, const PixelRect& r);

    void add(FaceItem item);
    void fill(const PixelRect& r, Color colour);
    // A border drawn wholly inside the rectangle, whatever its width.
    void strokeInside(const PixelRect& r, int width, Color colour, LineStyle style = LineStyle::Solid);
    void bevel(const PixelRect& r, int width, Color topLeft, Color bottomRight);
    void text(const TextBlock& block, Color colour);
    LineStyle lineStyleOf(const Control& c) const;
    int px(int pixelsAt96) const;  // a size fixed in screen pixels, at this drawing's scale

    FaceDrawing& drawing_;
    double scale_;
    const FaceMetrics& metrics_;
    std::optional<ExactRect> clip_;
};

}  // namespace lw::face

#pragma once
// A form's face as data: what to fill, stroke and write where, in whole device pixels at a scale of
// device pixels per twip, in the order it is painted. Each front end paints it with its own means; the
// engine has decided everything a picture of the form shows, its text laid out included.

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "face/face_geometry.h"
#include "face/geometry.h"
#include "face/text_layout.h"
#include "face/text_measure.h"
#include "model/color.h"
#include "model/form.h"

namespace lw::face {

enum class StrokeStyle { Solid, Dash, Dot };

// A rectangle filled with one colour.
struct FillItem {
    Rect rect;
    Color color;
};

// A border drawn wholly inside a rectangle, `width` pixels thick; a dashed or dotted one is stroked along
// the middle of that band, with flat ends and sharp corners.
struct BorderItem {
    Rect rect;
    int width = 1;
    StrokeStyle style = StrokeStyle::Solid;
    Color color = kBlack;
};

// A line from the middle of one pixel to the middle of another, `width` pixels thick, its ends squared
// off half its width beyond them; drawn without smoothing.
struct LineItem {
    Point from;
    Point to;
    int width = 1;
    StrokeStyle style = StrokeStyle::Solid;
    Color color = kBlack;
};

// An ellipse that fills a rectangle, drawn smooth: filled, and outlined `outlineWidth` pixels thick along
// its edge when it has an outline.
struct EllipseItem {
    RectF rect;
    Color fill = kWhite;
    std::optional<Color> outline;
    int outlineWidth = 1;
};

// A polygon through pixels, filled with one colour, without smoothing.
struct PolygonItem {
    std::vector<Point> points;
    Color color = kBlack;
};

// A picture from a file, or one a front end knows by name where no such file is (the icon of a box).
// Nothing of it shows outside `place`. A picture at its own size stands at the place's corner, each of its
// pixels `pixelScale` device pixels wide; otherwise it is stretched over the place, and a picture known
// by name stands in the largest square at the corner.
struct PictureItem {
    std::string source;
    Rect place;
    bool ownSize = false;
    double pixelScale = 1;
};

// One line of a text item: where its baseline starts, in the item's units from its origin.
struct TextRun {
    std::string text;  // Windows-1252
    PointF at;
};

// Lines of text in one face and colour, laid out by the engine. The positions and the size of the face
// are in the item's own units (twips for a form's text), each `scale` device pixels, counted from
// `origin`, a whole device pixel; nothing of the text shows outside `clip`, in the same units.
struct TextItem {
    TextFace face;
    Color color = kBlack;
    Point origin;
    double scale = 1;
    RectF clip;
    std::vector<TextRun> runs;

    // The size of the face in device pixels, and where a run starts on the device.
    double pixelSize() const { return face.size * scale; }
    PointF placeOf(const TextRun& run) const {
        return {origin.x + run.at.x * scale, origin.y + run.at.y * scale};
    }
};

// What follows is clipped to an area as well, until the matching end.
struct ClipItem {
    Rect area;
};
struct EndClipItem {};

using FaceItem = std::variant<FillItem, BorderItem, LineItem, EllipseItem, PolygonItem, PictureItem, TextItem,
                              ClipItem, EndClipItem>;

// The items one control paints, the "$" its box prints included, and everything they may touch.
struct FacePiece {
    const Control* control = nullptr;
    Rect extent;
    std::vector<FaceItem> items;
};

struct FaceDescription {
    Size size;  // of the whole face, in device pixels
    double scale = kScreenScale;
    std::optional<Rect> area;       // the area it covers when it covers only part of the face
    Color ground = kWhite;          // the form's colour, under every piece
    std::vector<FacePiece> pieces;  // in the order they are painted
};

struct FaceRequest {
    double scale = kScreenScale;
    // The kinds a view hosts as editors are left out; the "$" beside a field stays.
    bool skipEditors = false;
    // Only the pieces that reach into this area, to paint it again.
    std::optional<Rect> area;
};

// Text laid out in twips, drawn at a scale: its block's corner on a whole device pixel.
TextItem textItemOf(const TextBlock& block, Color color, double scale);

// The face of a form, its visible controls in paint order.
FaceDescription describeFace(const Form& form, const FaceRequest& request, TextMeasure& measure);
// What one control paints, at a scale of device pixels per twip.
std::vector<FaceItem> describeControl(const Control& control, double scale, TextMeasure& measure);
// The "$" a box prints beside a field whose amount carries none; the field itself may be an editor.
TextItem describeBoxDollarSign(const Control& field, double scale, TextMeasure& measure);

}  // namespace lw::face

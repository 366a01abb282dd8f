#pragma once
// Paints a face the engine described onto any QPainter: the screen's kept faces, the clipboard picture,
// the printer and the pages of ledgerwick-render all go through here.

#include <QPainter>
#include <vector>

#include "face/face_description.h"

namespace lw::ui {

// The ground and every piece of the face; a face of one area is painted within that area only.
void paintFace(QPainter& painter, const face::FaceDescription& face);
// The pieces of a face that reach into an area, within it, on its ground: a face described whole once
// is painted a part at a time.
void paintFaceArea(QPainter& painter, const face::FaceDescription& face, const face::Rect& area);
// The items of one piece, in their order.
void paintItems(QPainter& painter, const std::vector<face::FaceItem>& items);

}  // namespace lw::ui

#include "face/measure_memo.h"

namespace lw::face {

MeasureMemo::Kept& MeasureMemo::keptOf(const TextFace& face) {
    if (last_ && face == lastFace_) return *last_;
    lastFace_ = face;
    last_ = &faces_[face.name + '/' + std::to_string(face.size) + (face.bold ? "b" : "-") +
                    (face.italic ? "i" : "-")];
    return *last_;
}

double MeasureMemo::advance(const TextFace& face, std::string_view text) {
    // Single characters cost a front end little to measure again.
    if (text.size() < 2) return measure_.advance(face, text);
    auto& advances = keptOf(face).advances;
    std::string key(text);
    if (const auto found = advances.find(key); found != advances.end()) return found->second;
    const double width = measure_.advance(face, text);
    advances.emplace(std::move(key), width);
    return width;
}

std::vector<double> MeasureMemo::caretPositions(const TextFace& face, std::string_view line) {
    auto& places = keptOf(face).places;
    std::string key(line);
    if (const auto found = places.find(key); found != places.end()) return found->second;
    std::vector<double> measured = measure_.caretPositions(face, line);
    places.emplace(std::move(key), measured);
    return measured;
}

}  // namespace lw::face

// What of the shown form's face changed since the page painted it. The face leaves out the fields the
// page hosts as inputs, so a field's new text or colour costs no painting; its "$" is on the face.
#include <functional>

#include "face/face_geometry.h"
#include "fields/box_dollar_sign.h"
#include "model/containers.h"
#include "model/hash_mix.h"
#include "web/page_view.h"

namespace lw::web {

namespace {

std::size_t lookOfForm(const Form& form) {
    std::size_t seed = std::hash<Color>{}(form.backColor);
    for (int number : {form.width, form.height, static_cast<int>(form.controls().size())}) mix(seed, number);
    return seed;
}

}  // namespace

bool PageView::faceChanged(const Form& form) {
    const std::size_t formLook = lookOfForm(form);
    bool changed = formLook != formLook_;
    formLook_ = formLook;
    for (const Control* control : faceLooks_.changedSince(form)) {
        if (control->kind != ControlKind::TextBox) {
            changed = true;
            continue;
        }
        const face::Rect sign = takesBoxDollarSign(*control) && isShown(*control)
                                    ? face::boxDollarSignRect(*control, face::kScreenScale)
                                    : face::Rect{};
        const auto [kept, added] = dollarSigns_.try_emplace(control, sign);
        if (added || !(kept->second == sign)) changed = true;
        kept->second = sign;
    }
    return changed;
}

void PageView::forgetFaceLooks() {
    faceLooks_.reset();
    formLook_ = 0;
    dollarSigns_.clear();
}

}  // namespace lw::web

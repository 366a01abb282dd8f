#include "forms/k1_paper.h"

#include "forms/k1_form.h"
#include "model/containers.h"
#include "model/form.h"

namespace lw {

std::string shownHalf(const Form& form) { return tabOf(form.at("SSTab1")) == 1 ? "2" : "1"; }

K1Tabs liftShownHalf(Form& form, int strip) {
    Control& tabs = form.at("SSTab1");
    const K1Tabs noted{tabs.height, tabs.width};
    tabs.backColor = kWhite;
    tabs.tabHeight = strip;
    const std::string half = shownHalf(form);
    Control& left = form.at("Pic" + half + "L");
    Control& right = form.at("Pic" + half + "R");
    left.top = 0;
    right.top = 0;
    form.height = left.height;
    form.width = left.width + right.width;
    left.backColor = kWhite;
    right.backColor = kWhite;
    return noted;
}

void putBackTabs(Form& form, const K1Tabs& noted) {
    Control& tabs = form.at("SSTab1");
    tabs.height = noted.height;
    tabs.width = noted.width;
    tabs.tabHeight = 295;
    const std::string half = shownHalf(form);
    form.at("Pic" + half + "L").top = 360;
    form.at("Pic" + half + "R").top = 360;
}

HalfAsPaper::HalfAsPaper(Form& form) : form_(form) {
    if (!dynamic_cast<K1Form*>(&form)) return;
    Control& tabs = form.at("SSTab1");
    const std::string half = shownHalf(form);
    Control& left = form.at("Pic" + half + "L");
    Control& right = form.at("Pic" + half + "R");
    noted_ = Noted{form.width, form.height, tabs.tabHeight, tabs.backColor,
                   left.top,   right.top,   left.backColor, right.backColor};
    liftShownHalf(form, 0);
}

HalfAsPaper::~HalfAsPaper() {
    if (!noted_) return;
    Control& tabs = form_.at("SSTab1");
    const std::string half = shownHalf(form_);
    Control& left = form_.at("Pic" + half + "L");
    Control& right = form_.at("Pic" + half + "R");
    form_.width = noted_->width;
    form_.height = noted_->height;
    tabs.tabHeight = noted_->tabHeight;
    tabs.backColor = noted_->tabBack;
    left.top = noted_->leftTop;
    right.top = noted_->rightTop;
    left.backColor = noted_->leftBack;
    right.backColor = noted_->rightBack;
}

}  // namespace lw

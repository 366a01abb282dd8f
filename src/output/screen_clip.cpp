// The Clip command: the form on show is cut to its document and restyled as paper, its picture goes to
// the clipboard, and the form is put back as the operator left it.
#include "output/screen_clip.h"

#include "config/configure_form.h"
#include "diagnostics/error_tail.h"
#include "diagnostics/picture_capture.h"
#include "fields/control_setup.h"
#include "model/app_error.h"
#include "model/containers.h"
#include "model/program.h"
#include "shell/form_lifecycle.h"
#include "text/case.h"

namespace lw {

namespace {

constexpr Color kSystemWindow = kWhite;

Globals& g() { return program().g; }

bool isKOne(const std::string& key) { return key == "K11041" || key == "K11065" || key == "K11120S"; }

// The part of the name after the first "_", in capitals: TF_W2 gives W2.
std::string clipKeyOf(const Form& form) {
    const std::string& name = form.name();
    const std::size_t bar = name.find('_');
    return text::toUpper(bar == std::string::npos ? name : name.substr(bar + 1));
}

// The two panels of the page on show of a K-1: "1" for the Top half, "2" for the Bottom half.
std::string shownHalf(const Form& form) { return tabOf(form.at("SSTab1")) == 1 ? "2" : "1"; }

// The tab strip all but goes and the half on show moves up to the top: each half is a clip of its own.
struct K1Tabs {
    int height = 0;
    int width = 0;
};

// A clip keeps a strip of one twip; a page of paper keeps none.
K1Tabs liftShownHalf(Form& form, int strip = 1) {
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

void cutBelow(Form& form, const char* control) {
    const Control& c = form.at(control);
    form.height = c.top + c.height;
}

// Each statement on its own: a form that lacks the first control still takes the second.
void cutToBorder(Form& form) {
    for (const char* border : {"Shape5", "myBorder"}) {
        if (const Control* c = form.find(border)) form.height = c->top + c->height;
    }
}

// The sheet is cut below the first block of people when the rows of the second are unused.
void cutTaxpayerSheet(Form& form) {
    bool secondBlockUsed = false;
    for (int i = 6; i <= 24 && !secondBlockUsed; i += 3) secondBlockUsed = !form.at("Text1", i).text.empty();
    cutBelow(form, secondBlockUsed ? "Shape2" : "Shape1");
    form.setFocus(form.at("Text1", 0));
}

// No card moves: empty cards are hidden and the form is cut to the rows and columns still in use.
void cutCardGrid(Form& form) {
    auto card = [&](int n) -> Control& { return form.at("Frame1", n); };
    const int t0 = card(0).top, t3 = card(3).top, t6 = card(6).top;
    const int l0 = card(0).left, l1 = card(1).left, l2 = card(2).left;
    const int h = card(0).height, w = card(1).width;
    int hidden = 0;
    for (int n = 0; n <= 16; n += 2) {
        if (!form.at("Text1", n).text.empty()) continue;
        card(n / 2).visible = false;
        ++hidden;
    }
    if (hidden == 0) return;
    auto anyShown = [&](int a, int b, int c) {
        return card(a).visible || card(b).visible || card(c).visible;
    };
    form.height = anyShown(6, 7, 8) ? t6 + h : anyShown(3, 4, 5) ? t3 + h : t0 + h;
    form.width = anyShown(2, 5, 8) ? l2 + w : anyShown(1, 4, 7) ? l1 + w : l0 + w;
    program().ui.refresh();
}

void cutToDocument(Form& form, const std::string& key) {
    if (key == "TPINFO") {
        cutTaxpayerSheet(form);
    } else if (key == "DL") {
        form.at("Frame1").visible = false;
        const Control& status = form.at("labelMisc");
        form.height = status.top + 300;
        if (form.at("Text1", 4).text.empty()) form.at("Picture3").visible = false;
        form.setFocus(form.at("Text1", 0));
    } else if (key == "1098E" || key == "1098T" || key == "1099B" || key == "1099R") {
        for (const char* header : {"H2", "H2_OMB", "H2_FormLabel", "H2_FormName"})
            if (Control* label = form.find(header)) label->backColor = kWhite;
    } else if (key == "SS_ITIN") {
        cutCardGrid(form);
    } else if (key == "SSA1099") {
        const Control& last = form.at("Label1", 33);
        form.height = last.top + last.height;
    } else if (key == "RRB1099") {
        const Control& last = form.at("LabelForm", 3);
        form.height = last.top + last.height;
    } else if (key == "CONFIGURE") {
        cutBelow(form, "Frame6");
    } else if (isKOne(key)) {
        const std::string half = shownHalf(form);
        const Control& left = form.at("Pic" + half + "L");
        form.height = half == "1" ? left.top + left.height : left.top + form.at("Pic2R").height;
    } else {
        cutToBorder(form);
    }
}

bool isPictureOfItsOwn(const Control& c) {
    const std::string name = text::toLower(c.name);
    return name == "h1" || name == "picture1" || name == "picture3" || name == "picdl";
}

// Field colours, selections and grey backgrounds must not reach the picture.
void paintAsPaper(Form& form, const std::string& key) {
    const bool opaquePartLabels = isKOne(key) || text::startsWithNoCase(key, "1095");
    for (const auto& owned : form.controls()) {
        Control& c = *owned;
        switch (c.kind) {
            case ControlKind::TextBox:
                c.backColor = kWhite;
                c.select(0, 0);
                break;
            case ControlKind::Label:
            case ControlKind::CheckLabel:
                if (g().process.debug) c.backColor = kWhite;
                if (opaquePartLabels) {
                    c.opaque = c.name == "LabelPart";
                } else if (key == "1099A") {
                    const bool boxSix = c.name == "Label1" && c.index == 6;
                    c.backColor = boxSix ? kSystemWindow : kWhite;
                    c.opaque = boxSix;
                } else {
                    c.opaque = false;
                }
                break;
            case ControlKind::Picture:
                if (!isPictureOfItsOwn(c)) c.backColor = kWhite;
                break;
            case ControlKind::Frame:
            case ControlKind::OptionButton:
                c.backColor = kWhite;
                break;
            default:
                break;
        }
    }
}

void putBack(Form& form, const std::string& key, const K1Tabs& tabs) {
    if (isKOne(key)) {
        // The K-1 gets its tab strip and panels back; its status line and focus stay as the clip left them.
        putBackTabs(form, tabs);
    } else if (key == "CONFIGURE") {
        if (auto* configure = dynamic_cast<ConfigureForm*>(&form)) configure->bChanged = false;
        form.setFocus(form.at("cbxPrinters"));
    } else if (key == "1099A") {
        for (const auto& owned : form.controls()) {
            Control& c = *owned;
            if (c.kind != ControlKind::Label) continue;
            if ((c.name == "Label1" && c.index != 6) || text::startsWithNoCase(c.name, "ftr") ||
                text::startsWithNoCase(c.name, "RTL"))
                c.backColor = kButtonFace;
        }
    } else if (key == "SS_ITIN") {
        for (Control* card : form.arrayOf("Frame1")) card->visible = true;
    } else {
        Control& first = form.at("Text1", 0);
        setUpControl(first, false);
        form.setFocus(first);
        form.at("labelMisc").visible = true;
    }
}

}  // namespace

HalfAsPaper::HalfAsPaper(Form& form) : form_(form) {
    if (!isKOne(clipKeyOf(form))) return;
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

// Every form's preparation succeeds or faults; a fault is reported and the clip goes on as it can.
bool clipScreen() {
    runGuarded("M5_ClipCode:Screen_Clip", [&] {
        Form* form = g().document.currentForm;
        if (!form) return;
        const std::string key = g().document.formKey;
        cutToDocument(*form, key);
        paintAsPaper(*form, key);
    });
    return true;
}

void clipCurrentForm() {
    Form* form = program().desktop.activeChild();
    if (!form) return;
    const int height = form->height;
    const int width = form->width;
    bool restyled = false;
    K1Tabs tabs;
    runGuarded("F0_MDI:MDI_Clip", [&] {
        // The way to try out the error report: the clip fails before it touches the form.
        if (text::containsNoCase(program().platform.commandLine(), "error"))
            throw AppError(err::kDivisionByZero, "Division by zero");
        restyled = true;
        const std::string key = clipKeyOf(*form);
        if (key == "SSA1099") form->height = 8500;
        if (key == "RRB1099") form->height = 9560;
        if (isKOne(key)) tabs = liftShownHalf(*form);
        form->at("labelMisc").visible = false;
        // The picture is drawn off-screen from the form as it now stands, so no repaint is waited for.
        if (clipScreen()) copyEntirePicture(*form);
    });
    if (!restyled) return;
    // The form comes back whatever the clip did.
    runGuarded("F0_MDI:MDI_Clip", [&] {
        form->height = height;
        form->width = width;
        resetFormLook();
        putBack(*form, clipKeyOf(*form), tabs);
    });
}

}  // namespace lw

#include "fake_ports.h"

#include <memory>
#include <stdexcept>

#include "diagnostics/error_report_form.h"
#include "model/program.h"

namespace lw::test {

namespace {

SeenBox seen(const MessageBoxForm& box) {
    SeenBox s;
    s.record = box.record();
    s.height = box.height;
    s.labelHeight = box.lblMessage.height;
    s.text1Top = box.Text1.top;
    s.text1Visible = box.Text1.visible;
    s.text1Text = box.Text1.text;
    for (int n = 1; n <= 4; ++n) {
        const Control& b = *box.button(n);
        s.buttonTops[n - 1] = b.top;
        s.buttonVisible[n - 1] = b.visible;
        s.buttonColors[n - 1] = b.backColor;
        s.buttonIsDefault[n - 1] = b.isDefault;
    }
    s.dummyColor = box.cmdDummy.backColor;
    s.icon = box.imgVBInformation.picture;
    return s;
}

}  // namespace

void FakeUi::press(Control& button) { program().desktop.click(button); }

void FakeUi::type(Control& field, const std::string& text) {
    Desktop& desktop = program().desktop;
    desktop.setFocus(field);
    for (char c : text) desktop.typeCharacter(c);
}

void FakeUi::queueAnswer(const std::string& caption) {
    actions_.push_back([this, caption](Form& form) {
        auto* box = dynamic_cast<MessageBoxForm*>(&form);
        if (!box) throw std::logic_error("an answer was queued for a box, but " + form.name() + " came");
        Control* button = box->buttonWithCaption(caption);
        if (!button) throw std::logic_error("the box has no button \"" + caption + "\"");
        press(*button);
    });
}

void FakeUi::queueReport(const std::string& description, const std::string& which) {
    actions_.push_back([this, description, which](Form& form) {
        auto* report = dynamic_cast<ErrorReportForm*>(&form);
        if (!report) throw std::logic_error("a report was queued, but " + form.name() + " came");
        type(report->Text1, description);
        if (which == "clip") {
            press(report->cmdClip);
            if (report->isLoaded()) press(report->cmdExit);
        } else if (which == "document") {
            press(report->cmdClearAndCopyForDocument);
        } else {
            press(report->cmdExit);
        }
    });
}

void FakeUi::queue(Action action) { actions_.push_back(std::move(action)); }

void FakeUi::runModal(Form& form) {
    modalForms.push_back(form.name());
    if (!failNextShowingOf.empty() && form.name() == failNextShowingOf) {
        failNextShowingOf.clear();
        throw std::runtime_error(failureText);
    }
    if (auto* box = dynamic_cast<MessageBoxForm*>(&form)) boxes.push_back(seen(*box));

    if (!actions_.empty()) {
        Action action = std::move(actions_.front());
        actions_.pop_front();
        action(form);
        return;
    }
    // No queued answer: a box takes its default button, a report form is left with Exit.
    if (auto* box = dynamic_cast<MessageBoxForm*>(&form)) {
        if (Control* button = box->defaultButtonControl()) press(*button);
    } else if (auto* report = dynamic_cast<ErrorReportForm*>(&form)) {
        press(report->cmdExit);
    }
}

void FakeUi::copyPictureToClipboard(Form& form) {
    Picture picture{form.name(), {}};
    if (auto* report = dynamic_cast<ErrorReportForm*>(&form))
        for (Control* label : report->Label2) picture.label2Captions.push_back(label->caption);
    pictures.push_back(picture);
}

}  // namespace lw::test

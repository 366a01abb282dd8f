#include "diagnostics/message_box.h"

#include <cctype>
#include <memory>

#include "diagnostics/error_tail.h"
#include "diagnostics/observers.h"
#include "model/app_error.h"
#include "model/desktop.h"
#include "text/case.h"

namespace lw {

namespace {

const char* const kActivateLabel = "F9_MBX:Form_Activate";
const char* const kCallLabel = "M2_VenturoCommon:MA_MBX";

std::optional<MessageBoxRecord>& lastRecord() {
    static std::optional<MessageBoxRecord> instance;
    return instance;
}

ObserverList<MessageBoxRecord>& observers() {
    static ObserverList<MessageBoxRecord> instance;
    return instance;
}

std::string joinLines(const std::vector<std::string>& lines) {
    std::string joined;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) joined += '\r';
        joined += lines[i];
    }
    return joined;
}

const char* iconPicture(MessageBoxIcon icon) {
    switch (icon) {
        case MessageBoxIcon::Exclamation:
            return "exclamation";
        case MessageBoxIcon::Question:
            return "question";
        default:
            return "information";
    }
}

}  // namespace

const std::optional<MessageBoxRecord>& lastMessageBox() { return lastRecord(); }

int addMessageBoxObserver(std::function<void(const MessageBoxRecord&)> observer) {
    return observers().add(std::move(observer));
}

void removeMessageBoxObserver(int id) { observers().remove(id); }

void resetMessageBoxes() { lastRecord().reset(); }

std::string MessageBoxRecord::answerCaption() const {
    if (answer == MessageBoxButton::None) return {};
    return buttons[static_cast<std::size_t>(answer) - 1];
}

std::string breakLongMessageLine(const std::string& line) {
    const int length = static_cast<int>(line.size());
    if (length <= MessageBoxForm::kLineBreakColumn) return line;
    // Looking back from the end for a blank at a 1-based position within the first 50 characters.
    for (int position = length; position >= 1; --position) {
        if (position <= MessageBoxForm::kLineBreakColumn && line[position - 1] == ' ')
            return line.substr(0, position - 1) + "\r" + line.substr(position);
    }
    // The search reads position 0 of the line, which the runtime refuses.
    throw AppError(err::kInvalidProcedureCall, "Invalid procedure call or argument", kActivateLabel);
}

MessageBoxRequest::MessageBoxRequest(std::string title, std::string message, int number,
                                     std::array<std::string, 4> buttons, MessageBoxButton defaultButton)
    : title(std::move(title)),
      message(std::move(message)),
      number(number),
      buttons(std::move(buttons)),
      defaultButton(defaultButton) {}

MessageBoxForm::MessageBoxForm(MessageBoxRequest request)
    : Form("F9_MBX"),
      lblMessage(add(ControlKind::Label, "lblMessage")),
      imgVBInformation(add(ControlKind::Image, "imgVBInformation")),
      Text1(add(ControlKind::TextBox, "Text1")),
      cmd1(add(ControlKind::CommandButton, "cmd1")),
      cmd2(add(ControlKind::CommandButton, "cmd2")),
      cmd3(add(ControlKind::CommandButton, "cmd3")),
      cmd4(add(ControlKind::CommandButton, "cmd4")),
      cmdDummy(add(ControlKind::CommandButton, "cmdDummy")),
      request_(std::move(request)),
      answer_(std::make_shared<MessageBoxAnswer>(MessageBoxAnswer{MessageBoxButton::None, request_.text})) {
    isChild = false;
    width = kDesignWidth;
    height = kDesignHeight;

    lblMessage.caption = "*";
    lblMessage.left = kLabelLeft;
    lblMessage.top = kLabelTop;
    lblMessage.width = kLabelWidth;
    lblMessage.height = kLabelDesignHeight;
    lblMessage.opaque = false;

    imgVBInformation.picture = iconPicture(MessageBoxIcon::Information);
    imgVBInformation.left = 180;
    imgVBInformation.top = kLabelTop;
    imgVBInformation.width = 480;
    imgVBInformation.height = 480;

    Text1.left = kLabelLeft;
    Text1.top = kTextTop;
    Text1.width = kLabelWidth;
    Text1.height = kTextHeight;

    Control* buttons[] = {&cmd1, &cmd2, &cmd3, &cmd4};
    for (int i = 0; i < 4; ++i) {
        Control& b = *buttons[i];
        b.caption = std::to_string(i + 1);
        b.left = kFirstButtonLeft + i * (kButtonWidth + kButtonGap);
        b.top = kButtonTop;
        b.width = kButtonWidth;
        b.height = kButtonHeight;
        b.backColor = kButtonFace;
    }
    // Outside the client area: the button only keeps its place in the Controls collection.
    cmdDummy.caption = "";
    cmdDummy.left = -2 * kButtonWidth;
    cmdDummy.top = kButtonTop;
    cmdDummy.width = kButtonWidth;
    cmdDummy.height = kButtonHeight;
    cmdDummy.tabStop = false;
    cmdDummy.backColor = kButtonFace;
}

void MessageBoxForm::onLoad() {
    lblMessageDesignHeight = lblMessage.height;
    imgVBInformation.picture = iconPicture(request_.icon);
}

void MessageBoxForm::activateOnce() {
    if (Desktop* d = desktop()) d->dispatch([this] { onActivate(); });
}

void MessageBoxForm::onActivate() {
    // Activation lays the box out by growing it; a second activation must not grow it again.
    if (activated_) return;
    activated_ = true;

    Control* buttons[] = {&cmd1, &cmd2, &cmd3, &cmd4};
    for (int i = 0; i < 4; ++i) {
        if (request_.buttons[i].empty())
            buttons[i]->visible = false;
        else
            buttons[i]->caption = request_.buttons[i];
    }

    if (request_.showText) {
        Text1.visible = true;
        Text1.text = request_.text;
    } else {
        Text1.visible = false;
    }

    std::vector<std::string> lines = text::split(text::replaceAll(request_.message, "\r\n", "\r"), "\r");
    for (std::string& line : lines) {
        line = text::trim(line);
        if (static_cast<int>(line.size()) <= kLineBreakColumn) continue;
        // A long line with no blank to break at is reported, and shown unbroken.
        runGuarded(kActivateLabel, [&] { line = breakLongMessageLine(line); });
    }
    const std::string shown = joinLines(lines);
    const int lineCount = static_cast<int>(text::split(shown, "\r").size());

    const int labelHeight = lblMessageDesignHeight * lineCount + kLabelPadding;
    const int growth = labelHeight - lblMessageDesignHeight;
    height += growth;
    Text1.top = lblMessage.top + labelHeight + 100;
    for (Control* b : buttons) b->top += growth;
    lblMessage.caption = shown;
    // Our label does not size itself to its caption: it takes the height the lines need.
    lblMessage.height = labelHeight;

    colourButtons();
}

void MessageBoxForm::colourButtons() {
    for (const auto& control : controls()) {
        Control& c = *control;
        if (c.kind != ControlKind::CommandButton || !c.visible || c.name.empty()) continue;
        const unsigned char last = static_cast<unsigned char>(c.name.back());
        // A name that ends in no digit, as cmdDummy's, names no button number.
        if (!std::isdigit(last)) continue;
        const bool isDefaultButton = (last - '0') == static_cast<int>(request_.defaultButton);
        c.backColor = isDefaultButton ? kDefaultButtonColor : kOtherButtonColor;
        c.isDefault = isDefaultButton;
    }
}

void MessageBoxForm::onClick(Control& control, MouseButton) {
    if (&control == &cmd1) pressNumbered(1);
    if (&control == &cmd2) pressNumbered(2);
    if (&control == &cmd3) pressNumbered(3);
    if (&control == &cmd4) pressNumbered(4);
}

void MessageBoxForm::pressNumbered(int number) {
    answer_->button = static_cast<MessageBoxButton>(number);
    // Only the first two buttons confirm an input.
    if (number <= 2 && request_.showText) answer_->text = Text1.text;
    unload();
}

Control* MessageBoxForm::button(int number) const {
    switch (number) {
        case 1:
            return &cmd1;
        case 2:
            return &cmd2;
        case 3:
            return &cmd3;
        case 4:
            return &cmd4;
        default:
            return nullptr;
    }
}

Control* MessageBoxForm::buttonWithCaption(const std::string& caption) const {
    for (int n = 1; n <= 4; ++n) {
        Control* b = button(n);
        if (b->visible && b->caption == caption) return b;
    }
    return nullptr;
}

Control* MessageBoxForm::defaultButtonControl() const {
    Control* b = button(static_cast<int>(request_.defaultButton));
    return b && b->visible ? b : nullptr;
}

MessageBoxRecord MessageBoxForm::record() const {
    MessageBoxRecord r;
    r.title = caption;
    r.number = request_.number;
    r.message = request_.message;
    r.shownText = lblMessage.caption;
    r.buttons = request_.buttons;
    r.defaultButton = request_.defaultButton;
    r.showText = request_.showText;
    r.icon = request_.icon;
    r.answer = answer_->button;
    r.answerText = answer_->text;
    return r;
}

MessageBoxAnswer showMessageBox(Desktop& desktop, const MessageBoxRequest& request) {
    MessageBoxRequest shown = request;
    if (shown.number != kNoMessageNumber)
        shown.message = "Message Number: " + std::to_string(shown.number) + "\r\n" + shown.message;
    // A box that cannot be shown answers with no button, and its input line with what it held.
    MessageBoxAnswer answer{MessageBoxButton::None, shown.text};
    runGuarded(kCallLabel, [&] {
        auto owned = std::make_unique<MessageBoxForm>(shown);
        owned->caption = shown.title;
        const std::shared_ptr<const MessageBoxAnswer> given = owned->answer();
        MessageBoxForm& box = static_cast<MessageBoxForm&>(desktop.load(std::move(owned)));
        box.activateOnce();
        MessageBoxRecord record = box.record();
        // The box is gone once showModal returns: only the answer it shares is read after it.
        desktop.showModal(box);
        answer = *given;
        record.answer = answer.button;
        record.answerText = answer.text;
        lastRecord() = record;
        observers().notify(record);
    });
    return answer;
}

}  // namespace lw

#pragma once
// The program's own message box MessageBoxForm: up to four buttons with free captions, a coloured
// default, an optional input line and a message number on show. A caller hands a MessageBoxRequest and
// is told which button was pressed.

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/form.h"

namespace lw {

enum class MessageBoxIcon { Information, Exclamation, Question };

// The buttons of a box by their place, left to right. None is a box closed without a button, or a
// default that no button bears.
enum class MessageBoxButton { None = 0, First = 1, Second = 2, Third = 3, Fourth = 4 };

// The number that puts no "Message Number" line on top of the message.
constexpr int kNoMessageNumber = 800;

// What a box shows: by default a box with the one button "OK", the first the default. The input line
// and the icon are set by name.
struct MessageBoxRequest {
    MessageBoxRequest() = default;
    MessageBoxRequest(std::string title, std::string message, int number = kNoMessageNumber,
                      std::array<std::string, 4> buttons = {"OK", "", "", ""},
                      MessageBoxButton defaultButton = MessageBoxButton::First);

    std::string title;
    std::string message;
    int number = kNoMessageNumber;
    std::array<std::string, 4> buttons{"OK", "", "", ""};  // an empty caption hides its button
    MessageBoxButton defaultButton = MessageBoxButton::First;
    bool showText = false;  // the input line
    std::string text;       // what the input line shows at first
    MessageBoxIcon icon = MessageBoxIcon::Information;
};

// What the operator did with a box.
struct MessageBoxAnswer {
    MessageBoxButton button = MessageBoxButton::None;
    // The input line as the first or second button confirmed it; the request's text otherwise.
    std::string text;
};

// One box as it was shown and answered, for the drivers that report or check it.
struct MessageBoxRecord {
    std::string title;
    int number = kNoMessageNumber;
    std::string message;    // as built by the call: number line included, line ends as given
    std::string shownText;  // the label's caption: lines joined by CR, long lines broken
    std::array<std::string, 4> buttons;
    MessageBoxButton defaultButton = MessageBoxButton::First;
    bool showText = false;
    MessageBoxIcon icon = MessageBoxIcon::Information;
    MessageBoxButton answer = MessageBoxButton::None;
    std::string answerText;

    // The caption of the button pressed, empty when none was.
    std::string answerCaption() const;
};

// The last box that was answered, and callbacks run after each box closes, with its answer.
const std::optional<MessageBoxRecord>& lastMessageBox();
int addMessageBoxObserver(std::function<void(const MessageBoxRecord&)> observer);
void removeMessageBoxObserver(int id);
// Forgets the last record (the observers stay): a fresh program starts with no answer.
void resetMessageBoxes();

// Shows the box modally on the desktop and tells which button closed it. A number other than
// kNoMessageNumber puts "Message Number: <n>" on top of the message.
MessageBoxAnswer showMessageBox(Desktop& desktop, const MessageBoxRequest& request);

// Breaks a trimmed line of more than 50 characters once, at its last blank within the first 50, dropping
// the blank; shorter lines come back unchanged. A long line with no such blank raises error 5, as the
// search running off the front of the line does.
std::string breakLongMessageLine(const std::string& line);

class MessageBoxForm : public Form {
public:
    // Design sizes in twips.
    static constexpr int kDesignWidth = 6000;
    static constexpr int kDesignHeight = 2200;
    static constexpr int kLabelLeft = 840;
    static constexpr int kLabelTop = 240;
    static constexpr int kLabelWidth = 4935;
    static constexpr int kLabelDesignHeight = 255;  // one line
    static constexpr int kLabelPadding = 100;
    static constexpr int kTextTop = kLabelTop + kLabelDesignHeight + kLabelPadding + 100;
    static constexpr int kTextHeight = 315;
    static constexpr int kButtonTop = 1320;
    static constexpr int kButtonWidth = 1215;
    static constexpr int kButtonHeight = 375;
    static constexpr int kButtonGap = 180;
    static constexpr int kFirstButtonLeft = 300;
    static constexpr int kLineBreakColumn = 50;
    static constexpr Color kDefaultButtonColor = 0x0000C000;
    static constexpr Color kOtherButtonColor = 0x00C0FFC0;

    explicit MessageBoxForm(MessageBoxRequest request = {});

    Control& lblMessage;
    Control& imgVBInformation;
    Control& Text1;
    Control& cmd1;
    Control& cmd2;
    Control& cmd3;
    Control& cmd4;
    Control& cmdDummy;  // holds a place in the form and does nothing

    // lblMessage's height as designed, noted at loadForm.
    int lblMessageDesignHeight = 0;

    // What the box was asked to show.
    const MessageBoxRequest& request() const { return request_; }
    // The answer once a button was pressed. The caller keeps it: the box is gone once it is answered.
    std::shared_ptr<const MessageBoxAnswer> answer() const { return answer_; }
    // The box as it stands: title, number, texts, buttons; the answer once a button was pressed.
    MessageBoxRecord record() const;

    // cmd1..cmd4 by number, nullptr outside 1..4.
    Control* button(int number) const;
    // The visible button with exactly this caption, or nullptr.
    Control* buttonWithCaption(const std::string& caption) const;
    // The visible button that bears the default number, or nullptr (a default of 9 names none).
    Control* defaultButtonControl() const;

    // Runs onActivateForm once for this showing; showMessageBox calls it before showing the box.
    void activateOnce();

    void onLoad() override;
    void onActivate() override;
    void onClick(Control& control, MouseButton button) override;

private:
    void pressNumbered(int number);
    void colourButtons();

    MessageBoxRequest request_;
    std::shared_ptr<MessageBoxAnswer> answer_;
    bool activated_ = false;
};

}  // namespace lw

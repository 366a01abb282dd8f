#pragma once
// The program's own message box MessageBoxForm and its call MA_MBX: up to four buttons with free captions, a
// coloured default, an optional input line and a message number on show. Callers tell the answer by the
// caption of the button pressed.

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "model/form.h"

namespace lw {

enum class MessageBoxIcon { Information, Exclamation, Question };

// The values a call hands the box and the answer it hands back. They are process-wide because the answer
// outlives the box; a modal box keeps two calls from overlapping.
struct MessageBoxState {
    std::string title;
    int number = 800;
    std::array<std::string, 4> captions;  // cmd1..cmd4; an empty caption hides the button
    std::string message;                  // with the number line when there is one
    bool showText = false;
    int defaultButton = 1;
    MessageBoxIcon icon = MessageBoxIcon::Information;
    std::string answer;      // out: the caption of the button pressed, empty when none was
    std::string answerText;  // in and out: shown in Text1, read back by cmd1 and cmd2 with the input line
};

MessageBoxState& messageBoxState();

// One box as it was shown and answered, for the drivers that report or check it.
struct MessageBoxRecord {
    std::string title;
    int number = 800;
    std::string message;    // as built by the call: number line included, line ends as given
    std::string shownText;  // the label's caption: lines joined by CR, long lines broken
    std::array<std::string, 4> buttons;
    int defaultButton = 1;
    bool showText = false;
    MessageBoxIcon icon = MessageBoxIcon::Information;
    std::string answer;
    std::string answerText;
};

// The last box that was answered, and callbacks run after each box closes, with its answer.
const std::optional<MessageBoxRecord>& lastMessageBox();
int addMessageBoxObserver(std::function<void(const MessageBoxRecord&)> observer);
void removeMessageBoxObserver(int id);
// Empties the state and the last record (the observers stay): a fresh program starts with no answer.
void resetMessageBoxes();

// Shows the box modally and returns the caption of the pressed button (also in messageBoxState().answer).
// MsgNumber 800 shows no number line; any other puts "Message Number: <n>" on top.
std::string MA_MBX(const std::string& Caption, int MsgNumber, const std::string& Message,
                   const std::string& Cmd1, bool ShowText, const std::string& Cmd2, const std::string& Cmd3,
                   const std::string& Cmd4, int DefaultButton);

// MA_MBX with a chosen icon: the report form asks for a description with the exclamation icon.
std::string showMessageBox(const std::string& caption, int msgNumber, const std::string& message,
                           const std::array<std::string, 4>& captions, bool showText, int defaultButton,
                           MessageBoxIcon icon);

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

    MessageBoxForm();

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

    // The call's values as the box took them at loadForm.
    const MessageBoxState& request() const { return request_; }
    // The box as it stands: title, number, texts, buttons; the answer once a button was pressed.
    MessageBoxRecord record() const;

    // cmd1..cmd4 by number, nullptr outside 1..4.
    Control* button(int number) const;
    // The visible button with exactly this caption, or nullptr.
    Control* buttonWithCaption(const std::string& caption) const;
    // The visible button that bears the default number, or nullptr (a default of 9 names none).
    Control* defaultButtonControl() const;

    // Runs onActivateForm once for this showing; MA_MBX calls it before showing the box.
    void activateOnce();

    void onLoad() override;
    void onActivate() override;
    void onClick(Control& control, MouseButton button) override;

private:
    void pressNumbered(int number);
    void colourButtons();

    MessageBoxState request_;
    bool activated_ = false;
};

}  // namespace lw

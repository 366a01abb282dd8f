#pragma once
// What the driver (a script, or ledgerwick-render) has set up and queued, and what the program has shown:
// shared by the driver and the ports that play the screen and the machine.

#include <deque>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "headless/form_pictures.h"
#include "model/date_time.h"

namespace lw::headless {

struct QueuedAnswer {
    int line = 0;
    std::string kind;                // "answer", "file", "filesave", "k1", "report"
    std::vector<std::string> words;  // in the code page
};

struct ShownBox {
    std::string title;
    int number = 800;
    std::string text;
    std::string answer;
};

struct ShownReport {
    std::string module;
    std::string number;
    std::string description;
};

// A list of K-1 codes as it was shown: its caption and its rows, each as its four columns joined by "|".
struct ShownK1List {
    std::string caption;
    std::vector<std::string> rows;  // the header row not included
};

struct Session {
    std::ostream* out = nullptr;

    // Set-up.
    std::string root;
    std::string edition = "Ledgerwick_Venturo";
    std::string args;
    std::string user = "TESTER";
    std::string computer = "TESTPC";
    std::optional<DateTime> today;
    std::vector<std::string> printers;
    bool running = false;
    std::string executableFolder;
    std::string printTo;

    // Answers waiting for their boxes and dialogs.
    std::deque<QueuedAnswer> answers;

    // What the program has shown.
    std::vector<ShownBox> boxes;
    std::size_t boxesSeen = 0;  // boxes shown before the last message check
    std::optional<ShownBox> lastBox;
    std::vector<ShownReport> reports;
    std::size_t reportsSeen = 0;  // reports shown before the last report check
    std::optional<std::string> lastDialog;
    std::optional<ShownK1List> lastK1List;
    std::shared_ptr<const FormPicture> clipboardPicture;
    std::string clipboardText;
    int printedPages = 0;
    std::shared_ptr<const FormPicture>
        printedPicture;  // the last page printed, drawn as the clipboard picture is
    bool ended = false;

    // A fault of the script found while the program was running (an answer naming no button).
    std::optional<std::pair<int, std::string>> scriptError;

    std::optional<QueuedAnswer> takeAnswer(const std::string& kind);
};

}  // namespace lw::headless

#include "forms/k1_help_form.h"

#include <algorithm>
#include <utility>

#include "diagnostics/error_tail.h"
#include "store/inf_store.h"
#include "text/case.h"
#include "text/pieces.h"

namespace lw {

namespace {

constexpr int kColumns = 4;

const char* const kIrsSentence =
    "Additional information is available on the IRS website (www.irs.gov) in the";
const char* const kColumnSentence = "Also refer to the Additional Information column in the screen.";

// The instructions that the key's return type names; none when the key names no return.
std::string instructionsFor(const std::string& key) {
    if (key.find("1041") != std::string::npos) return "Instructions for Schedule K-1 (Form 1041)";
    if (key.find("1065") != std::string::npos) return "Instructions for Schedule K-1 (Form 1065)";
    if (key.find("1120") != std::string::npos) return "Instructions for Schedule K-1 (Form 1120-S)";
    return {};
}

std::string replaceNoCase(const std::string& value, const std::string& from, const std::string& to) {
    std::string out = value;
    for (std::size_t at = text::findNoCase(out, from); at != std::string::npos;
         at = text::findNoCase(out, from, at + to.size()))
        out.replace(at, from.size(), to);
    return out;
}

Control& placed(Control& c, int left, int top, int width, int height) {
    c.place(left, top, width, height);
    return c;
}

}  // namespace

std::string k1HelpGridRow(const std::string& line) {
    const std::vector<std::string> parts = text::split(line, "|");
    const std::string& purposePart = parts.at(1);
    const std::string& rest = parts.at(2);
    std::string purpose = purposePart;
    std::string information;
    const std::size_t brace = purposePart.find('{');
    if (brace != std::string::npos) {
        purpose = text::trim(purposePart.substr(0, brace));
        information = text::trim(text::replaceAll(purposePart.substr(brace + 1), "}", ""));
    }
    // The third part runs on from the additional information: only a tab in it reaches the O/R column.
    std::vector<std::string> cells =
        text::split(parts.at(0) + "\t" + purpose + "\t" + information + rest, "\t");
    cells.resize(kColumns);
    std::string row = cells[0];
    for (int col = 1; col < kColumns; ++col) row += "\t" + cells[static_cast<std::size_t>(col)];
    return row;
}

std::string k1HelpCaption(const std::string& key) {
    return "Valid Entries for " + text::replaceAll(replaceNoCase(key, "Box", "Box "), "-", " ");
}

K1HelpForm::K1HelpForm(K1HelpMembers& members, std::string infFile)
    : Form("F6_K1Help"),
      Label0(add(ControlKind::Label, "Label0")),
      Label1(add(ControlKind::Label, "Label1")),
      Label2(add(ControlKind::Label, "Label2")),
      Grid1(add(ControlKind::Grid, "Grid1")),
      Label3(add(ControlKind::Label, "Label3")),
      cmdCancel(add(ControlKind::CommandButton, "cmdCancel")),
      members_(members),
      infFile_(std::move(infFile)) {
    isChild = false;
    Label2.fontBold = true;
    Label3.fontBold = true;
    for (Control* label : {&Label0, &Label1, &Label2, &Label3}) {
        label->opaque = false;
        label->wordWrap = true;
    }
    Grid1.tabIndex = 0;
    cmdCancel.caption = "Cancel";
    cmdCancel.tabIndex = 1;
    layOut();
}

void K1HelpForm::onLoad() {
    Grid1.colWidths = {660, 9500, 5000, 600};
    Grid1.colAlignments = {kGridAlignRightCenter, kGridAlignLeftCenter, kGridAlignLeftCenter,
                           kGridAlignCenterCenter};
    Grid1.items = {"Box #\tPurpose\tAdditional Information\tO/R"};
    caption = k1HelpCaption(members_.listSectionKey);
    Label0.caption = std::string(kIrsSentence) + "\r\n" + instructionsFor(members_.listSectionKey) + "\r\n" +
                     kColumnSentence;
    Label1.caption =
        "Note: Most K1 codes require a MONETARY response.\r\n"
        "       A few require a TEXTUAL response.\r\n"
        "       An X in the O/R column will cause the MONEY edit\r\n"
        "       to be overridden and will allow TEXTUAL data.";
    Label2.caption = "Click to Select the appropriate Code - It will be inserted in the K1 form.";
    Label3.caption =
        "NOTE: If NO information available for an entry, you MUST refer to the document named above for "
        "information.";
    // A faulty line ends the reading there: the rows before it stay in the list.
    runGuarded("F6_K1Help:Form_Load", [this] { readSection(); });
    layOut();
}

void K1HelpForm::readSection() {
    const std::vector<std::string> lines =
        store::readInfSection(members_.listSectionKey, infFile_, kK1HelpSectionBuffer);
    for (const std::string& line : lines) Grid1.items.push_back(k1HelpGridRow(line));
}

// The grid shows every row: the list grows downwards with its section.
void K1HelpForm::layOut() {
    const int rows = std::max<int>(static_cast<int>(Grid1.items.size()), 2);
    placed(Label0, kMargin, kMargin, 7800, 720);
    placed(Label1, kMargin + 8100, kMargin, kGridWidth - 8100, 900);
    placed(Label2, kMargin, 1140, kGridWidth, 255);
    placed(Grid1, kMargin, 1440, kGridWidth + 60, rows * kRowHeight + 60);
    const int below = Grid1.top + Grid1.height + 120;
    placed(Label3, kMargin, below + 60, kGridWidth - 1500, 255);
    placed(cmdCancel, kMargin + kGridWidth + 60 - 1215, below, 1215, 375);
    width = kMargin * 2 + kGridWidth + 60;
    height = cmdCancel.top + cmdCancel.height + kMargin;
}

void K1HelpForm::onClick(Control& control, MouseButton) {
    if (&control == &cmdCancel) onCancel();
    if (&control == &Grid1) onGridClick();
}

void K1HelpForm::onGridClick() {
    const int row = Grid1.listIndex;
    if (row < 1 || row >= static_cast<int>(Grid1.items.size())) return;
    std::vector<std::string> cells = text::split(Grid1.items[static_cast<std::size_t>(row)], "\t");
    cells.resize(kColumns);
    members_.chosenCode = text::trim(cells[0]);
    members_.chosenOverride = cells[3];
    unload();
}

void K1HelpForm::onCancel() {
    members_.listCancelled = true;
    unload();
}

}  // namespace lw

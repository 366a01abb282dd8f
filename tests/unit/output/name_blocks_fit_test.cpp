// Every name and address block of every drawn form holds five lines of forty capitals -- a payer with a
// long name, an attention line, a street, a city with its ZIP code and a telephone number -- with no line
// wrapped or cut, in the faces the forms are drawn in, as painted at any resolution and in the field the
// operator types into.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "drawn_forms.h"
#include "face/control_text.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

const std::vector<std::string> kPayer = {
    "NORTHWESTERN REGIONAL MEDICAL GROUP, LLC", "ATTN: ACCOUNTS PAYABLE AND TAX REPORTING",
    "12845 WEST RIVERSIDE BOULEVARD, STE 1400", "SOUTH SAN FRANCISCO, CA 94080-1234 (USA)",
    "TELEPHONE (650) 555-0198, EXTENSION 2047"};
const std::vector<std::string> kRecipient = {
    "MAXIMILIANO ALEJANDRO WASHINGTON-MCBRIDE", "C/O ROSEMARY WILHELMINA BARTHOLOMEW-KING",
    "APARTMENT 12B, 4500 MASSACHUSETTS AVE NW", "WASHINGTON, DC 20016-5512, UNITED STATES",
    "PHONE (202) 555-0143, FAX (202) 555-0199"};

std::string joined(const std::vector<std::string>& lines) {
    std::string block;
    for (const std::string& line : lines) block += (block.empty() ? "" : "\r\n") + line;
    return block;
}

bool isNameBlock(const Control& c) {
    return c.kind == ControlKind::TextBox && c.multiLine && c.visible &&
           (c.tag == "ISSUER" || c.tag == "TPNAME");
}

class NameBlocks : public testing::EachDrawnForm {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(EachDrawnForm::SetUp());
        for (const auto& c : form->controls())
            if (isNameBlock(*c)) blocks.push_back(c.get());
    }

    // Types the block into the field as a paste would and returns what the field holds.
    std::vector<std::string> fill(Control& c) {
        Desktop& desktop = test.program->desktop;
        desktop.setFocus(c);
        c.select(0, static_cast<int>(c.text.size()));
        desktop.paste(joined(c.tag == "ISSUER" ? kPayer : kRecipient));
        std::vector<std::string> lines;
        std::string rest = c.text;
        for (std::size_t at; (at = rest.find("\r\n")) != std::string::npos; rest.erase(0, at + 2))
            lines.push_back(rest.substr(0, at));
        lines.push_back(rest);
        return lines;
    }

    std::vector<Control*> blocks;
};

TEST_P(NameBlocks, FiveLinesOfFortyCapitalsFitThePrintedBlock) {
    // The SSA-1099 and the 1095 forms name their people on lines of one field each: no block to fill.
    if (GetParam() == "TF_SSA1099" || GetParam().rfind("TF_1095", 0) == 0) {
        EXPECT_TRUE(blocks.empty());
        GTEST_SKIP() << GetParam() << " has no name block of several lines";
    }
    ASSERT_FALSE(blocks.empty()) << "no name block on " << GetParam();
    for (Control* c : blocks) {
        const std::vector<std::string> lines = fill(*c);
        ASSERT_EQ(lines.size(), 5u) << c->key() << " holds \"" << c->text << "\"";
        for (const std::string& line : lines) ASSERT_EQ(line.size(), 40u) << c->key() << ": " << line;
        // One measure at every resolution: what fits here fits the screen at any zoom and the paper.
        const face::TextBlock block = face::fieldLayout(*c, ui::qtTextMeasure());
        EXPECT_EQ(block.lines.size(), 5u) << GetParam() << " " << c->key() << " wraps a line";
        const QRectF taken = ui::toQRectF(block.extent());
        EXPECT_LE(taken.right(), block.area.right() + 0.5)
            << GetParam() << " " << c->key() << " cuts a line: " << c->width << " twips wide, needs "
            << std::lround(taken.width() + c->width - block.area.width);
        EXPECT_LE(taken.bottom(), block.area.bottom() + 0.5)
            << GetParam() << " " << c->key() << " loses its last line: " << c->height << " twips high, needs "
            << std::lround(taken.height() + c->height - block.area.height);
    }
}

// A block on a page of a tab control is looked at with its page on show, as the operator sees it.
void showPageOf(const Control& c) {
    if (Control* tabs = tabsOf(c)) setTab(*tabs, pageOf(c));
}

TEST_P(NameBlocks, FiveLinesOfFortyCapitalsFitTheFieldOnTheScreen) {
    if (blocks.empty()) GTEST_SKIP() << GetParam() << " has no name block of several lines";
    for (Control* c : blocks) fill(*c);
    ui::FormView view(*form);
    view.resize(ui::formSize(*form, ui::kScreenScale));
    view.show();
    view.refresh();
    for (Control* c : blocks) {
        showPageOf(*c);
        view.refresh();
        auto* box = qobject_cast<QPlainTextEdit*>(view.editorOf(*c));
        ASSERT_NE(box, nullptr) << c->key();
        ASSERT_EQ(box->document()->blockCount(), 5) << c->key();
        // What the field would need, in twips, told when it falls short.
        const QFontMetrics metrics(box->font());
        const int chrome = static_cast<int>(2 * box->document()->documentMargin()) + 2 * box->frameWidth();
        int widest = 0;
        for (QTextBlock block = box->document()->begin(); block.isValid(); block = block.next())
            widest = std::max(widest, metrics.horizontalAdvance(block.text()));
        const auto twips = [](int pixels) { return std::lround(pixels * ui::kTwipsPerPixel); };
        for (QTextBlock block = box->document()->begin(); block.isValid(); block = block.next())
            EXPECT_EQ(block.layout()->lineCount(), 1)
                << GetParam() << " " << c->key() << " wraps \"" << block.text().toStdString()
                << "\": " << c->width << " twips wide, needs " << twips(widest + chrome + box->cursorWidth());
        QTextCursor start(box->document());
        QTextCursor end(box->document());
        end.movePosition(QTextCursor::End);
        const int needed = twips(5 * metrics.height() + chrome);
        EXPECT_GE(box->cursorRect(start).top(), 0)
            << GetParam() << " " << c->key() << " scrolls: " << c->height << " twips high, needs " << needed;
        EXPECT_LE(box->cursorRect(end).bottom(), box->viewport()->height())
            << GetParam() << " " << c->key() << " hides its last line: " << c->height << " twips high, needs "
            << needed;
    }
}

INSTANTIATE_TEST_SUITE_P(DrawnForms, NameBlocks, ::testing::ValuesIn(testing::drawnForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw

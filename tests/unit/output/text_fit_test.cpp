// Every field of every form of the menu, filled as an operator fills it with the longest value it is
// meant to hold, shows that value whole: its text, as laid out for drawing, stays inside its box on the
// screen at 100% and at 200% and on paper at 600 dpi, in the same lines at each; and the editors of the
// window show it whole, in the lines the paper shows.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextBlock>
#include <QTextLayout>
#include <cmath>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/catalogue_table.h"
#include "catalogue/definitions.h"
#include "documents/saving.h"
#include "drawn_forms.h"
#include "face/control_text.h"
#include "fields/edit_ctl.h"
#include "forms/register_forms.h"
#include "longest_values.h"
#include "model/containers.h"
#include "qt_offscreen.h"
#include "test_program.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw {
namespace {

const auto* const kQt = testing::addQtOffscreen();

// The forms of the menu that are drawn from a definition, and the configuration form.
std::vector<std::string> menuForms() {
    std::vector<std::string> names;
    for (const CatalogueEntry& entry : catalogue())
        if (std::string(entry.menuItem).rfind("mnu", 0) == 0 &&
            (hasDefinition(entry.form) || std::string(entry.form) == "F1_Configure"))
            names.push_back(entry.form);
    return names;
}

struct Scale {
    const char* name;
    double pixelsPerTwip;
};
const Scale kScales[] = {
    {"100%", ui::kScreenScale}, {"200%", 2 * ui::kScreenScale}, {"600 dpi", 600.0 / 1440}};

// A text box as drawn at a scale: its lines, where they stand in device pixels, and the inside of the
// box's border they must keep to.
struct DrawnText {
    std::vector<QString> lines;
    std::vector<QRectF> places;
    QRectF inside;
};

DrawnText drawnAt(const Control& box, double scale) {
    const face::TextBlock block = face::fieldLayout(box, ui::qtTextMeasure());
    DrawnText drawn;
    const QPointF corner(ui::toPixels(block.origin.x, scale), ui::toPixels(block.origin.y, scale));
    for (const face::TextLine& line : block.lines) {
        drawn.lines.push_back(ui::toQString(line.text));
        drawn.places.push_back(QRectF(corner + QPointF(line.x, line.baseline - block.ascent) * scale,
                                      QSizeF(line.width, block.height) * scale));
    }
    const int border =
        box.borderStyle != 0 ? std::max(1, static_cast<int>(std::lround(face::kPixelTwips * scale))) : 0;
    drawn.inside = QRectF(ui::controlRect(box, scale)).adjusted(border, border, -border, -border);
    return drawn;
}

std::string quoted(const QString& text) { return "\"" + text.toStdString() + "\""; }

class TextFit : public testing::EachDrawnForm {
protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(EachDrawnForm::SetUp());
        ASSERT_NO_FATAL_FAILURE(fill());
        keepDocument();
    }

    // With LW_TEXT_FIT_FOLDER set, each filled form is saved there too, to be drawn by ledgerwick-render
    // and looked at.
    void keepDocument() {
        const QString folder = qEnvironmentVariable("LW_TEXT_FIT_FOLDER");
        if (folder.isEmpty() || GetParam() == "F1_Configure") return;
        test.ui.fileAnswers.push_back(
            (folder + QLatin1Char('/') + QString::fromStdString(GetParam()) + QStringLiteral(".venturo"))
                .toStdString());
        saveDataFile(test.program->parts);
    }

    // Each field in tab order, as the operator types it; a code of a K-1 row as its list puts it in.
    void fill() {
        testing::LongestValues values(test.program->g.edition.k1HelpInfFile);
        Desktop& desktop = test.program->desktop;
        std::vector<Control*> fields;
        for (const auto& c : form->controls())
            if (c->isTextBox() && c->visible) fields.push_back(c.get());
        std::stable_sort(fields.begin(), fields.end(),
                         [](const Control* a, const Control* b) { return a->tabIndex < b->tabIndex; });
        Control* first = nullptr;
        Control* last = nullptr;
        // A value the field refuses keeps the focus there, or shows a box, when the field is left.
        const auto left = [&](Control& next) {
            desktop.setFocus(next);
            ASSERT_TRUE(test.ui.boxes.empty())
                << GetParam() << " " << (last ? last->key() : "") << " refused \"" << (last ? last->text : "")
                << "\": " << test.ui.boxes.back();
            ASSERT_EQ(desktop.focus(), &next)
                << GetParam() << ": " << (desktop.focus() ? desktop.focus()->key() : "none") << " refused \""
                << (desktop.focus() ? desktop.focus()->text : "") << "\"";
        };
        for (Control* c : fields) {
            const std::optional<std::string> value = values.of(*form, *c);
            if (!value) continue;
            ASSERT_FALSE(value->empty()) << GetParam() << " " << c->key() << ": no realistic value is known";
            // A number field of a K-1 is given its text as its edit leaves it: leaving it runs the edit a
            // second time, on the text with its commas, which the number test refuses.
            const bool editedTwice = c->tag == "#" && form->find("SSTab1") != nullptr;
            if (c->locked || !c->canTakeFocus() || editedTwice) {
                c->text = *value;
                if (editedTwice) editField(*c, editContextOf(test.program->parts));
                continue;
            }
            ASSERT_NO_FATAL_FAILURE(left(*c));
            c->select(0, static_cast<int>(c->text.size()));
            desktop.paste(*value);
            if (!first) first = c;
            last = c;
        }
        // Leaving the last field edits it as the operator's Tab would.
        if (first) {
            ASSERT_NO_FATAL_FAILURE(left(*first));
        }
    }

    std::vector<Control*> filledBoxes() const {
        std::vector<Control*> boxes;
        for (const auto& c : form->controls())
            if (c->isTextBox() && c->visible && !c->text.empty()) boxes.push_back(c.get());
        return boxes;
    }
};

TEST_P(TextFit, EveryFieldShowsItsLongestValueWholeAtEveryScale) {
    for (Control* box : filledBoxes()) {
        std::vector<QString> firstLines;
        std::ostringstream cuts;
        for (const Scale& scale : kScales) {
            const DrawnText drawn = drawnAt(*box, scale.pixelsPerTwip);
            if (&scale == &kScales[0]) firstLines = drawn.lines;
            EXPECT_EQ(drawn.lines, firstLines) << GetParam() << " " << box->key() << " breaks its lines at "
                                               << scale.name << " otherwise than at 100%";
            // The worst line, by how far it runs past the inside of the border; half a pixel is rounding.
            double worst = 0.5;
            QString cut;
            for (std::size_t i = 0; i < drawn.lines.size(); ++i) {
                const QRectF& place = drawn.places[i];
                const QRectF& inside = drawn.inside;
                const double over = std::max({inside.left() - place.left(), place.right() - inside.right(),
                                              inside.top() - place.top(), place.bottom() - inside.bottom()});
                if (over > worst) worst = over, cut = drawn.lines[i];
            }
            if (!cut.isNull())
                cuts << " at " << scale.name << " by " << std::lround(worst / scale.pixelsPerTwip)
                     << " twips (" << quoted(cut) << ")";
        }
        const face::TextBlock block = face::fieldLayout(*box, ui::qtTextMeasure());
        const QRectF taken = ui::toQRectF(block.extent());
        EXPECT_TRUE(cuts.str().empty() && block.fits())
            << GetParam() << " " << box->key() << " is cut" << cuts.str() << "; its box of " << box->width
            << " x " << box->height << " twips needs "
            << std::lround(taken.width() + box->width - block.area.width) << " x "
            << std::lround(taken.height() + box->height - block.area.height) << " for its "
            << block.lines.size() << " lines";
    }
}

// The captions of the form are laid out as its fields are: a caption that stands whole in its label
// stands whole at every scale.
TEST_P(TextFit, EveryCaptionStandsWholeInItsLabel) {
    for (const auto& label : form->controls()) {
        if (label->kind != ControlKind::Label || !label->visible || label->caption.empty()) continue;
        const face::TextBlock block = face::captionLayout(*label, ui::qtTextMeasure());
        const QRectF taken = ui::toQRectF(block.extent());
        EXPECT_TRUE(taken.left() >= block.area.left() - 0.5 && taken.right() <= block.area.right() + 0.5 &&
                    taken.bottom() <= block.area.bottom() + 0.5)
            << GetParam() << " " << label->key() << " cuts \"" << label->caption << "\": its label of "
            << label->width << " x " << label->height << " twips needs "
            << std::lround(taken.right() + label->width - block.area.right()) << " x "
            << std::lround(taken.bottom());
    }
}

// Inside a line editor's border.
QRect lineEditorContents(const QLineEdit& line) {
    QStyleOptionFrame option;
    option.initFrom(&line);
    option.rect = line.rect();
    option.lineWidth =
        line.hasFrame() ? line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &line) : 0;
    return line.style()->subElementRect(QStyle::SE_LineEditContents, &option, &line);
}

// What a line editor needs across, as it reckons before scrolling its text.
double lineEditorRoom(const QLineEdit& line) {
    return lineEditorContents(line).marginsRemoved(line.textMargins()).width() - 2 * 2;
}

// Where the caret stands before the first character and after the last, as painted: the editor places
// its text when it paints.
std::pair<int, int> lineEditorTextSpan(QLineEdit& line) {
    const int kept = line.cursorPosition();
    const auto caretAt = [&line](int position) {
        line.setCursorPosition(position);
        line.grab();
        return line.inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
    };
    const std::pair<int, int> span{caretAt(0), caretAt(static_cast<int>(line.text().size()))};
    line.setCursorPosition(kept);
    return span;
}

double lineEditorNeed(const QLineEdit& line) {
    const QFontMetricsF metrics(line.font());
    const double bearings =
        std::max(0.0, -metrics.minLeftBearing()) + std::max(0.0, -metrics.minRightBearing());
    return std::round(metrics.horizontalAdvance(line.text())) + 1 + bearings;
}

std::vector<QString> editorLines(const QPlainTextEdit& box) {
    std::vector<QString> lines;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        const QTextLayout* layout = block.layout();
        for (int i = 0; i < layout->lineCount(); ++i) {
            const QTextLine line = layout->lineAt(i);
            QString text = block.text().mid(line.textStart(), line.textLength());
            while (text.endsWith(QLatin1Char(' '))) text.chop(1);
            lines.push_back(text);
        }
    }
    return lines;
}

TEST_P(TextFit, TheEditorsOfTheWindowShowTheLinesOfThePaper) {
    ui::FormView view(*form);
    view.resize(ui::formSize(*form, ui::kScreenScale));
    view.show();
    Control* tabs = form->find("SSTab1");
    for (int page = 0; page < (tabs ? 2 : 1); ++page) {
        if (tabs) setTab(*tabs, page);
        view.refresh();
        for (Control* box : filledBoxes()) {
            if (!isShown(*box)) continue;
            QWidget* editor = view.editorOf(*box);
            ASSERT_NE(editor, nullptr) << box->key();
            if (auto* line = qobject_cast<QLineEdit*>(editor)) {
                EXPECT_LE(lineEditorNeed(*line), lineEditorRoom(*line))
                    << GetParam() << " " << box->key() << " scrolls " << quoted(line->text())
                    << " in its editor: " << lineEditorNeed(*line) << " pixels in " << lineEditorRoom(*line);
                // Aligned left, centred or right, the text ends before the right border, never on it.
                const QRect inside = lineEditorContents(*line);
                const auto [first, last] = lineEditorTextSpan(*line);
                EXPECT_TRUE(first >= 0 && last <= inside.right() + 1)
                    << GetParam() << " " << box->key() << " shows " << quoted(line->text()) << " from "
                    << first << " to " << last << " in an editor whose border leaves " << inside.left()
                    << " to " << inside.right();
            } else if (auto* lines = qobject_cast<QPlainTextEdit*>(editor)) {
                std::vector<QString> painted;
                for (const face::TextLine& l : face::fieldLayout(*box, ui::qtTextMeasure()).lines)
                    painted.push_back(ui::toQString(l.text));
                EXPECT_EQ(editorLines(*lines), painted)
                    << GetParam() << " " << box->key()
                    << " breaks its lines in the editor otherwise than on paper";
                QTextCursor end(lines->document());
                end.movePosition(QTextCursor::End);
                QTextCursor start(lines->document());
                EXPECT_GE(lines->cursorRect(start).top(), 0) << GetParam() << " " << box->key() << " scrolls";
                EXPECT_LE(lines->cursorRect(end).bottom(), lines->viewport()->height())
                    << GetParam() << " " << box->key() << " hides its last line in the editor";
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(MenuForms, TextFit, ::testing::ValuesIn(menuForms()),
                         [](const ::testing::TestParamInfo<std::string>& info) { return info.param; });

}  // namespace
}  // namespace lw

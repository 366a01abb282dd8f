// A card's name in the window: a name too long for one line shows in an editor of lines, broken where
// the printed card breaks it, and Enter still moves on without breaking the name.
#include <QImage>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>
#include <cstdlib>

#include "face/control_text.h"
#include "forms/cards_form.h"
#include "gui_fixture.h"
#include "ui/form_view.h"
#include "ui/input_bridge.h"
#include "ui/qt_text.h"
#include "ui/qt_text_measure.h"

namespace lw::ui::test {
namespace {

class CardNameWindowTest : public FormViewTest<CardsForm> {
protected:
    void SetUp() override {
        FormViewTest::SetUp();
        desktop().setFocus(form_->at("Text1", 1));
        refreshAll();
    }
    QPlainTextEdit* nameEditor() const {
        return view_->findChild<QPlainTextEdit*>(QStringLiteral("Text1_1"));
    }
};

TEST_F(CardNameWindowTest, ALongNameShowsOnTheLinesOfThePrintedCard) {
    ASSERT_NE(nameEditor(), nullptr) << "the name of a card is shown in an editor of lines";
    type(view_.get(), QStringLiteral("maximiliano alejandro washington-mcbride"));
    const Control& name = form_->at("Text1", 1);
    EXPECT_EQ(name.text, "MAXIMILIANO ALEJANDRO WASHINGTON-MCBRIDE");
    QStringList shown;
    const QTextBlock block = nameEditor()->document()->begin();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine line = block.layout()->lineAt(i);
        shown << block.text().mid(line.textStart(), line.textLength()).trimmed();
    }
    QStringList printed;
    for (const face::TextLine& line : face::fieldLayout(name, qtTextMeasure()).lines)
        printed << toQString(line.text);
    EXPECT_EQ(shown, printed);
    EXPECT_EQ(printed.size(), 2);
    press(view_.get(), Qt::Key_Return);
    EXPECT_EQ(desktop().focus(), &form_->at("Text1", 2)) << "Enter moves on to the next card";
    EXPECT_EQ(name.text, "MAXIMILIANO ALEJANDRO WASHINGTON-MCBRIDE") << "Enter breaks no line in a name";
}

TEST_F(CardNameWindowTest, TheNameStandsInTheMiddleOfAWhiteBoxAsOnThePrintedCard) {
    type(view_.get(), QStringLiteral("maximiliano alejandro washington-mcbride"));
    QPlainTextEdit* editor = nameEditor();
    ASSERT_NE(editor, nullptr);
    // The lines are narrower than the box: the room left over lies on both sides of a centred name.
    const QRect lines = editor->viewport()->geometry();
    const QRect inside = editor->contentsRect();
    ASSERT_LT(lines.width(), inside.width() - 4) << "the name's lines leave room in its box";
    EXPECT_LE(std::abs((lines.left() - inside.left()) - (inside.right() - lines.right())), 1)
        << "the lines stand in the middle of the box";
    // That room is the field's own colour, not the form's.
    const QImage picture = editor->grab().toImage();
    const QColor field = editor->palette().color(QPalette::Base);
    EXPECT_EQ(picture.pixelColor(inside.right() - 1, inside.center().y()), field);
    EXPECT_EQ(picture.pixelColor(inside.left() + 1, inside.center().y()), field);
}

}  // namespace
}  // namespace lw::ui::test

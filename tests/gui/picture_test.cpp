// The clip picture: the form's client area at its pixel size, painted from the model as it stands.
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

#include "gui_fixture.h"
#include "ui/clipboard_picture.h"
#include "ui/form_painter.h"
#include "ui/form_printer.h"
#include "ui/qt_text.h"

namespace lw::ui::test {
namespace {

using PictureTest = GuiTest;

TEST_F(PictureTest, ThePictureHasTheFormsPixelSize) {
    TwoFields& form = load<TwoFields>();
    EXPECT_EQ(renderForm(form).size(), QSize(300, 200));
    form.height = 2250;
    EXPECT_EQ(renderForm(form).size(), QSize(300, 150));
}

TEST_F(PictureTest, TheClipboardReceivesThePicture) {
    TwoFields& form = load<TwoFields>();
    program_->ui.copyPictureToClipboard(form);
    const QImage copied = QApplication::clipboard()->image();
    EXPECT_EQ(copied.size(), QSize(300, 200));
}

TEST_F(PictureTest, ThePicturePaintsTheModelsColoursAndNoFocus) {
    TwoFields& form = load<TwoFields>();
    Control& first = form.at("Text1", 0);
    desktop().setFocus(first);
    // The clip code whitens the fields before the picture; the picture shows exactly that.
    first.backColor = kWhite;
    first.text = "12,345.00";
    form.at("Text1", 1).backColor = 0x0000FF00;
    const QImage image = renderForm(form);
    const QRect firstBox = controlRect(first, kScreenScale);
    EXPECT_EQ(image.pixelColor(firstBox.right() - 3, firstBox.top() + 3), QColor(Qt::white));
    const QRect secondBox = controlRect(form.at("Text1", 1), kScreenScale);
    EXPECT_EQ(image.pixelColor(secondBox.center()), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(2, 2), toQColor(form.backColor));
    // The text of the field is drawn: some pixel in its box is dark.
    bool dark = false;
    for (int x = firstBox.left(); x < firstBox.right(); ++x)
        for (int y = firstBox.top(); y < firstBox.bottom(); ++y)
            if (image.pixelColor(x, y).lightness() < 100) dark = true;
    EXPECT_TRUE(dark);
}

TEST_F(PictureTest, ShapesAndLinesAreDrawnInTheirColours) {
    TwoFields& form = load<TwoFields>();
    Control& box = form.add(ControlKind::Shape, "myBorder");
    box.left = 0;
    box.top = 0;
    box.width = 4500;
    box.height = 3000;
    box.borderColor = kRed;
    box.opaque = false;
    Control& line = form.add(ControlKind::Line, "Line1");
    line.left = 0;
    line.top = 2700;
    line.x2 = 4500;
    line.y2 = 2700;
    line.borderColor = 0x00FF0000;
    const QImage image = renderForm(form);
    EXPECT_EQ(image.pixelColor(0, 100), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(299, 100), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(150, 180), QColor(Qt::blue));
}

TEST_F(PictureTest, ACarriageReturnInACaptionBreaksTheLine) {
    TwoFields& form = load<TwoFields>();
    Control& label = form.at("Label1");
    label.height = 900;
    label.caption = "Box 1\rBox 2";
    const QRect area = controlRect(label, kScreenScale);
    const QImage image = renderForm(form);
    auto darkBetween = [&](int top, int bottom) {
        for (int y = top; y < bottom; ++y)
            for (int x = area.left(); x < area.right(); ++x)
                if (image.pixelColor(x, y).lightness() < 100) return true;
        return false;
    };
    EXPECT_TRUE(darkBetween(area.top(), area.top() + 12));
    EXPECT_TRUE(darkBetween(area.top() + 15, area.top() + 28));
}

TEST_F(PictureTest, ThePrinterGetsTheSamePicture) {
    TwoFields& form = load<TwoFields>();
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString pdf = folder.filePath(QStringLiteral("form.pdf"));
    EXPECT_TRUE(printFormToPdf(form, pdf));
    EXPECT_GT(QFileInfo(pdf).size(), 500);
}

TEST_F(PictureTest, APasteTakesAtMostSixtyFourKibibytes) {
    QApplication::clipboard()->setText(QString(70000, QLatin1Char('7')));
    EXPECT_EQ(ui_.clipboardText().size(), QtUiPort::kPasteLimit);
    EXPECT_NE(ui_.lastRefusal().find("64 KiB"), std::string::npos);
    ui_.setClipboardText("caf\xE9");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("caf\u00e9"));
    EXPECT_EQ(ui_.clipboardText(), "caf\xE9");
}

}  // namespace
}  // namespace lw::ui::test

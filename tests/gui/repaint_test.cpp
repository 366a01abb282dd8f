// The window repaints what changed and only that: a keystroke its field, a click its check box, and the
// painted face kept between inputs is the very picture the painter draws afresh.
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QTest>

#include "gui_fixture.h"
#include "ui/form_painter.h"
#include "ui/form_view.h"

namespace lw::ui::test {
namespace {

// Gathers, in the coordinates of one widget, every area that it and its children repaint.
class PaintRecorder : public QObject {
public:
    explicit PaintRecorder(QWidget& root) : root_(root) { watch(root); }
    QRegion painted;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            auto* widget = static_cast<QWidget*>(watched);
            const QRegion region = static_cast<QPaintEvent*>(event)->region();
            painted += region.translated(widget->mapTo(&root_, QPoint(0, 0)));
        }
        return false;
    }

private:
    void watch(QWidget& widget) {
        widget.installEventFilter(this);
        for (QWidget* child : widget.findChildren<QWidget*>()) child->installEventFilter(this);
    }
    QWidget& root_;
};

class RepaintTest : public TwoFieldsViewTest {
protected:
    void SetUp() override {
        TwoFieldsViewTest::SetUp();
        settle();
    }
    // Lets every pending paint happen.
    void settle() {
        for (int i = 0; i < 3; ++i) QApplication::processEvents();
        QTest::qWait(20);
    }
    QImage painterPicture() const {
        QImage image(view_->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(view_->palette().window().color());
        QPainter painter(&image);
        FormPainter(kScreenScale).paintForm(painter, *form_, true);
        return image;
    }
    QImage facePicture() const {
        return view_->face().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
};

TEST_F(RepaintTest, AKeystrokeRepaintsOnlyItsField) {
    QWidget* field = view_->editorOf(form_->at("Text1", 0));
    ASSERT_NE(field, nullptr);
    PaintRecorder recorder(*view_);
    type(view_.get(), QStringLiteral("7"));
    settle();
    ASSERT_EQ(form_->at("Text1", 0).text, "7");
    ASSERT_FALSE(recorder.painted.isEmpty()) << "the typed digit was never painted";
    const QRect allowed = field->geometry().adjusted(-1, -1, 1, 1);
    EXPECT_EQ(recorder.painted.subtracted(QRegion(allowed)), QRegion())
        << "painted beyond the field: " << recorder.painted.boundingRect().x() << ","
        << recorder.painted.boundingRect().y() << " " << recorder.painted.boundingRect().width() << "x"
        << recorder.painted.boundingRect().height();
}

TEST_F(RepaintTest, AChangedLabelRepaintsItsOwnPlaceAndTheFaceStaysTrue) {
    Control& label = form_->at("Label1");
    PaintRecorder recorder(*view_);
    label.caption = "Wages, tips";
    refreshAll();
    settle();
    const QRect allowed = paintedExtent(label, kScreenScale);
    EXPECT_FALSE(recorder.painted.isEmpty());
    EXPECT_EQ(recorder.painted.subtracted(QRegion(allowed)), QRegion());
    EXPECT_TRUE(facePicture() == painterPicture()) << "the kept face differs from a fresh drawing";
}

TEST_F(RepaintTest, AClickedCheckBoxAndAMovedLabelLeaveNoTrace) {
    form_->at("Check", 0).caption = "X";
    Control& label = form_->at("Label1");
    label.left += 600;
    refreshAll();
    settle();
    EXPECT_TRUE(facePicture() == painterPicture()) << "the old place of the label or the box kept a trace";
    label.visible = false;
    refreshAll();
    settle();
    EXPECT_TRUE(facePicture() == painterPicture());
}

TEST_F(RepaintTest, ANewBackColourOfTheFormRepaintsItWhole) {
    PaintRecorder recorder(*view_);
    form_->backColor = 0x00C0C0C0;
    refreshAll();
    settle();
    EXPECT_EQ(recorder.painted.boundingRect(), view_->rect());
    EXPECT_TRUE(facePicture() == painterPicture());
}

}  // namespace
}  // namespace lw::ui::test

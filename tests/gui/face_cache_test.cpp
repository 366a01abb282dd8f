// A form's face is kept between openings and between the pages of a tab control: a form opened again, or
// a page turned back, shows the face it had, and a face is never shown for a form that now reads
// otherwise.
#include "ui/face_cache.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QTest>

#include "gui_fixture.h"
#include "model/containers.h"
#include "ui/form_painter.h"
#include "ui/input_bridge.h"

namespace lw::ui::test {
namespace {

class FaceCacheTest : public GuiTest {
protected:
    void SetUp() override {
        GuiTest::SetUp();
        FaceCache::instance().clear();
    }
    void TearDown() override {
        view_.reset();
        FaceCache::instance().clear();
        GuiTest::TearDown();
    }
    // Shows the form in a new view, as the frame does when the form opens.
    FormView& open(Form& form) {
        view_ = std::make_unique<FormView>(form);
        show(*view_);
        settle();
        return *view_;
    }
    // The view goes, as the frame lets a form's view go when another form opens.
    void close() {
        view_->keepFace();
        view_.reset();
    }
    void settle() {
        for (int i = 0; i < 3; ++i) QApplication::processEvents();
        QTest::qWait(20);
    }
    QImage freshPicture(const Form& form) const {
        QImage image(view_->size(), QImage::Format_RGB32);
        image.fill(view_->palette().window().color());
        QPainter painter(&image);
        FormPainter(kScreenScale).paintForm(painter, form, true);
        return image;
    }

    std::unique_ptr<FormView> view_;
};

TEST_F(FaceCacheTest, AFormOpenedAgainShowsTheFaceItWentWith) {
    TwoFields& first = load<TwoFields>();
    open(first);
    const SharedFace painted = view_->keptFace();
    ASSERT_NE(painted, nullptr);
    close();
    desktop().unload(first);

    TwoFields& again = load<TwoFields>();
    open(again);
    EXPECT_EQ(view_->keptFace(), painted) << "the form's face was painted again";
    EXPECT_EQ(view_->face(), freshPicture(again));
}

TEST_F(FaceCacheTest, AFaceIsNotShownForAFormWhoseCaptionsChanged) {
    TwoFields& first = load<TwoFields>();
    open(first);
    const QImage before = view_->face();
    close();
    desktop().unload(first);

    // As a new tax year rewrites the year in a form's captions.
    TwoFields& again = load<TwoFields>();
    again.at("Label1").caption = "Wages 2026";
    open(again);
    EXPECT_NE(view_->face(), before);
    EXPECT_EQ(view_->face(), freshPicture(again)) << "the face kept for the old captions was shown";
}

TEST_F(FaceCacheTest, AFaceIsNotShownForAFormWhoseCheckBoxChanged) {
    TwoFields& first = load<TwoFields>();
    open(first);
    close();
    desktop().unload(first);

    TwoFields& again = load<TwoFields>();
    again.at("Check", 0).caption = "X";
    open(again);
    EXPECT_EQ(view_->face(), freshPicture(again));
}

// Two pages, each with a caption of its own, as the halves of a K-1.
class TwoCaptionedPages : public Form {
public:
    TwoCaptionedPages() : Form("TF_PAGES") {
        width = 6000;
        height = 3000;
        Control& tabs = add(ControlKind::TabControl, "SSTab1");
        tabs.items = {"Top", "Bottom"};
        setTab(tabs, 0);  // as a drawing's tab control starts
        tabs.place(0, 0, 6000, 2800);
        for (int page = 0; page < 2; ++page) {
            Control& caption = add(ControlKind::Label, "Label1", page);
            caption.caption = page == 0 ? "Part I  Information about the partnership" : "Part III  Share";
            caption.place(300, 500 + page * 300, 4000, 255);
            placeInside(caption, tabs, page);
            Control& field = add(ControlKind::TextBox, "Text1", page);
            field.place(300, 1200, 2400, 285);
            placeInside(field, tabs, page);
        }
    }
};

TEST_F(FaceCacheTest, APageTurnedBackShowsItsKeptFace) {
    TwoCaptionedPages& form = load<TwoCaptionedPages>();
    open(form);
    const SharedFace top = view_->keptFace();
    ASSERT_NE(top, nullptr);
    Control& tabs = form.at("SSTab1");

    forwardInput([&] { setTab(tabs, 1); });
    settle();
    EXPECT_EQ(view_->face(), freshPicture(form)) << "the Bottom page";
    forwardInput([&] { setTab(tabs, 0); });
    settle();
    EXPECT_EQ(view_->keptFace(), top) << "the Top page was painted again";
    EXPECT_EQ(view_->face(), freshPicture(form)) << "the Top page turned back";
    forwardInput([&] { setTab(tabs, 1); });
    settle();
    EXPECT_NE(view_->keptFace(), nullptr) << "the Bottom page was painted again";
    EXPECT_EQ(view_->face(), freshPicture(form)) << "the Bottom page turned again";
}

TEST_F(FaceCacheTest, TheCacheKeepsNoMoreThanItsBudget) {
    FaceCache& cache = FaceCache::instance();
    const qint64 budget = cache.budget();
    TwoFields& first = load<TwoFields>();
    open(first);
    close();
    ASSERT_EQ(cache.count(), 1);
    cache.setBudget(cache.bytes() - 1);
    EXPECT_EQ(cache.count(), 0);
    cache.setBudget(budget);
}

// A field under the caption of its box, as on a W-2.
class CaptionedField : public Form {
public:
    CaptionedField() : Form("TF_CAPTIONED") {
        width = 4500;
        height = 2000;
        Control& caption = add(ControlKind::Label, "Label1");
        caption.caption = "1 Wages, tips, other compensation";
        caption.place(300, 300, 3000, 255);
        Control& field = add(ControlKind::TextBox, "Text1", 0);
        field.place(300, 600, 2400, 285);
    }
};

TEST_F(FaceCacheTest, AFieldIsNamedByTheCaptionItHasNowWhenItsFormOpensAgain) {
    ScreenReaderListening listener;
    CaptionedField& first = load<CaptionedField>();
    open(first);
    QWidget* field = view_->editorOf(first.at("Text1", 0));
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->accessibleName(), QStringLiteral("Box 1, Wages, tips, other compensation"));
    close();
    desktop().unload(first);

    CaptionedField& again = load<CaptionedField>();
    open(again);
    EXPECT_EQ(view_->editorOf(again.at("Text1", 0))->accessibleName(),
              QStringLiteral("Box 1, Wages, tips, other compensation"));
    close();
    desktop().unload(again);

    CaptionedField& renamed = load<CaptionedField>();
    renamed.at("Label1").caption = "2 Federal income tax withheld";
    open(renamed);
    EXPECT_EQ(view_->editorOf(renamed.at("Text1", 0))->accessibleName(),
              QStringLiteral("Box 2, Federal income tax withheld"));
}

TEST_F(FaceCacheTest, AFieldTakenOverFromAViewThatWentShowsAndTakesTheNewForm) {
    TwoFields& first = load<TwoFields>();
    open(first);
    first.at("Text1", 0).text = "1234";
    first.at("Text1", 1).locked = true;
    refreshAll();
    auto* before = qobject_cast<QLineEdit*>(view_->editorOf(first.at("Text1", 1)));
    ASSERT_NE(before, nullptr);
    ASSERT_TRUE(before->isReadOnly());
    // The frame lets the view's fields go while the view still stands, and deletes the view later.
    std::unique_ptr<FormView> going = std::move(view_);
    going->keepFace();
    going->releaseEditors();
    going->hide();

    TwoFields& next = load<TwoFields>();
    open(next);
    going.reset();
    std::vector<QLineEdit*> fields;
    for (int i = 0; i < 2; ++i) fields.push_back(qobject_cast<QLineEdit*>(view_->editorOf(next.at("Text1", i))));
    ASSERT_NE(fields[0], nullptr);
    ASSERT_NE(fields[1], nullptr);
    EXPECT_TRUE(fields[0] == before || fields[1] == before) << "no field was taken over";
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(fields[i]->parentWidget(), view_.get());
        EXPECT_EQ(fields[i]->objectName(), QStringLiteral("Text1_%1").arg(i));
        EXPECT_EQ(fields[i]->text(), QString());
        EXPECT_FALSE(fields[i]->isReadOnly());
        EXPECT_TRUE(fields[i]->isVisible());
    }
    forwardInput([&] { desktop().setFocus(next.at("Text1", 1)); });
    type(view_.get(), QStringLiteral("7"));
    EXPECT_EQ(next.at("Text1", 1).text, "7");
    EXPECT_EQ(fields[1]->text(), QStringLiteral("7"));
}

QImage manyColours() {
    QImage image(300, 90, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, qRgb(x % 256, (x * y) % 251, y * 2));
    return image;
}

QImage fewColours() {
    QImage image(300, 90, QImage::Format_RGB32);
    image.fill(QColor(0xF0, 0xF0, 0xF0));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::darkBlue, 1.5));
    painter.drawEllipse(QRectF(10.3, 5.7, 250.2, 70.1));
    painter.drawText(QRect(20, 20, 200, 40), QStringLiteral("Box 1, Wages, tips, other compensation"));
    return image;
}

TEST(CompactFace, HoldsThePixelsItWasGivenWhateverTheirColours) {
    for (const QImage& original : {manyColours(), fewColours()}) {
        const CompactFace face(original);
        EXPECT_EQ(face.toImage(), original);
        EXPECT_LE(face.bytes(), original.sizeInBytes());
    }
    EXPECT_LT(CompactFace(fewColours()).bytes(), fewColours().sizeInBytes() / 3);
}

TEST(CompactFace, DrawsAnAreaAsThePictureItKeepsWouldBeDrawn) {
    for (const QImage& original : {manyColours(), fewColours()}) {
        const CompactFace face(original);
        const QRect area(17, 25, 211, 48);  // across the rows of two bands
        QImage drawn(original.size(), QImage::Format_RGB32);
        drawn.fill(Qt::red);
        QImage expected = drawn;
        QPainter(&drawn).end();
        {
            QPainter painter(&drawn);
            face.draw(painter, area);
        }
        {
            QPainter painter(&expected);
            painter.drawImage(area, original, area);
        }
        EXPECT_EQ(drawn, expected);
    }
}

}  // namespace
}  // namespace lw::ui::test

// A screen reader can name every field: each editor and painted check box of a drawn form carries the
// box and caption of the official form, and its tip as description; the caption of a box is read as text
// and labels the fields of its box; the colour legend is read as text.
#include <QAccessible>
#include <map>
#include <string>

#include "catalogue/definitions.h"
#include "gui_fixture.h"
#include "shell/frame_form.h"
#include "ui/form_view.h"

namespace lw::ui::test {
namespace {

struct Spoken {
    QAccessible::Role role;
    QString description;
};

// Every named element under an interface, by its name.
void collect(QAccessibleInterface* node, std::map<QString, Spoken>& found, int depth = 0) {
    if (!node || depth > 4) return;
    for (int i = 0; i < node->childCount(); ++i) {
        QAccessibleInterface* child = node->child(i);
        if (!child) continue;
        const QString name = child->text(QAccessible::Name);
        if (!name.isEmpty())
            found.emplace(name, Spoken{child->role(), child->text(QAccessible::Description)});
        collect(child, found, depth + 1);
    }
}

class AccessibilityTest : public GuiTest {
protected:
    std::map<QString, Spoken> spokenOf(const char* formName) {
        form_ = std::make_unique<Form>(formName);
        realizeDefinition(*findDefinition(formName), *form_);
        view_ = std::make_unique<FormView>(*form_);
        show(*view_);
        std::map<QString, Spoken> found;
        collect(QAccessible::queryAccessibleInterface(view_.get()), found);
        return found;
    }
    void TearDown() override {
        view_.reset();
        form_.reset();
        GuiTest::TearDown();
    }
    std::unique_ptr<Form> form_;
    std::unique_ptr<FormView> view_;
    ScreenReaderListening listener_;
};

TEST_F(GuiTest, TheFieldsAreNamedOnlyOnceAScreenReaderListensAndThenAtOnce) {
    Form form("TF_W2");
    realizeDefinition(*findDefinition("TF_W2"), form);
    FormView view(form);
    show(view);
    QWidget* box1 = view.editorOf(form.at("Text1", 2));
    ASSERT_NE(box1, nullptr);
    EXPECT_TRUE(box1->accessibleName().isEmpty()) << "with no listener the names are not looked for";
    ScreenReaderListening listener;
    EXPECT_EQ(box1->accessibleName(), QStringLiteral("Box 1, Wages, tips, other compensation"));
}

TEST_F(AccessibilityTest, TheW2sFieldsAndCheckBoxesHaveTheirBoxesNames) {
    const auto spoken = spokenOf("TF_W2");
    for (const char* name :
         {"Box a, Employee's social security number", "Box 1, Wages, tips, other compensation",
          "Box 4, Social security tax withheld", "Box e, Employee's first name and initial", "Box 12a, Code",
          "Box 20, Locality name, line 1", "Box 12b, Code", "Box 14, Other, line 2, amount"}) {
        ASSERT_EQ(spoken.count(QString::fromUtf8(name)), 1u) << name;
        EXPECT_EQ(spoken.at(QString::fromUtf8(name)).role, QAccessible::EditableText) << name;
    }
    ASSERT_EQ(spoken.count(QStringLiteral("Box 13, Statutory employee")), 1u);
    EXPECT_EQ(spoken.at(QStringLiteral("Box 13, Statutory employee")).role, QAccessible::CheckBox);
    const Control& box1 = form_->at("Text1", 2);
    view_->refresh();
    const QString tip = QString::fromStdString(box1.toolTipText);
    EXPECT_EQ(view_->editorOf(box1)->accessibleDescription(), tip);
}

TEST_F(AccessibilityTest, TheCaptionOfABoxIsReadAsTextAndLabelsTheFieldsOfItsBox) {
    spokenOf("TF_W2");
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(view_.get());
    QAccessibleInterface* caption = nullptr;
    for (int i = 0; i < view->childCount() && !caption; ++i)
        if (view->child(i)->role() == QAccessible::StaticText &&
            view->child(i)->text(QAccessible::Name) == QStringLiteral("Box 12b"))
            caption = view->child(i);
    ASSERT_NE(caption, nullptr);
    QStringList labelled;
    for (const auto& [field, relation] : caption->relations(QAccessible::Labelled)) {
        EXPECT_EQ(relation, QAccessible::Labelled);
        labelled << field->text(QAccessible::Name);
    }
    labelled.sort();
    EXPECT_EQ(labelled, (QStringList{QStringLiteral("Box 12b, Code"), QStringLiteral("Box 12b, amount")}));
}

TEST_F(AccessibilityTest, APaintedCheckBoxIsLabelledByItsBoxAndTogglesByItsAction) {
    spokenOf("TF_W2");
    QAccessibleInterface* view = QAccessible::queryAccessibleInterface(view_.get());
    QAccessibleInterface* check = nullptr;
    for (int i = 0; i < view->childCount() && !check; ++i)
        if (view->child(i)->text(QAccessible::Name) == QStringLiteral("Box 13, Retirement plan"))
            check = view->child(i);
    ASSERT_NE(check, nullptr);
    const auto labels = check->relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.front().first->text(QAccessible::Name), QStringLiteral("Box 13"));
    ASSERT_NE(check->actionInterface(), nullptr);
    EXPECT_EQ(check->actionInterface()->actionNames(),
              QStringList{QAccessibleActionInterface::toggleAction()});
}

TEST_F(AccessibilityTest, TheColourLegendIsReadAsTextWithItsTip) {
    FrameForm frame;
    FormView panel(frame);
    QWidget* money = panel.editorOf(frame.at("txtLegend", 3));
    ASSERT_NE(money, nullptr);
    QAccessibleInterface* entry = QAccessible::queryAccessibleInterface(money);
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->role(), QAccessible::StaticText);
    EXPECT_EQ(entry->text(QAccessible::Name), QStringLiteral("Money"));
    EXPECT_EQ(entry->text(QAccessible::Description),
              QStringLiteral("Dollar Amount (Must be Positive Amount)"));
}

TEST_F(AccessibilityTest, AFieldIsNamedAnewWhenTheCaptionOfItsBoxChanges) {
    spokenOf("TF_W2");
    const Control& box1 = form_->at("Text1", 2);
    form_->at("Label1", 6).caption = "1. Pay of the year";
    view_->refresh();
    EXPECT_EQ(view_->editorOf(box1)->accessibleName(), QStringLiteral("Box 1, Pay of the year"));
}

TEST_F(AccessibilityTest, The1099INTsFieldsHaveTheirBoxesNames) {
    const auto spoken = spokenOf("TF_1099INT");
    for (const char* name : {"Box 1, Interest income", "Box 2, Early withdrawal penalty",
                             "Box 4, Federal income tax withheld", "CORRECTED (if checked)"})
        EXPECT_EQ(spoken.count(QString::fromUtf8(name)), 1u) << name;
}

TEST_F(AccessibilityTest, EveryEditorOfEveryDrawnFormIsNamed) {
    for (const EmbeddedDefinition& embedded : embeddedDefinitions()) {
        Form form(embedded.formName);
        realizeDefinition(*findDefinition(embedded.formName), form);
        FormView view(form);
        for (const auto& owned : form.controls()) {
            const Control& c = *owned;
            if (!c.isTextBox() || !c.visible) continue;
            QWidget* editor = view.editorOf(c);
            ASSERT_NE(editor, nullptr) << embedded.formName << " " << c.key();
            EXPECT_FALSE(editor->accessibleName().isEmpty()) << embedded.formName << " " << c.key();
        }
    }
}

}  // namespace
}  // namespace lw::ui::test

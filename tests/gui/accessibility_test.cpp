// A screen reader can name every field: each editor and painted check box of a drawn form carries the
// box and caption of the official form, and its tip as description.
#include <QAccessible>
#include <map>
#include <string>

#include "catalogue/definitions.h"
#include "gui_fixture.h"
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
};

TEST_F(AccessibilityTest, TheW2sFieldsAndCheckBoxesHaveTheirBoxesNames) {
    const auto spoken = spokenOf("TF_W2");
    for (const char* name :
         {"Box a, Employee's social security number", "Box 1, Wages, tips, other compensation",
          "Box 4, Social security tax withheld", "Box e, Employee's first name and initial", "Box 12a, Code",
          "Box 20, Locality name"}) {
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

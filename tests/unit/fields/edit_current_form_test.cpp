#include <string>

#include "fields_fixture.h"

namespace lw::test {
namespace {

// The edits work on the document's current form, whichever form the field stands on: its status line
// tells of a failure, and its year labels hold the year-bound dates.
class CurrentFormEdits : public FieldsTest {
protected:
    void SetUp() override {
        FieldsTest::SetUp();
        other = &openForm("TF_OTHER", false);
        other->at("TaxYear", 1).caption = "21";
        g().document.currentForm = form;
    }
    Control& otherField(const std::string& tag, const std::string& text) {
        Control& c = other->add(ControlKind::TextBox, "Text1", 0);
        c.tag = tag;
        c.text = text;
        return c;
    }

    FieldForm* other = nullptr;
};

TEST_F(CurrentFormEdits, AFailureIsToldOnTheStatusLineOfTheCurrentForm) {
    Control& amount = otherField("MONEY", "1.2.3");
    prog().desktop.setFocus(amount);
    EXPECT_FALSE(editField(amount, editContext()));
    EXPECT_EQ(status().caption, invalid("1.2.3"));
    EXPECT_EQ(other->at("labelMisc").caption, "");
}

TEST_F(CurrentFormEdits, AYearBoundDateTakesTheYearTheCurrentFormShows) {
    Control& date = otherField("DATEX", "3/7/2021");
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "03/07/2023");
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].number, 803);
}

TEST_F(CurrentFormEdits, WithNoCurrentFormAYearBoundDateAnswersObjectRequired) {
    Control& date = otherField("DATEX", "3/7/2021");
    g().document.currentForm = nullptr;
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "3/7/2021");
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M7_Edits:EditCtl");
    EXPECT_EQ(lastErrorReport()->number, "424");
    EXPECT_EQ(lastErrorReport()->description, "Object required");
}

TEST_F(CurrentFormEdits, WithNoCurrentFormAPlaceholderDateTakesTheTaxYearInForce) {
    g().taxYear = TaxYearChoice(2025);
    g().document.currentForm = nullptr;
    Control& date = otherField("DATE", "3/7/20XX");
    EXPECT_TRUE(editField(date, editContext()));
    EXPECT_EQ(date.text, "03/07/2025");
    ASSERT_EQ(ui.boxes.size(), 1u);
    EXPECT_EQ(ui.boxes[0].number, 802);
}

TEST_F(CurrentFormEdits, WithNoCurrentFormTheDuplicateCheckAnswersObjectRequired) {
    otherField("TIN", "123-45-6789");
    g().document.currentForm = nullptr;
    EXPECT_EQ(checkDuplicateNumbers("0,1", 0, g().document, prog().desktop), 99);
    EXPECT_TRUE(ui.boxes.empty());
    ASSERT_TRUE(lastErrorReport().has_value());
    EXPECT_EQ(lastErrorReport()->module, "M7_Edits:DuplicateTinCheck");
    EXPECT_EQ(lastErrorReport()->number, "424");
}

TEST_F(CurrentFormEdits, TheDuplicateCheckComparesTheFieldsOfTheCurrentForm) {
    otherField("TIN", "123-45-6789");
    other->add(ControlKind::TextBox, "Text1", 1).text = "123-45-6789";
    form->add(ControlKind::TextBox, "Text1", 0).text = "123-45-6789";
    form->add(ControlKind::TextBox, "Text1", 1).text = "900-70-1234";
    EXPECT_EQ(checkDuplicateNumbers("0,1", 0, g().document, prog().desktop), 99);
    EXPECT_TRUE(ui.boxes.empty());
}

}  // namespace
}  // namespace lw::test

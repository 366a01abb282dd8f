#include "forms/w2_withholding.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

#include "forms/w2_form.h"
#include "model/app_error.h"
#include "model/keys.h"
#include "opened_form.h"
#include "shell/form_lifecycle.h"

namespace lw {
namespace {

// The W-2 opened from its menu item, with the figures of the worked example: 6.2% up to a wage base of
// 168,600, Medicare 1.45% up to 200,000 and 2.35% above it.
struct W2Withholding : testing::OpenedForm<FormW2> {
    W2Withholding() : OpenedForm("mnuW2", "TF_W2") {}

    void SetUp() override { open(); }

    void open() {
        ASSERT_NO_FATAL_FAILURE(OpenedForm::open());
        Globals& g = test.program->g;
        g.rates.set(RateItem::SocialSecurityRate, "6.2");
        g.rates.set(RateItem::SocialSecurityWageBase, "168,600");
        g.rates.set(RateItem::MedicareRate, "1.45");
        g.rates.set(RateItem::MedicareChangePoint, "200,000");
        g.rates.set(RateItem::MedicareRateAfter, "2.35");
    }
    Globals& g() { return test.program->g; }
    Control& box(int i) { return field(i); }
    Control& ssWages() { return box(5); }
    Control& ssTax() { return box(6); }
    Control& mcWages() { return box(7); }
    Control& mcTax() { return box(8); }
    std::string ssTaxOf(const std::string& wages) {
        typeInto(ssWages(), wages);
        tab();
        return ssTax().text;
    }
    std::string mcTaxOf(const std::string& wages) {
        typeInto(mcWages(), wages);
        tab();
        return mcTax().text;
    }
};

TEST_F(W2Withholding, WorkedExampleBelowTheWageBase) {
    typeInto(ssWages(), "1234.56");
    tab();
    EXPECT_EQ(ssWages().text, "$1,234.56") << "the tax is worked out from the text the edit has written";
    EXPECT_EQ(ssTax().text, "76.54");
    EXPECT_EQ(focus(), &ssTax());
}

TEST_F(W2Withholding, WorkedExampleOverTheWageBaseIsCapped) {
    EXPECT_EQ(ssTaxOf("200,000.00"), "10,453.20");
    EXPECT_EQ(ssTaxOf("168600.01"), "10,453.20");
}

TEST_F(W2Withholding, WagesEqualToTheWageBaseUseTheWagesWithTheSameResult) {
    EXPECT_EQ(ssTaxOf("168600"), "10,453.20");
    EXPECT_EQ(ssTaxOf("168599"), "10,453.14");
}

TEST_F(W2Withholding, TheRateMayCarryAPercentSignAndTheWageBaseCommas) {
    g().rates.set(RateItem::SocialSecurityRate, "6.2%");
    g().rates.set(RateItem::SocialSecurityWageBase, "168600");
    EXPECT_EQ(ssTaxOf("1234.56"), "76.54");
    g().rates.set(RateItem::SocialSecurityRate, "10");
    g().rates.set(RateItem::SocialSecurityWageBase, "1,000");
    EXPECT_EQ(ssTaxOf("2000"), "100.00");
}

TEST_F(W2Withholding, MedicareBelowTheChangePointIsAtTheInitialRate) {
    EXPECT_EQ(mcTaxOf("1234.56"), "17.90");
    EXPECT_EQ(mcWages().text, "$1,234.56");
    EXPECT_EQ(focus(), &mcTax());
}

TEST_F(W2Withholding, MedicareOverTheChangePointAddsTheHigherRateOnTheExcess) {
    EXPECT_EQ(mcTaxOf("250000"), "4,075.00");      // 2,900 + 1,175
    EXPECT_EQ(mcTaxOf("1,000,000"), "21,700.00");  // 2,900 + 18,800
}

TEST_F(W2Withholding, WagesEqualToTheChangePointAreTaxedAtTheInitialRateAndOneCentMoreAtTheHigherOne) {
    // A higher rate large enough for one cent of it to show in the box.
    g().rates.set(RateItem::MedicareRateAfter, "60");
    EXPECT_EQ(mcTaxOf("200000"), "2,900.00");
    // 2,900 + 0.006; the whole at the initial rate would be 2,900.000145.
    EXPECT_EQ(mcTaxOf("200000.01"), "2,900.01");
}

TEST_F(W2Withholding, EachMedicareShareIsRoundedToTenThousandthsBeforeTheyAreAdded) {
    // 2,900 + 0.0235 * 2.34 = 2,900.05499: as one amount it would show 2,900.05; the second share is
    // kept as 0.0550 first, and the sum 2,900.0550 shows 2,900.06.
    EXPECT_EQ(mcTaxOf("200002.34"), "2,900.06");
    // With the change point of a married person filing separately: 1,812.50 + 0.0235 * 1,011.70; the
    // second share is held as 23.7750 and the sum shows 1,836.28, where the two shares added as one
    // double would come to 1,836.27494... and show 1,836.27.
    g().rates.set(RateItem::MedicareChangePoint, "125,000");
    EXPECT_EQ(mcTaxOf("126011.70"), "1,836.28");
}

TEST_F(W2Withholding, ZeroWagesGiveAPointAndTwoNoughts) {
    EXPECT_EQ(ssTaxOf("0"), ".00");
    EXPECT_EQ(mcTaxOf("0"), ".00");
}

TEST_F(W2Withholding, EmptyingBox3OrBox5LeavesTheTaxBoxAsItWas) {
    ASSERT_EQ(ssTaxOf("1234.56"), "76.54");
    ASSERT_EQ(mcTaxOf("1234.56"), "17.90");
    // Each tax box, left by the focus since, has taken the mask of its own amount edit.
    ASSERT_EQ(ssTax().text, "$76.54");
    desktop().setFocus(ssWages());
    desktop().pressKey(keys::kDelete, 0, 0);
    ASSERT_EQ(ssWages().text, "");
    tab();
    EXPECT_EQ(ssTax().text, "$76.54");
    desktop().setFocus(mcWages());
    ASSERT_EQ(mcTax().text, "$17.90");
    desktop().pressKey(keys::kDelete, 0, 0);
    ASSERT_EQ(mcWages().text, "");
    tab();
    EXPECT_EQ(mcTax().text, "$17.90");
}

TEST_F(W2Withholding, Box1FillsNothing) {
    typeInto(box(2), "50000");
    tab();
    EXPECT_EQ(box(2).text, "$50,000.00");
    for (int i : {5, 6, 7, 8}) EXPECT_EQ(box(i).text, "") << "Text1(" << i << ")";
}

TEST_F(W2Withholding, AWageThatFailsItsEditKeepsTheFocusAndComputesNothing) {
    ASSERT_EQ(ssTaxOf("1234.56"), "76.54");
    typeInto(ssWages(), "12.3.4");
    ASSERT_EQ(ssTax().text, "$76.54") << "the tax box was left with its amount's own mask";
    tab();
    EXPECT_EQ(focus(), &ssWages());
    EXPECT_EQ(ssWages().text, "12.3.4");
    EXPECT_EQ(ssTax().text, "$76.54");
}

TEST_F(W2Withholding, AnOverwrittenTaxStandsUntilTheFocusLeavesBox3AgainByTabOrByClick) {
    ASSERT_EQ(ssTaxOf("1234.56"), "76.54");
    typeInto(ssTax(), "1");
    tab();
    EXPECT_EQ(ssTax().text, "$1.00") << "the tax box is an ordinary entry field";
    // Through box 3 by Tab, with no change made.
    desktop().setFocus(ssWages());
    tab();
    EXPECT_EQ(ssTax().text, "76.54");
    typeInto(ssTax(), "2");
    tab();
    ASSERT_EQ(ssTax().text, "$2.00");
    // Through box 3 by the mouse.
    desktop().setFocus(ssWages());
    desktop().click(box(0));
    EXPECT_EQ(focus(), &box(0));
    EXPECT_EQ(ssTax().text, "76.54");
}

TEST_F(W2Withholding, TheRatesInForceWhenTheBoxIsLeftAreUsed) {
    ASSERT_EQ(ssTaxOf("1000"), "62.00");
    g().rates.set(RateItem::SocialSecurityRate, "5");
    EXPECT_EQ(ssTax().text, "62.00") << "nothing is computed until the box is left again";
    desktop().setFocus(ssWages());
    tab();
    EXPECT_EQ(ssTax().text, "50.00");
}

TEST_F(W2Withholding, ARateThatIsNoNumberComputesNothingAndSaysWhy) {
    ASSERT_EQ(ssTaxOf("1000"), "62.00");
    g().rates.set(RateItem::SocialSecurityRate, "six");
    test.ui.boxes.clear();
    desktop().setFocus(ssWages());
    const std::string before = ssTax().text;
    typeInto(ssWages(), "2000");
    tab();
    ASSERT_EQ(test.ui.boxes.size(), 1u);
    EXPECT_NE(test.ui.boxes[0].find("Social Security/Medicare Rate must be NUMERIC"), std::string::npos);
    EXPECT_EQ(ssTax().text, before) << "the tax box keeps its value";
    EXPECT_NE(focus(), &ssWages()) << "the wages themselves stand";
}

TEST_F(W2Withholding, OutsideTaxYear2018Box9IsBareAndHidden) {
    EXPECT_EQ(form->at("TaxYear", 1).caption, "25");
    EXPECT_EQ(form->at("Label1", 14).caption, "9.");
    EXPECT_FALSE(box(45).visible);
    typeInto(box(10), "5");
    tab();
    EXPECT_EQ(focus(), &box(12)) << "the hidden box 9 is passed over";
}

TEST_F(W2Withholding, AChangeOfYearKeepsTheFilledBoxesAsTheyAre) {
    ASSERT_EQ(ssTaxOf("1000"), "62.00");
    g().rates.set(RateItem::SocialSecurityRate, "5");
    changeTaxYear(*form);
    EXPECT_EQ(form->at("TaxYear", 1).caption, "26");
    EXPECT_EQ(ssTax().text, "62.00");
    EXPECT_FALSE(box(45).visible);
}

struct W2In2018 : W2Withholding {
    void SetUp() override {
        test.platform.clock = DateTime{2018, 6, 10, 9, 0, 0};
        open();
    }
};

TEST_F(W2In2018, TaxYear18ShowsBox9AndAChangeOfYearHidesIt) {
    EXPECT_EQ(form->at("TaxYear", 1).caption, "18");
    EXPECT_EQ(form->at("Label1", 14).caption, "9. Verification code");
    EXPECT_TRUE(box(45).visible);
    EXPECT_EQ(box(45).toolTipText, "XXXX-XXXX-XXXX-XXXX (a-f, A-F, 0-9, Hyphen allowed)");
    typeInto(box(10), "5");
    tab();
    EXPECT_EQ(focus(), &box(45)) << "box 9 comes between boxes 8 and 10";
    desktop().typeCharacter('7');
    desktop().click(box(0));
    const std::string code = box(45).text;
    ASSERT_NE(code.find('7'), std::string::npos);

    changeTaxYear(*form);
    EXPECT_EQ(form->at("TaxYear", 1).caption, "19");
    EXPECT_EQ(form->at("Label1", 14).caption, "9.");
    EXPECT_FALSE(box(45).visible);
    EXPECT_EQ(box(45).text, code) << "the field keeps its text when hidden";
    // The cycle comes back to 2018 only through 2019, 20XX and 2017.
    changeTaxYear(*form);
    changeTaxYear(*form);
    EXPECT_EQ(form->at("TaxYear", 1).caption, "17");
    EXPECT_FALSE(box(45).visible);
    changeTaxYear(*form);
    EXPECT_EQ(form->at("TaxYear", 1).caption, "18");
    EXPECT_EQ(form->at("Label1", 14).caption, "9. Verification code");
    EXPECT_TRUE(box(45).visible);
}

// The computations alone, on figures handed to them, with no program running.
Rates workedExampleRates() {
    Rates rates;
    rates.set(RateItem::SocialSecurityRate, "6.2");
    rates.set(RateItem::SocialSecurityWageBase, "168,600");
    rates.set(RateItem::MedicareRate, "1.45");
    rates.set(RateItem::MedicareChangePoint, "200,000");
    rates.set(RateItem::MedicareRateAfter, "2.35");
    return rates;
}

int faultOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const AppError& e) {
        return e.number();
    }
    return 0;
}

TEST(W2WithholdingFigures, TheTaxesAreWorkedOutFromTheFiguresGiven) {
    const Rates rates = workedExampleRates();
    EXPECT_EQ(socialSecurityTax(rates, 1234.56).toDecimalString(), "76.5427");
    EXPECT_EQ(socialSecurityTax(rates, 200000).toDecimalString(), "10453.2") << "capped at the wage base";
    EXPECT_EQ(medicareTax(rates, 1234.56).toDecimalString(), "17.9011");
    EXPECT_EQ(medicareTax(rates, 250000).toDecimalString(), "4075");
    Rates separately = rates;
    separately.set(RateItem::MedicareChangePoint, "125,000");
    EXPECT_EQ(medicareTax(separately, 126011.70).toDecimalString(), "1836.275");
}

TEST(W2WithholdingFigures, AFigureThatIsNoNumberIsATypeMismatchOnlyWhereItIsUsed) {
    Rates rates = workedExampleRates();
    // Passes the edit of a rate field, yet is no number.
    rates.set(RateItem::MedicareRateAfter, "12.5-");
    EXPECT_EQ(medicareTax(rates, 1000).toDecimalString(), "14.5") << "no wages over the change point";
    EXPECT_EQ(faultOf([&] { medicareTax(rates, 250000); }), err::kTypeMismatch);
    // The Medicare rates are read as they stand, with no percent sign read past.
    rates = workedExampleRates();
    rates.set(RateItem::MedicareRate, "1.45%");
    EXPECT_EQ(faultOf([&] { medicareTax(rates, 1000); }), err::kTypeMismatch);
    rates = workedExampleRates();
    rates.set(RateItem::SocialSecurityRate, "6.2%");
    EXPECT_EQ(socialSecurityTax(rates, 1000).toDecimalString(), "62");
    rates.set(RateItem::SocialSecurityWageBase, "");
    EXPECT_EQ(faultOf([&] { socialSecurityTax(rates, 1000); }), err::kTypeMismatch);
}

TEST(W2WithholdingFigures, ATaxBeyondWhatCanBeCountedOverflows) {
    const Rates rates = workedExampleRates();
    EXPECT_THROW(medicareTax(rates, 1e17), std::overflow_error);
    EXPECT_NO_THROW(socialSecurityTax(rates, 1e17)) << "the wage base caps it";
}

}  // namespace
}  // namespace lw

// Which printer the next page goes to, from the choices and the machine handed in.
#include <gtest/gtest.h>

#include "fixed_platform.h"
#include "model/user_choices.h"
#include "output/form_print.h"

namespace lw {
namespace {

TEST(CurrentPrinter, ThePrinterAPrintChoseElseTheMachinesDefaultElseNone) {
    testing::FixedPlatform machine;
    UserChoices choices;
    EXPECT_EQ(currentPrinter(choices, machine), "") << "no printer anywhere";
    machine.machinePrinters = {"Default Laser", "Office Inkjet"};
    EXPECT_EQ(currentPrinter(choices, machine), "Default Laser");
    choices.printerName = "Office Inkjet";
    EXPECT_EQ(currentPrinter(choices, machine), "Default Laser")
        << "a choice counts once a print has found it";
    choices.currentPrinter = "Office Inkjet";
    EXPECT_EQ(currentPrinter(choices, machine), "Office Inkjet");
}

}  // namespace
}  // namespace lw

#pragma once
// A K-1 on paper: the half on show of its two tab pages lifted to the top, its two panels side by side,
// with no strip of tabs above them; and the tab strip given back afterwards.

#include <optional>
#include <string>

#include "model/color.h"

namespace lw {

class Form;

// The size of the tab strip before a clip lifted the half on show.
struct K1Tabs {
    int height = 0;
    int width = 0;
};

// "1" for the top half on show, "2" for the bottom one.
std::string shownHalf(const Form& form);
// Lifts the half on show; a clip keeps a strip of one twip, a page of paper keeps none.
K1Tabs liftShownHalf(Form& form, int strip = 1);
// The tab strip and the panels of the half on show back in their places.
void putBackTabs(Form& form, const K1Tabs& noted);

// While it lives, the half on show of a K-1 stands as a page of paper. Any other form is left as it is.
class HalfAsPaper {
public:
    explicit HalfAsPaper(Form& form);
    ~HalfAsPaper();
    HalfAsPaper(const HalfAsPaper&) = delete;
    HalfAsPaper& operator=(const HalfAsPaper&) = delete;

private:
    struct Noted {
        int width, height, tabHeight;
        Color tabBack;
        int leftTop, rightTop;
        Color leftBack, rightBack;
    };
    Form& form_;
    std::optional<Noted> noted_;
};

}  // namespace lw

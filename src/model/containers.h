#pragma once
// Controls inside other controls: panels and the pages of a tab control. A control's place is relative
// to its container; what the screen shows is the controls whose containers show, on the tab on show.

#include "model/control.h"

namespace lw {

// Puts a control inside a container, on one page of it when the container is a tab control.
void placeInside(Control& child, Control& container, int page = -1);

// The place of a control on its form, whatever containers it lies in.
int formLeft(const Control& c);
int formTop(const Control& c);
// The offset that the containers of a control add to its own coordinates (a line's two ends too).
int originLeft(const Control& c);
int originTop(const Control& c);

// False when the control or one of its containers is hidden, or lies on a page that is not on show.
// Visible stays as the logic set it: a field on a hidden page still takes the focus by Tab.
bool isShown(const Control& c);
// As isShown, but as if the page of the innermost tab control the control lies on were on show: what
// the control shows once its page is turned to.
bool isShownOnItsPage(const Control& c);

// The page of a tab control that the control lies on, however deep in panels; -1 off any tab control.
// tabsOf gives that tab control, or nullptr.
int pageOf(const Control& c);
Control* tabsOf(const Control& c);

// The tab on show of a tab control, and the change of it; a tab outside the control's tabs is refused.
int tabOf(const Control& tabs);
bool setTab(Control& tabs, int tab);

}  // namespace lw

#include "model/containers.h"

namespace lw {

void placeInside(Control& child, Control& container, int page) {
    child.container = &container;
    child.page = container.kind == ControlKind::TabControl ? page : -1;
}

int originLeft(const Control& c) {
    int left = 0;
    for (const Control* up = c.container; up; up = up->container) left += up->left;
    return left;
}

int originTop(const Control& c) {
    int top = 0;
    for (const Control* up = c.container; up; up = up->container) top += up->top;
    return top;
}

int formLeft(const Control& c) { return c.left + originLeft(c); }
int formTop(const Control& c) { return c.top + originTop(c); }

namespace {

// Whether the control and its containers show; with ownPageTaken, the page it lies on of the innermost
// tab control counts as on show.
bool shows(const Control& c, bool ownPageTaken) {
    const Control* inner = &c;
    if (!inner->visible) return false;
    for (const Control* up = c.container; up; inner = up, up = up->container) {
        if (!up->visible) return false;
        if (up->kind != ControlKind::TabControl) continue;
        if (!ownPageTaken && inner->page >= 0 && inner->page != tabOf(*up)) return false;
        ownPageTaken = false;
    }
    return true;
}

}  // namespace

bool isShown(const Control& c) { return shows(c, false); }

bool isShownOnItsPage(const Control& c) { return shows(c, true); }

int pageOf(const Control& c) {
    for (const Control* inner = &c; inner->container; inner = inner->container)
        if (inner->container->kind == ControlKind::TabControl) return inner->page;
    return -1;
}

Control* tabsOf(const Control& c) {
    for (const Control* inner = &c; inner->container; inner = inner->container)
        if (inner->container->kind == ControlKind::TabControl) return inner->container;
    return nullptr;
}

int tabOf(const Control& tabs) { return tabs.listIndex < 0 ? 0 : tabs.listIndex; }

bool setTab(Control& tabs, int tab) {
    if (tab < 0 || tab >= static_cast<int>(tabs.items.size())) return false;
    tabs.listIndex = tab;
    tabs.text = tabs.items[static_cast<std::size_t>(tab)];
    return true;
}

}  // namespace lw

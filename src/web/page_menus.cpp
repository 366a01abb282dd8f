// The frame's menus as the page's own elements, made anew whenever the engine changes them: a button for
// each menu and one for each item the engine shows, disabled where the engine disables it.
#include "text/cp1252.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

namespace {

// "&File" is shown as "File": the page's menus take no accelerator letters yet.
std::string shownCaption(const std::string& caption) {
    std::string out;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        out.push_back(caption[i]);
    }
    return text::cp1252ToUtf8(out);
}

void describe(const MenuItem& item, std::string& into) {
    into += item.name + '\x1f' + item.caption + (item.enabled ? '1' : '0') + (item.visible ? '1' : '0');
    for (const MenuItem& inner : item.items) describe(inner, into);
    into += '\x1e';
}

val element(val& document, const std::string& tag, const std::string& className) {
    val made = document.call<val>("createElement", tag);
    if (!className.empty()) made.set("className", className);
    return made;
}

void addItems(val& document, val& list, const std::vector<MenuItem>& items) {
    for (const MenuItem& item : items) {
        if (!item.visible) continue;
        if (item.caption == "-") {
            list.call<void>("appendChild", element(document, "hr", ""));
            continue;
        }
        val button = element(document, "button", "menu-item");
        button.set("type", std::string("button"));
        button.set("textContent", shownCaption(item.caption));
        button.call<void>("setAttribute", std::string("role"), std::string("menuitem"));
        button.call<void>("setAttribute", std::string("data-menu"), item.name);
        button.set("disabled", !item.enabled);
        list.call<void>("appendChild", button);
        if (!item.items.empty()) {
            val inner = element(document, "div", "menu-list");
            addItems(document, inner, item.items);
            list.call<void>("appendChild", inner);
        }
    }
}

}  // namespace

void PageView::buildMenus() {
    Form* frame = program_.desktop.frame();
    std::string shown;
    if (frame)
        for (const MenuItem& menu : frame->menus) describe(menu, shown);
    if (shown == menusShown_) return;
    menusShown_ = shown;

    val bar = document_.call<val>("getElementById", std::string("menus"));
    bar.set("textContent", std::string());
    if (!frame) return;
    for (const MenuItem& menu : frame->menus) {
        if (!menu.visible) continue;
        val holder = element(document_, "div", "menu");
        val title = element(document_, "button", "menu-title");
        title.set("type", std::string("button"));
        title.set("textContent", shownCaption(menu.caption));
        title.call<void>("setAttribute", std::string("aria-haspopup"), std::string("true"));
        title.set("disabled", !menu.enabled);
        holder.call<void>("appendChild", title);
        val list = element(document_, "div", "menu-list");
        list.call<void>("setAttribute", std::string("role"), std::string("menu"));
        addItems(document_, list, menu.items);
        holder.call<void>("appendChild", list);
        bar.call<void>("appendChild", holder);
    }
}

}  // namespace lw::web

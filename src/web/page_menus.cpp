// The frame's menus as the page's own elements, made anew whenever the engine changes them: a menubar of
// menu titles, each with its access letter underlined, and for each menu the items the engine shows,
// disabled where the engine disables it.
#include <cctype>

#include "text/cp1252.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

namespace {

// The place of the access letter a caption marks with "&", or npos; "&&" is a plain "&".
std::size_t markedLetter(const std::string& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return i + 1;
        ++i;
    }
    return std::string::npos;
}

bool canBeAccessKey(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }

// The access letter of each menu title: the one its caption marks, else the first word's initial no
// earlier menu took, else any free letter of it. A caption with no free letter has none (npos).
std::vector<std::size_t> accessLetters(const std::vector<const MenuItem*>& menus) {
    std::vector<std::size_t> places(menus.size(), std::string::npos);
    std::string taken;
    auto isFree = [&taken](char c) {
        return canBeAccessKey(c) &&
               taken.find(static_cast<char>(std::toupper(static_cast<unsigned char>(c)))) ==
                   std::string::npos;
    };
    for (std::size_t m = 0; m < menus.size(); ++m) {
        const std::string& caption = menus[m]->caption;
        std::size_t place = markedLetter(caption);
        for (std::size_t i = 0; place == std::string::npos && i < caption.size(); ++i)
            if ((i == 0 || !canBeAccessKey(caption[i - 1])) && isFree(caption[i])) place = i;
        for (std::size_t i = 0; place == std::string::npos && i < caption.size(); ++i)
            if (isFree(caption[i])) place = i;
        if (place == std::string::npos) continue;
        places[m] = place;
        taken.push_back(static_cast<char>(std::toupper(static_cast<unsigned char>(caption[place]))));
    }
    return places;
}

// The caption as the page shows it: without its "&" markers, "&&" as "&".
std::string shownText(const std::string& caption) {
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

void setAttribute(val& on, const std::string& name, const std::string& value) {
    on.call<void>("setAttribute", name, value);
}

// A title's caption with its access letter underlined, as the desktop's menubar shows it.
void showCaption(val& document, val& title, const std::string& caption, std::size_t letter) {
    if (letter == std::string::npos) {
        title.set("textContent", shownText(caption));
        return;
    }
    title.call<void>("append", shownText(caption.substr(0, letter)));
    val underlined = element(document, "u", "access-key");
    underlined.set("textContent", shownText(caption.substr(letter, 1)));
    title.call<void>("append", underlined);
    title.call<void>("append", shownText(caption.substr(letter + 1)));
}

void addItems(val& document, val& list, const std::vector<MenuItem>& items) {
    for (const MenuItem& item : items) {
        if (!item.visible) continue;
        if (item.caption == "-") {
            val line = element(document, "hr", "");
            setAttribute(line, "role", "separator");
            list.call<void>("appendChild", line);
            continue;
        }
        val button = element(document, "button", "menu-item");
        button.set("type", std::string("button"));
        button.set("textContent", shownText(item.caption));
        button.set("tabIndex", -1);
        setAttribute(button, "role", "menuitem");
        setAttribute(button, "data-menu", item.name);
        setAttribute(button, "aria-disabled", item.enabled ? "false" : "true");
        button.set("disabled", !item.enabled);
        list.call<void>("appendChild", button);
        if (!item.items.empty()) {
            setAttribute(button, "aria-haspopup", "menu");
            setAttribute(button, "aria-expanded", "false");
            val inner = element(document, "div", "menu-list");
            setAttribute(inner, "role", "menu");
            setAttribute(inner, "aria-label", shownText(item.caption));
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
    std::vector<const MenuItem*> menus;
    for (const MenuItem& menu : frame->menus)
        if (menu.visible) menus.push_back(&menu);
    const std::vector<std::size_t> letters = accessLetters(menus);
    bool first = true;
    for (std::size_t m = 0; m < menus.size(); ++m) {
        const MenuItem& menu = *menus[m];
        val holder = element(document_, "div", "menu");
        setAttribute(holder, "role", "none");
        val title = element(document_, "button", "menu-title");
        title.set("type", std::string("button"));
        showCaption(document_, title, menu.caption, letters[m]);
        setAttribute(title, "role", "menuitem");
        setAttribute(title, "id", "menu-" + menu.name);
        setAttribute(title, "aria-haspopup", "menu");
        setAttribute(title, "aria-expanded", "false");
        setAttribute(title, "aria-disabled", menu.enabled ? "false" : "true");
        if (letters[m] != std::string::npos) {
            const char letter =
                static_cast<char>(std::toupper(static_cast<unsigned char>(menu.caption[letters[m]])));
            setAttribute(title, "aria-keyshortcuts", std::string("Alt+") + letter);
            setAttribute(title, "data-access-key", std::string(1, letter));
        }
        // One title of the bar is in the page's tab order; the arrows go to the others.
        title.set("tabIndex", first && menu.enabled ? 0 : -1);
        if (menu.enabled) first = false;
        title.set("disabled", !menu.enabled);
        holder.call<void>("appendChild", title);
        val list = element(document_, "div", "menu-list");
        setAttribute(list, "role", "menu");
        setAttribute(list, "aria-labelledby", "menu-" + menu.name);
        addItems(document_, list, menu.items);
        holder.call<void>("appendChild", list);
        bar.call<void>("appendChild", holder);
    }
}

}  // namespace lw::web

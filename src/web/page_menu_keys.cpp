// The keyboard's way through the menubar and to the frame's keys, looked at before the element a key is
// pressed on takes it: Alt with a title's access letter opens its menu, Alt alone goes to the bar, the
// arrows move between titles and items, Enter or Space chooses, Escape closes and gives the focus back.
// Function keys and Ctrl with a letter pressed outside a field reach the engine's focused field, as the
// desktop's frame hands every key of its forms to it.
#include <vector>

#include "model/keys.h"
#include "web/page_view.h"

namespace lw::web {

using emscripten::val;

namespace {

// Key codes of the keys the menus take that the engine has no name for.
constexpr int kAlt = 18;
constexpr int kUp = 38;
constexpr int kDown = 40;

bool isElement(const val& node) { return !node.isNull() && !node.isUndefined(); }

bool hasClass(const val& node, const char* name) {
    return isElement(node) && node["classList"].call<bool>("contains", std::string(name));
}

bool isUsable(const val& node) { return !node["disabled"].as<bool>(); }

std::vector<val> allOf(const val& nodes) {
    std::vector<val> out;
    for (int i = 0, count = nodes["length"].as<int>(); i < count; ++i) out.push_back(nodes[i]);
    return out;
}

std::vector<val> usableTitles(val& document) {
    std::vector<val> titles;
    for (const val& title : allOf(document.call<val>("querySelectorAll", std::string("#menus .menu-title"))))
        if (isUsable(title)) titles.push_back(title);
    return titles;
}

// The items of a menu the arrows go through: its own enabled items, not those of a submenu within it.
std::vector<val> usableItems(const val& list) {
    std::vector<val> items;
    if (!isElement(list)) return items;
    for (const val& child : allOf(list["children"]))
        if (hasClass(child, "menu-item") && isUsable(child)) items.push_back(child);
    return items;
}

// The one `by` places from `from` among `among`, round the ends; the first (or last) when `from` is not
// among them.
val stepFrom(const std::vector<val>& among, const val& from, int by) {
    if (among.empty()) return val::null();
    const int count = static_cast<int>(among.size());
    for (int i = 0; i < count; ++i)
        if (among[static_cast<std::size_t>(i)].strictlyEquals(from))
            return among[static_cast<std::size_t>(((i + by) % count + count) % count)];
    return by >= 0 ? among.front() : among.back();
}

void setExpanded(val node, bool expanded) {
    node.call<void>("setAttribute", std::string("aria-expanded"), std::string(expanded ? "true" : "false"));
}

val submenuOf(const val& item) {
    const val next = item["nextElementSibling"];
    return hasClass(next, "menu-list") ? next : val::null();
}

bool isFrameKey(int keyCode, int shift) {
    if (keys::isFunctionKey(keyCode)) return true;
    const bool ctrl = shift & keys::kCtrlMask, alt = shift & keys::kAltMask;
    // Ctrl+V brings its text with the paste that follows.
    return ctrl && !alt && keyCode >= 'A' && keyCode <= 'Z' && keyCode != 'V';
}

}  // namespace

PageView::KeySeen PageView::keySeen(int keyCode, int shift, bool released) {
    const bool altWasAlone = altAlone_;
    altAlone_ = !released && keyCode == kAlt && shift == keys::kAltMask;
    val active = document_["activeElement"];
    const bool inField = isElement(active) && active.call<bool>("hasAttribute", std::string("data-field"));
    const bool toEngine = !released && !inField && isFrameKey(keyCode, shift);
    // Over a modal form the menubar is out of reach, as it is on the desktop.
    if (modal_) return toEngine ? KeySeen::ToEngine : KeySeen::Passes;
    const bool inMenus = isElement(active) && isElement(active.call<val>("closest", std::string("#menus")));
    if (released) {
        if (!altWasAlone || keyCode != kAlt) return KeySeen::Passes;
        if (inMenus)
            closeMenusByKey();
        else
            focusMenubar();
        return KeySeen::Taken;
    }
    const bool accessKey = (shift & (keys::kAltMask | keys::kCtrlMask)) == keys::kAltMask &&
                           ((keyCode >= 'A' && keyCode <= 'Z') || (keyCode >= '0' && keyCode <= '9'));
    if (accessKey) {
        const std::string letter(1, static_cast<char>(keyCode));
        val title =
            document_.call<val>("querySelector", "#menus .menu-title[data-access-key=\"" + letter + "\"]");
        if (isElement(title) && isUsable(title)) {
            openMenu(title, false);
            return KeySeen::Taken;
        }
    }
    if (inMenus) return menuKey(active, keyCode);
    return toEngine ? KeySeen::ToEngine : KeySeen::Passes;
}

PageView::KeySeen PageView::menuKey(val active, int key) {
    if (hasClass(active, "menu-title")) {
        const bool open = hasClass(active["parentElement"], "open");
        if (key == keys::kRight || key == keys::kLeft || key == keys::kHome || key == keys::kEnd) {
            const std::vector<val> titles = usableTitles(document_);
            if (titles.empty()) return KeySeen::Taken;
            const val next = key == keys::kHome  ? titles.front()
                             : key == keys::kEnd ? titles.back()
                                                 : stepFrom(titles, active, key == keys::kRight ? 1 : -1);
            if (open)
                openMenu(next, false);
            else
                focusTitle(next);
            return KeySeen::Taken;
        }
        if (key == kDown || key == kUp || key == keys::kEnter || key == keys::kSpace) {
            openMenu(active, key == kUp);
            return KeySeen::Taken;
        }
        if (key == keys::kEscape || key == keys::kTab) {
            closeMenusByKey();
            return KeySeen::Taken;
        }
        return KeySeen::Passes;
    }
    if (!hasClass(active, "menu-item")) return KeySeen::Passes;
    const val list = active["parentElement"];
    const val owner = list["previousElementSibling"];
    const bool inSubmenu = hasClass(list["parentElement"], "menu-list") && hasClass(owner, "menu-item");
    const val submenu = submenuOf(active);
    const std::vector<val> items = usableItems(list);
    if (key == kDown || key == kUp) {
        const val next = stepFrom(items, active, key == kDown ? 1 : -1);
        if (isElement(next)) next.call<void>("focus");
        return KeySeen::Taken;
    }
    if (key == keys::kHome || key == keys::kEnd) {
        if (!items.empty()) (key == keys::kHome ? items.front() : items.back()).call<void>("focus");
        return KeySeen::Taken;
    }
    if ((key == keys::kEnter || key == keys::kSpace || key == keys::kRight) && isElement(submenu)) {
        const std::vector<val> inner = usableItems(submenu);
        if (!inner.empty()) {
            setExpanded(active, true);
            inner.front().call<void>("focus");
        }
        return KeySeen::Taken;
    }
    if (key == keys::kEnter || key == keys::kSpace) return KeySeen::ChoosesItem;
    if ((key == keys::kLeft || key == keys::kEscape) && inSubmenu) {
        setExpanded(owner, false);
        owner.call<void>("focus");
        return KeySeen::Taken;
    }
    if (key == keys::kRight || key == keys::kLeft) {
        const val title = active.call<val>("closest", std::string(".menu"))["firstElementChild"];
        openMenu(stepFrom(usableTitles(document_), title, key == keys::kRight ? 1 : -1), false);
        return KeySeen::Taken;
    }
    if (key == keys::kEscape || key == keys::kTab) {
        closeMenusByKey();
        return KeySeen::Taken;
    }
    return KeySeen::Passes;
}

void PageView::rememberFocusBeforeMenus() {
    val active = document_["activeElement"];
    if (isElement(active) && isElement(active.call<val>("closest", std::string("#menus")))) return;
    focusBeforeMenus_ = active;
}

void PageView::closeOpenMenus() {
    for (val menu : allOf(document_.call<val>("querySelectorAll", std::string("#menus .menu.open")))) {
        menu["classList"].call<void>("remove", std::string("open"));
        setExpanded(menu["firstElementChild"], false);
    }
}

void PageView::focusTitle(val title) {
    if (!isElement(title)) return;
    rememberFocusBeforeMenus();
    for (val other : allOf(document_.call<val>("querySelectorAll", std::string("#menus .menu-title"))))
        other.set("tabIndex", other.strictlyEquals(title) ? 0 : -1);
    title.call<void>("focus");
}

// Alt alone goes to the first menu of the bar, as a window's menubar takes it.
void PageView::focusMenubar() {
    const std::vector<val> titles = usableTitles(document_);
    if (!titles.empty()) focusTitle(titles.front());
}

void PageView::openMenu(val title, bool atLastItem) {
    if (!isElement(title)) return;
    closeOpenMenus();
    focusTitle(title);
    title["parentElement"]["classList"].call<void>("add", std::string("open"));
    setExpanded(title, true);
    const std::vector<val> items = usableItems(title["nextElementSibling"]);
    if (!items.empty()) (atLastItem ? items.back() : items.front()).call<void>("focus");
}

void PageView::closeMenusByKey() {
    closeOpenMenus();
    val back = focusBeforeMenus_;
    focusBeforeMenus_ = val::null();
    const Control* focus = program_.desktop.focus();
    if (focus && indexOf(focus) >= 0) {
        showFields();  // the engine's focused field takes the page's focus again
        return;
    }
    if (isElement(back) && back["isConnected"].as<bool>() && !back.strictlyEquals(document_["body"])) {
        back.call<void>("focus");
        return;
    }
    val active = document_["activeElement"];
    if (isElement(active)) active.call<void>("blur");
}

}  // namespace lw::web

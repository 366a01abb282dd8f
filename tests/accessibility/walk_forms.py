#!/usr/bin/python3
"""Walks every form of the program's menu through the AT-SPI bus, as a screen reader sees it.

Opens each form with its menu item, turns every page of a tab control, and fails on a field without a
name, on two fields of one form with the same name, on a field whose name does not carry the caption of
the box that labels it (or a box caption that stands below or right of its field), on a field of a tax
form that no box caption labels, on an option button announced as a check box, and on a colour legend
entry that is not read as static text.
"""

import sys
import time

import pyatspi

APP_NAME = sys.argv[1] if len(sys.argv) > 1 else "Ledgerwick_Venturo"
START_TIMEOUT = 120.0
FORM_TIMEOUT = 60.0

FIELD_ROLES = {
    pyatspi.ROLE_TEXT: "text",
    pyatspi.ROLE_ENTRY: "text",
    pyatspi.ROLE_PASSWORD_TEXT: "text",
    pyatspi.ROLE_CHECK_BOX: "check box",
    pyatspi.ROLE_RADIO_BUTTON: "radio button",
    pyatspi.ROLE_COMBO_BOX: "combo box",
    pyatspi.ROLE_PUSH_BUTTON: "push button",
}
# Fields a box of the form names; buttons carry their own captions.
ENTRY_ROLES = {pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_COMBO_BOX}
# The menus whose forms are tax forms, each field in a numbered or captioned box.
TAX_MENUS = {"W2 Forms", "1099 Forms", "1098 Forms", "SS, RRB and CSA/CSF Forms", "K1 and 1095 Forms"}
# The Control menu opens one form: the configuration.
CONTROL_MENU = "Control"

failures = []


def fail(form, message):
    failures.append(f"{form}: {message}")
    print(f"FAIL {form}: {message}", flush=True)


def wait_for(what, probe, timeout):
    deadline = time.monotonic() + timeout
    while time.monotonic() < deadline:
        try:
            found = probe()
        except Exception:  # the tree changes while it is read
            found = None
        if found:
            return found
        time.sleep(0.25)
    raise SystemExit(f"timed out waiting for {what}")


def children(node):
    try:
        return [node.getChildAtIndex(i) for i in range(node.childCount)]
    except Exception:
        return []


def descendants(node, depth=0):
    for child in children(node):
        if child is None:
            continue
        yield child
        if depth < 12:
            yield from descendants(child, depth + 1)


def showing(node):
    states = node.getState()
    return states.contains(pyatspi.STATE_SHOWING) and states.contains(pyatspi.STATE_VISIBLE)


def extents(node):
    box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return (box.x, box.y, box.width, box.height)


def the_app():
    desktop = pyatspi.Registry.getDesktop(0)
    for app in children(desktop):
        if app is not None and app.name == APP_NAME:
            return app
    return None


def the_frame(app):
    for child in children(app):
        if child.getRole() == pyatspi.ROLE_FRAME:
            return child
    return None


def form_nodes(frame):
    return [node for node in descendants(frame) if node.getRole() == pyatspi.ROLE_FORM]


def legend_panel(frame):
    """The panel's form: the one that holds the frame's command buttons."""
    for form in form_nodes(frame):
        if any(c.getRole() == pyatspi.ROLE_PUSH_BUTTON and c.name == "Configure" for c in children(form)):
            return form
    return None


def child_form(frame, panel):
    forms = [f for f in form_nodes(frame) if f != panel and showing(f)]
    return forms[0] if len(forms) == 1 else None


def menu_items(frame):
    """(menu, item) for every item of the menu bar that opens a form."""
    bar = next(n for n in descendants(frame) if n.getRole() == pyatspi.ROLE_MENU_BAR)
    found = []
    for menu in children(bar):
        for popup in children(menu):
            for item in children(popup):
                if item.getRole() != pyatspi.ROLE_MENU_ITEM or not item.name:
                    continue
                if menu.name == CONTROL_MENU and not item.name.startswith("Configure"):
                    continue
                found.append((menu.name, item))
    return found


def designation(box_name):
    """'Box 12b' of 'Box 12b, See instructions'; a caption without a number is said whole."""
    return box_name.split(",")[0].strip()


def check_legend(frame):
    panel = legend_panel(frame)
    if panel is None:
        fail("legend", "no panel with the command buttons")
        return
    entries = {c.name: c.getRoleName() for c in children(panel) if c.name in ("Money", "Date Field", "EIN #")}
    if len(entries) != 3:
        fail("legend", f"entries not found by their words: {sorted(entries)}")
    for name, role in entries.items():
        if role != "label":
            fail("legend", f"'{name}' is announced as {role}, not as static text")
    if any(c.getRole() in (pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY) for c in children(panel)):
        fail("legend", "an entry of the legend is still editable text")


def collect(form_node, fields, boxes):
    """Adds the showing fields of the page on show, and the box captions that label them."""
    captions = []
    for node in descendants(form_node):
        role = node.getRole()
        if role == pyatspi.ROLE_LABEL and showing(node):
            captions.append(node)
        if role not in FIELD_ROLES or not showing(node):
            continue
        key = (role, node.name, extents(node))
        fields.setdefault(key, node)
    for caption in captions:
        for relation in caption.getRelationSet():
            if relation.getRelationType() != pyatspi.RELATION_LABEL_FOR:
                continue
            for i in range(relation.getNTargets()):
                target = relation.getTarget(i)
                if target is None or not showing(target):
                    continue
                key = (target.getRole(), target.name, extents(target))
                boxes[key] = (caption.name, extents(caption))


def page_tabs(form_node):
    return [n for n in descendants(form_node) if n.getRole() == pyatspi.ROLE_PAGE_TAB]


def check_form(label, tax_form, fields, boxes):
    names = {}
    for key in fields:
        role, name, _ = key
        what = FIELD_ROLES[role]
        if not name.strip():
            fail(label, f"a {what} at {key[2]} has no name")
            continue
        if name in names:
            fail(label, f"two fields say '{name}'")
        names[name] = key
        box = boxes.get(key)
        if box is None:
            if tax_form and role in ENTRY_ROLES:
                fail(label, f"the {what} '{name}' is labelled by no box")
            continue
        box_name, (bx, by, _, bh) = box
        x, y, w, h = key[2]
        if designation(box_name) not in name:
            fail(label, f"the {what} '{name}' does not carry its box '{box_name}'")
        # A box's caption stands above its field or on its line (a check box's caption may stand to its
        # right), never below it, nor right of it and higher than the line right above it.
        level = by < y + h and y < by + bh
        right_above = 0 <= y - (by + bh) <= 10
        if by > y + h or (bx > x + w and not level and not right_above):
            fail(label, f"the box '{box_name}' of '{name}' stands below it or right of it off its line")


def main():
    app = wait_for("the program on the accessibility bus", the_app, START_TIMEOUT)
    frame = wait_for("the program's window", lambda: the_frame(app), START_TIMEOUT)
    panel = wait_for("the panel of the window", lambda: legend_panel(frame), START_TIMEOUT)
    check_legend(frame)
    items = menu_items(frame)
    print(f"{len(items)} forms in the menu", flush=True)
    walked = 0
    for menu, item in items:
        label = f"{menu} > {item.name}"
        before = child_form(frame, panel)
        before_name = before.name if before is not None else None
        item.queryAction().doAction(0)

        def opened():
            form = child_form(frame, panel)
            if form is None:
                return None
            if before_name is not None and form.name == before_name and not item.name.startswith("Configure"):
                return None
            return form

        form = wait_for(f"the form of {label}", opened, FORM_TIMEOUT)
        fields, boxes = {}, {}
        tabs = page_tabs(form)
        if tabs:
            for tab in tabs:
                tab.queryAction().doAction(0)
                wait_for(f"the page '{tab.name}' of {label}",
                         lambda: tab.getState().contains(pyatspi.STATE_SELECTED), FORM_TIMEOUT)
                collect(form, fields, boxes)
        else:
            collect(form, fields, boxes)
        if not fields:
            fail(label, "no field found")
        if any(key[0] == pyatspi.ROLE_CHECK_BOX for key in fields) and item.name.startswith("Configure"):
            fail(label, "an option button is announced as a check box")
        check_form(label, menu in TAX_MENUS, fields, boxes)
        pages = f", {len(tabs)} pages" if tabs else ""
        print(f"{label}: {len(fields)} fields, {len(boxes)} labelled by their boxes{pages}", flush=True)
        walked += 1
    passed = walked - len({f.split(':')[0] for f in failures if f.split(':')[0] != 'legend'})
    failed = walked - passed
    print(f"{passed} passed, {failed} failed")
    return 1 if failures or walked < len(items) or walked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())

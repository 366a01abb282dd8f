#!/usr/bin/env python3
"""A few fields of every form of the menu, filled as the gallery fills them (tools/screenshot-forms): the
operator's commands for each form, as JSON, for the browser test that compares the page's forms with
the native program's pictures of them. Only text is pasted into fields: boxes, lists and clicks are
left out, so that the page and the runner take the very same input.

    form_fills.py BUILD_DIR [FIELDS_PER_FORM]
"""
import json
import os
import sys
import types

sys.dont_write_bytecode = True
here = os.path.dirname(os.path.abspath(__file__))
# The gallery's own code, read from its command (a file without a suffix) as a module of its own.
source = os.path.join(here, "../../tools/screenshot-forms")
gallery = types.ModuleType("screenshot_forms")
gallery.__file__ = source
with open(source, encoding="utf-8") as code:
    exec(compile(code.read(), source, "exec"), gallery.__dict__)


def text_fills(commands, count):
    """The first fields' commands: each field's focus, the keys that select what it shows, its paste."""
    groups, current = [], None
    for line in commands:
        word = line.split()[0]
        if word == "focus":
            current = [line]
            groups.append(current)
        elif current is not None and (word == "paste" or line in ("key Home", "key Shift+End")):
            current.append(line)
        else:
            current = None
    filled = [group for group in groups if group[-1].startswith("paste ")][:count]
    if not filled:
        return []
    # Leaving the last field edits it, as a click back into the first one would.
    return [line for group in filled for line in group] + [filled[0][0]]


def main():
    build = os.path.abspath(sys.argv[1] if len(sys.argv) > 1 else "build")
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 4
    runner = gallery.Runner(build)
    items = gallery.menu_items(runner)
    controls = gallery.forms_controls(runner, items)
    codes = gallery.k1_codes(runner.bin)
    plan = []
    for item, form in items:
        commands, _ = gallery.fill_commands(form, controls[item], codes)
        plan.append({"item": item, "form": form, "commands": text_fills(commands, count)})
    json.dump(plan, sys.stdout, indent=1)
    print()


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""The gallery of the forms stays whole: tools/screenshot-forms, run into a new folder, ends well and
draws every picture that the program's menu calls for.

Every menu item that opens a form gives that form empty and filled, at 100% and 200%; a form on a tab
control gives its Bottom half as well; every form but the configuration (which is no document) gives
its filled page as printed. Each filled picture differs from the empty one, each 200% picture is twice
the size of its 100% one, and each printed picture is as wide as its resolution makes the form.

    check_gallery.py SOURCE_DIR BUILD_DIR
"""
import os
import re
import struct
import subprocess
import sys
import tempfile

DPI = 48  # the printed pictures only need to be there: a low resolution keeps the test quick


def png_size(path):
    with open(path, "rb") as f:
        head = f.read(24)
    if head[:8] != b"\x89PNG\r\n\x1a\n" or head[12:16] != b"IHDR":
        return None
    return struct.unpack(">II", head[16:24])


def forms_of_menu(runner, env):
    """Each menu item that opens a form, with whether that form stands on a tab control."""
    with tempfile.NamedTemporaryFile("w", suffix=".lws", delete=False) as f:
        f.write("today 2025-06-10\nstart\nlist menu\n")
    listed = subprocess.run([runner, f.name], capture_output=True, text=True, env=env).stdout
    items = re.findall(r"^menu (\S+) (\S+) enabled True ", listed, re.M)
    with open(f.name, "w") as script:
        script.write("today 2025-06-10\nstart\n")
        for item, _ in items:
            script.write(f"menu {item}\nlist controls\n")
    listed = subprocess.run([runner, f.name], capture_output=True, text=True, env=env).stdout
    os.unlink(f.name)
    forms = listed.split("\nform ")[1:]
    if len(forms) != len(items):
        sys.exit(f"the runner listed {len(forms)} forms for {len(items)} menu items:\n{listed}")
    return [(item, form, " TabStrip " in controls) for (item, form), controls in zip(items, forms)]


def expected_pictures(forms):
    """Each expected picture with the picture it is drawn after: (name, empty one, 100% one, zoom)."""
    pictures = []
    for item, form, tabs in forms:
        halves = ["", "-bottom"] if tabs else [""]
        for half in halves:
            empty, filled = f"{item}{half}", f"{item}-filled{half}"
            pictures += [(empty + ".png", None, None, 1), (empty + "@2x.png", None, empty + ".png", 2),
                         (filled + ".png", empty + ".png", None, 1),
                         (filled + "@2x.png", empty + "@2x.png", filled + ".png", 2)]
            if form != "F1_Configure":
                pictures.append((f"{filled}@{DPI}dpi.png", None, filled + ".png", DPI / 96))
    return pictures


def main():
    source, build = sys.argv[1], sys.argv[2]
    env = dict(os.environ)
    env.setdefault("QT_QPA_PLATFORM", "offscreen")
    runner = os.path.join(build, "bin", "ledgerwick-script")
    forms = forms_of_menu(runner, env)
    if len(forms) < 30:
        sys.exit(f"only {len(forms)} forms in the menu")
    failures = []
    with tempfile.TemporaryDirectory() as out:
        done = subprocess.run([os.path.join(source, "tools", "screenshot-forms"), "--dpi", str(DPI), build, out],
                              capture_output=True, text=True, env=env)
        print(done.stdout, end="")
        if done.returncode != 0:
            failures.append(f"tools/screenshot-forms ended with {done.returncode}:\n{done.stderr}")
        pictures = expected_pictures(forms)
        for name, unlike, half, zoom in pictures:
            path = os.path.join(out, name)
            size = png_size(path) if os.path.exists(path) else None
            if not size:
                failures.append(f"{name}: missing or not a PNG picture")
                continue
            if unlike and os.path.exists(os.path.join(out, unlike)):
                with open(path, "rb") as a, open(os.path.join(out, unlike), "rb") as b:
                    if a.read() == b.read():
                        failures.append(f"{name}: the same picture as {unlike}")
            base = png_size(os.path.join(out, half)) if half and os.path.exists(os.path.join(out, half)) else None
            # A printed page is cut to the document: below it the screen's form has its status line.
            compared = zip(size, base or ()) if zoom in (1, 2) else zip(size[:1], (base or ())[:1])
            if base and any(abs(got - want * zoom) > 2 + 0.01 * want * zoom for got, want in compared):
                failures.append(f"{name}: {size[0]}x{size[1]}, not {zoom} times {half}'s {base[0]}x{base[1]}")
        unexpected = set(os.listdir(out)) - {name for name, *_ in pictures}
        if unexpected:
            failures.append("pictures no form calls for: " + " ".join(sorted(unexpected)))
    print(f"{len(forms)} forms, {len(pictures)} pictures expected")
    for failure in failures:
        print("FAIL", failure)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())

"""The bundle of images holds what the sources use, and nothing else, and every image has its SVG source.

The icon of the Windows program is made of the icons of the desktop.

With --rendering it is the pixels that are compared: each PNG against a fresh rendering of its source. Exit status 77
says that this could not be done, since the renderer is not installed.
"""

import re
import shutil
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from pngpixels import read_png

IMAGES = Path("src/app/images")
ICONS = Path("packaging/icons")
WINDOWS_ICON = Path("packaging/windows/orvel-scheduler-manager.ico")
BUNDLE = IMAGES / "images.qrc"
USE = re.compile(r":/images/[\w./-]+\.\w+")
USING_SUFFIXES = {".cpp", ".h", ".ui", ".qss"}

SKIPPED = 77
# Releases of the renderer differ in the last bits of a smoothed edge; a drawing that was changed differs by more.
TOLERANCE = 24


def bundled(root):
    """Resource path by file of the bundle."""
    paths = {}
    for resource in ElementTree.parse(root / BUNDLE).getroot().iter("qresource"):
        for file in resource.iter("file"):
            name = file.get("alias") or file.text
            paths[file.text] = f":{resource.get('prefix')}/{name}"
    return paths


def used(root):
    """Resource paths that the sources name, each with the first place that does."""
    places = {}
    for source in sorted((root / "src").rglob("*")):
        if source.suffix in USING_SUFFIXES:
            for path in USE.findall(source.read_text(encoding="utf-8")):
                places.setdefault(path, source.relative_to(root))
    return places


def check(root):
    """Findings about the bundle, one text each."""
    findings = []
    in_bundle = bundled(root)
    places = used(root)
    directory = root / IMAGES

    for file, path in in_bundle.items():
        if not (directory / file).is_file():
            findings.append(f"{BUNDLE}: no such file: {file}")
        if path not in places:
            findings.append(f"{BUNDLE}: nothing uses {path}")
    for path, place in places.items():
        if path not in in_bundle.values():
            findings.append(f"{place}: {path} is not in {BUNDLE}")

    pngs = {path.stem for path in directory.glob("*.png")}
    svgs = {path.stem for path in (directory / "svg").glob("*.svg")}
    findings += [f"{IMAGES}/{name}.png is not in {BUNDLE}" for name in sorted(pngs) if f"{name}.png" not in in_bundle]
    findings += [f"{IMAGES}/{name}.png has no source in svg/" for name in sorted(pngs - svgs)]
    findings += [f"{IMAGES}/svg/{name}.svg has not been rendered" for name in sorted(svgs - pngs)]
    return findings + check_windows_icon(root)


def images_of(icon):
    """The images of an icon file, each as bytes."""
    count = struct.unpack_from("<H", icon, 4)[0]
    places = [struct.unpack_from("<II", icon, 6 + 16 * index + 8) for index in range(count)]
    return [icon[offset : offset + size] for size, offset in places]


def check_windows_icon(root):
    """Findings about an icon of the Windows program that is not made of the desktop's."""
    if not (root / WINDOWS_ICON).is_file():
        return [f"{WINDOWS_ICON} is missing"]
    icons = [path.read_bytes() for path in (root / ICONS).rglob("*.png")]
    if all(image in icons for image in images_of((root / WINDOWS_ICON).read_bytes())):
        return []
    return [f"{WINDOWS_ICON} is not made of the PNGs in {ICONS}; run tools/render-images"]


def differs(first, second):
    """What sets two PNG files apart, or an empty text."""
    width, height, pixels = read_png(first)
    other_width, other_height, other_pixels = read_png(second)
    if (width, height) != (other_width, other_height):
        return f"{width}x{height} against {other_width}x{other_height}"
    worst = max((abs(a - b) for a, b in zip(pixels, other_pixels)), default=0)
    return f"a channel differs by {worst}" if worst > TOLERANCE else ""


def check_rendering(root):
    """Findings about PNGs that no longer show what their sources draw."""
    findings = []
    with tempfile.TemporaryDirectory() as directory:
        subprocess.run([root / "tools/render-images", directory], check=True)
        images = Path(directory)
        icons = images / "icons"
        for fresh in sorted(images.rglob("*.png")):
            name = ICONS / fresh.relative_to(icons) if icons in fresh.parents else IMAGES / fresh.name
            if (root / name).is_file():
                difference = differs(root / name, fresh)
                if difference:
                    findings.append(f"{name} is not what its source draws: {difference}")
            elif icons in fresh.parents:
                findings.append(f"{name} is missing")
    return findings


def main(arguments):
    rendering = "--rendering" in arguments
    root = Path(arguments[-1])
    if rendering and not shutil.which("rsvg-convert"):
        print("rsvg-convert is not installed")
        return SKIPPED
    problems = check_rendering(root) if rendering else check(root)
    print("\n".join(problems) or "the images are in order")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

"""Makes the icon of the Windows program from the PNGs of the desktop's icon theme.

    python3 packaging/windows/icon.py <icon file> <PNG file>...

An icon file is a directory of images. Windows takes whole PNG files for them, so these are the very bytes.
"""

import struct
import sys
from pathlib import Path

HEADER = struct.Struct("<HHH")  # 0, the type 1 for an icon, number of images
ENTRY = struct.Struct("<BBBBHHII")  # width, height, colours, 0, planes, bits a pixel, size, offset


def size_of(png):
    """Width and height of a PNG, given as bytes."""
    return struct.unpack(">II", png[16:24])


def icon_of(pngs):
    """The icon file with these images, as bytes."""
    entries = []
    offset = HEADER.size + ENTRY.size * len(pngs)
    for png in pngs:
        width, height = size_of(png)
        entries.append(ENTRY.pack(width % 256, height % 256, 0, 0, 1, 32, len(png), offset))  # 0 stands for 256
        offset += len(png)
    return b"".join([HEADER.pack(0, 1, len(pngs)), *entries, *pngs])


if __name__ == "__main__":
    Path(sys.argv[1]).write_bytes(icon_of([Path(name).read_bytes() for name in sys.argv[2:]]))

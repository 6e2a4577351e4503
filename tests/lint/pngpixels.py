"""Reads the pixels of a PNG file with what Python brings along, so that the checks need no image library."""

import struct
import zlib

SIGNATURE = b"\x89PNG\r\n\x1a\n"
CHANNELS_BY_COLOUR_TYPE = {2: 3, 6: 4}


def chunks(data):
    """Pairs of type and content."""
    position = len(SIGNATURE)
    while position < len(data):
        length, kind = struct.unpack_from(">I4s", data, position)
        yield kind, data[position + 8 : position + 8 + length]
        position += 12 + length


def paeth(left, up, corner):
    estimate = left + up - corner
    return min((left, up, corner), key=lambda value: abs(estimate - value))


def unfilter(kind, line, above, channels):
    """One line of bytes as they were before the encoder predicted them from their neighbours."""
    for i, value in enumerate(line):
        left = line[i - channels] if i >= channels else 0
        up = above[i]
        corner = above[i - channels] if i >= channels else 0
        prediction = (0, left, up, (left + up) // 2, paeth(left, up, corner))[kind]
        line[i] = (value + prediction) & 0xFF


def read_png(path):
    """Width, height and pixels: four bytes each, the colour multiplied by the alpha.

    Multiplied, because the colour of a pixel that is next to invisible means nothing. Raises ValueError for a file
    that is no PNG of eight bits a channel.
    """
    data = path.read_bytes()
    if not data.startswith(SIGNATURE):
        raise ValueError(f"{path} is no PNG file")
    parts = list(chunks(data))
    width, height, depth, colour_type, _, _, interlaced = struct.unpack(">IIBBBBB", dict(parts)[b"IHDR"])
    if depth != 8 or colour_type not in CHANNELS_BY_COLOUR_TYPE or interlaced:
        raise ValueError(f"{path} is not plain RGB or RGBA of eight bits")
    channels = CHANNELS_BY_COLOUR_TYPE[colour_type]
    packed = zlib.decompress(b"".join(content for kind, content in parts if kind == b"IDAT"))

    pixels = bytearray()
    stride = width * channels
    above = bytearray(stride)
    for start in range(0, height * (stride + 1), stride + 1):
        line = bytearray(packed[start + 1 : start + 1 + stride])
        unfilter(packed[start], line, above, channels)
        above = line
        for i in range(0, stride, channels):
            alpha = line[i + 3] if channels == 4 else 255
            pixels += bytes(value * alpha // 255 for value in line[i : i + 3]) + bytes([alpha])
    return width, height, bytes(pixels)

"""Reads the PNG files that the recipes write: 8 bits a channel, no palette, not interlaced."""
import struct
import zlib

CHANNELS = {0: 1, 2: 3, 6: 4}


def chunks(data):
    at = 8
    while at < len(data):
        length, kind = struct.unpack_from(">I4s", data, at)
        yield kind, data[at + 8:at + 8 + length]
        at += 12 + length


def unfilter(kind, row, above, step):
    if kind == 1:
        for i in range(step, len(row)):
            row[i] = (row[i] + row[i - step]) & 255
    elif kind == 2:
        row[:] = bytes((a + b) & 255 for a, b in zip(row, above))
    elif kind == 3:
        for i in range(len(row)):
            row[i] = (row[i] + ((row[i - step] if i >= step else 0) + above[i]) // 2) & 255
    elif kind == 4:
        for i in range(len(row)):
            left, up, corner = (row[i - step], above[i], above[i - step]) if i >= step else (0, above[i], 0)
            guess = left + up - corner
            away = (abs(guess - left), abs(guess - up), abs(guess - corner))
            row[i] = (row[i] + (left, up, corner)[away.index(min(away))]) & 255


def read(path):
    """Width, height, bytes a pixel and the rows of pixels."""
    data = path.read_bytes()
    if data[:8] != b"\x89PNG\r\n\x1a\n":
        raise ValueError(f"{path} is no PNG file")
    parts = list(chunks(data))
    width, height, depth, color = struct.unpack_from(">IIBB", dict(parts)[b"IHDR"])
    if depth != 8 or color not in CHANNELS:
        raise ValueError(f"{path} has {depth} bits of colour type {color}")
    step = CHANNELS[color]
    pixels = zlib.decompress(b"".join(body for kind, body in parts if kind == b"IDAT"))
    rows, above, stride = [], bytearray(width * step), width * step + 1
    for y in range(height):
        row = bytearray(pixels[y * stride + 1:(y + 1) * stride])
        unfilter(pixels[y * stride], row, above, step)
        rows.append(row)
        above = row
    return width, height, step, rows

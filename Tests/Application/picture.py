"""What is on the screen, read from the memory of the display."""

import struct
import zlib


class Picture:
    """Rows of red, green and blue."""

    def __init__(self, width, height, rows):
        self.width, self.height, self.rows = width, height, rows

    @classmethod
    def of_screen(cls, file):
        """`file` is that of Xvfb, in the form of xwd."""
        data = file.read_bytes()
        header = struct.unpack(">25I", data[:100])
        width, height, bits, line, colours = header[4], header[5], header[11], header[12], header[19]
        assert bits == 32 and header[7] == 0, "a display of another form"
        start = header[0] + 12 * colours
        rows = []
        for y in range(height):
            pixels = data[start + y * line:start + y * line + 4 * width]
            row = bytearray(3 * width)
            row[0::3], row[1::3], row[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
            rows.append(bytes(row))
        return cls(width, height, rows)

    def part(self, x, y, width, height):
        return Picture(width, height, [row[3 * x:3 * (x + width)] for row in self.rows[y:y + height]])

    def brightness(self):
        """From 0, black, to 1."""
        return sum(sum(row) for row in self.rows) / (3 * 255 * self.width * self.height)

    def write_png(self, file):
        def chunk(kind, content):
            return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

        pixels = zlib.compress(b"".join(b"\0" + row for row in self.rows), 6)
        file.write_bytes(b"\x89PNG\r\n\x1a\n"
                         + chunk(b"IHDR", struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0))
                         + chunk(b"IDAT", pixels) + chunk(b"IEND", b""))

"""Small picture files of every format and kind, each as bytes by its name."""
import struct
import subprocess
import zlib


def pixel(x, y):
    return (x * 23 % 256, y * 37 % 256, (x ^ y) * 11 % 256)


# --- PNG

PNG_SIGNATURE = b'\x89PNG\r\n\x1a\n'
GREY, RGB, PALETTE, GREY_ALPHA, RGB_ALPHA = 0, 2, 3, 4, 6
CHANNELS = {GREY: 1, RGB: 3, PALETTE: 1, GREY_ALPHA: 2, RGB_ALPHA: 4}
PASSES = ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2))


def chunk(name, data):
    return struct.pack('>I', len(data)) + name + data + struct.pack('>I', zlib.crc32(name + data))


def png_row(kind, depth, y, columns):
    bits = ''
    for x in columns:
        red, green, blue = pixel(x, y)
        values = {GREY: [red], RGB: [red, green, blue], PALETTE: [red],
                  GREY_ALPHA: [red, green], RGB_ALPHA: [red, green, blue, x * 40 % 256]}[kind]
        for value in values:
            scaled = value * 257 if depth == 16 else value >> (8 - depth)
            bits += format(scaled, f'0{depth}b')
    bits += '0' * (-len(bits) % 8)
    return bytes(int(bits[i:i + 8], 2) for i in range(0, len(bits), 8))


def png(width, height, kind=RGB, depth=8, interlaced=False, before=b'', after=b'', filter_type=0):
    rows = b''
    for left, top, across, down in PASSES if interlaced else ((0, 0, 1, 1),):
        columns = range(left, width, across)
        for y in range(top, height, down) if columns else ():
            rows += bytes([filter_type]) + png_row(kind, depth, y, columns)
    header = struct.pack('>IIBBBBB', width, height, depth, kind, 0, 0, interlaced)
    palette = chunk(b'PLTE', bytes(range(3 * (1 << min(depth, 8)))) if depth < 8 else bytes(i % 256 for i in range(768)))
    return (PNG_SIGNATURE + chunk(b'IHDR', header) + (palette if kind == PALETTE else b'') + before +
            chunk(b'IDAT', zlib.compress(rows, 9)) + after + chunk(b'IEND', b''))


def large_png(width, height, kind, depth, interlaced=False):
    """One colour: millions of pixels in a few bytes."""
    rows = b''
    for left, top, across, down in PASSES if interlaced else ((0, 0, 1, 1),):
        columns = len(range(left, width, across))
        row = b'\0' + bytes((columns * depth * CHANNELS[kind] + 7) // 8)
        rows += row * len(range(top, height, down))
    header = struct.pack('>IIBBBBB', width, height, depth, kind, 0, 0, interlaced)
    return (PNG_SIGNATURE + chunk(b'IHDR', header) + chunk(b'IDAT', zlib.compress(rows, 9)) + chunk(b'IEND', b''))


def pngs():
    text = chunk(b'tEXt', b'PictureName\0/home/me/a.png') + chunk(b'zTXt', b'Comment\0\0' + zlib.compress(b' ' * 5000))
    profile = chunk(b'iCCP', b'p\0\0' + zlib.compress(bytes(200)))
    gamma = chunk(b'gAMA', struct.pack('>I', 45455)) + chunk(b'pHYs', struct.pack('>IIB', 1, 1, 1))
    return {
        'grey1.png': png(9, 7, GREY, 1), 'grey2.png': png(9, 7, GREY, 2), 'grey8.png': png(9, 7, GREY, 8),
        'grey16.png': png(5, 4, GREY, 16), 'grey-alpha.png': png(5, 4, GREY_ALPHA, 8),
        'grey-alpha16.png': png(3, 3, GREY_ALPHA, 16), 'rgb.png': png(12, 9), 'rgb16.png': png(4, 3, RGB, 16),
        'rgba.png': png(6, 5, RGB_ALPHA), 'rgba16.png': png(3, 3, RGB_ALPHA, 16),
        'palette1.png': png(9, 5, PALETTE, 1), 'palette4.png': png(9, 5, PALETTE, 4),
        'palette8.png': png(9, 5, PALETTE, 8, before=chunk(b'tRNS', bytes(range(100)))),
        'key.png': png(5, 5, RGB, before=chunk(b'tRNS', struct.pack('>HHH', 0, 0, 0))),
        'interlaced.png': png(11, 10, RGB, interlaced=True), 'interlaced-alpha.png': png(9, 9, RGB_ALPHA, interlaced=True),
        'filtered.png': png(8, 8, RGB, filter_type=4), 'texts.png': png(4, 4, before=text + profile + gamma, after=text),
        'one.png': png(1, 1), 'wide.png': png(300, 1, GREY), 'cut.png': png(12, 9)[:-20],
        'large1.png': large_png(2100, 2000, GREY, 1), 'large8.png': large_png(2100, 2000, GREY, 8),
        'large-interlaced.png': large_png(2100, 2000, GREY, 1, True), 'too-large.png': large_png(9000, 9000, GREY, 1),
        'large-cut.png': large_png(2100, 2000, GREY, 8)[:-3000],
    }


# --- GIF

def lzw(values, size=8):
    """Codes that are never packed: a clear code comes before each table grows."""
    clear, end, width = 1 << size, (1 << size) + 1, size + 1
    bits, count = 0, 0
    for i, code in enumerate([*values, end]):
        for each in ([clear] if i % (clear - 2) == 0 else []) + [code]:
            bits |= each << count
            count += width
    data = bits.to_bytes((count + 7) // 8, 'little')
    blocks = b''.join(bytes([len(data[i:i + 255])]) + data[i:i + 255] for i in range(0, len(data), 255))
    return bytes([size]) + blocks + b'\0'


def gif(width, height, frames=1, transparent=None, interlaced=False, loops=None, local=False, comment=b'', at=(0, 0),
        screen=None):
    colors = bytes(i * 7 % 256 for i in range(768))
    data = b'GIF89a' + struct.pack('<HHBBB', *(screen or (width, height)), 0xf7, 0, 0) + colors
    if loops is not None:
        data += b'!\xff\x0bNETSCAPE2.0\x03\x01' + struct.pack('<H', loops) + b'\0'
    if comment:
        data += b'!\xfe' + bytes([len(comment)]) + comment + b'\0'
    for frame in range(frames):
        flags = 4 | (transparent is not None)
        data += b'!\xf9\x04' + struct.pack('<BHB', flags, 10 * frame, transparent or 0) + b'\0'
        data += b',' + struct.pack('<HHHHB', *at, width, height, 0x40 * interlaced | (0x87 if local else 0))
        data += (colors if local else b'') + lzw([(i * 3 + frame) % 256 for i in range(width * height)])
    return data + b';'


def gifs():
    return {
        'plain.gif': gif(8, 6), 'transparent.gif': gif(8, 6, transparent=3), 'interlaced.gif': gif(7, 9, interlaced=True),
        'animated.gif': gif(6, 5, frames=4, loops=0), 'twice.gif': gif(3, 3, frames=2, loops=2, transparent=0),
        'local.gif': gif(4, 4, local=True), 'comment.gif': gif(4, 4, comment=b'drawn by hand'),
        'offset.gif': gif(4, 4, at=(3, 2), screen=(12, 9)), 'beyond.gif': gif(9, 9, at=(5, 5), screen=(4, 4)),
        'large.gif': gif(2, 2, screen=(2100, 2000)), 'empty.gif': gif(8, 6, frames=0), 'cut.gif': gif(8, 6, frames=2)[:-9],
    }


# --- BMP and WBMP

def bmp(width, height, depth=24, old=False, top_down=False, compression=0, data=None, masks=b''):
    colors = 1 << depth if depth <= 8 else 0
    table = b''.join(bytes([i * 5 % 256, i % 256, i * 3 % 256]) + (b'' if old else b'\0') for i in range(colors))
    stride = (width * depth + 31) // 32 * 4
    rows = bytes(i * 13 % 256 for i in range(stride * height)) if data is None else data
    if old:
        header = struct.pack('<IHHHH', 12, width, height, 1, depth)
    else:
        header = struct.pack('<IiiHHIIiiII', 40, width, -height if top_down else height, 1, depth, compression, len(rows),
                             2835, 2835, 0, 0)
    start = 14 + len(header) + len(masks) + len(table)
    return b'BM' + struct.pack('<IHHI', start + len(rows), 0, 0, start) + header + masks + table + rows


def bmps():
    masks565 = struct.pack('<III', 0xf800, 0x07e0, 0x001f)
    return {
        **{f'depth{depth}.bmp': bmp(9, 5, depth) for depth in (1, 4, 8, 16, 24, 32)},
        'old.bmp': bmp(7, 5, 24, old=True), 'old8.bmp': bmp(7, 5, 8, old=True), 'top-down.bmp': bmp(6, 4, 24, top_down=True),
        'masks.bmp': bmp(6, 4, 16, compression=3, masks=masks565),
        'runs8.bmp': bmp(6, 3, 8, compression=1, data=b'\x06\x05\0\0\0\x04\1\2\3\4\2\7\0\0\0\2\1\0\5\1\0\1'),
        'runs4.bmp': bmp(6, 3, 4, compression=2, data=b'\x06\x12\0\0\0\x04\x12\x34\2\x77\0\0\5\x11\0\1'),
        'cut.bmp': bmp(9, 5)[:-30], 'large.bmp': bmp(2100, 2000, 1, data=bytes(10)),
    }


def multi_byte(number):
    digits = [number & 0x7f]
    while number := number >> 7:
        digits.append(number & 0x7f | 0x80)
    return bytes(reversed(digits))


def wbmp(width, height):
    return b'\0\0' + multi_byte(width) + multi_byte(height) + bytes(i * 29 % 256 for i in range((width + 7) // 8 * height))


def wbmps():
    return {'small.wbmp': wbmp(9, 5), 'wide.wbmp': wbmp(200, 3), 'cut.wbmp': wbmp(9, 5)[:-1]}


# --- JPEG, by an encoder that is not ours

def jpeg(size, *options):
    return subprocess.run(['convert', '-size', size, 'gradient:red-blue', *options, '-strip', 'jpg:-'], check=True,
                          stdout=subprocess.PIPE).stdout


def with_orientation(data, orientation):
    note = b'Exif\0\0MM\0*' + struct.pack('>IHHHIHHI', 8, 1, 0x0112, 3, 1, orientation, 0, 0)
    return data[:2] + b'\xff\xe1' + struct.pack('>H', len(note) + 2) + note + data[2:]


def jpegs():
    plain = jpeg('40x30', '-quality', '75')
    return {
        'plain.jpg': plain, 'progressive.jpg': jpeg('33x17', '-interlace', 'JPEG'),
        'grey.jpg': jpeg('20x20', '-colorspace', 'Gray'), 'cmyk.jpg': jpeg('16x16', '-colorspace', 'CMYK'),
        'full.jpg': jpeg('16x24', '-sampling-factor', '1x1', '-quality', '96'),
        'halved.jpg': jpeg('31x9', '-sampling-factor', '2x1'), 'one.jpg': jpeg('1x1'), 'large.jpg': jpeg('400x350', '-quality', '5'),
        'turned.jpg': with_orientation(plain, 6), 'mirrored.jpg': with_orientation(jpeg('9x8'), 5),
        'cut.jpg': plain[:-40], 'no-end.jpg': plain[:-2],
        'comment.jpg': plain[:2] + b'\xff\xfe\0\x06abcd' + plain[2:],
        'restarts.jpg': jpeg('48x32', '-define', 'jpeg:restart-interval=2'),
    }


def all_pictures():
    return {**pngs(), **gifs(), **bmps(), **wbmps(), **jpegs()}

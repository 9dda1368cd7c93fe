"""A virtual screen, and a person at it: pointer, keyboard, windows.

Needs Xvfb and the libraries libX11 and libXtst; client_resources() needs libXRes.
"""
import ctypes
import os
import subprocess
import time
from ctypes import POINTER, Structure, byref, c_char_p, c_int, c_long, c_uint, c_ulong, c_void_p
from dataclasses import dataclass

CLIENT_MESSAGE = 33
STRUCTURE_NOTIFY = 1 << 17
SUBSTRUCTURE_NOTIFY = 1 << 19
REVERT_TO_POINTER_ROOT = 1
VIEWABLE = 2
PROPERTY_LENGTH = 1024


class _Attributes(Structure):
    _fields_ = [(name, c_int) for name in ("x", "y", "width", "height", "border_width", "depth")] + [
        ("visual", c_void_p), ("root", c_ulong), ("c_class", c_int), ("bit_gravity", c_int), ("win_gravity", c_int),
        ("backing_store", c_int), ("backing_planes", c_ulong), ("backing_pixel", c_ulong), ("save_under", c_int),
        ("colormap", c_ulong), ("map_installed", c_int), ("map_state", c_int), ("all_event_masks", c_long),
        ("your_event_mask", c_long), ("do_not_propagate_mask", c_long), ("override_redirect", c_int),
        ("screen", c_void_p)]


class _ClientMessage(Structure):
    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int), ("display", c_void_p),
                ("window", c_ulong), ("message_type", c_ulong), ("format", c_int), ("data", c_long * 5),
                ("rest_of_any_event", c_long * 24)]


class _ResourceType(Structure):
    _fields_ = [("type", c_ulong), ("count", c_uint)]


_ErrorHandler = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)
# A window may be gone between the list of windows and the question about it.
_ignore = _ErrorHandler(lambda display, event: 0)


def _library(name, *results):
    library = ctypes.CDLL(name)
    for result, functions in results:
        for function in functions.split():
            getattr(library, function).restype = result
    return library


_x = _library("libX11.so.6", (c_void_p, "XOpenDisplay"), (c_char_p, "XGetAtomName"),
              (c_ulong, "XDefaultRootWindow XInternAtom XStringToKeysym"))
_test = _library("libXtst.so.6")


@dataclass
class Window:
    """A top-level window that can be seen, in pixels of the screen."""

    number: int
    title: str
    x: int
    y: int
    width: int
    height: int
    is_popup: bool


class Screen:
    """A virtual screen of its own, until stop()."""

    def __init__(self, size="1024x768"):
        reader, writer = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[writer], stderr=subprocess.DEVNULL, start_new_session=True)
        os.close(writer)
        with os.fdopen(reader) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.name = ":" + number
        self.width, self.height = map(int, size.split("x"))

    def stop(self):
        self._server.terminate()
        self._server.wait()

    def kill(self):
        """As when the display goes away."""
        self._server.kill()
        self._server.wait()


class Person:
    """Works the screen through a connection of its own, until leave(). `events` counts what was sent."""

    def __init__(self, screen):
        _x.XSetErrorHandler(_ignore)
        pointer = _x.XOpenDisplay(screen.name.encode())
        if not pointer:
            raise RuntimeError("no connection to the display")
        self._display = c_void_p(pointer)
        self._root = c_ulong(_x.XDefaultRootWindow(self._display))
        _x.XSelectInput(self._display, self._root, c_long(STRUCTURE_NOTIFY | SUBSTRUCTURE_NOTIFY))
        self._serial = 0
        self._resources = None
        self.events = 0

    def leave(self):
        _x.XCloseDisplay(self._display)

    def _sync(self):
        self.events += 1
        _x.XSync(self._display, 0)

    # --- Pointer and keyboard

    def move(self, x, y):
        _test.XTestFakeMotionEvent(self._display, -1, int(x), int(y), c_ulong(0))
        self._sync()

    def press(self, button=1):
        _test.XTestFakeButtonEvent(self._display, button, 1, c_ulong(0))
        self._sync()

    def release(self, button=1):
        _test.XTestFakeButtonEvent(self._display, button, 0, c_ulong(0))
        self._sync()

    def click(self, x, y, button=1):
        self.move(x, y)
        self.press(button)
        self.release(button)

    def drag(self, points, button=1):
        self.move(*points[0])
        self.press(button)
        for point in points[1:]:
            self.move(*point)
        self.release(button)

    def key_down(self, name, is_down=True):
        symbol = c_ulong(_x.XStringToKeysym(name.encode()))
        code = _x.XKeysymToKeycode(self._display, symbol) & 0xff
        _test.XTestFakeKeyEvent(self._display, code, int(is_down), c_ulong(0))
        self._sync()

    def key(self, name):
        """Presses and releases a key, with others held: "Control_L+Shift_L+s"."""
        *held, last = name.split("+")
        for modifier in held:
            self.key_down(modifier)
        self.key_down(last)
        self.key_down(last, False)
        for modifier in reversed(held):
            self.key_down(modifier, False)

    # --- Windows

    def _atom(self, name):
        return _x.XInternAtom(self._display, name.encode(), 0)

    def _title(self, window):
        kind, form, length, rest, text = c_ulong(), c_int(), c_ulong(), c_ulong(), c_void_p()
        _x.XGetWindowProperty(self._display, c_ulong(window), c_ulong(self._atom("_NET_WM_NAME")), c_long(0),
                              c_long(PROPERTY_LENGTH), 0, c_ulong(0), byref(kind), byref(form), byref(length),
                              byref(rest), byref(text))
        if not text:
            return ""
        title = ctypes.string_at(text, length.value).decode(errors="replace")
        _x.XFree(text)
        return title

    def windows(self):
        """From the bottom to the top."""
        root, parent, children, count = c_ulong(), c_ulong(), POINTER(c_ulong)(), c_uint()
        if not _x.XQueryTree(self._display, self._root, byref(root), byref(parent), byref(children), byref(count)):
            return []
        numbers = children[:count.value]
        if children:
            _x.XFree(children)
        found = []
        for number in numbers:
            a = _Attributes()
            if _x.XGetWindowAttributes(self._display, c_ulong(number), byref(a)) and a.map_state == VIEWABLE:
                found.append(Window(number, self._title(number), a.x, a.y, a.width, a.height,
                                    bool(a.override_redirect)))
        return found

    def focus(self, window):
        """Gives it the keyboard, as a window manager does."""
        _x.XSetInputFocus(self._display, c_ulong(window.number), REVERT_TO_POINTER_ROOT, c_ulong(0))
        _x.XSync(self._display, 0)

    def place(self, window, x, y, width, height):
        _x.XMoveResizeWindow(self._display, c_ulong(window.number), int(x), int(y), int(width), int(height))
        self._sync()

    def hide(self, window):
        _x.XUnmapWindow(self._display, c_ulong(window.number))
        self._sync()

    def show(self, window):
        """Where it was in the pile of windows: boxes stay above it."""
        _x.XMapWindow(self._display, c_ulong(window.number))
        self._sync()

    def _tell(self, window, *data):
        message = _ClientMessage(type=CLIENT_MESSAGE, window=window.number,
                                 message_type=self._atom("WM_PROTOCOLS"), format=32)
        message.data[:len(data)] = data
        _x.XSendEvent(self._display, c_ulong(window.number), 0, c_long(0), byref(message))

    def close(self, window):
        """Asks it to close, as a window manager does."""
        self._tell(window, self._atom("WM_DELETE_WINDOW"), 0)
        self._sync()

    def ask(self, window, patience, is_there=lambda: True):
        """How many seconds its program took to answer; None if it did not within `patience` seconds, or is not there
        any more."""
        self._serial += 1
        ping = self._atom("_NET_WM_PING")
        start = time.monotonic()
        self._tell(window, ping, self._serial, window.number)
        _x.XFlush(self._display)
        event = _ClientMessage()
        while time.monotonic() - start < patience and is_there():
            while _x.XPending(self._display):
                _x.XNextEvent(self._display, byref(event))
                if event.type == CLIENT_MESSAGE and (event.data[0], event.data[1]) == (ping, self._serial):
                    return time.monotonic() - start
            time.sleep(0.001)
        return None

    # --- What it costs the server

    def client_resources(self, window):
        """How many resources of each type its program holds, by the types' names, and the bytes of its pixmaps."""
        if not self._resources:
            self._resources = _library("libXRes.so.1")
        types, count, size = POINTER(_ResourceType)(), c_int(), c_ulong()
        client = c_ulong(window.number)
        self._resources.XResQueryClientResources(self._display, client, byref(count), byref(types))
        found = {}
        for entry in types[:count.value]:
            name = _x.XGetAtomName(self._display, c_ulong(entry.type)).decode()
            found[name] = found.get(name, 0) + entry.count
        if types:
            _x.XFree(types)
        self._resources.XResQueryClientPixmapBytes(self._display, client, byref(size))
        return found, size.value

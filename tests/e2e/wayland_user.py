#!/usr/bin/python3
"""wayland_user.py WIDTH HEIGHT: a mouse and a keyboard (US) for the compositor of WAYLAND_DISPLAY, whose screens have this size
together, in its own pixels. Commands come by standard input, one a line; each is answered by a line when the compositor has it:
move X Y; down BUTTON; up BUTTON; key NAME...; type TEXT; held NAME, freed NAME (keys); wheel STEPS (down is positive);
token: the answer is the right to bring a window to the front; ping SOCKET: when the editor that listens there has looked at its
events, too."""
import os
import socket
import struct
import sys
import time

import dbus

KEYMAP = b"""xkb_keymap { xkb_keycodes { include "evdev" }; xkb_types { include "complete" }; xkb_compat { include "complete" };
xkb_symbols { include "pc+us+inet(evdev)" }; };\0"""
MODIFIERS = {"shift": (42, 1), "ctrl": (29, 4), "alt": (56, 8)}  # key, and bit of the state
NAMES = dict(Escape=1, BackSpace=14, Tab=15, Return=28, space=57, minus=12, equal=13, plus=(13, "shift"), slash=53, Delete=111,
             Left=105, Right=106, Up=103, Down=108, Home=102, End=107, Prior=104, Next=109, F10=68, F11=87, F12=88,
             **{f"F{n}": 58 + n for n in range(1, 10)})
ROWS = ((2, "1234567890-=", "!@#$%^&*()_+"), (16, "qwertyuiop[]", "QWERTYUIOP{}"), (30, "asdfghjkl;'`", 'ASDFGHJKL:"~'),
        (43, "\\zxcvbnm,./", "|ZXCVBNM<>?"), (57, " ", " "))
CODES = {c: first + i for first, plain, _ in ROWS for i, c in enumerate(plain)}
SHIFTED = {c: first + i for first, _, shifted in ROWS for i, c in enumerate(shifted) if c != " "}
BUTTONS = {"1": 0x110, "2": 0x112, "3": 0x111}


def text(value):
    data = value.encode() + b"\0"
    return struct.pack("I", len(data)) + data + bytes(-len(data) % 4)


class Compositor:
    """One connection, as the wire protocol has it: object, length and number of the request, arguments."""

    def __init__(self):
        self.wire = socket.socket(socket.AF_UNIX)
        path = os.environ["WAYLAND_DISPLAY"]
        self.wire.connect(path if path.startswith("/") else os.path.join(os.environ["XDG_RUNTIME_DIR"], path))
        self.last, self.token, self.globals, self.buffer = 1, None, {}, b""
        self.registry = self.new()
        self.send(1, 1, struct.pack("I", self.registry))
        self.sync()

    def new(self):
        self.last += 1
        return self.last

    def send(self, target, number, arguments=b"", descriptors=()):
        message = struct.pack("II", target, (8 + len(arguments)) << 16 | number) + arguments
        socket.send_fds(self.wire, [message], descriptors)

    def bind(self, interface):
        made = self.new()
        self.send(self.registry, 0, struct.pack("I", self.globals[interface]) + text(interface) + struct.pack("II", 1, made))
        return made

    def activation(self):
        manager, self.token = self.bind("xdg_activation_v1"), self.new()
        self.send(manager, 1, struct.pack("I", self.token))
        self.send(self.token, 3)
        return self.sync()

    def sync(self):
        """Until everything sent before is done, or a token has come, which is the result."""
        answer = self.new()
        self.send(1, 0, struct.pack("I", answer))
        while True:
            while len(self.buffer) < 8 or len(self.buffer) < struct.unpack_from("II", self.buffer)[1] >> 16:
                more = self.wire.recv(65536)
                if not more:
                    sys.exit("the compositor has gone")
                self.buffer += more
            sender, head = struct.unpack_from("II", self.buffer)
            message, self.buffer = self.buffer[8:head >> 16], self.buffer[head >> 16:]
            if sender == 1 and head & 0xffff == 0:
                sys.exit(f"the compositor refuses: {message!r}")
            if sender == answer:
                return None
            if sender == self.token and head & 0xffff == 0:
                return message[4:].rstrip(b"\0").decode()
            if sender == self.registry and head & 0xffff == 0:
                name, length = struct.unpack_from("II", message)
                self.globals[message[8:7 + length].decode()] = name


class User:
    def __init__(self, width, height):
        self.all, self.state = (width, height), 0
        self.compositor = c = Compositor()
        seat = c.bind("wl_seat")
        self.mouse = self.device("zwlr_virtual_pointer_manager_v1", seat)
        self.keyboard = self.device("zwp_virtual_keyboard_manager_v1", seat)
        keymap = os.memfd_create("keymap")
        os.write(keymap, KEYMAP)
        c.send(self.keyboard, 0, struct.pack("II", 1, len(KEYMAP)), [keymap])
        c.sync()

    def device(self, interface, seat):
        manager, made = self.compositor.bind(interface), self.compositor.new()
        self.compositor.send(manager, 0, struct.pack("II", seat, made))
        return made

    def moment(self):
        return time.monotonic_ns() // 1000000 & 0xffffffff

    def point(self, number, *arguments):
        self.compositor.send(self.mouse, number, struct.pack("I" + "i" * len(arguments), self.moment(), *arguments))
        self.compositor.send(self.mouse, 4)

    def move(self, x, y):
        self.point(1, round(float(x) * 256), round(float(y) * 256), *(256 * size for size in self.all))

    def down(self, button):
        self.point(2, BUTTONS[button], 1)

    def up(self, button):
        self.point(2, BUTTONS[button], 0)

    def wheel(self, steps):
        self.point(7, 0, int(steps) * 15 * 256, int(steps))

    def press(self, code, down):
        self.compositor.send(self.keyboard, 1, struct.pack("III", self.moment(), code, down))

    def modify(self, name, down):
        code, bit = MODIFIERS[name]
        self.state = self.state | bit if down else self.state & ~bit
        self.press(code, down)
        self.compositor.send(self.keyboard, 2, struct.pack("IIII", self.state, 0, 0, 0))

    def held(self, name):
        self.modify(name, 1)

    def freed(self, name):
        self.modify(name, 0)

    def tap(self, code, modifiers):
        for name in modifiers:
            self.modify(name, 1)
        self.press(code, 1)
        self.press(code, 0)
        for name in reversed(modifiers):
            self.modify(name, 0)

    def key(self, *names):
        for name in names:
            *modifiers, last = name.split("+")
            code = NAMES.get(last) or CODES[last]
            if isinstance(code, tuple):
                code, more = code
                modifiers.append(more)
            self.tap(code, modifiers)

    def type(self, *words):
        for c in " ".join(words):
            self.tap(CODES.get(c) or SHIFTED[c], [] if c in CODES else ["shift"])

    def token(self):
        return self.compositor.activation()

    def ping(self, path):
        try:
            editor = dbus.connection.Connection("unix:path=" + path)
            for _ in range(2):
                editor.call_blocking(None, "/org/velara/Studio", "org.freedesktop.DBus.Introspectable", "Introspect", "", ())
            editor.close()
        except dbus.DBusException:
            pass  # it has ended


user = User(int(sys.argv[1]), int(sys.argv[2]))
print("ready", flush=True)
for line in sys.stdin:
    command, *arguments = line.rstrip("\n").split(" ")
    user.compositor.sync()
    answer = getattr(user, command)(*arguments)
    user.compositor.sync()
    print(answer or "done", flush=True)

"""A desktop portal of the tests, for python3-dbusmock. Parameters: answer (a portal's code, or -1 for silence), uri of
the screenshot, wallpaper (the file into which what comes through a descriptor is written), log (one line a call),
settings (by namespace and key)."""
import os

import dbus
from dbusmock import mockobject

BUS_NAME = "org.freedesktop.portal.Desktop"
MAIN_OBJ = "/org/freedesktop/portal/desktop"
MAIN_IFACE = "org.freedesktop.portal.Screenshot"
SYSTEM_BUS = False
REQUEST = "org.freedesktop.portal.Request"


def load(mock, parameters):
    mock.parameters = parameters


def note(self, line):
    with open(self.parameters["log"], "a", encoding="utf-8") as log:
        log.write(line + "\n")


def respond(self, sender, options, results):
    path = f"{MAIN_OBJ}/request/{sender[1:].replace('.', '_')}/{options['handle_token']}"
    log = self.parameters["log"]
    self.AddObject(path, REQUEST, {}, [("Close", "", "", f"open({log!r}, 'a').write('Close\\n')")])
    code = int(self.parameters["answer"])
    if code >= 0:
        mockobject.objects[path].EmitSignal(REQUEST, "Response", "ua{sv}", [dbus.UInt32(code), results])
    return dbus.ObjectPath(path)


@dbus.service.method(MAIN_IFACE, in_signature="sa{sv}", out_signature="o", sender_keyword="sender")
def Screenshot(self, parent, options, sender=None):
    note(self, "Screenshot")
    return respond(self, sender, options, {"uri": self.parameters["uri"]})


@dbus.service.method("org.freedesktop.portal.Wallpaper", in_signature="sha{sv}", out_signature="o", sender_keyword="sender")
def SetWallpaperFile(self, parent, descriptor, options, sender=None):
    with os.fdopen(descriptor.take(), "rb") as source, open(self.parameters["wallpaper"], "wb") as copy:
        copy.write(source.read())
    note(self, f"SetWallpaperFile {options['set-on']}")
    return respond(self, sender, options, {})


@dbus.service.method("org.freedesktop.portal.Settings", in_signature="as", out_signature="a{sa{sv}}")
def ReadAll(self, spaces):
    told = self.parameters["settings"]
    return dbus.Dictionary({space: dbus.Dictionary(told[space], signature="sv") for space in spaces if space in told},
                           signature="sa{sv}")

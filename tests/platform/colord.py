"""The colour daemon, for python3-dbusmock. Parameter: profiles, the file of each output's first profile."""
import dbus
from dbusmock import mockobject

BUS_NAME = "org.freedesktop.ColorManager"
MAIN_OBJ = "/org/freedesktop/ColorManager"
MAIN_IFACE = "org.freedesktop.ColorManager"
SYSTEM_BUS = False


def load(mock, parameters):
    for output, file in parameters["profiles"].items():
        name = output.replace("-", "_")
        profiles = []
        for path, filename in ((f"{MAIN_OBJ}/profiles/{name}", file), (f"{MAIN_OBJ}/profiles/other", "/nowhere")):
            if path not in mockobject.objects:
                mock.AddObject(path, MAIN_IFACE + ".Profile", {"Filename": filename}, [])
            profiles.append(dbus.ObjectPath(path))
        none = dbus.Array([], signature="o")
        mock.AddObject(f"{MAIN_OBJ}/devices/{name}", MAIN_IFACE + ".Device", {"Profiles": profiles if file else none}, [])


@dbus.service.method(MAIN_IFACE, in_signature="ss", out_signature="o")
def FindDeviceByProperty(self, key, value):
    path = f"{MAIN_OBJ}/devices/{value.replace('-', '_')}"
    if key != "XRANDR_name" or path not in mockobject.objects:
        raise dbus.DBusException("device does not exist", name=MAIN_IFACE + ".NotFound")
    return dbus.ObjectPath(path)


@dbus.service.method(MAIN_IFACE, in_signature="ss")
def Replace(self, output, file):
    """For the tests: the user gives the screen another profile."""
    name = output.replace("-", "_")
    mockobject.objects[f"{MAIN_OBJ}/profiles/{name}"].UpdateProperties(MAIN_IFACE + ".Profile", {"Filename": file})
    self.EmitSignal(MAIN_IFACE, "DeviceChanged", "o", [dbus.ObjectPath(f"{MAIN_OBJ}/devices/{name}")])


@dbus.service.method(MAIN_IFACE, in_signature="s")
def Plug(self, output):
    self.EmitSignal(MAIN_IFACE, "DeviceAdded", "o", [dbus.ObjectPath(f"{MAIN_OBJ}/devices/{output.replace('-', '_')}")])

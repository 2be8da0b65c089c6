"""The shell of a desktop, for python3-dbusmock: writes down the scripts that it is given. Parameter: log."""
import dbus

BUS_NAME = "org.kde.plasmashell"
MAIN_OBJ = "/PlasmaShell"
MAIN_IFACE = "org.kde.PlasmaShell"
SYSTEM_BUS = False


def load(mock, parameters):
    mock.parameters = parameters


@dbus.service.method(MAIN_IFACE, in_signature="s", out_signature="s")
def evaluateScript(self, script):
    with open(self.parameters["log"], "a", encoding="utf-8") as log:
        log.write(script + "\n")
    return ""

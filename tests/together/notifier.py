#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The companion of a user in a tray that speaks the protocol of status notifiers, on the demo PC: it registers there, has a
picture and a tooltip with a line a disk, offers its menu, and a click shows the flyout.

Usage: notifier.py FOLDER     FOLDER has the executable. Root, whose companion does not use this kind, becomes "nobody"."""
import json, os, shutil, subprocess, sys, tempfile, time

try:
    import dbus
    import dbus.service
    from dbus.mainloop.glib import DBusGMainLoop
    from gi.repository import GLib
except ImportError as missing:
    print("SKIP:", missing)
    sys.exit(77)
for tool in "Xvfb", "xdotool", "dbus-daemon":
    if not shutil.which(tool):
        print("SKIP: there is no", tool)
        sys.exit(77)

if os.geteuid() == 0:
    nobody = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"]
    if subprocess.run([*nobody, "test", "-x", sys.argv[1] + "/VelmoraSMART"]).returncode:
        print("SKIP: nobody else can start what is built here")
        sys.exit(77)
    os.environ["HOME"] = "/nonexistent"
    os.execvp(nobody[0], [*nobody, sys.executable, *sys.argv])

SOURCE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "../..")
WATCHER, ITEM, MENU = "org.kde.StatusNotifierWatcher", "org.kde.StatusNotifierItem", "com.canonical.dbusmenu"


class Watcher(dbus.service.Object):
    """What a desktop has: items tell it that they are there."""
    item = ""

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierItem(self, service):
        self.item = service

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, _, name):
        return {"IsStatusNotifierHostRegistered": True, "ProtocolVersion": 0}[name]

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s")
    def Introspect(self):
        return (f'<node><interface name="{WATCHER}"><property name="IsStatusNotifierHostRegistered" type="b" access="read"/>'
                '<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method></interface></node>')


def until(what, condition):
    end = time.time() + 60
    while not (found := condition()):
        if time.time() > end:
            sys.exit(f"notifier.py: no {what}")
        GLib.MainContext.default().iteration(False)
        time.sleep(0.02)
    return found


def ask(proxy, interface, method, *arguments):
    """Does not block: the other side may ask something of us meanwhile. A tuple."""
    answers = []
    proxy.get_dbus_method(method, interface)(*arguments, error_handler=lambda error: answers.append(error),
                                             reply_handler=lambda *values: answers.append(values))
    until(f"answer to {method}", lambda: answers)
    if not isinstance(answers[0], tuple):
        sys.exit(f"notifier.py: {method}: {answers[0]}")
    return answers[0]


def windows():
    search = ["xdotool", "search", "--onlyvisible", "--class", "^VelmoraSMART$"]
    return set(subprocess.run(search, capture_output=True, text=True).stdout.split())


def start(command, **variables):
    started.append(subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                                    env={**os.environ, **variables}))
    return started[-1]


def first_line(*command):
    return start(command).stdout.readline().strip()


def known_in(memory):
    with open(memory) as file:
        return json.load(file)


def look(folder):
    os.environ["DISPLAY"] = ":" + first_line("Xvfb", "-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp")
    os.environ["DBUS_SESSION_BUS_ADDRESS"] = first_line("dbus-daemon", "--session", "--nofork", "--print-address=1")
    os.environ.update(HALVANE_PC=scratch + "/pc", HALVANE_PC_STATE=scratch + "/state")
    os.environ.pop("QT_QPA_PLATFORM", None)
    subprocess.run([SOURCE + "/demo/make-pc", scratch + "/pc", "--no-images"], check=True, stdout=subprocess.DEVNULL)
    with open(scratch + "/pc/pc.json") as file:
        models = [disk["model"] for disk in json.load(file)["disks"]]

    # All messages have been shown before: they would stand in the place of the tooltip.
    memory = scratch + "/state/watch.json"
    first = start([folder + "/VelmoraSMART"], QT_QPA_PLATFORM="offscreen")
    until("memory of all disks", lambda: os.path.exists(memory) and len(known_in(memory)["disks"]) == len(models))
    first.kill()
    first.wait()
    known = known_in(memory)
    for event in known["events"]:
        event["told"] = True
    with open(memory, "w") as file:
        json.dump(known, file)

    bus = dbus.SessionBus(mainloop=DBusGMainLoop())
    watcher = Watcher(dbus.service.BusName(WATCHER, bus), "/StatusNotifierWatcher")
    start([folder + "/VelmoraSMART", "Schedular"])
    item = bus.get_object(until("icon", lambda: watcher.item), "/StatusNotifierItem", introspect=False)

    def told(name):
        return ask(item, dbus.PROPERTIES_IFACE, "Get", ITEM, name)[0]

    def lines():
        tip = told("ToolTip")
        return [line for text in tip[2:] for line in str(text).splitlines() if line]

    def names_all():
        return len(lines()) == len(models) and all(line[:4] == model[:4] for line, model in zip(lines(), models))
    until(f"tooltip of {models}", names_all)
    until("picture", lambda: any(width >= 16 and any(data) for width, _, data in told("IconPixmap")))
    menu = bus.get_object(watcher.item, told("Menu"), introspect=False)
    _, layout = ask(menu, MENU, "GetLayout", 0, -1, dbus.Array([], "s"))
    labels = [str(entry[1].get("label", "")) for entry in layout[2]]
    if not {"Open", "Refresh now", "Settings", "Quit"} <= {label.replace("_", "") for label in labels}:
        sys.exit(f"notifier.py: the menu has {labels}")
    known = windows()
    ask(item, ITEM, "Activate", 500, 760)
    until("flyout", lambda: windows() - known)
    print("registered; picture, tooltip and menu are there, and a click shows the flyout")


scratch = tempfile.mkdtemp()
started = []
try:
    look(sys.argv[1])
finally:
    for process in reversed(started):
        process.kill()
        process.wait()
    shutil.rmtree(scratch, ignore_errors=True)

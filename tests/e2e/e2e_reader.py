#!/usr/bin/python3
# End to end through the accessibility bus: the real robot-companion binary in a private X server with
# a D-Bus session and an AT-SPI bus of its own (the session starts it), read with pyatspi as a screen
# reader reads it.
# Usage: e2e_reader.py BINARY [CASE]. Exit 77 (skipped) where no accessibility bus can start, unless
# ROBOT_E2E_REQUIRED=1 makes that a failure. Each case runs in a process of its own: the AT-SPI client
# binds to one bus for its lifetime.
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
# In the window's 1024 x 768 points, as the layout tables place them: "Program scenario" on the main
# menu, and the scenario name field on the scenario screen.
PROGRAM = (607, 172, 250, 93)
NAME = (551, 374, 193, 20)


def missing():
    tools = [t for t in ("Xvfb", "xdotool", "dbus-daemon", LAUNCHER) if not shutil.which(t)]
    try:
        import pyatspi  # noqa: F401
    except ImportError:
        tools.append("pyatspi")
    return tools and f"{', '.join(tools)} missing (Debian packages xvfb, xdotool, dbus-daemon, at-spi2-core, " \
        "python3-pyatspi)"


class Session:
    # A private X server of the given size, a D-Bus session with its AT-SPI bus, and the app in them.
    def __init__(self, binary, size, env):
        self.folder = tempfile.mkdtemp(prefix="robot-reader-")
        self.processes = []
        os.environ.update(XDG_RUNTIME_DIR=self.folder, HOME=self.folder)
        # The server says its number before it takes clients, and may lose its display to another
        # starting at the same time: it counts once the tools can talk to it. -noreset: else it resets
        # when that first client leaves, and turns the app away.
        for _ in range(5):
            read, write = os.pipe()
            server = self.start("Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten",
                                "tcp", "-noreset", pass_fds=(write,))
            os.close(write)
            with os.fdopen(read) as number:
                os.environ["DISPLAY"] = ":" + number.readline().strip()
            deadline = time.monotonic() + 10
            while server.poll() is None and time.monotonic() < deadline and subprocess.run(
                    ["xdotool", "getmouselocation"], capture_output=True).returncode:
                time.sleep(0.1)
            if server.poll() is None and time.monotonic() < deadline:
                break
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1", stdout=subprocess.PIPE)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        self.log = open(os.path.join(self.folder, "app.err"), "w+")
        self.app = self.start(binary, stderr=self.log, env=dict(
            os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", **env))

    def start(self, *args, stderr=subprocess.DEVNULL, **options):
        self.processes.append(subprocess.Popen(args, stderr=stderr, **options))
        return self.processes[-1]

    def wait(self, condition, failure, seconds=60):
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline and self.app.poll() is None:
            if result := condition():
                return result
            pump(0.1)
        self.log.seek(0)
        raise AssertionError(f"{failure}; stderr:\n{self.log.read()}")

    def window(self):
        # The app's window on the X screen: x, y, width, height.
        out = subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "^Robot Companion$",
                              "getwindowgeometry", "--shell"], check=True, capture_output=True, text=True).stdout
        return tuple(int(v) for v in re.findall(r"=(\d+)", out)[1:5])  # after WINDOW: X, Y, WIDTH, HEIGHT

    def stop(self):
        ended = self.app.poll() is not None
        for process in reversed(self.processes):
            process.terminate()
            process.wait(20)
        errors = open(self.log.name).read()
        shutil.rmtree(self.folder, ignore_errors=True)
        assert not ended, f"the app ended on its own; stderr:\n{errors}"
        assert "Sanitizer" not in errors and "runtime error" not in errors, errors


def pump(seconds):
    # Runs the client's event loop for a while: the bus's events reach the listeners.
    from gi.repository import GLib
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.02)


def get(root, role, name):
    # The showing object of that role named `name` (or matching it, a pattern), once it shows.
    import pyatspi
    matches = name.fullmatch if isinstance(name, re.Pattern) else name.__eq__
    deadline = time.monotonic() + 30
    while time.monotonic() < deadline:
        if found := pyatspi.findDescendant(root, lambda a: a is not None and a.getRoleName() == role and matches(
                a.name) and a.getState().contains(pyatspi.STATE_SHOWING)):
            return found
        pump(0.2)
    raise AssertionError(f"no {role} {name!r} shows")


def press(app, role, name):
    action = get(app, role, name).queryAction()
    action.doAction([action.getName(i) for i in range(action.nActions)].index("Press"))


def main_window(session):
    import pyatspi
    app = session.wait(lambda: next((a for a in pyatspi.Registry.getDesktop(0)
                                     if a is not None and a.name == "robot-companion"), None),
                       "the app never joined the accessibility bus")
    get(app, "push button", "Program scenario")
    return app


def case_route(session):
    # A reader's way: screen changes announce the screen, a press from the reader takes the focus into
    # the field it opens, inserted text enables Create, the date reads with its label, and the
    # confirmation comes as an alert with its text.
    import pyatspi
    app = main_window(session)
    events = []

    def heard(event):
        if event.detail1:
            up, source = [], event.source
            while source is not None:
                up, source = up + [(source.getRoleName(), source.name)], source.parent
            events.append((event.type.split(":")[-1], *up[0], up))
    pyatspi.Registry.registerEventListener(heard, "object:state-changed:focused", "object:state-changed:showing")

    def announced(what, kind, role, name, panel=None):
        session.wait(lambda: any(e[:2] == (kind, role) and name in (None, e[2]) and (
            panel is None or ("panel", panel) in e[3]) for e in events),
            f"{what} was not announced; heard: {[e[:3] for e in events][-12:]}", 30)

    # A click brings the scenario screen: the focus moving into it says which screen it is.
    x, y, _, _ = session.window()
    subprocess.run(["xdotool", "mousemove", str(x + PROGRAM[0] + 100), str(y + PROGRAM[1] + 40), "click", "1"])
    announced("the scenario screen", "focused", "push button", None, "Scenario")
    press(app, "push button", "Create a new scenario")
    announced("the name field", "focused", "text", "Scenario name")
    get(app, "text", "Scenario name").queryEditableText().insertText(0, "Robo", 4)
    create = get(app, "push button", "Create")
    session.wait(lambda: create.getState().contains(pyatspi.STATE_ENABLED), "inserted text left Create disabled")
    press(app, "push button", "Back")
    press(app, "push button", "Alarm/Clock")
    announced("the alarm's choose page", "focused", "push button", None, "Alarm: choose")
    press(app, "push button", "Birthday alarm:Off")
    announced("the birthday page", "focused", "radio button", None, "Alarm: birthday")
    press(app, "radio button", "Birthday alarm, On")
    get(app, "push button", re.compile(r"Birthday date, \d{4}/\d\d/\d\d"))
    press(app, "push button", "Done")
    announced("the confirmation", "showing", "alert", "Alarm: confirmation")
    get(get(app, "alert", "Alarm: confirmation"), "label", re.compile("Birthday Alarm is on!!!.*", re.S))


def case_extents(session, scale):
    # One frame; "Program scenario" and the name field (a field of Qt's kind) reported where they are
    # drawn (within a pixel and a half), and the button found there by what is under a point (a
    # reader's mouse review, a magnifier).
    import pyatspi
    app = main_window(session)
    frames = [w for w in app if w is not None and w.getRoleName() == "frame"]
    assert [f.name for f in frames] == ["Robot Companion"], f"top-level frames: {[f.name for f in frames]}"
    x, y, width, height = session.window()
    factor = scale or width / 1024

    def placed(accessible, place):
        drawn = (x + place[0] * factor, y + place[1] * factor, place[2] * factor, place[3] * factor)
        e = accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        reported = (e.x, e.y, e.width, e.height)
        assert all(abs(r - d) <= 1.5 for r, d in zip(reported, drawn)), \
            f"{accessible.name} reported at {reported}, drawn at {tuple(round(v) for v in drawn)}"
        return round(drawn[0] + drawn[2] / 2), round(drawn[1] + drawn[3] / 2)

    centre = placed(get(app, "push button", "Program scenario"), PROGRAM)
    hit = frames[0].queryComponent().getAccessibleAtPoint(*centre, pyatspi.DESKTOP_COORDS)
    assert hit is not None and hit.name == "Program scenario", f"at its centre: {hit and hit.name}"
    press(app, "push button", "Program scenario")
    press(app, "push button", "Create a new scenario")
    placed(get(app, "text", "Scenario name"), NAME)


# name: the X screen's size, the app's environment, the check
CASES = {
    "route": ("1280x1024", {}, case_route),
    "scaled window": ("1024x600", {}, lambda s: case_extents(s, None)),
    "scale 1.5": ("1600x1200", {"QT_SCALE_FACTOR": "1.5"}, lambda s: case_extents(s, 1.5)),
}


def main(binary, case=None):
    if case:
        size, env, check = CASES[case]
        session = Session(binary, size, env)
        try:
            check(session)
        finally:
            session.stop()
        return 0
    required = os.environ.get("ROBOT_E2E_REQUIRED") == "1"
    if why := missing():
        print(f"{'Cannot run the' if required else 'SKIPPED'} accessibility tests: {why}", file=sys.stderr)
        return 1 if required else 77
    failed = [name for name in CASES if subprocess.run([sys.executable, __file__, binary, name]).returncode]
    print(f"FAILED: {', '.join(failed)}" if failed else f"PASSED: {', '.join(CASES)}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

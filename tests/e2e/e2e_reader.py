#!/usr/bin/python3
"""End to end through the accessibility bus: the real robot-companion binary in a private X server
with a D-Bus session and an AT-SPI bus of its own, read with pyatspi as a screen reader reads it.

Usage: e2e_reader.py BINARY. Exit 77 (skipped) when no accessibility bus can start here, unless
ROBOT_E2E_REQUIRED=1, which makes that a failure. Each case runs in a child process of its own:
the AT-SPI client binds to one bus for its lifetime.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
# "Program scenario" in the window's 1024 x 768 points, as the main menu's layout table places it.
PROGRAM = (607, 172, 250, 93)


def missing_tools():
    for tool in ("Xvfb", "xdotool", "dbus-daemon"):
        if not shutil.which(tool):
            return f"{tool} is not on PATH (Debian packages xvfb, xdotool, dbus-daemon)"
    if not os.access(LAUNCHER, os.X_OK):
        return f"{LAUNCHER} is missing (Debian package at-spi2-core)"
    try:
        import gi  # noqa: F401
        import pyatspi  # noqa: F401
    except ImportError as error:
        return f"pyatspi cannot be imported ({error}; Debian package python3-pyatspi)"
    return None


class Session:
    """A private X server of the given size, a D-Bus session with its AT-SPI bus, and the app."""

    def __init__(self, binary, size, env):
        self.folder = tempfile.mkdtemp(prefix="robot-reader-")
        os.chmod(self.folder, 0o700)
        self.processes = []
        read, write = os.pipe()
        self.start(["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size}x24", "-nolisten", "tcp",
                    "-noreset"], pass_fds=(write,), stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            os.environ["DISPLAY"] = ":" + number.readline().strip()
        os.environ.update(XDG_RUNTIME_DIR=self.folder, HOME=self.folder)
        bus = self.start(["dbus-daemon", "--session", "--nofork", "--print-address=1"], stdout=subprocess.PIPE,
                         stderr=subprocess.DEVNULL, text=True)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        # The bus of the assistive technologies, started now rather than on the app's first call.
        launcher = self.start([LAUNCHER, "--launch-immediately"], stderr=subprocess.DEVNULL)
        self.wait(lambda: launcher.poll() is None and os.path.exists(os.path.join(self.folder, "at-spi")),
                  "the accessibility bus did not start")
        self.stderr = open(os.path.join(self.folder, "app.err"), "w+")
        self.app = self.start([binary], env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", **env),
                              stderr=self.stderr)

    def start(self, args, **options):
        process = subprocess.Popen(args, **options)
        self.processes.append(process)
        return process

    def wait(self, condition, failure, seconds=60):
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline:
            if self.processes and self.app_ended():
                break
            result = condition()
            if result:
                return result
            pump(0.1)
        self.stderr.seek(0) if hasattr(self, "stderr") else None
        raise AssertionError(failure + ("; stderr:\n" + self.stderr.read() if hasattr(self, "stderr") else ""))

    def app_ended(self):
        return hasattr(self, "app") and self.app.poll() is not None

    def xdotool(self, *args):
        return subprocess.run(["xdotool", *args], check=True, capture_output=True, text=True).stdout

    def window(self):
        """The app's window on the X screen: x, y, width, height."""
        out = self.xdotool("search", "--onlyvisible", "--name", "^Robot Companion$", "getwindowgeometry", "--shell")
        values = dict(line.split("=") for line in out.split() if "=" in line)
        return tuple(int(values[k]) for k in ("X", "Y", "WIDTH", "HEIGHT"))

    def stop(self):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(20)
            except subprocess.TimeoutExpired:
                process.kill()
        shutil.rmtree(self.folder, ignore_errors=True)


def pump(seconds):
    """Runs the client's event loop for a while: the bus's events reach the listeners."""
    from gi.repository import GLib
    context = GLib.MainContext.default()
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        while context.iteration(False):
            pass
        time.sleep(0.02)


def showing(accessible):
    import pyatspi
    return accessible.getState().contains(pyatspi.STATE_SHOWING)


def find(root, role, name, seconds=30):
    """The showing object of that role whose name is `name` (or matches it, a compiled pattern), once
    it shows; None when it does not within the time."""
    import pyatspi
    matches = name.fullmatch if isinstance(name, re.Pattern) else name.__eq__
    deadline = time.monotonic() + seconds
    while True:
        found = pyatspi.findDescendant(
            root, lambda a: a is not None and a.getRoleName() == role and matches(a.name) and showing(a))
        if found is not None or time.monotonic() > deadline:
            return found
        pump(0.2)


def get(root, role, name):
    found = find(root, role, name)
    assert found is not None, f"no {role} {name!r} shows"
    return found


def ancestors(accessible):
    names = []
    while accessible is not None:
        names.append((accessible.getRoleName(), accessible.name))
        accessible = accessible.parent
    return names


def press(accessible):
    action = accessible.queryAction()
    action.doAction([action.getName(i) for i in range(action.nActions)].index("Press"))


def main_window(session):
    import pyatspi
    desktop = pyatspi.Registry.getDesktop(0)
    app = session.wait(lambda: next((a for a in desktop if a is not None and a.name == "robot-companion"), None),
                       "the app never joined the accessibility bus")
    get(app, "push button", "Program scenario")
    return app


def case_route(session):
    """A screen reader's way: screen changes announce the screen, a press from the reader moves the focus
    into the field it opens, inserted text enables Create, the date reads with its label, and the
    confirmation comes as an alert."""
    import pyatspi
    app = main_window(session)
    events = []

    def heard(event):
        if event.detail1:
            events.append((event.type, event.source.getRoleName(), event.source.name, ancestors(event.source)))
    pyatspi.Registry.registerEventListener(heard, "object:state-changed:focused", "object:state-changed:showing")

    def announced(what, test):
        def found():
            return any(test(*e) for e in events)
        session.wait(found, f"{what} was not announced; heard: {[e[:3] for e in events][-12:]}", 30)

    def focus_in(kind, name, panel=None):
        return lambda t, role, n, up: t.endswith("focused") and role == kind and (
            name is None or n == name) and (panel is None or ("panel", panel) in up)

    # A click brings the scenario screen: the focus that moves into it says which screen it is.
    x, y, _, _ = session.window()
    session.xdotool("mousemove", str(x + PROGRAM[0] + 100), str(y + PROGRAM[1] + 40), "click", "1")
    announced("the scenario screen", focus_in("push button", None, "Scenario"))
    # Pressed by the reader, "Create a new scenario" takes the focus into the name field.
    press(get(app, "push button", "Create a new scenario"))
    announced("the name field", focus_in("text", "Scenario name"))
    field = get(app, "text", "Scenario name")
    field.queryEditableText().insertText(0, "Robo", 4)
    create = get(app, "push button", "Create")
    session.wait(lambda: create.getState().contains(pyatspi.STATE_ENABLED), "inserted text left Create disabled")

    press(get(app, "push button", "Back"))
    press(get(app, "push button", "Alarm/Clock"))
    announced("the alarm screen", focus_in("push button", None, "Alarm"))
    press(get(app, "push button", "Birthday alarm:Off"))
    press(get(app, "radio button", "Birthday alarm, On"))
    get(app, "push button", re.compile(r"Birthday date, \d{4}/\d\d/\d\d"))
    press(get(app, "push button", "Done"))

    def confirmation(t, role, name, up):
        if not (t.endswith("showing") and role == "alert" and name == "Alarm: confirmation"):
            return False
        alert = find(app, "alert", "Alarm: confirmation", 0)
        return alert is not None and find(alert, "label", re.compile(r"Birthday Alarm is on!!!.*", re.S), 0)
    announced("the confirmation, as an alert with its text", confirmation)


def case_extents(session, scale):
    """One frame, and "Program scenario" reported where it is drawn (within a pixel)."""
    app = main_window(session)
    frames = [w for w in app if w is not None and w.getRoleName() == "frame"]
    assert [f.name for f in frames] == ["Robot Companion"], f"top-level frames: {[f.name for f in frames]}"
    x, y, width, height = session.window()
    factor = width / 1024 if scale is None else scale
    expected = (x + PROGRAM[0] * factor, y + PROGRAM[1] * factor, PROGRAM[2] * factor, PROGRAM[3] * factor)
    import pyatspi
    extents = get(app, "push button", "Program scenario").queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    reported = (extents.x, extents.y, extents.width, extents.height)
    assert all(abs(r - e) <= 1.5 for r, e in zip(reported, expected)), \
        f"reported at {reported}, drawn at {tuple(round(v) for v in expected)} (window {x, y, width, height})"


# name: screen size, environment, the check
CASES = {
    "route": ("1280x1024", {}, case_route),
    "scaled window": ("1024x600", {}, lambda s: case_extents(s, None)),
    "scale 1.5": ("1600x1200", {"QT_SCALE_FACTOR": "1.5"}, lambda s: case_extents(s, 1.5)),
}


def run_case(binary, name):
    size, env, check = CASES[name]
    session = Session(binary, size, env)
    try:
        check(session)
        if session.app_ended():
            raise AssertionError("the app ended on its own")
    finally:
        session.stop()
        session.stderr.seek(0)
        errors = session.stderr.read()
        if "Sanitizer" in errors or "runtime error" in errors:
            raise AssertionError(errors)


def main():
    binary = sys.argv[1]
    if len(sys.argv) > 2:
        try:
            run_case(binary, sys.argv[2])
        except AssertionError as failure:
            print(f"FAIL {sys.argv[2]}: {failure}", file=sys.stderr)
            return 1
        return 0
    required = os.environ.get("ROBOT_E2E_REQUIRED") == "1"
    why = missing_tools()
    if why:
        print(f"{'Cannot run the' if required else 'SKIPPED'} accessibility tests: {why}", file=sys.stderr)
        return 1 if required else SKIPPED
    failed = 0
    for name in CASES:
        status = subprocess.run([sys.executable, __file__, binary, name]).returncode
        print(f"{'PASS' if status == 0 else 'FAIL'}   : {name}")
        failed += status != 0
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())

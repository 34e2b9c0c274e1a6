"""A private desktop: X server, window manager, session and accessibility buses, and the program under test."""

import contextlib
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
PROGRAM = pathlib.Path(os.environ.get("TESSARIN_PROGRAM", ROOT / "build/release/tessarin"))

# Most of what is typed has letters right before the trigger, to see that they stay.
PREFERENCES = {"hasCompletedOnboarding": True, "confirmsOnlyWhatIsMeant": False}


def wait_for(condition, seconds=10.0, what="a condition"):
    """Polls until the condition gives something true; fails after the deadline."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise TimeoutError(f"waited {seconds} s for {what}")
        time.sleep(0.01)


class Session:
    """Everything it starts, it ends, by process id; everything it writes goes with its folder."""

    def __init__(self, screen="1280x800x24", scale=1.0, window_manager=("openbox", "--sm-disable")):
        self._screen = screen
        self._window_manager = window_manager
        self._scale = scale
        self._children = []
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessarin-desktop-"))
        self.env = self._environment()

    def __enter__(self):
        try:
            self._start_display()
            self._start_buses()
            self._start_window_manager()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def _environment(self):
        env = {k: v for k, v in os.environ.items() if not k.startswith(("XDG_", "WAYLAND", "DBUS_", "QT_", "GTK_"))}
        for name in ("config", "data", "cache", "runtime", "home"):
            (self.folder / name).mkdir(mode=0o700)
        env.update(
            HOME=str(self.folder / "home"),
            XDG_CONFIG_HOME=str(self.folder / "config"),
            XDG_DATA_HOME=str(self.folder / "data"),
            XDG_CACHE_HOME=str(self.folder / "cache"),
            XDG_RUNTIME_DIR=str(self.folder / "runtime"),
            XDG_SESSION_TYPE="x11",
            LANG="C.UTF-8",
            LC_ALL="C.UTF-8",
            TZ="UTC",
            GSETTINGS_BACKEND="memory",
            NO_AT_BRIDGE="0",
        )
        return env

    def start(self, *command, **options):
        """Starts a child of the session, in a process group of its own."""
        options.setdefault("env", self.env)
        options.setdefault("stdin", subprocess.DEVNULL)
        options.setdefault("stdout", subprocess.DEVNULL)
        options.setdefault("stderr", subprocess.DEVNULL)
        child = subprocess.Popen([str(part) for part in command], start_new_session=True, **options)
        self._children.append(child)
        return child

    def stop(self, child, how=signal.SIGTERM, seconds=5.0):
        """Ends a child and whatever it started itself."""
        if child in self._children:
            self._children.remove(child)
        if child.poll() is None:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(child.pid, signal.SIGCONT)
                os.killpg(child.pid, how)
            try:
                child.wait(seconds)
            except subprocess.TimeoutExpired:
                with contextlib.suppress(ProcessLookupError):
                    os.killpg(child.pid, signal.SIGKILL)
                child.wait()
        with contextlib.suppress(ProcessLookupError):
            os.killpg(child.pid, signal.SIGKILL)
        return child.returncode

    def run(self, *command, check=True, **options):
        options.setdefault("env", self.env)
        options.setdefault("capture_output", True)
        options.setdefault("timeout", 30)
        return subprocess.run([str(part) for part in command], check=check, **options)

    def close(self):
        for child in reversed(list(self._children)):
            self.stop(child)
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start_display(self):
        read_end, write_end = os.pipe()
        self.start("Xvfb", "-displayfd", str(write_end), "-screen", "0", self._screen, "-nolisten", "tcp", "-noreset",
                   pass_fds=[write_end])
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.env["DISPLAY"] = ":" + number
        if self._scale != 1.0:
            self.run("xrdb", "-merge", "-", input=f"Xft.dpi: {int(96 * self._scale)}\n".encode())

    def _start_buses(self):
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1", stdout=subprocess.PIPE, text=True)
        self.env["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        self.start("/usr/libexec/at-spi-bus-launcher", "--launch-immediately")
        wait_for(lambda: b"unix:" in self.run("gdbus", "call", "--session", "--dest", "org.a11y.Bus", "--object-path",
                                              "/org/a11y/bus", "--method", "org.a11y.Bus.GetAddress", check=False).stdout,
                 what="the accessibility bus")

    def _start_window_manager(self):
        self.start(*self._window_manager)
        wait_for(lambda: b"window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK", check=False).stdout,
                 what="the window manager")

    def screenshot(self, path, window="root"):
        path = pathlib.Path(path)
        path.parent.mkdir(parents=True, exist_ok=True)
        self.run("import", "-window", window, path)
        return path


class Tessarin:
    """The running program; its log goes to a file."""

    def __init__(self, session, allowed=True, program=PROGRAM, welcomes=False, **preferences):
        self.session = session
        self.program = program
        self.log_path = session.folder / "tessarin.log"
        self._child = None
        self._ready = "Keyboard monitor started successfully" if allowed else "will retry when permission is granted"
        if allowed:
            session.run(program, "--allow")
        if not welcomes:
            self._skip_onboarding(PREFERENCES | preferences)

    def _skip_onboarding(self, preferences):
        path = pathlib.Path(self.session.env["XDG_CONFIG_HOME"]) / "tessarin/preferences.json"
        if not path.exists():
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(json.dumps(preferences))

    def __enter__(self):
        self.start()
        return self

    def __exit__(self, *_):
        self.stop()

    def start(self):
        earlier = self.log.count(self._ready)
        self._child = self.session.start(self.program, stdout=self.log_path.open("ab"), stderr=subprocess.STDOUT)
        self.wait_for_log(self._ready, earlier + 1)

    def stop(self, how=signal.SIGTERM):
        if self._child is None:
            return None
        child, self._child = self._child, None
        return self.session.stop(child, how)

    @property
    def pid(self):
        return self._child.pid

    @property
    def log(self):
        return self.log_path.read_text(errors="replace") if self.log_path.exists() else ""

    def wait_for_log(self, text, count=1, seconds=20.0):
        def seen():
            if self._child is not None and self._child.poll() is not None:
                raise RuntimeError(f"the program ended with {self._child.returncode}:\n{self.log}")
            return self.log.count(text) >= count
        wait_for(seen, seconds, f"the log line “{text}”")

    def command(self, *options, **how):
        return self.session.run(self.program, *options, **how)

    def resident_kilobytes(self):
        status = pathlib.Path(f"/proc/{self.pid}/status").read_text()
        return int(re.search(r"VmRSS:\s+(\d+)", status).group(1))

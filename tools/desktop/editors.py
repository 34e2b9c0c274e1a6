"""Real programs to type into; each one gives back what stands in its document."""

import http.server
import os
import pathlib
import signal
import subprocess
import threading
import time

from session import wait_for


class Editor:
    """A text editor on a file; the document is read by saving it."""

    command = ()
    environment = {}
    settings = {}  # files below the folder of settings
    keeps_lines = True

    def __init__(self, session, typist):
        self.session = session
        self.typist = typist
        self.path = session.folder / f"{type(self).__name__.lower()}-{os.urandom(3).hex()}.txt"
        self.path.touch()
        self._child = None

    def __enter__(self):
        for name, content in self.settings.items():
            path = pathlib.Path(self.session.env["XDG_CONFIG_HOME"]) / name
            path.parent.mkdir(exist_ok=True)
            path.write_text(content)
        before = self.typist.client_windows()
        self._child = self.session.start(*self.command, self.path, env=self.session.env | self.environment)
        self._window = wait_for(lambda: self._new_active_window(before), 120, f"the window of {self.command[0]}")
        self._wait_until_it_takes_keys()
        wait_for(self.is_at_rest, 60, f"{self.command[0]} to come to rest")
        return self

    def __exit__(self, *_):
        self.session.stop(self._child, signal.SIGKILL)
        wait_for(lambda: self._window not in self.typist.client_windows(), what="the window to go")

    def _new_active_window(self, before):
        active = self.typist.active_window()
        return active if active in self.typist.client_windows() - before else None

    def _wait_until_it_takes_keys(self):
        wait_for(self._takes_a_key, 60, f"{self.command[0]} to take keys")
        self.typist.press("a", "Control_L")
        self.typist.press("BackSpace")

    def is_at_rest(self, seconds=0.2):
        """Whether it has done all it was told: a program that still works moves its focus about."""
        before = self._clock_ticks()
        time.sleep(seconds)
        return self._clock_ticks() - before <= 2

    def _clock_ticks(self):
        fields = pathlib.Path(f"/proc/{self.pid}/stat").read_text().rpartition(")")[2].split()
        return int(fields[11]) + int(fields[12])

    def _takes_a_key(self):
        """A key that comes before the document is loaded can be lost, so each attempt types anew."""
        self.typist.press("a", "Control_L")
        self.typist.type("q")
        self.save()
        return self.path.read_text().removesuffix("\n") == "q"

    @property
    def pid(self):
        return self._child.pid

    def save(self):
        stamp = self.path.stat().st_mtime_ns
        self.typist.press("s", "Control_L")
        try:
            wait_for(lambda: self.path.stat().st_mtime_ns != stamp, 0.5)
        except TimeoutError:
            pass  # nothing to save

    def document(self):
        self.save()
        return self.path.read_text().removesuffix("\n")

    def wait_for_document(self, expected, seconds=20.0):
        """The document once it is as expected, else what it is when the time is over."""
        try:
            wait_for(lambda: self.document() == expected.removesuffix("\n"), seconds)
        except TimeoutError:
            pass
        return self.document()


class Mousepad(Editor):
    command = ("mousepad", "--disable-server")


class GnomeTextEditor(Editor):
    command = ("gnome-text-editor", "--standalone")


class Featherpad(Editor):
    command = ("featherpad", "--standalone")
    settings = {"featherpad/fp.conf": "[text]\nappendEmptyLine=false\n"}


class Geany(Editor):
    command = ("geany", "--new-instance", "--no-session", "--no-msgwin", "--no-terminal", "--no-plugins", "--no-ctags")

    def __enter__(self):
        settings = pathlib.Path(self.session.env["XDG_CONFIG_HOME"]) / "geany/geany.conf"
        settings.parent.mkdir(exist_ok=True)
        settings.write_text("[geany]\npref_editor_new_line=false\n")
        return super().__enter__()


class Scite(Editor):
    """The other well-known program around the Scintilla widget."""

    command = ("scite",)

    def __enter__(self):
        (pathlib.Path(self.session.env["HOME"]) / ".SciTEUser.properties").write_text("code.page=65001\n")
        return super().__enter__()


class Xterm(Editor):
    """A terminal that copies its lines into a file; where the lines end does not count."""

    command = ("xterm", "-fa", "DejaVu Sans Mono", "-e", "sh", "-c", 'stty -echoctl iutf8; exec cat > "$0"')
    keeps_lines = False

    def _wait_until_it_takes_keys(self):
        self.typist.type("\n")
        wait_for(lambda: self.path.read_text() == "\n", 30, "xterm to take keys")

    def save(self):
        self.typist.press("Return")

    def document(self):
        return self.path.read_text().replace("\n", "")

    def wait_for_document(self, expected, seconds=20.0):
        self.save()
        return super().wait_for_document(expected, seconds)


class Shell(Xterm):
    """The same with lines that can be edited."""

    command = (*Xterm.command[:-3], "bash", "-c", 'while read -er line; do echo "$line" >> "$0"; done')


class DeafXterm(Xterm):
    """One that does not paste by keys."""

    command = (Xterm.command[0], "-xrm", "*VT100.translations: #override Shift<Key>Insert: ignore()", *Xterm.command[1:])


class Gvim(Editor):
    """Inserting, with the keys that the others know for saving and selecting all."""

    command = ("gvim", "-f", "-c", "startinsert", "-c", "inoremap <C-S> <Cmd>silent write<CR>", "-c",
               "inoremap <C-A> <Cmd>%delete<CR>")


class Emacs(Editor):
    command = ("emacs", "-Q", "--eval", """(progn (setq mode-require-final-newline nil)
        (global-set-key (kbd "C-s") 'save-buffer)
        (global-set-key (kbd "C-a") (lambda () (interactive) (erase-buffer))))""")


class Page(http.server.ThreadingHTTPServer):
    """A web page with a place to write between many other elements, which tells of every change."""

    HTML = """<!DOCTYPE html><meta charset="utf-8">FIELD<script>
        let count = 0; const field = document.getElementById("field");
        const text = () => "value" in field ? field.value : field.innerText.replaceAll("\\u00a0", " ");
        field.oninput = () => fetch("/" + ++count, {method: "POST", body: text()}); field.focus()</script>""" + (
        "<p>some <b>text</b> and <a href='#'>a link</a></p>" * 2000)

    class Handler(http.server.BaseHTTPRequestHandler):
        def do_GET(self):
            self.answer(Page.HTML.replace("FIELD", self.server.field).encode())

        def do_POST(self):
            text = self.rfile.read(int(self.headers["Content-Length"] or 0)).decode()
            self.server.reports[int(self.path[1:])] = text  # they may overtake one another
            self.answer(b"")

        def answer(self, body):
            self.send_response(200)
            self.send_header("Content-Type", "text/html")
            self.send_header("Content-Length", str(len(body)))
            self.end_headers()
            self.wfile.write(body)

        def log_message(self, *_):
            pass

    def __init__(self, field):
        super().__init__(("127.0.0.1", 0), Page.Handler)
        self.field = field
        self.reports = {0: ""}
        threading.Thread(target=self.serve_forever, daemon=True).start()

    @property
    def text(self):
        return self.reports[max(self.reports)]

    def close(self):
        self.shutdown()
        self.server_close()


class Browser(Editor):
    """A place to write in a web page, which the browser draws and another process of it holds."""

    field = '<textarea id="field" rows="12" cols="80"></textarea>'
    profile_files = {}

    def __enter__(self):
        profile = self.session.folder / f"profile-{os.urandom(3).hex()}"
        profile.mkdir()
        for name, content in self.profile_files.items():
            (profile / name).write_text(content)
        self._page = Page(self.field)
        self.path = f"http://127.0.0.1:{self._page.server_port}/"
        self.command = [part.replace("PROFILE", str(profile)) for part in self.command]
        return super().__enter__()

    def __exit__(self, *details):
        super().__exit__(*details)
        self._page.close()

    def _wait_until_it_takes_keys(self):
        def taken():
            self.typist.type("q")
            return self._page.text
        wait_for(taken, 60, "the page to take keys")
        self.typist.press("a", "Control_L")
        self.typist.press("BackSpace")
        wait_for(lambda: not self._page.text.strip(), what="an empty page")

    def save(self):
        pass

    def document(self):
        return self._page.text


class Firefox(Browser):
    command = ("firefox-esr", "--no-remote", "--profile", "PROFILE")
    profile_files = {"user.js": "".join(f'user_pref("{name}", false);\n' for name in (
        "browser.shell.checkDefaultBrowser", "browser.aboutwelcome.enabled", "datareporting.policy.dataSubmissionEnabled"))}


class Chromium(Browser):
    command = ("chromium", "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking",
               "--disable-component-update", "--disable-sync", "--password-store=basic", "--user-data-dir=PROFILE")


ALL = (Mousepad, GnomeTextEditor, Featherpad, Xterm)


def set_clipboard(session, data, target=None, selection="clipboard"):
    command = ["xclip", "-selection", selection, "-i"] + (["-t", target] if target else [])
    child = session.start(*command, "-quiet", stdin=subprocess.PIPE)
    child.stdin.write(data)
    child.stdin.close()
    wait_for(lambda: clipboard(session, target, selection) == data, what="the clipboard")
    return child


def clipboard(session, target=None, selection="clipboard"):
    command = ["xclip", "-selection", selection, "-o"] + (["-t", target] if target else [])
    return session.run(*command, check=False).stdout



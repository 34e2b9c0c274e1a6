"""Real programs to type into; each one gives back what stands in its document."""

import http.server
import json
import mailbox
import os
import pathlib
import signal
import subprocess
import threading
import time
import xml.etree.ElementTree

from session import wait_for


class Editor:
    """A text editor on a file; the document is read by saving it."""

    command = ()
    environment = {}
    settings = {}  # files below the folder of settings
    keeps_lines = True
    seconds_to_save = 0.5

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
        self.command = [str(part).replace("SETTINGS", self.session.env["XDG_CONFIG_HOME"]) for part in self.command]
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
        wait_for(self.is_at_rest, 60, f"{self.command[0]} to have done what it was told")
        self.typist.press("a", "Control_L")
        self.typist.press("BackSpace")

    def is_at_rest(self, seconds=0.2):
        """Whether it has done all it was told: a program that still works moves its focus about."""
        before = self._clock_ticks()
        time.sleep(seconds)
        return self._clock_ticks() - before <= 2

    def _clock_ticks(self):
        """Of all its processes: some are started by a script, others start helpers."""
        ticks = 0
        for process in pathlib.Path("/proc").glob("[0-9]*/stat"):
            try:
                fields = process.read_text().rpartition(")")[2].split()
            except (FileNotFoundError, ProcessLookupError):
                continue
            if int(fields[3]) == self.pid:
                ticks += int(fields[11]) + int(fields[12])
        return ticks

    def _takes_a_key(self):
        """A key that comes before the document is loaded can be lost, so each attempt types anew."""
        self.typist.press("a", "Control_L")
        self.typist.type("q")
        self.save()
        return self._saved_text().removesuffix("\n") == "q"

    def _saved_text(self):
        return self.path.read_text()

    @property
    def pid(self):
        return self._child.pid

    def save(self):
        stamp = self._saved_at()
        self.typist.press("s", "Control_L")
        try:
            wait_for(lambda: self._saved_at() not in (None, stamp), self.seconds_to_save)
        except TimeoutError:
            pass  # nothing to save

    def _saved_at(self):
        """None in the moment in which some have moved the old file away."""
        return self.path.stat().st_mtime_ns if self.path.exists() else None

    def document(self):
        self.save()
        return self._saved_text().removesuffix("\n")

    def lines(self):
        """What has been typed, line by line."""
        self.save()
        return self.path.read_text().splitlines()

    def wait_for_document(self, expected, seconds=20.0):
        """The document once it is as expected, else what it was when the time was over."""
        seen = []
        def stands():
            seen[:] = [self.document()]
            return seen[0] == expected.removesuffix("\n")
        try:
            wait_for(stands, seconds)
        except TimeoutError:
            pass
        return seen[0]


class Mousepad(Editor):
    command = ("mousepad", "--disable-server")


class GnomeTextEditor(Editor):
    command = ("gnome-text-editor", "--standalone")


class Featherpad(Editor):
    command = ("featherpad", "--standalone")
    settings = {"featherpad/fp.conf": "[text]\nappendEmptyLine=false\n"}


class Geany(Editor):
    command = ("geany", "--new-instance", "--no-session", "--no-msgwin", "--no-terminal", "--no-plugins", "--no-ctags")
    settings = {"geany/geany.conf": "[geany]\npref_editor_new_line=false\n"}


class Scite(Editor):
    """The other well-known program around the Scintilla widget."""

    command = ("scite",)

    def __enter__(self):
        (pathlib.Path(self.session.env["HOME"]) / ".SciTEUser.properties").write_text("code.page=65001\n")
        return super().__enter__()


class Kate(Editor):
    command = ("kate", "--new", "--block")
    settings = {"katerc": "[KTextEditor Document]\nNewline at End of File=false\nRemove Spaces=0\n"}


class Texstudio(Editor):
    command = ("texstudio", "--start-always", "--no-session")
    settings = {"texstudio/texstudio.ini": "[texmaker]\nStartup\\CheckLatexConfiguration=false\n"}


class Jedit(Editor):
    command = ("jedit", "-noserver", "-nosplash", "-settings=SETTINGS/jedit")
    settings = {"jedit/properties": "firstTime=false\ntip.show=false\n"}
    seconds_to_save = 5  # it refuses to save while it does


class Calc(Editor):
    """The cells of a column of a spreadsheet."""

    command = ("localc", "--norestore", "--nologo", "--nofirststartwizard", "-env:UserInstallation=file://SETTINGS/office")
    NAMES = "urn:oasis:names:tc:opendocument:xmlns:"
    EMPTY = f"""<?xml version="1.0" encoding="UTF-8"?><office:document xmlns:office="{NAMES}office:1.0"
        xmlns:table="{NAMES}table:1.0" office:version="1.3"
        office:mimetype="application/vnd.oasis.opendocument.spreadsheet"><office:body><office:spreadsheet>
        <table:table table:name="Sheet"/></office:spreadsheet></office:body></office:document>"""

    def __init__(self, session, typist):
        super().__init__(session, typist)
        self.path = self.path.rename(self.path.with_suffix(".fods"))
        self.path.write_text(self.EMPTY)

    def _wait_until_it_takes_keys(self):
        wait_for(self._takes_a_key, 60, "a cell to take keys")

    def _takes_a_key(self):
        self.typist.type("q\n")
        self.save()
        return "q" in self._cells()

    def _cells(self):
        document = xml.etree.ElementTree.fromstring(self.path.read_text().replace("<text:s/>", " "))
        return ["".join(paragraph.itertext()) for cell in document.iter(f"{{{self.NAMES}table:1.0}}table-cell")
                for paragraph in cell]

    def wait_for_document(self, expected, seconds=20.0):
        self.typist.press("Return")  # ends the writing of the last cell
        return super().wait_for_document(expected, seconds)

    def document(self):
        self.save()
        return "\n".join(cell for cell in self._cells() if cell.lower() != "q")


class Thunderbird(Editor):
    """A message being written, which is saved as a draft."""

    command = ("thunderbird", "--no-remote", "--profile", "SETTINGS/thunderbird", "about:blank")
    ACCOUNT = {
        "mail.accountmanager.accounts": "account1", "mail.accountmanager.localfoldersserver": "server1",
        "mail.account.account1.server": "server1", "mail.account.account1.identities": "id1",
        "mail.server.server1.type": "none", "mail.server.server1.hostname": "Local Folders",
        "mail.server.server1.userName": "nobody", "mail.server.server1.directory-rel": "[ProfD]Mail",
        "mail.identity.id1.useremail": "somebody@localhost", "mail.identity.id1.compose_html": False,
        "mail.identity.id1.draft_folder": "mailbox://nobody@Local%20Folders/Drafts",
        "mailnews.wraplength": 0, "mailnews.send_plaintext_flowed": False, "mail.compose.autosave": False,
        "mail.shell.checkDefaultClient": False, "datareporting.policy.dataSubmissionEnabled": False}
    settings = {"thunderbird/user.js": "".join(
        f"user_pref({json.dumps(name)}, {json.dumps(value)});\n" for name, value in ACCOUNT.items())}
    seconds_to_save = 5

    def __init__(self, session, typist):
        super().__init__(session, typist)
        self.path = pathlib.Path(session.env["XDG_CONFIG_HOME"]) / "thunderbird/Mail/Drafts"

    def _wait_until_it_takes_keys(self):
        wait_for(self.is_at_rest, 60, "the list of messages to come to rest")
        self.typist.press("n", "Control_L")
        wait_for(lambda: self.typist.active_window() not in (0, self._window), 60, "the window of a message")
        wait_for(self.is_at_rest, 60, "the message to come to rest")
        super()._wait_until_it_takes_keys()

    def _takes_a_key(self):
        x, y, width, height = self.typist.active_frame()
        self.typist.click(x + width / 2, y + height * 3 / 4)  # the focus goes to the address
        return super()._takes_a_key()

    def _saved_text(self):
        messages = mailbox.mbox(self.path, create=False) if self.path.exists() else []
        last = list(messages)[-1] if len(messages) else None
        return last.get_payload(decode=True).decode().replace("\r", "").rstrip("\n") if last else ""


class Xterm(Editor):
    """A terminal that copies its lines into a file; where the lines end does not count."""

    shell = ("sh", "-c", 'stty -echoctl iutf8; exec cat > "$0"')
    command = ("xterm", "-fa", "DejaVu Sans Mono", "-e", *shell)
    keeps_lines = False

    def _wait_until_it_takes_keys(self):
        self.typist.type("\n")
        wait_for(lambda: self.path.read_text() == "\n", 30, "xterm to take keys")

    def save(self):
        self.typist.press("Return")

    def document(self):
        return self.path.read_text().replace("\n", "")

    def lines(self):
        return self.path.read_text().splitlines()

    def wait_for_document(self, expected, seconds=20.0):
        self.save()
        return super().wait_for_document(expected, seconds)


class Urxvt(Xterm):
    command = ("urxvt", "-e", *Xterm.shell)


class XfceTerminal(Xterm):
    """One that tells assistive technologies its text."""

    command = ("xfce4-terminal", "--disable-server", "-x", *Xterm.shell)


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
    shows_page_without_focus = False

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
            if self.shows_page_without_focus:
                x, y, *_ = self.typist.active_frame()
                self.typist.click(x + 200, y + 220)
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


class ChromiumRichText(Chromium):
    field = '<div id="field" contenteditable></div>'


class Epiphany(Browser):
    command = ("epiphany-browser", "--private-instance", "--profile=PROFILE")
    environment = {"WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS": "1"}  # it cannot be had within another sandbox


class Falkon(Browser):
    command = ("falkon", "--no-extensions", "--profile=test")
    environment = {"QTWEBENGINE_DISABLE_SANDBOX": "1"}  # root's pages are shown without one only
    shows_page_without_focus = True


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



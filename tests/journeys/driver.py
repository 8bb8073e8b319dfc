"""Drives the program as somebody does who sees it through assistive technology and has a keyboard.

Everything is found by its role and its accessible name, and operated by keys, so that a journey fails
where the program cannot be used that way. Nothing waits for a fixed time: `wait` polls a condition and
fails with what it waited for.
"""

import os
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

LIMIT = float(os.environ.get("JOURNEY_LIMIT", "45"))  # [s] for any one condition, on a machine that has other things to do
STEP = 0.05  # [s] between two looks
PATIENCE = 1.5  # [s] that a window may take to get the keys by itself

STATES = Atspi.StateType


class Failure(Exception):
    """What the journey expected and did not find."""


def wait(condition, what, limit=LIMIT):
    """The first answer of `condition()` that counts as true; a Failure that names `what` if none does.

    A question to a window that closes at that moment counts as not true.
    """
    end = time.monotonic() + limit
    while True:
        try:
            focus.listen()
            answer = condition()
        except GLib.Error:
            answer = None
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failure(f"waited {limit:.0f} s for {what}")
        time.sleep(STEP)


class Focus:
    """What has the focus, as it is told to screen readers; None as long as nothing has been told."""

    EVENT = "object:state-changed:focused"

    def __init__(self):
        self.now = None
        self.listener = Atspi.EventListener.new(self._changed)

    def begin(self):
        """To be called when a program is there: one that starts while somebody listens does not always
        register itself."""
        self.listener.register(self.EVENT)

    def end(self):
        """To be called before a program is started."""
        self.listener.deregister(self.EVENT)
        self.listen()
        self.now = None

    def _changed(self, event):
        if event.detail1:
            self.now = event.source
        elif self.now and self.now.path == event.source.path:
            self.now = None

    @staticmethod
    def listen():
        """Takes in what has been told since."""
        while GLib.MainContext.default().iteration(False):
            pass

    def path(self):
        """Tells one place of the focus from another."""
        return self.now and self.now.path


focus = Focus()


def press(*keys):
    """Presses keys one after the other, each as xdotool names it: "Return", "alt+o", "ctrl+shift+s"."""
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)


def type_text(text):
    """Types a text into whatever has the focus. Letters beyond ASCII do not always come through."""
    subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "8", "--", text], check=True)


def words_of(window):
    """The title and the labels of a window. They tell it from a later one that took its place on the
    bus."""
    return [window.get_name()] + [a.get_name() for a in walk(window) if a.get_role_name() == "label"]


def is_gone(window, words):
    """Whether a window that had these words is closed."""
    try:
        return not has(window, STATES.SHOWING) or words_of(window) != words
    except GLib.Error:
        return True


def mouse(*commands):
    """Moves and presses the mouse, by commands of xdotool."""
    subprocess.run(["xdotool", *map(str, commands)], check=True)


def has(accessible, *states):
    """Whether an accessible has all these states."""
    present = accessible.get_state_set()
    return all(present.contains(state) for state in states)


def children(accessible):
    """The children that are there now; a child that goes away while they are counted is left out."""
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child is not None:
            yield child


def matches(name, wanted):
    """Whether a name is the wanted one: equal to a text, or one that a function accepts."""
    if wanted is None:
        return True
    return wanted(name) if callable(wanted) else name == wanted


def containing(part):
    """A name with this part."""
    return lambda name: part in name


def walk(accessible, showing=True):
    """An accessible and all below it, in the order of the tree; what is hidden is left out with all
    below it, unless `showing` is false."""
    if showing and not has(accessible, STATES.SHOWING):
        return
    yield accessible
    for child in children(accessible):
        yield from walk(child, showing)


def find_now(top, role, name=None, showing=True):
    """The first accessible of this role (as AT-SPI names it) and name at or below `top`, or None."""
    for accessible in walk(top, showing):
        if accessible.get_role_name() == role and matches(accessible.get_name(), name):
            return accessible
    return None


def find(top, role, name=None, limit=LIMIT):
    """Like `find_now`, but waits until it is there."""
    return wait(lambda: find_now(top, role, name), f"{role} {describe(name)}", limit)


def describe(name):
    """A wanted name for a message."""
    if callable(name):
        return "whose name has " + ", ".join(repr(c.cell_contents) for c in name.__closure__ or ())
    return repr(name)


def text_of(accessible):
    """The text of a text field, label or browser."""
    text = accessible.get_text_iface()
    return text.get_text(0, text.get_character_count()) if text else accessible.get_name()


def outline(top, depth=0):
    """What there is to see, a line each: for the report of a failure."""
    lines = []
    try:
        if depth and not has(top, STATES.SHOWING):
            return lines
        focused = " *" if has(top, STATES.FOCUSED) else ""
        lines.append(f"{'  ' * depth}{top.get_role_name()} {top.get_name()!r}{focused}")
        for child in children(top):
            lines += outline(child, depth + 1)
    except GLib.Error:
        pass
    return lines


class Program:
    """The running program.

    `home` is the directory that it takes for the user's; the same one again continues where the last
    start left off.
    """

    STARTS = 2  # a first start may meet a desktop whose accessibility service is not up yet

    def __init__(self, path, home, *arguments):
        self.path = path
        self.home = home
        focus.end()
        for _ in range(self.STARTS):
            self.process = subprocess.Popen([path, *arguments], env=self._environment(), cwd=home)
            try:
                self.application = wait(self._find_application, f"a window of {path}", LIMIT / 3)
                focus.begin()
                return
            except Failure as failure:
                self.kill()
                last = failure
        raise last

    def _environment(self):
        return dict(
            os.environ,
            HOME=self.home,
            XDG_CONFIG_HOME=os.path.join(self.home, "config"),
            XDG_DATA_HOME=os.path.join(self.home, "data"),
            XDG_CACHE_HOME=os.path.join(self.home, "cache"),
        )

    def _find_application(self):
        if self.process.poll() is not None:
            raise Failure(f"{self.path} ended with {self.process.returncode} before it had a window")
        for application in children(Atspi.get_desktop(0)):
            if application.get_process_id() == self.process.pid:
                application.set_cache_mask(Atspi.Cache.NONE)
                if any(True for _ in children(application)):
                    return application
        return None

    def windows(self):
        """The windows and dialogs that are open."""
        return [window for window in children(self.application) if has(window, STATES.SHOWING)]

    def active_window(self):
        """The window that gets the keys, or None."""
        return next((window for window in self.windows() if has(window, STATES.ACTIVE)), None)

    def window(self, name, role=None, limit=LIMIT):
        """Waits for a window of this title to be open and to get the keys."""

        begin = time.monotonic()

        def found():
            window = self.active_window()
            if window is None and time.monotonic() - begin > PATIENCE:
                self._take_up()
            if window is None or not matches(window.get_name(), name):
                return None
            return window if role in (None, window.get_role_name()) else None

        return wait(found, f"active window {describe(name)}", limit)

    def _take_up(self):
        """Gives the keys to the program, as by a click on it: a window manager may leave them with
        nobody when a message closes that was there before its window."""
        subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid), "windowactivate"],
            check=False,
        )

    def main_window(self):
        """Waits for the main window to get the keys."""
        return self.window(containing("Tevrane"), "frame")

    def tab_to(self, role, name=None):
        """Presses Tab until something of this role and name has the focus."""
        return self.tab_until(
            lambda now: now.get_role_name() == role and matches(now.get_name(), name),
            f"{role} {describe(name)}",
        )

    def tab_until(self, is_wanted, what, most=60):
        """Presses Tab until the function accepts what has the focus; `what` is it in words."""
        for _ in range(most):
            focus.listen()
            now = focus.now
            if now and is_wanted(now):
                return now
            press("Tab")
            self._wait_for_move(focus.path, now and now.path)
        raise Failure(f"Tab does not come to {what}")

    @staticmethod
    def _wait_for_move(place, before):
        """Waits until the focus is at another place than before; that it stays is no failure."""
        try:
            wait(lambda: place() != before, "the focus to move", 1)
        except Failure:
            pass

    def choose(self, *path):
        """Walks the menus by keys to the entry of this path and takes it."""
        window = self.main_window()
        entry = find(find(window, "menu bar"), "menu item", path[0])
        self._open_menu(entry, path[1])
        for name in path[1:]:
            entry = wait(lambda: find_now(entry, "menu item", name), f"menu entry {name!r}")
            self._step_to(entry)
            if name != path[-1]:
                press("Right")
        press("Return")

    @staticmethod
    def _open_menu(menu, first, tries=3):
        """Opens a menu of the bar. A window that has just come up may let the first key go by."""
        for left in reversed(range(tries)):
            press(mnemonic(menu))
            try:
                wait(lambda: find_now(menu, "menu item", first), f"menu entry {first!r}", LIMIT / tries / 3)
                return
            except Failure:
                if not left:
                    raise
                press("Escape")

    def _step_to(self, entry, most=40):
        def focused_entry():
            return next((one.path for one in children(menu) if has(one, STATES.FOCUSED)), None)

        menu = entry.get_parent()
        for _ in range(most):
            before = focused_entry()
            if before == entry.path:
                return
            press("Down")
            self._wait_for_move(focused_entry, before)
        raise Failure(f"the arrow keys do not come to menu entry {entry.get_name()!r}")

    def answer(self, button, title=None):
        """Takes a button of the dialog that is open, by the keyboard, and waits for it to close."""
        dialog = self.window(title) if title else self.dialog()
        self.tab_to("push button", button)
        self.close_by("space", dialog)

    def dismiss(self, message):
        """Waits for a message with these words, and takes note of it by Enter."""
        dialog = self.dialog()
        find(dialog, "label", containing(message))
        self.close_by("Return", dialog)

    @staticmethod
    def close_by(key, window):
        """Presses a key and waits until the window is gone."""
        words = words_of(window)
        press(key)
        wait(lambda: is_gone(window, words), f"{words[0]!r} to close at {key}")

    def dialog(self, limit=LIMIT):
        """Waits for a dialog or message to get the keys."""

        def found():
            window = self.active_window()
            return window if window and window.get_role_name() in ("dialog", "alert", "file chooser") else None

        return wait(found, "a dialog", limit)

    def fill_file_dialog(self, title, path):
        """Types a path into the dialog for files of this title, and accepts it."""
        dialog = self.window(title, "dialog")
        name = wait(self._focused_field, f"the field for a name of {title!r}")
        press("ctrl+a")
        type_text(str(path))
        wait(lambda: text_of(name) == str(path), f"{str(path)!r} to be typed")
        self.close_by("Return", dialog)

    @staticmethod
    def _focused_field():
        return focus.now if focus.now and focus.now.get_role_name() == "text" else None

    def run_simulation(self, limit=LIMIT):
        """Runs the simulation by its key, and waits until it is over: the command can be given again."""
        press("ctrl+r")
        window = self.window(containing("* - Tevrane"))
        self.wait_for_end_of_run(window, limit)

    @staticmethod
    def wait_for_end_of_run(window, limit=LIMIT):
        """Waits until the run is over: the command can be given again. That the progress is gone does not
        say so yet."""
        command = wait(lambda: find_now(window, "menu item", "Run Simulation", showing=False), "the command")
        wait(lambda: has(command, STATES.SENSITIVE), "the run to end", limit)

    def wait_for_end(self, limit=LIMIT):
        """Waits for the program to end, and returns its exit code."""
        wait(lambda: self.process.poll() is not None, "the program to end", limit)
        return self.process.returncode

    def quit(self, unsaved=None, settings=("Save settings?", "No")):
        """Ends the program by its own key and expects that to go well. `unsaved` is the button to take
        when it asks about unsaved changes, which it is expected to do then; `settings` are words of its
        question about the settings, and the button that does not keep them."""
        press("ctrl+q")
        if unsaved:
            self.answer(unsaved, "Tevrane")
        question, no = settings
        self.answer(no, containing(question))
        expect(self.wait_for_end() == 0, f"the program ended with {self.process.returncode}")

    def kill(self):
        """Ends the program without notice."""
        self.process.kill()
        self.process.wait()


def mnemonic(accessible):
    """The key that opens a menu, as xdotool names it."""
    binding = accessible.get_action_iface().get_key_binding(0)
    if not binding:
        raise Failure(f"{accessible.get_role_name()} {accessible.get_name()!r} has no mnemonic")
    return binding.split(";")[0].replace("Alt+", "alt+").lower()


def expect(condition, what):
    """Fails with `what` unless the condition holds."""
    if not condition:
        raise Failure(what)

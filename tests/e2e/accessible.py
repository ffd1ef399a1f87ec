# SPDX-License-Identifier: GPL-3.0-or-later
"""The program's windows as an assistive program finds them. Import it only inside a private desktop (desktop.inside)."""
import time

import pyatspi
from gi.repository import GLib

import desktop
from desktop import fail


def wait_for(condition, what, instead=None):
    """The first true value of `condition`, which may look at what is appearing or vanishing: where a window closes
    meanwhile, or the program is too busy to answer, it is called again. If it never comes, the failure shows `instead`."""
    def answered():
        try:
            return condition()
        except GLib.GError:
            return None
    return desktop.wait_for(answered, what, instead)


def applications():
    """What the registry knows now. The library caches its answers and may have missed a program's start or end."""
    registry = pyatspi.Registry.getDesktop(0)
    registry.clear_cache()
    return registry


def shown_windows():
    """Every window that the registry knows, for the report of a failure."""
    told = []
    for application in applications():
        try:
            windows = [f"{one.getRoleName()} {one.name!r}{'' if is_shown(one) else ' (hidden)'}"
                       f"{' (active)' if has(one, pyatspi.STATE_ACTIVE) else ''}" for one in application if one]
            told.append(f"{application.name!r}: {', '.join(windows) or 'no window'}")
        except (AttributeError, GLib.GError) as error:
            told.append(f"no answer ({error})")
    return "; ".join(told) or "no application"


class Window:
    """One window of the program, by the role and the start of the name that it has."""

    def __init__(self, role, name, active=True):
        # Looked for again each time: what was found first may belong to a program that has just ended.
        wait_for(lambda: self.shown(role, name, active=False), f"the window {name!r}", shown_windows)
        self.frame = wait_for(lambda: self.shown(role, name, active), f"{name!r} to be the active window", shown_windows)
        # The window manager may still move it.
        wait_for(self._stands_still, f"{name!r} to stand still")

    def _stands_still(self):
        before = extents(self.frame)
        time.sleep(0.2)
        return extents(self.frame) == before

    @staticmethod
    def shown(role, name, active):
        def wanted(window):
            return (window and window.getRoleName() == role and window.name.strip().startswith(name) and is_shown(window)
                    and (has(window, pyatspi.STATE_ACTIVE) or not active))

        for application in applications():
            try:
                if application is None:
                    continue
                application.clear_cache()  # a program that was starting may have answered before it knew its name
                found = application.name == "Vestrola" and next(filter(wanted, application), None)
            except GLib.GError:
                continue  # it has ended, or is too busy to answer
            if found:
                return found
        return None

    def find(self, role, name):
        """Waits for the control and for it to be on."""
        def found():
            return pyatspi.findDescendant(
                self.frame, lambda one: one.getRoleName() == role and one.name == name and is_shown(one))
        control = wait_for(found, f"{role} {name!r} in {self.frame.name!r}")
        wait_for(lambda: has(control, pyatspi.STATE_ENABLED), f"{role} {name!r} to be on")
        return control

    def press(self, name, role="push button"):
        act(self.find(role, name), "Press")

    def value(self, name):
        """The second cell of the item of that name in a list of properties."""
        caption = self.find("table cell", name)
        return caption.parent[caption.getIndexInParent() + 1]

    def write(self, name, text):
        field = self.find("text", name)
        wait_for(lambda: has(field, pyatspi.STATE_EDITABLE), f"{name!r} to be writable")
        if not field.queryEditableText().setTextContents(text):
            fail(f"{name!r} cannot be written")

    def wait_focus(self, role, name):
        control = self.find(role, name)
        wait_for(lambda: has(control, pyatspi.STATE_FOCUSED), f"{name!r} to have the keyboard")

    def gone(self):
        wait_for(self._closed, f"{self.frame} to close", lambda: f"{shown_windows()}; in its fields: {self._texts()}")

    def _closed(self):
        """What the library remembers of the window stays where it has missed the news: everything is asked for again."""
        for application in applications():
            if application is not None:
                application.clear_cache()
                if any(one == self.frame and is_shown(one) for one in application):
                    return False
        return True

    def _texts(self):
        texts, controls = {}, [self.frame]
        while controls:
            control = controls.pop()
            if control is None:
                continue
            if control.getRoleName() == "text" and is_shown(control):
                texts[control.name] = control.queryText().getText(0, -1)
            controls.extend(control)
        return texts


def choose_file(title, path):
    """Answers the file dialog of that title."""
    chooser = Window("dialog", title)
    chooser.write("Nome del file:", str(path))
    chooser.press("Apri")
    chooser.gone()


def has(control, state):
    return control.getState().contains(state)


def is_shown(control):
    return has(control, pyatspi.STATE_SHOWING) and has(control, pyatspi.STATE_VISIBLE)


def act(control, wanted):
    actions = control.queryAction()

    def numbers():
        return [number for number in range(actions.nActions) if actions.getName(number) == wanted]

    number = wait_for(numbers, f"{control} to offer {wanted}")[0]
    try:
        actions.doAction(number)
    except GLib.GError:
        pass  # the answer of an action that opens a modal window comes when that window closes


def extents(control):
    """Left, top, width and height on the screen."""
    place = control.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return place.x, place.y, place.width, place.height


def click(control, event="b1c"):
    left, top, width, height = extents(control)
    pyatspi.Registry.generateMouseEvent(left + width // 2, top + height // 2, event)


def send(main, message, delivered=1, failed=0, asked=False):
    """Sends a message file to the recipients that are selected, from the main window and back to it. `asked`: the program asks
    about the files that the message sends along."""
    main.press("Invia messaggi")
    window = Window("dialog", "Invia messaggi")
    window.find("label", f"Email da inviare: {delivered + failed}")
    window.press("Apri messaggio")
    choose_file("Apri messaggio", message)
    window.press("Invia messaggi")
    if asked:
        question = Window("dialog", "Attenzione")
        question.press("Sì")
        question.gone()
    window.find("label", f"Email inviate: {delivered}")
    window.find("label", f"Email non inviate: {failed}")
    window.find("label", "Email da inviare: 0")
    window.press("Chiudi")
    window.gone()


def leave(main):
    """Ends the program by its menu."""
    act(main.find("menu item", "File"), "ShowMenu")
    act(main.find("menu item", "Esci"), "Press")

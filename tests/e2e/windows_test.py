#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Opens the windows of the built program under a window manager, after its very first start on a screen of a given size,
and inspects them from outside: each is within the screen, over the window that owns it, has the keyboard focus, and returns
it to its owner when it is closed; no button is out of reach.

    windows_test.py BUILD_FOLDER WIDTHxHEIGHT SCALE
"""
import os
import re
import subprocess
import sys

import desktop
from desktop import fail

SIZE, SCALE = sys.argv[2], sys.argv[3]
desktop.inside(SIZE)
os.environ["QT_SCALE_FACTOR"] = SCALE
import pyatspi  # noqa: E402  looks for the bus when it is imported
from accessible import Window, extents, has, wait_for  # noqa: E402
from keyboard_test import add_recipient, keys, make_group, tick, type_path  # noqa: E402


def property_of(window, name):
    """The words of a window's property."""
    told = subprocess.run(["xprop", "-id", str(window), name], stdout=subprocess.PIPE, text=True, check=True).stdout
    if "not found" in told:
        return []
    return re.split(r"[=#:]", told, maxsplit=1)[-1].replace("window id #", "").replace(",", " ").split()


def active():
    return int(subprocess.run(["xdotool", "getactivewindow"], stdout=subprocess.PIPE, text=True, check=True).stdout)


def stacked():
    told = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"], stdout=subprocess.PIPE, text=True, check=True)
    return [int(number, 16) for number in re.findall(r"0x[0-9a-f]+", told.stdout)]


def check_within_screen(window, name):
    width, height = (int(number) for number in SIZE.split("x"))

    def within():
        told = subprocess.run(["xwininfo", "-id", str(window), "-frame"], stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, check=True).stdout
        left, top = (int(re.search(rf"Absolute upper-left {side}:\s+(-?\d+)", told)[1]) for side in "XY")
        right, bottom = left + int(re.search(r"Width: (\d+)", told)[1]), top + int(re.search(r"Height: (\d+)", told)[1])
        return left >= 0 and top >= 0 and right <= width and bottom <= height

    wait_for(within, f"{name!r} to stand within {SIZE}")


def check_buttons(window, name):
    """Each enabled button is on the screen once the Tab key has reached it."""
    left, top, width, height = extents(window.frame)
    for button in pyatspi.findAllDescendants(window.frame, lambda one: one.getRoleName() == "push button"):
        if not has(button, pyatspi.STATE_FOCUSABLE) or not has(button, pyatspi.STATE_ENABLED):
            continue
        if not has(button, pyatspi.STATE_VISIBLE) or not button.name:
            continue

        def in_sight(one=button):
            x, y, wide, high = extents(one)
            return x >= left and y >= top and x + wide <= left + width and y + high <= top + height

        for _ in range(80):
            if has(button, pyatspi.STATE_FOCUSED):
                break
            before = focused(window)
            keys("Tab")
            wait_for(lambda past=before: focused(window) != past, f"the Tab key to leave {before} in {name!r}")
        wait_for(in_sight, f"the button {button.name!r} of {name!r} to be in sight")


def focused(window):
    return pyatspi.findDescendant(window.frame, lambda one: has(one, pyatspi.STATE_FOCUSED))


def check_dialog(main, opening, name, leaving, role="dialog", buttons=True):
    """Opens a window from the main one and leaves it."""
    opening()
    window = Window(role, name)
    wait_for(lambda: active() != main, f"{name!r} to be active")
    number = active()
    check_within_screen(number, name)
    owner = property_of(number, "WM_TRANSIENT_FOR")
    if not owner or int(owner[0], 16) != main:
        fail(f"{name!r} belongs to {owner} instead of {main:#x}")
    if "_NET_WM_STATE_MODAL" not in property_of(number, "_NET_WM_STATE"):
        fail(f"{name!r} is no modal window")
    order = stacked()
    if order.index(number) < order.index(main):
        fail(f"{name!r} stands below the main window")
    functions = int(property_of(number, "_MOTIF_WM_HINTS")[1], 16)
    if functions & 0x20 or not functions & 0x10:
        fail(f"the frame of {name!r} is asked for the buttons {functions:#x}")
    if buttons:
        check_buttons(window, name)
    desktop.picture(desktop.pictures() / f"{SIZE}_{name.strip().split(' -')[0].replace(' ', '_')}.png")
    leaving()
    window.gone()
    wait_for(lambda: active() == main, f"the main window to be active after {name!r}")


def check_file_dialog(stage, main_window, main):
    """A path is typed, then Return: the main window has the keyboard focus afterwards."""
    keys("ctrl+o")
    question = Window("alert", "Attenzione")
    question.press("Sì")
    chooser = Window("dialog", "Apri Mailing List")
    chooser.wait_focus("text", "Nome del file:")
    where = pyatspi.findDescendant(chooser.frame, lambda one: one.getRoleName() == "combo box" and "Documenti" in one.name)
    if not where:
        fail("the file dialog does not start in the documents")
    type_path(chooser, stage.program_folder / "data" / "data.mdb")
    keys("Return")
    chooser.gone()
    wait_for(lambda: active() == main, "the main window to be active after the file dialog")
    focus = subprocess.run(["xdotool", "getwindowfocus"], stdout=subprocess.PIPE, text=True, check=True).stdout
    if int(focus) != main and int(focus) - main not in range(-8, 8):
        fail(f"after the file dialog the keyboard is at {int(focus):#x}, the main window is {main:#x}")
    main_window.wait_focus("tree", "Gruppi mailing")


def play(stage, program):
    documents = stage.work / "Documenti"
    documents.mkdir()
    (stage.work / "config" / "user-dirs.dirs").write_text(f'XDG_DOCUMENTS_DIR="{documents}"\n', encoding="utf-8")
    running = stage.start([program])
    main_window = Window("frame", "Vestrola")
    main = active()
    check_within_screen(main, "the main window")
    make_group(main_window)
    add_recipient()
    tick(main_window)
    keys("shift+Tab")
    check_file_dialog(stage, main_window, main)
    keys("Home", "Down", "space")
    for opening, name, leaving in (("ctrl+i", "Importa destinatari da file di testo", "alt+c"),
                                   ("ctrl+comma", "Impostazioni Account", "alt+c"),
                                   ("Insert", "Aggiungi destinatario", "alt+a"),
                                   ("ctrl+Return", "Invia messaggi", "alt+c"), ("alt+s p", "Prova messaggio", "alt+c"),
                                   ("alt+s m", "Controllo del mittente", "alt+c"), ("alt+s e", "Esito degli invii", "alt+c"),
                                   ("alt+s u", "Ultima importazione", "alt+c")):
        # The browser in the window of the test copy calls its page focused all the time.
        check_dialog(main, lambda pressed=opening: keys(*pressed.split()), name, lambda pressed=leaving: keys(pressed),
                     buttons=name != "Prova messaggio")
    check_dialog(main, lambda: keys("alt+h", "i"), "Info su", lambda: keys("Escape"))
    check_dialog(main, lambda: keys("ctrl+n"), "Editor Messaggi", lambda: keys("ctrl+w"), role="frame", buttons=False)
    keys("ctrl+q")
    stage.ends(running, 0)
    print(f"every window stands within {SIZE} at {SCALE}, over its owner, and gives the keyboard back")


if __name__ == "__main__":
    desktop.run(play)

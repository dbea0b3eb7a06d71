#!/usr/bin/python3
# What a screen reader is told: walks all windows of the game by keyboard, in German, looks at every
# control over AT-SPI, and plays a level by nothing but what is announced. Run on a display of its own:
# on_display.sh.
#
#     reader_test.py GAME
import math
import os
import re
import subprocess
import sys
import time

try:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
    if not os.environ.get("READER_TEST_BUS"):
        os.environ["READER_TEST_BUS"] = "1"
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])
except (ImportError, ValueError, FileNotFoundError) as missing:
    print(missing, file=sys.stderr)
    sys.exit(77)

os.environ.update(LANG="de_DE.UTF-8", LC_ALL="", SDL_AUDIODRIVER="dummy",
                  QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
DEADLINE = time.monotonic() + 140

said = []  # what got the focus of assistive technology, in its order


def note(event):
    try:
        if event.detail1 and event.source.get_role_name() == "paragraph":
            said.append(event.source.get_name())
    except GLib.Error:
        pass  # it went meanwhile, with its window


Atspi.init()
listener = Atspi.EventListener.new(note)
listener.register("object:state-changed:focused")


# Serves events until `look` finds something, and returns that.
def await_that(what, look):
    while True:
        found = look()
        if found:
            return found
        if time.monotonic() > DEADLINE:
            sys.exit(f"No {what} in:\n" + "\n".join(map(str, everything())) + f"\n{said}")
        GLib.MainContext.default().iteration(False) or time.sleep(0.02)


# Each thing that can be seen, as (role, name, states, labels, description).
def walk(accessible):
    states = accessible and accessible.get_state_set()
    if not states or not states.contains(Atspi.StateType.SHOWING):
        return
    names = {state.value_nick for state in states.get_states()}
    labels = [relation.get_target(0).get_name() for relation in accessible.get_relation_set()
              if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    yield (accessible.get_role_name(), accessible.get_name(), names, labels,
           accessible.get_description())
    for i in range(accessible.get_child_count()):
        yield from walk(accessible.get_child_at_index(i))


# The same of all windows of the game that are in front, and the window's role. For a moment there
# can be two.
def everything():
    seen = []
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(i)
        program.clear_cache()
        for j in range(program.get_child_count()):
            try:
                told = list(walk(program.get_child_at_index(j)))
            except GLib.Error:
                continue  # it went while it was looked at
            if told and "active" in told[0][2]:
                seen += [(*each, told[0][0]) for each in told]
    return seen


# Whether something is told as `role|name|states|label` has it; "-" before a state: not so.
def holds(seen, line):
    role, name, states, label = (line + "|||").split("|")[:4]
    return any(told[0] == role and told[1] == name and (not label or label in told[3]) and
               all((state[1:] not in told[2]) if state[0] == "-" else (state in told[2])
                   for state in states.split()) for told in seen)


# Waits for a window in front that holds all the lines, and looks at everything on it. `key`
# opens it; it is pressed again after a while, since a window that comes up can lose it.
def window(*lines, key=None):
    pressed = -math.inf

    def look():
        nonlocal pressed
        if key and time.monotonic() > pressed + 10:
            press(key)
            pressed = time.monotonic()
        seen = everything()
        return seen if all(holds(seen, line) for line in lines) else None
    seen = await_that(f"window with {lines}", look)
    for told in seen:
        # The toolkit's own dialogs have some, which are named.
        filler = told[0] in ("filler", "unknown", "invalid") and told[5] != "dialog"
        if filler or not told[1].strip():
            sys.exit(f"Nothing can be told of {told} on the window with {lines}.")


def press(*keys):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)


# Long enough for the server to repeat it some dozen times.
def hold(key):
    subprocess.run(["xdotool", "keydown", key, "sleep", "0.5", "keyup", key], check=True)


# What is announced after some keys, as a match; whatever was announced before does not count.
def announced(pattern, *keys, by=press):
    before = len(said)
    by(*keys)
    def look():
        return next((match for text in said[before:] if (match := re.search(pattern, text))), None)
    return await_that(f"announcement of {pattern} after {keys}", look)


KEYS = {"oben": "Up", "rechts": "Right", "unten": "Down", "links": "Left"}
PLACE = r"Zeile (\d+), Spalte (\d+)\. Offen: ([^.]*)"


# From the start of a maze without inner walls to its finish, blind.
def play():
    start = next(told[4] for told in everything() if told[1] == "Labyrinth")
    way, *finish = re.search(r"Vor dem Start\. Offen: (\w+)\. Ziel: Zeile (\d+), Spalte (\d+)$",
                             start).groups()
    row_to, column_to = map(int, finish)
    wall = next(word for word in KEYS if word != way)
    announced(f"Wand: {wall}$", KEYS[wall])
    place = announced(PLACE, KEYS[way], by=hold)
    steps = 1
    while True:
        row, column = int(place[1]), int(place[2])
        if (row, column) == (row_to, column_to):
            break
        word = ("unten" if row < row_to else "oben" if row > row_to else
                "rechts" if column < column_to else "links")
        assert word in place[3].split(", "), place[0]
        place = announced(PLACE, KEYS[word])
        steps += 1
    out = re.search(r"\. Ziel: (\w+)$", place.string)[1]
    announced(f"Ziel erreicht. Schritte {steps + 1}, Boing 1. |Toll gemacht!", KEYS[out])


MAZE = ("image|Labyrinth", "image|Ziel", "status bar|Statusleiste", "menu item|Trameli")

game = subprocess.Popen([sys.argv[1]])
window("frame|Trameli|active", "push button|Los!|focused", "image|Labyrinth")
press("space")
window("panel|Wähle eine Stufe", "radio button|Stufe 4|checked focused|Wähle eine Stufe",
       "radio button|Stufe 5|-checked", "push button|Spiel beginnen", "menu bar|Trameli")
window("popup menu|Hilfe", "menu item|Handbuch|focused", key="alt+h")
press("Down", "Return")
window("frame|Über Trameli|active", "push button|Schließen|focused",
       "push button|Dokument über die Lizenzen öffnen|focusable")
press("space")
window("radio button|Stufe 4|checked focused")
window("frame|Einstellungen|active", "page tab list|Seiten", "page tab|Profil|selected focused",
       "panel|Profil", "radio button|Standardprofil|checked", "menu item|Speichern und schließen",
       key="alt+e")
press("Tab", "Down", "Down")
window("text|Name des neuen Profils|editable focused")
press("shift+Tab", "shift+Tab", "Right")
window("page tab|Labyrinthe|selected", "page tab|Profil|-selected",
       "radio button|2: Wände mittel, Spur mittel|checked",
       "check box|Ein Ton bei jedem Schritt|-checked")
press("Tab", "space")
window("dialog|Farbauswahl|active", "push button|OK|is-default", "push button|Abbrechen")
press("Escape")
window("push button|Farbe des Hintergrunds|focused")
press("shift+Tab", "Right")
window("check box|Großbuchstaben verwenden|-checked")
press("Right")
window("panel|Tasten und Taster", "radio button|Tastatur - Pfeiltasten|checked")
window("radio button|Stufe 4|checked focused", key="alt+s")

press("Left", "Left", "Left", "Tab", "space")
for maze in range(5):
    window(*MAZE, "label|Stufe 1")
    play()
    if maze < 4:
        window(f"image|Pokal {maze + 1}", "push button|Nächstes Labyrinth")
        announced("^Vor dem Start", "space")
window("push button|Bei dieser Stufe bleiben", "push button|Zur nächsten Stufe", "image|Pokal")
press("space")
window(*MAZE)
window("radio button|Stufe 1|checked focused", key="alt+z")
press("Down", "Tab", "space")
window(*MAZE, "panel|Unter dem Labyrinth", "scroll bar|Tempo", "image|Sonne 5", "label|langsam")
window("radio button|Stufe 6|checked focused", key="alt+z")
press("Down", "Tab", "space")
window(*MAZE, "label|Stufe 9")
window("frame|Drucken|active", "combo box|PDF||Name des Druckers", "spin button|Links:",
       "text|Anzahl der Kopien|editable", "push button|Druckvorschau|focusable",
       "push button|Drucken|is-default", "check box|Proportionen beibehalten|checked",
       key="ctrl+s")
window("dialog|Eigenschaften von PDF|active", "panel|Ausrichtung", "radio button|Querformat|checked",
       "spin button|Kopien", key="alt+e")
second = subprocess.Popen([sys.argv[1]])
window("alert|Error|active", "push button|OK|focused")
second.terminate()
game.terminate()
print(f"{len(said)} announcements.")

#!/usr/bin/python3
"""Walks the screens as somebody does who hears them, through the accessibility bus.

    walk.py FOLDER [SKIN]

FOLDER holds the program and what lies beside it; a copy of it is used. An X server, a bus and a
window manager are started for the walk. Each screen must hold no control without a name, no two
inputs, values, buttons or pictures of one name, and no value that neither Tab nor F6 reaches. One
line a screen tells the three counts, and what is wrong; the end is 1 if anything is.
"""
import collections
import contextlib
import os
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import time

INSIDE = "WALK_INSIDE"
INPUTS = {"text", "combo box"}
SPEAKING = INPUTS | {"push button", "table", "menu item", "image"}
PATIENCE = 30  # seconds
QUIET = 1.5  # seconds, after which nothing more is said
MOVING = 0.5  # seconds that the focus may take


def servers(arguments):
    """Runs the walk itself with a display, a bus and a place of its own."""
    with tempfile.TemporaryDirectory() as place:
        os.chmod(place, 0o700)
        own = {INSIDE: "1", "XDG_RUNTIME_DIR": place, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
               "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8", "NO_AT_BRIDGE": "0"}
        inherited = {name: value for name, value in os.environ.items()
                     if name not in ("AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS")}
        return subprocess.call(["xvfb-run", "-a", "-s", "-screen 0 1920x1080x24",
                                "dbus-run-session", "--", sys.executable,
                                os.path.abspath(__file__), *arguments],
                               env={**inherited, **own}, stderr=subprocess.DEVNULL)


def until(found, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if result := found():
            return result
        time.sleep(0.05)
    raise SystemExit(f"waited in vain for {what}")


def has(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def shown_in(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None and has(child, "SHOWING"):
            yield child
            yield from shown_in(child)


def key(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


class Program:
    def __init__(self, folder):
        self.process = subprocess.Popen([os.path.join(folder, "orvane")])
        self.faults = 0
        self.totals = collections.Counter()
        self.node = until(self.on_the_bus, "the program on the bus")
        self.node.set_cache_mask(Atspi.Cache.NONE)

    def on_the_bus(self):
        desktop = Atspi.get_desktop(0)
        every = (desktop.get_child_at_index(i) for i in range(desktop.get_child_count()))
        return next((each for each in every
                     if each and each.get_process_id() == self.process.pid), None)

    def window(self):
        title = subprocess.run(["xdotool", "getactivewindow", "getwindowname"],
                               capture_output=True, text=True).stdout.strip()
        every = (self.node.get_child_at_index(i) for i in range(self.node.get_child_count()))
        return next((each for each in every
                     if each and each.get_name() == title and has(each, "SHOWING")), None)

    def see(self, word):
        until(lambda: (now := self.window()) is not None and word in now.get_name(), word)

    def nodes(self):
        return list(shown_in(until(self.window, "the window with the keyboard")))

    def control(self, role, name):
        return until(lambda: next((each for each in self.nodes() if each.get_role_name() == role
                                   and each.get_name() == name), None), f"{role} {name}")

    def press(self, name):
        Atspi.Action.do_action(self.control("push button", name), 0)

    def focus(self, role, name):
        control = self.control(role, name)
        Atspi.Component.grab_focus(control)
        until(lambda: has(control, "FOCUSED"), f"the focus on {name}")
        return control

    def pick(self, name, typed=None):
        """From the list of that name: what the typed letters are meant for, without accents, which
        come in garbled; or the first entry."""
        box = self.focus("combo box", name)
        before = self.window().get_name()
        if typed is None:
            key("Down")
        else:
            key("ctrl+a")
            subprocess.run(["xdotool", "type", "--delay", "15", typed], check=True)
            until(lambda: has(box, "EXPANDED"), f"what {typed} is meant for")
            key("Down", "Return")

        def is_picked():
            window = self.window()
            if window is None or window.get_name() != before:
                return window is not None  # the pick has opened another screen
            return not has(box, "EXPANDED") and Atspi.Text.get_text(box, 0, -1)
        until(is_picked, f"{typed or 'the first entry'} in {name}")
        time.sleep(0.2)

    def back(self):
        before = self.window().get_name()
        key("Escape")
        until(lambda: (now := self.window()) is not None and now.get_name() != before, "the way back")

    # -- what is told ----------------------------------------------------------------------------

    def reached(self, by, among):
        """Which of the controls get the focus by that key, until it comes round."""
        def with_focus():
            return next((each for each in among if has(each, "FOCUSED")), None)

        result, focused = [], with_focus()
        for _ in range(len(among) + 8):
            before, end = focused, time.monotonic() + MOVING
            key(by)
            while (focused := with_focus()) in (before, None) and time.monotonic() < end:
                time.sleep(0.01)
            if focused is not None and focused in result:
                break
            if focused is not None:
                result.append(focused)
        return result

    def hear(self, screen):
        nodes = [each for each in self.nodes() if each.get_role_name() in SPEAKING]
        names = collections.Counter((each.get_role_name(), each.get_name()) for each in nodes)
        nameless = [each for each in nodes if not each.get_name().strip()]
        twice = [each for each, count in names.items() if count > 1 and each[1].strip()]
        values = [each for each in nodes
                  if each.get_role_name() == "text" and has(each, "READ_ONLY")]
        walked = self.reached("Tab", nodes) + self.reached("F6", nodes)
        mute = [each for each in values if each not in walked]
        print(f"{screen}: {len(nodes)} speak, {len(nameless)} without a name, {len(twice)} names "
              f"borne twice, {len(mute)} of {len(values)} values not reached")
        for what, which in (("no name", [each.get_role_name() for each in nameless]),
                            ("twice", twice), ("not reached", [each.get_name() for each in mute])):
            if which:
                print(f"    {what}: {which}")
        self.faults += len(nameless) + len(twice) + len(mute)
        self.totals.update(speak=len(nodes), values=len(values))

    def expect(self, what, is_so):
        print(f"    {what}: {'yes' if is_so else 'NO'}")
        self.faults += not is_so

    def said_while(self, action):
        """What is announced while something is done, and some time after."""
        said = []
        listener = Atspi.EventListener.new(
            lambda event: said.append(event.source.get_name())
            if event.detail1 and event.source.get_role_name() == "notification" else None)
        listener.register("object:state-changed:showing")
        action()
        start = time.monotonic()
        while time.monotonic() < start + (QUIET if said else PATIENCE):
            heard = len(said)
            GLib.MainContext.default().iteration(False)
            if len(said) > heard:
                start = time.monotonic()
            time.sleep(0.01)
        listener.deregister("object:state-changed:showing")
        return said

    def walk(self):
        self.see("Orvane")
        self.hear("home")
        self.press("Configuration")
        self.see("Configuration")
        self.hear("settings")
        level = self.focus("text", "Forge, niveau")
        key("ctrl+a", "7")
        until(lambda: "Valider" in level.get_description(), "the sign of a setting not yet kept")
        self.back()

        self.press("Artisanats manuels")
        self.press("Forge")
        self.expect("the trade in hand is told",
                    has(self.control("push button", "Forge"), "CHECKED"))
        self.hear("manual crafts, nothing chosen")
        for name, typed in (("Produit", "epees"), ("Produit détaillé", None), ("Objet", "durable"),
                            ("Degré", "en dyr"), ("Type", "de feu")):
            self.pick(name, typed)
        self.hear("manual crafts, an object with the one it needs")
        price = self.control("text", "Objet nécessaire, matériau 2, prix")
        self.expect("a panel is a group", price.get_parent().get_name() == "Objet nécessaire")
        self.focus("text", "Nombre d'objets")
        said = self.said_while(lambda: key("ctrl+a", "3"))
        self.expect(f"a keystroke is answered once, by the price: {said}",
                    len(said) == 1 and said[0].startswith("Prix de vente"))
        said = self.said_while(lambda: self.press("Ajouter au panier"))
        self.expect(f"what is added is answered: {said}", len(said) == 1 and "commande" in said[0])

        bar = next(each for each in self.nodes() if each.get_role_name() == "menu bar")
        self.expect("the menu bar tells the order in hand",
                    bar.get_description() == "Commande\u00a0: Nouvelle commande")
        key("ctrl+l")
        self.see("Liste d’achats")
        self.hear("shopping list")
        cells = [each.get_name() for each in self.nodes() if each.get_role_name() == "table cell"]
        row = cells[cells.index("Barres de dyr"):][:6] if "Barres de dyr" in cells else cells
        # three objects of 26 bars at 14
        self.expect(f"what to buy is listed: {row}",
                    row == ["Barres de dyr", "78", "14", "1092", "", "78"])
        self.back()

        self.press("Empennage")
        for name, typed in (("Produit", "Projectiles"), ("Produit détaillé", "fleches"),
                            ("Type de projectiles", "fleches"), ("Carquois", None)):
            self.pick(name, typed)
        self.hear("archery")
        self.back()
        self.press("Forge")
        for name, typed in (("Produit", "armes legendaires"), ("Arme", None), ("Type", None)):
            self.pick(name, typed)
        self.hear("legendary weapons")
        self.back()
        self.back()

        self.press("Artisanats magiques")
        for name, typed in (("Produit", "Potions"), ("Détail", "Potions de soin"),
                            ("Objet", "dernier souffle")):
            self.pick(name, typed)
        self.hear("magic crafts, alchemy")
        self.press("Arcanes")
        for name in ("Gemmes, type", "Gemmes, sous-type", "Gemmes, degré de finition"):
            self.pick(name)
        self.hear("magic crafts, gems")
        self.back()

        self.press("Artisanats secondaires")
        self.press("Tissage")
        self.pick("Objet", "couronne")
        self.pick("Degré")
        self.hear("secondary crafts, recycling")
        self.press("Bardes")
        self.pick("Objet")
        self.hear("secondary crafts, saddlery")
        self.press("Ajouter au panier")
        self.press("Voir le panier")
        self.see("Panier")
        self.hear("basket")
        self.back()
        self.back()
        self.press("Nouvelles")
        self.see("News")
        self.hear("news")
        self.press("Détails")
        self.see("Jour")
        self.hear("state of the data")
        print(f"all: {self.totals['speak']} speak, {self.totals['values']} values, "
              f"{self.faults} faults")


def inside(folder, skin=None):
    with tempfile.TemporaryDirectory() as place, contextlib.ExitStack() as started:
        copy = shutil.copytree(folder, os.path.join(place, "orvane"))
        with sqlite3.connect(os.path.join(copy, "Config.mdb")) as settings:
            settings.execute('UPDATE "DernierRoyaume" SET "Nom"=?', ("Valdren",))
            if skin:
                settings.execute('UPDATE "DernièreSkin" SET "Nom"=?', (skin,))
        started.callback(subprocess.Popen(["openbox"]).terminate)
        until(lambda: "window id" in subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"],
                                                    capture_output=True, text=True).stdout,
              "the window manager")
        program = Program(copy)
        started.callback(program.process.kill)
        program.walk()
        return 1 if program.faults else 0


if __name__ == "__main__":
    if INSIDE not in os.environ:
        sys.exit(servers(sys.argv[1:]))
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
    sys.exit(inside(*sys.argv[1:]))

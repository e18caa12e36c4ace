# SPDX-FileCopyrightText: 2026 The Vellum Connect authors
# SPDX-License-Identifier: MIT

"""vellumconnect-links beside the running program: what it changes goes through the program, and both never write at once."""

import fcntl
import hashlib
import os
import re
import subprocess
from pathlib import Path

from gi.repository import Gio, GLib

from display import press
from links import APPLICATION, EMAIL, INTERNET, document, link, save, visible_links
from scenario import Scenario, main
from settings_dialog import SettingsDialog
from waiting import wait_for

TOOL = os.environ["VELLUM_LINKS"]
PATH = "/com/norvik/vellumconnect"
INTERFACE = "com.norvik.vellumconnect.Links"
PORTAL = link(0, "Portal", INTERNET, "https://portal.example.org/")
OPERATORS = Path(__file__).resolve().parents[2] / "docs/operators.md"
LOST = link(1, "Axolotl", APPLICATION, "/no/such/program")


def types(arguments):
    """The signature of arguments."""
    return "".join(argument.signature for argument in arguments)


class LinksTool(Scenario):

    def start_reachable(self):
        """Starts the program with the links that there are, and waits until the bus has it."""
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        self.start()
        wait_for(self.names_on_bus, "a name on the bus")

    def start_with_links(self):
        save(self.data, PORTAL, LOST)
        self.start_reachable()

    def names_on_bus(self):
        [names] = self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "ListNames")
        return [name for name in names if name.startswith("com.norvik.vellumconnect")]

    def call(self, name, path, interface, method, arguments=None):
        return self.bus.call_sync(name, path, interface, method, arguments, None, Gio.DBusCallFlags.NO_AUTO_START, 30000)

    def ask(self, method, arguments=None):
        [name] = self.names_on_bus()
        [answer] = self.call(name, PATH, INTERFACE, method, arguments)
        return answer

    def replace(self, before, after):
        return self.ask("Replace", GLib.Variant("(ayay)", (before, after)))

    def tool(self, *arguments):
        return subprocess.run([TOOL, *arguments, str(self.config)], capture_output=True, text=True, timeout=60,
                              check=False, env={**os.environ, **self.opened.environment})

    def expect_done(self, *arguments):
        answer = self.tool(*arguments)
        self.assertEqual((answer.returncode, answer.stderr), (0, ""))

    def expect_error(self, name, sentence, method, *arguments):
        """What is refused is said in words, and changes nothing."""
        before = self.config.read_bytes()
        with self.assertRaises(GLib.Error) as caught:
            self.ask_for(method, *arguments)
        self.assertEqual(Gio.DBusError.get_remote_error(caught.exception), f"com.norvik.vellumconnect.Error.{name}")
        self.assertIn(sentence, caught.exception.message)
        self.assertEqual(self.config.read_bytes(), before)

    def ask_for(self, method, *arguments):
        """Lets the program do something that it answers with nothing."""
        [name] = self.names_on_bus()
        answer = self.call(name, PATH, INTERFACE, method, GLib.Variant(f"({'s' * len(arguments)})", arguments))
        self.assertEqual(answer.unpack(), ())

    def expect_links(self, *names):
        wait_for(lambda: self.names_on_buttons() == list(names), f"the buttons {names}")
        self.assertEqual([item["name"] for item in visible_links(self.data)], list(names))

    def test_changes_show_at_once_and_can_be_undone(self):
        self.start_with_links()
        self.expect_done("add", "--name", "News", "--type", "internet", "--url", "www.example.org")
        self.expect_links("Portal", "Axolotl", "News")
        self.expect_done("edit", "Portal", "--name", "Gate")
        self.expect_done("move", "News", "1")
        self.expect_links("News", "Gate", "Axolotl")
        self.expect_done("remove", "Axolotl")
        self.expect_links("News", "Gate")
        press("ctrl+z")
        self.expect_links("News", "Gate", "Axolotl")
        press("ctrl+comma")
        settings = SettingsDialog(self.application)
        settings.wait_for_links("News", "Gate", "Axolotl")
        settings.close()

    def test_change_is_refused_while_the_settings_are_open(self):
        self.start_with_links()
        press("ctrl+comma")
        settings = SettingsDialog(self.application)
        answer = self.tool("remove", "Portal")
        self.assertEqual((answer.returncode, answer.stdout), (1, ""))
        self.assertEqual(len(answer.stderr.splitlines()), 1, answer.stderr)
        settings.wait_for_links("Portal", "Axolotl")
        settings.close()
        self.expect_links("Portal", "Axolotl")
        self.expect_done("remove", "Portal")
        self.expect_links("Axolotl")

    def test_links_open_by_the_rules_of_the_window(self):
        self.start_with_links()
        self.expect_done("open", "Portal")
        wait_for(lambda: self.opened.calls() == [["https://portal.example.org/"]], "the link")
        self.expect_done("open", "2")
        self.message_about("/no/such/program").find("push button", "OK").click()
        self.assertEqual(len(self.opened.calls()), 1)

    def test_others_on_the_bus(self):
        self.start_with_links()
        changes = []
        self.bus.signal_subscribe(None, INTERFACE, "Changed", PATH, None, Gio.DBusSignalFlags.NONE,
                                  lambda *arguments: changes.append(arguments))
        self.assertEqual(self.ask("List"), ["Portal", "Axolotl"])
        self.assertFalse(self.ask("Open", GLib.Variant("(s)", ("Nowhere",))))
        before = self.config.read_bytes()
        after = document(1, PORTAL)
        for wrong in ((b"", after), (after, before), (before, after[:-10]), (before, b"")):
            with self.subTest(wrong=wrong):
                self.assertFalse(self.replace(*wrong))
                self.assertEqual(self.config.read_bytes(), before)
        self.assertTrue(self.replace(before, after))
        self.expect_links("Portal")
        self.assertEqual(self.ask("List"), ["Portal"])
        wait_for(lambda: GLib.MainContext.default().iteration(False) or changes, "the signal")
        self.assertEqual(len(changes), 1)

    def test_others_add_and_remove(self):
        self.start_with_links()
        self.ask_for("Add", "News", "internet", "www.example.org")
        self.expect_links("Portal", "Axolotl", "News")
        self.ask_for("Add", "A\x01<&\"\U0001f600", "e-mail", "mailto:someone@example.org")
        added = visible_links(self.data)[2:]
        self.assertEqual(added, [
            {"id": "2", "name": "News", "type": INTERNET, "url": "www.example.org", "para": "", "startconnect": "0",
             "startmobile": "0", "delete": "1", "edit": "1", "visible": "1"},
            {"id": "3", "name": "A<&\"\U0001f600", "type": EMAIL, "url": "mailto:someone@example.org", "para": "",
             "startconnect": "0", "startmobile": "0", "delete": "1", "edit": "1", "visible": "1"}])
        self.ask_for("Remove", "Axolotl")
        self.expect_links("Portal", "News", added[1]["name"])
        press("ctrl+z")
        self.expect_links("Portal", "Axolotl", "News", added[1]["name"])

    def test_others_are_told_what_is_refused(self):
        kept = PORTAL.replace('delete="1"', 'delete="0"')
        save(self.data, kept, LOST, LOST)
        self.start_reachable()
        good = "www.example.org"
        for error, sentence, *call in (
                ("Refused", "There is a link \"Portal\" already", "Add", "Portal", "internet", good),
                ("Refused", "no name", "Add", "", "internet", good),
                ("Refused", "no name", "Add", "\x01", "internet", good),
                ("Refused", "50 signs", "Add", "a" * 50, "internet", good),
                ("Refused", "A click is refused", "Add", "News", "internet", "example.org"),
                ("Refused", "never opens", "Add", "News", "e-mail", "javascript:alert(1)"),
                ("Refused", "/no/such/program", "Add", "News", "application", "/no/such/program"),
                ("Refused", "There is no type \"web\"", "Add", "News", "web", good),
                ("NoSuchLink", "There is no link \"portal\"", "Remove", "portal"),
                ("NoSuchLink", "There is no link \"1\"", "Remove", "1"),
                ("Ambiguous", "Several links have the name \"Axolotl\"", "Remove", "Axolotl"),
                ("NotAllowed", "The link \"Portal\" may not be deleted", "Remove", "Portal")):
            with self.subTest(call=call):
                self.expect_error(error, sentence, *call)
        self.expect_links("Portal", "Axolotl", "Axolotl")
        press("ctrl+comma")
        settings = SettingsDialog(self.application)
        self.expect_error("Busy", "settings are open", "Add", "News", "internet", good)
        settings.close()
        self.ask_for("Add", "News", "internet", good)
        self.expect_links("Portal", "Axolotl", "Axolotl", "News")

    def test_interface_is_as_documented(self):
        self.start_reachable()
        [name] = self.names_on_bus()
        [text] = self.call(name, PATH, "org.freedesktop.DBus.Introspectable", "Introspect")
        interface = Gio.DBusNodeInfo.new_for_xml(text).lookup_interface(INTERFACE)
        there = [(method.name, types(method.in_args), types(method.out_args)) for method in interface.methods]
        there += [(signal.name, types(signal.args), "") for signal in interface.signals]
        documented = [(method, "".join(re.findall(r"(\w+) \w+", arguments)), answer) for method, arguments, answer
                      in re.findall(r"^\| `(\w+)\((.*?)\)(?: -> (\w+))?` \|", OPERATORS.read_text(encoding="utf-8"), re.M)]
        self.assertEqual(sorted(documented), sorted(there))

    def test_documented_command_adds_a_link(self):
        self.start_with_links()
        [command] = re.findall(r"^gdbus call (?:.*\\\n)*.*", OPERATORS.read_text(encoding="utf-8"), re.M)
        [name] = self.names_on_bus()
        subprocess.run(command.replace("--dest com.norvik.vellumconnect ", f"--dest {name} "), shell=True, check=True,
                       capture_output=True, timeout=60)
        self.expect_links("Portal", "Axolotl", "News")

    def test_first_link_by_others(self):
        self.start_reachable()
        self.ask_for("Add", "News", "internet", "www.example.org")
        self.expect_links("News")

    def test_what_is_done_counts_whatever_the_answer(self):
        """As with very many links, where the answer comes too late. Another program stands in for the slow one."""
        save(self.data, PORTAL, LOST)
        lock = self.enterContext(open(self.data / "lock", "wb"))
        fcntl.flock(lock, fcntl.LOCK_EX)
        digest = hashlib.sha256(bytes(self.data.resolve())).hexdigest()[:16]
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        answers = [self.config.write_bytes, lambda content: None]

        def answer(_bus, _caller, _path, _interface, _method, arguments, call):
            answers.pop(0)(bytes(arguments[1]))
            call.return_dbus_error("org.freedesktop.DBus.Error.NoReply", "too late")

        node = Gio.DBusNodeInfo.new_for_xml(f"""<node><interface name="{INTERFACE}"><method name="Replace">
            <arg type="ay" direction="in"/><arg type="ay" direction="in"/><arg type="b" direction="out"/>
            </method></interface></node>""")
        self.addCleanup(self.bus.unregister_object,
                        self.bus.register_object(PATH, node.interfaces[0], answer, None, None))
        self.addCleanup(Gio.bus_unown_name, Gio.bus_own_name_on_connection(
            self.bus, f"com.norvik.vellumconnect.folder{digest}", Gio.BusNameOwnerFlags.NONE, None, None))
        wait_for(lambda: not GLib.MainContext.default().iteration(False) and self.names_on_bus(), "the name")
        for code, names in ((0, ["Axolotl"]), (1, ["Axolotl"])):
            with subprocess.Popen([TOOL, "remove", "1", str(self.config)], stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, env={**os.environ, **self.opened.environment}) as tool:
                wait_for(lambda: not GLib.MainContext.default().iteration(False) and tool.poll() is not None, "the tool")
            self.assertEqual(tool.returncode, code)
            self.assertEqual([item["name"] for item in visible_links(self.data)], names)

    def test_first_link(self):
        self.start_reachable()
        self.expect_done("add", "--name", "News", "--type", "internet", "--url", "www.example.org")
        self.expect_links("News")


if __name__ == "__main__":
    main()

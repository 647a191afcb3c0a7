"""The program without a window, as a Python object: one `pilote` process per session."""

import json
import re
import shlex
import subprocess


class Refused(Exception):
    """A command that the driver did not carry out, or an expectation that does not hold."""


class Session:
    """A fresh run of the program in a region; `decimal` is "." or ","."""

    def __init__(self, program, decimal):
        self._process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")
        self.decimal = decimal
        thousands = {".": ",", ",": " "}[decimal]
        self.say(f'region "{decimal}" "{thousands}"')
        self.say("start")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.stdin.close()
        self._process.stdout.close()
        self._process.wait()

    def say(self, line):
        """Carries out one line and returns its answer; raises Refused if it is not carried out or does not hold."""
        print(line, file=self._process.stdin, flush=True)
        answer = json.loads(self._process.stdout.readline())
        if not answer["ok"]:
            raise Refused(f"{line}: " + json.dumps(answer, ensure_ascii=False))
        return answer

    def state(self):
        """All that there is to see."""
        return self.say("state")

    def controls(self, panel):
        """The controls of a panel that is open, by name."""
        return self.state()["panels"][panel]["controls"]

    def read(self, target):
        """The value of PANEL.CONTROL.Member."""
        panel, control, member = target.split(".")
        return self.controls(panel)[control][member]


def words(line):
    """The words of a line, without quotes."""
    return [word.replace("\\n", "\n").replace("\\t", "\t") for word in shlex.split(line, comments=True)]


def localized(line, decimal):
    """A line of a page in a region: a comma between two digits is the region's separator, a point is a point."""
    return re.sub(r"(?<=\d),(?=\d)", decimal, line)


def menu_path(state, entry):
    """The captions that lead to a menu entry: ("Le timer 555", "Astable")."""
    for menu in state["menus"]:
        for candidate in menu["Entries"]:
            if candidate["Name"] == entry:
                return menu["Caption"], candidate["Caption"]
    raise Refused(f"the menu has no entry {entry}")


def caption_of(controls, name):
    """What a person calls a control: its own caption or that of its label, without the figure that code writes there;
    "" where it has neither."""
    control = controls[name]
    label = control.get("Label")
    caption = controls[label]["Caption"] if label else control.get("Caption", "")
    return re.split(r"\s*(?:=|:\s)|\s*:$", caption)[0].strip()

"""An example of a page: lines in the driver's language, played in a region and told to the reader in French.

A line that begins with "#" is a sentence of the author's. Numbers in quotes are written as under a decimal comma: a
comma between two digits becomes the region's separator, a point is a point everywhere.
"""

import re

from driver import Refused, Session, caption_of, localized, menu_path, words


def play(program, page, lines, decimal):
    """Opens the panel of the page by its menu entry, plays the lines, and returns the sentences that tell it, (kind,
    text), the kind being "do", "see" or "say". Raises Refused at the first line that does not go as it says, and if a
    box or a fault comes without a line that expects it."""
    sentences, names = [], page.names()
    with Session(program, decimal) as session:
        menu, caption = menu_path(session.state(), page.entry)
        sentences.append(("do", f"Ouvrez « {caption} » dans le menu « {menu} »."))
        answer = session.say("menu " + page.entry)
        panels, unexpected = shown(session, answer), news(answer)
        for line in lines:
            if line.startswith("#"):
                sentences.append(("say", line.lstrip("# ")))
                continue
            if not line.strip():
                continue
            line = localized(line, decimal)
            if line.startswith("expect "):
                sentence = narrate(words(line), panels, names)
                session.say(line)
                unexpected.discard(words(line)[1])
            else:
                if unexpected:
                    break
                sentence = narrate(words(line), panels, names)
                answer = session.say(line)
                panels, unexpected = shown(session, answer), news(answer)
            sentences.append(sentence)
    if unexpected:
        raise Refused("not expected: " + " and ".join(unexpected))
    return [sentence for sentence in sentences if sentence is not None]


def shown(session, answer):
    """The panels after a command; none once the program has ended."""
    return {} if answer["ended"] else session.state()["panels"]


def news(answer):
    """What a command caused that an example has to expect: a box, a fault."""
    return {what for what, came in (("message", answer["messages"]), ("fault", answer["fault"])) if came}


def narrate(line, panels, names):
    """The sentence for a command or expectation. A control goes by its name in the page, or else by its caption."""
    verb, rest = line[0], line[1:]
    if verb == "expect":
        return _narrate_expectation(rest, panels, names)
    if verb == "answer":
        return "do", "Répondez « Oui »." if rest == ["yes"] else "Répondez « Non »."
    if verb == "menu":
        return "do", "Rouvrez le panneau par le menu."
    panel, name = rest[0].split(".")
    controls = panels[panel]["controls"]
    caption = names.get(name) or caption_of(controls, name)
    place = f" « {caption} »" if caption else ""
    if verb in ("type", "replace"):
        where = f" dans{place}" if place else ""
        text = rest[1]
        if text == "":
            return "do", f"Videz le champ{place}."
        return "do", f"Tapez **{text}**{where}{separator_note(text)}."
    if verb == "select":
        row = controls[name]["Items"][int(rest[1])]
        return "do", f"Choisissez « {row.strip()} » dans la liste{place}."
    if verb == "click":
        if not caption:
            raise Refused(f"{name}: the page gives no name for what is clicked")
        return "do", f"Cliquez sur{place}."
    if verb == "scroll":
        bar = caption.replace("Barre", "la barre", 1) if caption.startswith("Barre ") else "la barre" + place
        return "do", f"Amenez {bar} à **{rest[1]}**."
    if verb == "backspace":
        return "do", f"Effacez le dernier caractère de{place}."
    if verb == "focus":
        return "do", f"Cliquez dans{place}."
    raise Refused("no words for: " + " ".join(line))


def separator_note(text):
    """A point between digits is typed as a point under a comma too, which the reader would not guess."""
    return " (avec un point)" if re.search(r"\d\.\d|^\.\d", text) else ""


def _narrate_expectation(rest, panels, names):
    if rest[0] == "message":
        lines = [" ".join(line.split()) for line in rest[1].splitlines() if line.strip()]
        return "see", f"Une boîte dit : « {' / '.join(lines)} »."
    if rest[0] == "fault":
        return "see", "Le programme s'arrête sur une erreur."
    if rest[0] == "no" or rest[0] == "refused":
        return None
    if rest[0].count(".") < 2:
        return None
    panel, name, member = rest[0].split(".")
    value = rest[1].strip()
    caption = names.get(name) or caption_of(panels[panel]["controls"], name)
    if member == "Text":
        seen = f"**{value}**" if value else "un champ vide"
        return "see", f"Vous lisez {seen} dans « {caption} »." if caption else f"Vous lisez {seen}."
    if member == "Display":
        return "see", f"Vous lisez **{value}** dans « {caption} »."
    if member == "Caption":
        return "see", f"Le panneau affiche « **{value}** »."
    return None

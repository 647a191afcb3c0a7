#!/usr/bin/env python3
"""Renders the guide: guide.py --pilote PROGRAM --pictures FOLDER --version VERSION OUT

Takes `docs/guide`, plays the examples and the cases with the driver, and writes plain HTML with one style sheet into
the folder OUT. PROGRAM is the driver, FOLDER what the gallery has written. Ends with status 1, and a sentence that
names the page, where an example does not go as its page says.
"""

import argparse
import html
import pathlib
import shutil
import subprocess
import sys

import accuracy
import example
import formulas
import typography
from driver import Refused, Session, caption_of, menu_path
from page import Block, Field, Malformed, Page, rows

SOURCE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "guide"
TEMPLATE = pathlib.Path(__file__).resolve().parent / "template.html"
SHOWN_REGION = ","  # readers have a French system


class Guide:
    """All pages, and what they are made from."""

    def __init__(self, program, pictures, version, out):
        self.program = program
        self.pictures = pathlib.Path(pictures)
        self.version = version
        self.out = pathlib.Path(out)
        self.pages = [Page(file) for file in sorted((SOURCE / "panneaux").glob("*.md"))]
        with Session(program, SHOWN_REGION) as session:
            self.start = session.state()

    def write(self):
        """Writes everything."""
        (self.out / "images").mkdir(parents=True, exist_ok=True)
        shutil.copy(SOURCE / "style.css", self.out)
        for name in ("commencer", "je-veux"):
            self._render(name, (SOURCE / f"{name}.md").read_text(encoding="utf-8"))
        self._render("index", (SOURCE / "index.md").read_text(encoding="utf-8") + "\n" + self._contents())
        for page in self.pages:
            self._render(page.panel, self.markdown(page))

    def markdown(self, page):
        """A page in Markdown alone, examples played."""
        menu, caption = menu_path(self.start, page.entry)
        text = [f"# {page.title}", f"[Menu « {menu} », entrée « {caption} »]{{.entree}}"]
        for part in page.parts:
            text.append(self._block(page, part) if isinstance(part, Block) else part)
        introduction, *sections = "\n\n".join(text).split("\n## ")
        return "\n## ".join([introduction + "\n" + self._picture(page) + "\n", *sections])

    def _block(self, page, block):
        if block.kind == "champs":
            return self._fields(page, block)
        if block.kind == "exactitude":
            script = SOURCE / "exactitude" / f"{page.panel}.py"
            return accuracy.table([accuracy.play(self.program, page.entry, case) for case in accuracy.cases(script)])
        played = {decimal: example.play(self.program, page, block.lines, decimal) for decimal in block.decimals}
        return story(played.get(SHOWN_REGION) or played["."])

    def _fields(self, page, block):
        with Session(self.program, ".") as session:
            session.say("menu " + page.entry)
            controls = session.controls(page.panel)
        text = []
        for row in rows(block):
            if not isinstance(row, Field):
                text += ["", f"### {row}"]
                continue
            if not text or text[-1].startswith("###"):
                text += ["", "| Champ | Unité | Ce que c'est |", "|:---|:---|:------|"]
            name = row.name or caption_of(controls, first_of(controls, row.controls[0]))
            text.append(f"| {name} | {row.unit} | {row.text} |")
        return "\n".join(text)

    def _picture(self, page):
        for file in self.pictures.glob(f"{page.panel}-*"):
            if file.stem in {f"{page.panel}-{look}" for look in ("96", "192", "sombre-96", "sombre-192")}:
                shutil.copy(file, self.out / "images")
        image = f"images/{page.panel}"
        alt = html.escape(f"Le panneau « {page.title} » à l'ouverture")
        return (f'<picture><source media="(prefers-color-scheme: dark)" '
                f'srcset="{image}-sombre-96.png, {image}-sombre-192.png 2x">'
                f'<img src="{image}-96.png" srcset="{image}-192.png 2x" alt="{alt}"></picture>')

    def _contents(self):
        by_entry = {page.entry: page for page in self.pages}
        text = []
        for menu in self.start["menus"]:
            entries = [entry for entry in menu["Entries"] if entry["Name"] in by_entry]
            if entries:
                text += ["", f"## {menu['Caption']}", ""]
            for entry in entries:
                page = by_entry[entry["Name"]]
                title = "" if page.title.lower() == entry["Caption"].lower() else f" : {lower_first(page.title)}"
                text.append(f"- [{entry['Caption']}]({page.panel}.html){title}")
        return "\n".join(text)

    def _render(self, name, markdown):
        markdown = typography.french(markdown)
        title = next(line[2:] for line in markdown.splitlines() if line.startswith("# "))
        rendered = subprocess.run(
            ["pandoc", "--from=markdown-smart-fancy_lists", "--to=html5", "--mathml", "--standalone", "--section-divs",
             "--wrap=none", "--columns=10000",  # longer lines would give a table columns of fixed widths
             f"--template={TEMPLATE}", "--variable=version:" + self.version, "--metadata=lang:fr",
             "--metadata=pagetitle:" + title],
            input=markdown, encoding="utf-8", stdout=subprocess.PIPE, check=True).stdout
        rendered = rendered.replace("<table>", '<div class="tableau"><table>').replace("</table>", "</table></div>")
        (self.out / f"{name}.html").write_text(formulas.readable(rendered), encoding="utf-8")


def first_of(controls, name):
    """The control of that name; of several that share it, the first."""
    return name if name in controls else f"{name}(0)"


def lower_first(title):
    """A title inside a sentence: its first letter small, unless the second is a capital or a digit too."""
    return title if len(title) > 1 and not title[1].islower() else title[0].lower() + title[1:]


def story(sentences):
    """The sentences of an example: numbered steps, what one sees under the step that brings it."""
    text, step = [], 0
    for kind, sentence in sentences:
        if kind == "say":
            text += ["", sentence, ""]
        elif kind == "do":
            step += 1
            text.append(f"{step}. {sentence}")
        else:
            text.append(f"    - {sentence}" if step else f"- {sentence}")
    return "\n".join(text)


def main():
    """The command."""
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--pilote", required=True, help="the driver")
    parser.add_argument("--pictures", required=True, help="the folder that the gallery has written")
    parser.add_argument("--version", required=True, help="the version of the program")
    parser.add_argument("out", help="the folder to write")
    options = parser.parse_args()
    try:
        Guide(options.pilote, options.pictures, options.version, options.out).write()
    except (Malformed, Refused, ValueError) as error:
        sys.exit(f"guide: {error}")


if __name__ == "__main__":
    main()

#!/usr/bin/env python3
"""Makes the project of the help file out of the pages in docs: a topic for each function, contents,
index.

    make_help.py DOCS FOLDER
"""
import html
import pathlib
import re
import sys

PAGES = ["windows.md", "know-before-you-rely.md"]
STYLE = """body { font-family: Verdana, sans-serif; font-size: 80%; margin: 1.5em; line-height: 1.5 }
code, pre { font-family: Consolas, monospace; background: #f0f0f0 }
pre { padding: .6em } table { border-collapse: collapse } td, th { border: 1px solid #bbb;
padding: .2em .6em; text-align: left; vertical-align: top }
"""


def anchor(title):
    """As links within the pages call a heading."""
    return re.sub(r"[^\w\- ]", "", title.lower()).replace(" ", "-")


class Page:
    """Markdown, as far as the pages use it, as HTML."""

    def __init__(self, resolve):
        self.resolve = resolve
        self.out = []
        self.open = []  # tags of blocks to be closed

    def inline(self, text):
        parts = re.split(r"(`[^`]*`)", text)
        return "".join(self.code(part) if part.startswith("`") and len(part) > 1
                       else self.marked(part) for part in parts)

    @staticmethod
    def code(part):
        return "<code>" + html.escape(part[1:-1]) + "</code>"

    def marked(self, text):
        text = html.escape(text, quote=False)
        text = re.sub(r"!\[([^]]*)\]\([^)]*\)", r"\1", text)
        text = re.sub(r"\[([^]]*)\]\(([^)]*)\)", self.link, text)
        text = re.sub(r"\*\*(.+?)\*\*", r"<b>\1</b>", text)
        return re.sub(r"(?<![\w*])\*([^*]+)\*(?![\w*])", r"<i>\1</i>", text)

    def link(self, match):
        target = self.resolve(match[2])
        return f'<a href="{html.escape(target)}">{match[1]}</a>' if target else match[1]

    def block(self, *tags):
        """Closes what is open but not wanted, and opens the rest."""
        while self.open and self.open != list(tags[:len(self.open)]):
            self.out.append(f"</{self.open.pop()}>")
        for tag in tags[len(self.open):]:
            self.open.append(tag)
            self.out.append(f"<{tag}>")

    def heading(self, line):
        level, title = re.match(r"(#+) (.*)", line).groups()
        self.block()
        size = len(level)
        self.out.append(f'<h{size}><a name="{anchor(title)}"></a>{self.inline(title)}</h{size}>')

    def row(self, line, is_head):
        cells = re.split(r"(?<!\\)\|", line.strip().strip("|"))
        tag = "th" if is_head else "td"
        self.out.append("<tr>" + "".join(
            f"<{tag}>{self.inline(cell.strip().replace(chr(92) + '|', '|'))}</{tag}>"
            for cell in cells) + "</tr>")

    def convert(self, text):
        fence = False
        for line in text.splitlines():
            if line.startswith("```"):
                fence = not fence
                self.block(*(["pre"] if fence else []))
            elif fence or (line.startswith("    ") and self.open in ([], ["pre"])):
                self.block("pre")
                self.out.append(html.escape(line if fence else line[4:], quote=False))
            elif not line.strip():
                self.block()
            elif re.match("#+ ", line):
                self.heading(line)
            elif re.fullmatch(r"\|[-| :]+\|", line):
                continue
            elif line.startswith("|"):
                is_head = self.open != ["table"]
                self.block("table")
                self.row(line, is_head)
            elif (item := re.match(r"(- |\d+\. )(.*)", line)):
                kind = "ul" if item[1] == "- " else "ol"
                self.block(*([kind] if self.open[:1] == [kind] else []))
                self.block(kind, "li")
                self.out.append(self.inline(item[2]))
            else:
                if self.open[:1] not in (["ul"], ["ol"]):
                    self.block("p")
                self.out.append(self.inline(line.strip()))
        self.block()
        return "\n".join(self.out)


def topics_of_functions(text):
    """The page's beginning, and then a name, its category and its text for each function."""
    beginning, *sections = re.split(r"^(?=## )", text, flags=re.M)
    topics = []
    for section in sections:
        head, *functions = re.split(r"^(?=### )", section, flags=re.M)
        if not functions:
            beginning += head
        category = head.splitlines()[0][3:]
        topics += [(one.splitlines()[0][4:], category, one.replace("###", "#", 1))
                   for one in functions]
    return beginning, topics


class Help:
    def __init__(self, docs, folder):
        self.docs, self.folder = docs, folder
        self.files = []
        self.beginning, self.topics = topics_of_functions((docs / "functions.md").read_text("utf-8"))
        self.names = {anchor(name): name for name, _, _ in self.topics}

    def resolve_in(self, page):
        def resolve(target):
            if re.match(r"https?:", target):
                return target
            file, _, part = target.partition("#")
            file = file or page
            if file == "functions.md":
                return self.names[part] + ".html" if part in self.names else (
                    "functions.html" + ("#" + part if part else ""))
            if file in PAGES:
                return file.replace(".md", ".html") + ("#" + part if part else "")
            return ""  # pages that don't come along
        return resolve

    def write(self, name, title, text, page):
        body = Page(self.resolve_in(page)).convert(text)
        # Characters of other alphabets by their numbers: viewers go by the code page of the machine.
        document = (f"<html><head><title>{html.escape(title)}</title>"
                    f"<style>{STYLE}</style></head>\n<body>\n{body}\n</body></html>\n")
        (self.folder / name).write_bytes(document.encode("ascii", "xmlcharrefreplace"))
        self.files.append(name)

    def write_all(self):
        self.write("functions.html", "Functions", self.beginning, "functions.md")
        for name, _, text in self.topics:
            self.write(name + ".html", name, text, "functions.md")
        titles = []
        for page in PAGES:
            text = (self.docs / page).read_text("utf-8")
            titles.append((text.splitlines()[0][2:], page.replace(".md", ".html")))
            self.write(titles[-1][1], titles[-1][0], text, page)
        self.write_contents(titles)
        self.write_index()
        self.write_project()

    @staticmethod
    def entry(title, file):
        return (f'<li><object type="text/sitemap"><param name="Name" value="{html.escape(title)}">'
                f'<param name="Local" value="{file}"></object>\n')

    def write_contents(self, titles):
        out = ["<html><body>\n<ul>\n"]
        out += [self.entry(title, file) for title, file in titles]
        out.append(self.entry("Functions", "functions.html") + "<ul>\n")
        for category in dict.fromkeys(category for _, category, _ in self.topics):
            out.append(self.entry(category, "functions.html") + "<ul>\n")
            out += [self.entry(name, name + ".html") for name, its, _ in self.topics
                    if its == category]
            out.append("</ul>\n")
        out.append("</ul>\n</ul>\n</body></html>\n")
        (self.folder / "Quorvex.hhc").write_text("".join(out), "ascii")

    def write_index(self):
        names = sorted((name for name, _, _ in self.topics), key=str.lower)
        (self.folder / "Quorvex.hhk").write_text("<html><body>\n<ul>\n" + "".join(
            self.entry(name, name + ".html") for name in names) + "</ul>\n</body></html>\n", "ascii")

    def write_project(self):
        start = PAGES[0].replace(".md", ".html")
        (self.folder / "Quorvex.hhp").write_text(
            "[OPTIONS]\nCompatibility=1.1 or later\nCompiled file=Quorvex.chm\n"
            "Contents file=Quorvex.hhc\nIndex file=Quorvex.hhk\n"
            f"Default topic={start}\nFull-text search=Yes\nLanguage=0x409\nTitle=Quorvex\n"
            "[FILES]\n" + "\n".join(self.files) + "\n", "ascii")


def main(docs, folder):
    folder = pathlib.Path(folder)
    folder.mkdir(parents=True, exist_ok=True)
    Help(pathlib.Path(docs), folder).write_all()


if __name__ == "__main__":
    main(*sys.argv[1:])

"""Makes one HTML page of all documents, with its pictures inside: no server is needed.

    python3 docs/page/make_page.py OUT.html
"""

import base64
import html
import mimetypes
import re
import sys
from pathlib import Path

from markdown_it import MarkdownIt

DOCS = Path(__file__).resolve().parent.parent
TITLES = {
    "cards.md": "Cards",
    "check.md": "The check",
    "host.md": "Hosts",
    "limits.md": "Limits",
    "architecture.md": "Architecture",
    "performance.md": "Performance",
    "windows.md": "Windows",
}


def documents():
    """The documents: those with a title first, in its order."""
    names = {path.name for path in DOCS.glob("*.md")}
    return [name for name in TITLES if name in names] + sorted(names - TITLES.keys())


def title_of(name):
    return TITLES.get(name, Path(name).stem.capitalize())


def anchor_of(text):
    """The name of a heading in links, as web sites that show Markdown make it."""
    return re.sub(r"[^\w\- ]", "", text.strip().lower()).replace(" ", "-")


def place_of(name, anchor=""):
    """The name of a heading in the page, where documents have headings of the same name."""
    return f"{Path(name).stem}--{anchor}" if anchor else Path(name).stem


def embedded(picture):
    kind = mimetypes.guess_type(picture.name)[0]
    return f"data:{kind};base64,{base64.b64encode(picture.read_bytes()).decode()}"


class Document:
    """One document as HTML, and its table of contents."""

    def __init__(self, name):
        self.name = name
        self.contents = []
        markdown = MarkdownIt("commonmark", {"html": True}).enable("table")
        tokens = markdown.parse((DOCS / name).read_text(encoding="utf-8"))
        self._name_headings(tokens)
        self._change_links(tokens)
        self.html = self._beside(self._embed(markdown.renderer.render(tokens, markdown.options, {})))

    def _name_headings(self, tokens):
        for token, text in zip(tokens, tokens[1:]):
            if token.type != "heading_open":
                continue
            place = place_of(self.name, anchor_of(text.content))
            token.attrSet("id", place)
            self.contents.append((int(token.tag[1]), place, text.content))

    def _change_links(self, tokens):
        for token in tokens:
            for part in token.children or []:
                if part.type == "link_open":
                    self._change_link(part)

    def _change_link(self, link):
        target = link.attrGet("href")
        if "://" in target:
            return
        path, _, anchor = target.partition("#")
        name = path or self.name
        if (DOCS / name).suffix == ".md" and "/" not in name:
            link.attrSet("href", "#" + place_of(name, anchor))
        else:
            # A file of the project: the page does not have it.
            link.attrs = {"class": "file", "title": path}

    def _embed(self, text):
        def source(match):
            return f'src="{embedded(DOCS / html.unescape(match[1]))}"'

        return re.sub(r'src="([^"]+)"', source, text)

    @staticmethod
    def _beside(text):
        """Puts pictures of cards beside their JSON."""
        picture = r'(?:<p>)?(<img [^>]*width="\d+"[^>]*>)(?:</p>)?\s*'
        return re.sub(picture + r"(<pre>.*?</pre>)", r'<div class="card">\1\2</div>', text, flags=re.S)


def navigation(document):
    # A document begins with its title, and may have more headings of that level.
    items = "".join(
        f'<li class="level{level}"><a href="#{place}">{html.escape(text.replace("`", ""))}</a></li>'
        for level, place, text in document.contents[1:]
        if level <= 2
    )
    place = place_of(document.name)
    opened = " open" if document.name == documents()[0] else ""
    return (
        f'<details{opened}><summary><a href="#{place}">{title_of(document.name)}</a></summary>'
        f"<ul>{items}</ul></details>"
    )


def make_page():
    parts = [Document(name) for name in documents()]
    style = (DOCS / "page" / "page.css").read_text(encoding="utf-8")
    sections = "".join(
        f'<section id="{place_of(part.name)}">{part.html}</section>' for part in parts
    )
    return (
        '<!DOCTYPE html>\n<html lang="en"><head><meta charset="utf-8">'
        '<meta name="viewport" content="width=device-width"><title>Plix</title>'
        f"<style>{style}</style></head><body><nav>{''.join(map(navigation, parts))}</nav>"
        f"<main>{sections}</main></body></html>\n"
    )


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: make_page.py OUT.html")
    out = Path(sys.argv[1])
    out.parent.mkdir(parents=True, exist_ok=True)
    out.write_text(make_page(), encoding="utf-8")
    print(out)


if __name__ == "__main__":
    main()

"""Text of the headers and of the repository's pages as Markdown of the site."""

import re


class Links:
    """Routines and layouts by name, with the path to their pages from the page that is written."""

    def __init__(self, routines, layouts, root):
        self.targets = {name: f"{root}layouts.md#{name.lower()}" for name in layouts}
        self.targets |= {name: f"{root}routines/{name}.md" for name in routines}
        self.routines = routines

    def code(self, name, besides=None):
        target = self.targets.get(name)
        return f"[`{name}`]({target})" if target and name != besides else f"`{name}`"

    def mark(self, text, besides=None):
        """Prose: names become links, and nothing outside of backticks is markup."""
        pieces = re.split(r"(`[^`]*`)", text)
        return "".join(
            self.code(piece[1:-1], besides) if piece.startswith("`") else self.plain(piece, besides) for piece in pieces
        )

    def page(self, text):
        """A page of docs/: names in backticks become links, but not in code blocks or in other links."""
        lines, in_code = [], False
        for line in text.split("\n"):
            fence = line.strip().startswith("```")
            in_code ^= fence
            if not in_code and not fence and not line.startswith("#"):
                line = re.sub(r"(?<!\[)`([^`]+)`(?!\])", lambda match: self.code(match.group(1)), line)
            lines.append(line)
        return "\n".join(lines)

    def plain(self, text, besides):
        def word(match):
            name = match.group(0)
            return self.code(name, besides) if name in self.routines else escaped(name)

        return re.sub(r"[A-Za-z0-9_]+|[^A-Za-z0-9_]+", word, text)


def escaped(text):
    return re.sub(r"([\\*_<>\[\]#|])", r"\\\1", text)


def documentation(text, links, besides):
    """A comment of a header: indented lines are tables and stay as they are."""
    blocks, kept = [], None
    for line in text.split("\n"):
        table = line.startswith("  ")
        if not line or table != kept:
            blocks.append([])
        kept = table if line else kept
        if line:
            blocks[-1].append(line)
    pages = []
    for block in filter(None, blocks):
        if block[0].startswith("  "):
            pages.append("```text\n" + "\n".join(line[2:] for line in block) + "\n```")
        else:
            pages.append(links.mark("\n".join(block), besides))
    return "\n\n".join(pages)


def from_root(text):
    """Links of a page in the root of the repository, for the same page among those of docs/."""
    text = text.replace("](docs/", "](")
    text = text.replace("](CONTRIBUTING.md)", "](contributing.md)").replace("](CHANGELOG.md)", "](changes.md)")
    return text.replace("](README.md)", "](index.md)")

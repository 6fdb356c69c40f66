"""What is broken among the links of a folder of HTML."""

import pathlib
import re
from html.parser import HTMLParser
from urllib.parse import unquote, urlsplit


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.ids, self.links, self.resources, self.words = set(), [], [], []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.ids.add(values["id"])
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
        elif "src" in values or tag == "link":
            self.resources.append(values.get("src") or values["href"])

    def handle_data(self, data):
        self.words.append(data)

    def text(self):
        return " ".join("".join(self.words).split())


class Folder:
    def __init__(self, root):
        self.root = pathlib.Path(root).resolve()
        self.pages = {path: Page(path) for path in self.root.rglob("*.html")}

    def target(self, source, link):
        parts = urlsplit(link)
        path = (source.parent / unquote(parts.path)).resolve() if parts.path else source
        return path, unquote(parts.fragment)

    def broken_link(self, source, link):
        if urlsplit(link).scheme in ("http", "https", "mailto"):
            return False
        path, fragment = self.target(source, link)
        if link.startswith("/") or not path.is_file():
            return True
        return bool(fragment) and (path not in self.pages or fragment not in self.pages[path].ids)

    def broken_resource(self, source, link):
        return not link.startswith("data:") and (bool(urlsplit(link).netloc) or self.broken_link(source, link))

    def broken(self):
        """(file, link) for every link into nothing and everything that is fetched from elsewhere."""
        found = []
        for path, page in self.pages.items():
            found += [(path, link) for link in page.links if self.broken_link(path, link)]
            found += [(path, link) for link in page.resources if self.broken_resource(path, link)]
        for path in self.root.rglob("*.css"):
            fetched = re.findall(r"url\(\s*['\"]?([^'\")]+)|@import\s+['\"]([^'\"]+)", path.read_text())
            found += [(path, url) for pair in fetched for url in pair if url and self.broken_resource(path, url)]
        return [(str(path.relative_to(self.root)), link) for path, link in found]

    def unreached(self, start="index.html"):
        """Pages that no chain of links reaches from the first."""
        first = self.root / start
        seen, waiting = {first}, [first]
        while waiting:
            source = waiting.pop()
            for link in self.pages[source].links:
                path = self.target(source, link)[0]
                if path in self.pages and path not in seen:
                    seen.add(path)
                    waiting.append(path)
        return sorted(str(path.relative_to(self.root)) for path in set(self.pages) - seen)

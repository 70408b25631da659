"""Checks the user's help: check_help.py HELP_FOLDER PROGRAM_FOLDER

Every link and picture of every page leads somewhere, every page is in the table of contents and in
the help file's project, and so is every picture that a page shows; and the help file that was built
holds them all. Prints what it looked at, and ends with 1 after naming what is wrong.
"""

import html.parser
import os
import re
import subprocess
import sys
from urllib.parse import urldefrag


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.pictures, self.anchors, self.undescribed = [], [], set(), []
        with open(path, encoding="utf-8") as page:
            self.feed(page.read())

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        if "id" in attrs:
            self.anchors.add(attrs["id"])
        if tag in ("a", "link") and "href" in attrs:
            self.links.append(attrs["href"])
        if tag == "img":
            self.pictures.append(attrs["src"])
            if not attrs.get("alt"):
                self.undescribed.append(attrs["src"])


def pages_of(folder):
    names = sorted(name for name in os.listdir(folder) if name.endswith(".html"))
    return {name: Page(os.path.join(folder, name)) for name in names}


def problems_of_pages(folder, pages):
    for name, page in pages.items():
        for link in page.links:
            target, anchor = urldefrag(link)
            if re.match(r"[a-z]+:", target):
                yield f"{name}: {link} leads out of the help"
            elif target and not os.path.isfile(os.path.join(folder, target)):
                yield f"{name}: the link {link} leads nowhere"
            elif anchor and anchor not in pages[target or name].anchors:
                yield f"{name}: {link} names no place of that page"
        for picture in page.pictures:
            if not os.path.isfile(os.path.join(folder, picture)):
                yield f"{name}: the picture {picture} is missing"
        for picture in page.undescribed:
            yield f"{name}: the picture {picture} is not described"


def problems_of_project(folder, pages):
    with open(os.path.join(folder, "tessaly.hhp"), encoding="utf-8") as project:
        listed = project.read().split("[FILES]")[1].split()
    with open(os.path.join(folder, "contents.hhc"), encoding="utf-8") as contents:
        contents = re.findall(r'name="Local" value="([^"]*)"', contents.read())
    wanted = {"pages/" + name for name in pages} | {"pages/style.css"}
    wanted |= {picture[3:] for page in pages.values() for picture in page.pictures}
    for name in sorted(wanted - set(listed)):
        yield f"tessaly.hhp lacks {name}"
    for name in sorted(set(listed) - wanted):
        yield f"tessaly.hhp lists {name}, which no page needs"
    for name in sorted({"pages/" + name for name in pages} ^ set(contents)):
        yield f"contents.hhc and the pages differ in {name}"


def problems_of_help_file(program_folder, pages):
    listing = subprocess.run(
        ["chmls", "list", os.path.join(program_folder, "System11TessalyHelp.chm")],
        capture_output=True, text=True, check=True).stdout
    for name, page in pages.items():
        for wanted in ["/pages/" + name] + [picture[2:] for picture in page.pictures]:
            if not re.search(r"\s" + re.escape(wanted) + r"$", listing, re.MULTILINE):
                yield f"the help file lacks {wanted}"


def main(folder, program_folder):
    pages = pages_of(folder)
    problems = [*problems_of_pages(folder, pages), *problems_of_project(folder, pages),
                *problems_of_help_file(program_folder, pages)]
    print(f"{len(pages)} pages, {sum(len(page.links) for page in pages.values())} links, "
          f"{sum(len(page.pictures) for page in pages.values())} pictures")
    for problem in problems:
        print(problem)
    if not pages or problems:
        sys.exit(1)


main(*sys.argv[1:])

#!/usr/bin/env python3
"""Converts a guide to an HTML page, with an anchor at each heading: make_page.py GUIDE.md PAGE.html

Links to other guides lead to their pages. The pictures of the guide are copied to the folder of the page.
"""
import pathlib
import re
import shutil
import sys

import markdown

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>{title}</title>
<style>
body {{ max-width: 46em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 sans-serif; color: #222 }}
h2 {{ border-top: 1px solid #ccc; padding-top: 1em }}
img {{ max-width: 100% }}
table {{ border-collapse: collapse }}
td, th {{ border: 1px solid #ccc; padding: .2em .6em; text-align: left; vertical-align: top }}
code {{ background: #f2f2f2; padding: 0 .2em }}
pre {{ background: #f2f2f2; padding: .6em; overflow-x: auto }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def for_converter(text):
    """Adapts a text to the converter, which supports only fences at the margin and lists indented by four."""
    fence = None
    for line in text.splitlines():
        indent = len(line) - len(line.lstrip())
        if line.lstrip().startswith("```") and (fence or indent):
            fence = None if fence else indent
            yield ""
        elif fence:
            yield "        " + line[fence:]
        elif 2 <= indent < 4:
            yield "    " + line.lstrip()
        else:
            yield line


def without_sources(text):
    """Readers of the pages have the programs, but no ./run."""
    return re.sub(r"\./run (?=suminfo|dxfprops|hostcheck)", "", text)


def main():
    guide, page = map(pathlib.Path, sys.argv[1:])
    text = "\n".join(for_converter(without_sources(guide.read_text(encoding="utf-8"))))
    body = markdown.markdown(text, extensions=["tables", "toc", "sane_lists", "fenced_code"])
    body = re.sub(r'(href="[\w/-]+)\.md\b', r"\1.html", body)
    page.parent.mkdir(parents=True, exist_ok=True)
    for picture in re.findall(r'src="([^"]+)"', body):
        (page.parent / picture).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(guide.parent / picture, page.parent / picture)
    title = re.search(r"<h1[^>]*>([^<]*)", body)[1]
    page.write_text(PAGE.format(title=title, body=body), encoding="utf-8")


main()

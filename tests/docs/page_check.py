"""Opens the page of all documents in Chromium, without a network, and looks for what is broken.

    python3 tests/docs/page_check.py PAGE.html SCREENSHOT.png
"""

import html
import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path

# An empty screenshot is smaller: it packs well.
BLANK_BYTES = 200_000

# What a reader would see in the page: as JSON in the element "report".
SCRIPT = """
window.addEventListener("load", () => {
    const all = (selector) => Array.from(document.querySelectorAll(selector));
    const isShown = (element) => element.getBoundingClientRect().width > 0;
    const target = (link) => document.getElementById(decodeURIComponent(link.hash.slice(1)));
    const ids = all("[id]").map((element) => element.id);
    const report = {
        cards: all(".card").length,
        headings: all("h1, h2, h3").length,
        links: all("a[href^='#']").length,
        problems: [
            ...all("img").filter((image) => !image.naturalWidth).map((image) => "no picture: " + image.alt),
            ...all("a[href^='#']").filter((link) => !target(link)).map((link) => "no target: " + link.hash),
            ...all("a[href]:not([href^='#']):not([href^='http'])").map((link) => "leaves the page: " + link),
            ...all(".card").filter((card) => !Array.from(card.children).every(isShown)).map(() => "hidden card"),
            ...ids.filter((id, index) => ids.indexOf(id) !== index).map((id) => "twice: " + id),
            ...all("img, pre, p").filter((each) => each.getBoundingClientRect().right > innerWidth + 1)
                .map((each) => "too wide: " + each.textContent.slice(0, 40)),
            ...performance.getEntriesByType("resource").filter((each) => !each.name.startsWith("data:"))
                .map((each) => "loaded: " + each.name),
        ],
    };
    document.body.innerHTML = "<pre id='report'></pre>";
    document.getElementById("report").textContent = JSON.stringify(report);
});
"""


def run_browser(*arguments):
    command = ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars"]
    # No name is an address: nothing comes from a network.
    command += ["--host-resolver-rules=MAP * ~NOTFOUND", *arguments]
    with tempfile.TemporaryDirectory() as profile:
        command.append(f"--user-data-dir={profile}")
        return subprocess.run(command, check=True, capture_output=True, text=True, timeout=120).stdout


def report_of(page, width):
    text = page.read_text(encoding="utf-8").replace("</body>", f"<script>{SCRIPT}</script></body>")
    with tempfile.TemporaryDirectory() as folder:
        copy = Path(folder) / "page.html"
        copy.write_text(text, encoding="utf-8")
        dom = run_browser(f"--window-size={width},900", "--dump-dom", copy.as_uri())
    report = re.search(r'<pre id="report">(.*?)</pre>', dom, flags=re.S)
    if not report:
        sys.exit(f"{page}: Chromium does not show it")
    return json.loads(html.unescape(report[1]))


def main():
    page, screenshot = (Path(argument).resolve() for argument in sys.argv[1:])
    problems = []
    for width in (1280, 500):
        report = report_of(page, width)
        problems += [f"{width} pixels wide: {problem}" for problem in report["problems"]]
        if min(report["cards"], report["headings"], report["links"]) < 40:
            problems.append(f"a part is missing: {report}")
    run_browser("--window-size=1280,6000", f"--screenshot={screenshot}", page.as_uri())
    if screenshot.stat().st_size < BLANK_BYTES:
        problems.append(f"{screenshot} is blank")
    if problems:
        sys.exit("\n".join(problems))
    print(f"{page}: {report['cards']} cards, {report['links']} links; {screenshot}")


if __name__ == "__main__":
    main()

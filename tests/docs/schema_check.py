"""Feeds cards to the schema: it takes the good ones, and refuses the wrong ones.

    python3 tests/docs/schema_check.py
"""

import json
import re
import sys
from pathlib import Path

from jsonschema import Draft202012Validator

ROOT = Path(__file__).resolve().parent.parent.parent

# Cards that show on purpose what an unknown word does.
ON_PURPOSE = {
    "button_styles.json": "body/contents/1/contents/5/style",
    "picture_sizes.json": "body/contents/1/contents/10/contents/0/size",
}

# The findings of the check that a schema can have, too. docs/check.md has a wrong and a right card
# for each.
CODES = {
    "not-a-card", "wrong-kind", "converted-kind", "unknown-key", "unknown-type", "unknown-word",
    "wrong-case", "missing-key", "bad-length", "bad-color", "short-color", "bad-ratio", "bad-number",
    "action-without-type",
}

# Slips that authors make in a component, and the key that is wrong.
SLIPS = [
    ('{"type": "text", "text": "a", "colour": "#FF0000"}', ""),
    ('{"type": "text", "text": "a", "weight": "Bold"}', "weight"),
    ('{"type": "text", "text": "a", "size": "large"}', "size"),
    ('{"type": "text", "text": "a", "size": "20px"}', "size"),
    ('{"type": "text", "text": "a", "align": "right"}', "align"),
    ('{"type": "text", "text": "a", "color": "#F00"}', "color"),
    ('{"type": "text", "text": "a", "maxLines": "3"}', "maxLines"),
    ('{"type": "text", "text": "a", "flex": 1.5}', "flex"),
    ('{"type": "text", "text": "a", "i18nTexts": {"fr": "b"}}', "i18nTexts"),
    ('{"type": "image", "uri": "https://example.com/a.png"}', ""),
    ('{"type": "image", "url": "a", "aspectMode": "contain"}', "aspectMode"),
    ('{"type": "image", "url": "a", "backgroundColor": "reddish"}', "backgroundColor"),
    ('{"type": "box", "layout": "row", "contents": []}', "layout"),
    ('{"type": "box", "contents": []}', ""),
    ('{"type": "box", "layout": "vertical", "paddingAll": 20}', "paddingAll"),
    ('{"type": "box", "layout": "vertical", "paddingAll": "-4px"}', "paddingAll"),
    ('{"type": "box", "layout": "vertical", "cornerRadius": "50%"}', "cornerRadius"),
    ('{"type": "button", "action": {"type": "uri", "url": "https://example.com"}}', "action"),
    ('{"type": "Text", "text": "a"}', "type"),
    ('{"text": "a"}', ""),
]

GOOD = [
    '{"type": "text", "text": "a", "margin": "-4px", "color": "tomato", "offsetTop": "50%"}',
    '{"type": "box", "layout": "vertical", "borderWidth": "2", "backgroundColor": "#11223344"}',
    '{"type": "image", "url": "a", "aspectRatio": "1.5:1", "i18nUrls": {"fr": "b"}}',
]


def card_of(component):
    return {"type": "bubble", "body": {"type": "box", "layout": "vertical", "contents": [component]}}


class SchemaCheck:
    def __init__(self):
        schema = json.loads((ROOT / "docs/card.schema.json").read_text(encoding="utf-8"))
        Draft202012Validator.check_schema(schema)
        self.validator = Draft202012Validator(schema)
        self.failures = []
        self.count = 0

    def places(self, card):
        self.count += 1
        return {"/".join(map(str, error.absolute_path)) for error in self.validator.iter_errors(card)}

    def expect(self, name, found, expected):
        if found != expected:
            self.failures.append(f"{name}: wrong at {sorted(found)}, expected {sorted(expected)}")

    def check_files(self):
        for folder in ("examples/cards", "docs/cards"):
            for path in sorted((ROOT / folder).rglob("*.json")):
                card = json.loads(path.read_text(encoding="utf-8"))
                known = {ON_PURPOSE[path.name]} if path.name in ON_PURPOSE else set()
                self.expect(path.name, self.places(card), known)
                self.expect(path.name, self.places({"$schema": "card.schema.json", **card}), known)

    def check_guide(self):
        text = (ROOT / "docs/check.md").read_text(encoding="utf-8")
        sections = dict(re.findall(r"^## (\S+)\n(.*?)(?=^##? |\Z)", text, flags=re.M | re.S))
        for code in sorted(CODES):
            wrong, right = map(json.loads, re.findall(r"```json\n(.*?)```", sections[code], flags=re.S))
            if not self.places(wrong):
                self.failures.append(f"{code}: the wrong card is taken")
            self.expect(f"{code}, right card", self.places(right), set())

    def check_components(self):
        for text, key in SLIPS:
            place = "/".join(filter(None, ("body/contents/0", key)))
            self.expect(text, self.places(card_of(json.loads(text))), {place})
        for text in GOOD:
            self.expect(text, self.places(card_of(json.loads(text))), set())


def main():
    check = SchemaCheck()
    check.check_files()
    check.check_guide()
    check.check_components()
    if check.failures:
        sys.exit("\n".join(check.failures))
    print(f"docs/card.schema.json: {check.count} cards")


if __name__ == "__main__":
    main()

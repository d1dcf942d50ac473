"""Reads a workbook and prints what stands in it: for each sheet its name and the rows, each with its level in the outline,
the indent and type of each cell. Fails when a part isn't well-formed or a sheet lacks frozen head, filter or outline."""

import re
import sys
import xml.etree.ElementTree as xml
import zipfile

NAMES = {"s": "http://schemas.openxmlformats.org/spreadsheetml/2006/main"}


def cell_text(cell, indents):
    inline = cell.find("s:is/s:t", NAMES)
    value = cell.find("s:v", NAMES)
    if inline is None and value is None:
        return None
    indent = indents[int(cell.get("s", "0"))]
    text = ascii(inline.text) if inline is not None else value.text
    return f"{indent}>{text}" if indent else text


def main(path):
    with zipfile.ZipFile(path) as book:
        if book.testzip():
            sys.exit("broken: " + book.testzip())
        parts = {name: xml.fromstring(book.read(name)) for name in book.namelist() if name.endswith(".xml")}
    formats = parts["xl/styles.xml"].findall("s:cellXfs/s:xf", NAMES)
    indents = [int(a.get("indent", "0")) if (a := f.find("s:alignment", NAMES)) is not None else 0 for f in formats]
    for number, sheet in enumerate(parts["xl/workbook.xml"].findall("s:sheets/s:sheet", NAMES), 1):
        table = parts[f"xl/worksheets/sheet{number}.xml"]
        pane = table.find("s:sheetViews/s:sheetView/s:pane", NAMES)
        outline = table.find("s:sheetPr/s:outlinePr", NAMES)
        print(sheet.get("name"), "frozen:", pane.get("ySplit"), pane.get("state"),
              "filter:", table.find("s:autoFilter", NAMES).get("ref"), "sums below:", outline.get("summaryBelow"))
        for row in table.findall("s:sheetData/s:row", NAMES):
            cells = [cell_text(cell, indents) for cell in row.findall("s:c", NAMES)]
            print(row.get("outlineLevel", "0"), *[cell for cell in cells if cell is not None])


main(sys.argv[1])

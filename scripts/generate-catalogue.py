#!/usr/bin/env python3
"""Writes resources/Fields.xml and resources/i18n/fields_en.ts from ExifTool's tag database.

Usage: generate-catalogue.py EXIFTOOL [--selection FILE] [--out DIR]

Which tags appear, and where, comes from the hand-kept selection file; everything ExifTool
knows about a tag (family-1 group, writability, value type, title, enumerated values and their
English names) comes from `exiftool -listx`. The output is deterministic: running the script
again with the same ExifTool reproduces both files byte for byte.
"""

import argparse
import io
import os
import re
import subprocess
import sys
import xml.etree.ElementTree as ET
from xml.sax.saxutils import escape, quoteattr

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(HERE)

REPRESENTATIONS = {"number", "date", "datetime", "enum", "multi-enum", "fraction",
                   "longitude", "latitude", "strings", "structure", "none"}
DATATYPES = {"string", "int8", "uint8", "int16", "uint16", "int32", "uint32", "float",
             "double", "udouble", "binary", "enum", "rdf-bag", "lang-alt"}

INTEGER_TYPES = {"int8u": "uint8", "int8s": "int8", "int16u": "uint16", "int16s": "int16",
                 "int32u": "uint32", "int32s": "int32", "integer": "int32"}
UNSIGNED_REAL_TYPES = {"rational64u", "rational32u"}
SIGNED_REAL_TYPES = {"rational64s", "rational32s", "float", "double", "real"}


class SelectionError(Exception):
    pass


def load_database(exiftool):
    """Maps table name -> tag name -> list of tag records, in ExifTool's order."""
    out = subprocess.run([exiftool, "-listx", "-f", "-lang", "en"], check=True,
                         stdout=subprocess.PIPE).stdout
    version = subprocess.run([exiftool, "-ver"], check=True,
                             stdout=subprocess.PIPE).stdout.decode().strip()
    tables = {}
    for _, element in ET.iterparse(io.BytesIO(out)):
        if element.tag != "table":
            continue
        table = tables.setdefault(element.get("name"), {})
        table_group = element.get("g1")
        for tag in element.findall("tag"):
            table.setdefault(tag.get("name"), []).append(_tag_record(tag, table_group))
        element.clear()
    return tables, version


def _tag_record(tag, table_group):
    blocks = tag.findall("values")
    values = None
    # Indexed blocks describe the items of an array tag, and BitN keys a bit mask: with the
    # numeric read both arrive as plain numbers, so neither is a pick-one list.
    if len(blocks) == 1 and blocks[0].get("index") is None:
        keys = blocks[0].findall("key")
        if keys and not any(re.fullmatch(r"Bit\d+", k.get("id", "")) for k in keys):
            # Escaped binary codes never arrive as such in the numeric read, and an empty
            # value is no value at all to the reader.
            values = [(k.get("id"), k.findtext("val") or k.get("id")) for k in keys
                      if k.get("id") and "\\x" not in k.get("id")] or None
    flags = set(filter(None, (tag.get("flags") or "").split(",")))
    return {
        "group": tag.get("g1") or table_group,
        "type": tag.get("type") or "?",
        "count": int(tag.get("count") or "1") if (tag.get("count") or "1").isdigit() else 1,
        "writable": tag.get("writable") == "true",
        "flags": flags,
        "title": tag.findtext("desc") or tag.get("name"),
        "values": values,
    }


def parse_selection(path):
    """Yields ('group'|'section'|'table'|'maker', text) and ('field', key, options)."""
    with open(path, encoding="utf-8") as handle:
        for number, raw in enumerate(handle, 1):
            line = raw.split("#", 1)[0].strip()
            if not line:
                continue
            word, _, rest = line.partition(" ")
            rest = rest.strip()
            if word in ("group", "section", "table", "maker"):
                if not rest:
                    raise SelectionError(f"{path}:{number}: '{word}' needs a name")
                yield number, (word, rest)
                continue
            if ":" not in word:
                raise SelectionError(f"{path}:{number}: not a tag key: {word}")
            options = {}
            for option in rest.split():
                name, _, value = option.partition("=")
                options[name] = value
            yield number, ("field", word, options)


def _find_tag(tables, table_name, key):
    group, _, name = key.partition(":")
    records = [r for r in tables.get(table_name, {}).get(name, []) if r["group"] == group]
    if not records:
        return None
    merged = dict(records[0])
    merged["writable"] = any(r["writable"] for r in records)
    # Model-dependent variants of one tag share the key: offer the codes of all of them.
    values = {}
    for record in records:
        for raw, text in record["values"] or []:
            values.setdefault(raw, text)
    merged["values"] = list(values.items()) or None
    return merged


def _integer_values(values):
    """Folds ExifTool's "N.k" duplicates of integer codes (lenses sharing one ID) into N."""
    merged = {}
    order = []
    for raw, text in values:
        base = raw.split(".", 1)[0] if re.fullmatch(r"-?\d+\.\d+", raw) else raw
        if base not in merged:
            merged[base] = []
            order.append(base)
        if text not in merged[base]:
            merged[base].append(text)
    return [(raw, " or ".join(merged[raw])) for raw in order]


def describe_field(record, key, options, maker):
    kind = record["type"]
    is_list = "List" in record["flags"]
    numeric_array = record["count"] > 1 and kind not in ("string", "digits", "undef", "?")
    values = record["values"]
    if numeric_array and values and not any(" " in raw for raw, _ in values):
        values = None  # codes of the single items, while the read yields the whole array

    datatype = "string"
    representation = None
    decimals = None
    if kind in INTEGER_TYPES and not numeric_array:
        datatype = INTEGER_TYPES[kind]
        representation = "number"
    elif kind in UNSIGNED_REAL_TYPES and not numeric_array:
        datatype, representation, decimals = "udouble", "number", 2
    elif kind in SIGNED_REAL_TYPES and not numeric_array:
        # The number formatter admits only positive reals, so signed values stay plain text.
        datatype = "double"
    elif kind == "undef":
        datatype = "binary"
    elif kind == "date":
        representation = "datetime"
    elif kind == "lang-alt":
        datatype = "lang-alt"
    elif kind == "struct":
        representation = "structure"
    if kind == "boolean":
        values = [("True", "True"), ("False", "False")]
    if values and "noenum" not in options:
        if any(" " in raw for raw, _ in values):
            datatype = "string"  # codes of several numbers, as the numeric read joins them
        elif datatype.startswith(("int", "uint")):
            values = _integer_values(values)
        representation, decimals = "enum", None
    else:
        values = None
    if is_list and kind != "struct":
        representation = "strings"
        datatype = "rdf-bag" if "Bag" in record["flags"] else "string"

    if "as" in options:
        representation = None if options["as"] == "none" else options["as"]
        if representation not in ("number", None):
            decimals = None
    if "type" in options:
        datatype = options["type"]
    if "decimals" in options:
        decimals = int(options["decimals"])
    if representation == "number" and datatype in ("udouble", "double", "float") \
            and decimals is None:
        decimals = 2
    if representation != "number":
        decimals = None
    if representation not in (None, "enum", "multi-enum"):
        values = None
    if representation in ("enum", "multi-enum") and not values:
        raise SelectionError(f"{key}: enumeration without values")
    if representation is not None and representation not in REPRESENTATIONS:
        raise SelectionError(f"{key}: unknown representation {representation}")
    if datatype not in DATATYPES:
        raise SelectionError(f"{key}: unknown datatype {datatype}")

    # IPTC-IIM keeps each text in a dataset of at most this many bytes; ExifTool cuts longer ones.
    maxbytes = None
    if key.startswith("IPTC:") and kind == "string" and record["count"] > 1 \
            and representation in (None, "strings"):
        maxbytes = record["count"]

    return {
        "key": key,
        "writable": record["writable"] and "readonly" not in options,
        "maxbytes": maxbytes,
        "representation": representation,
        "datatype": datatype,
        "decimals": decimals,
        "maker": options.get("maker", maker),
        "title": options.get("title", record["title"]).replace("_", " "),
        "values": values,
        "forms": [k for k in options.get("forms", "").split(",") if k],
        "structure": None,  # (list type or None, [(member, kind)]) for a structure
    }


def build_catalogue(tables, selection_path):
    groups = []
    table = None
    maker = None
    seen = set()
    for number, entry in parse_selection(selection_path):
        where = f"{selection_path}:{number}"
        if entry[0] == "group":
            groups.append((entry[1], []))
            maker = None
        elif entry[0] == "section":
            if not groups:
                raise SelectionError(f"{where}: section outside a group")
            groups[-1][1].append((entry[1], []))
        elif entry[0] == "table":
            if entry[1] not in tables:
                raise SelectionError(f"{where}: ExifTool has no table {entry[1]}")
            table = entry[1]
        elif entry[0] == "maker":
            maker = None if entry[1] == "none" else entry[1]
        else:
            _, key, options = entry
            if not groups or not groups[-1][1]:
                raise SelectionError(f"{where}: field outside a section")
            if key in seen:
                raise SelectionError(f"{where}: {key} listed twice")
            tag_table = options.pop("table", table)
            record = _find_tag(tables, tag_table, key)
            if record is None:
                raise SelectionError(f"{where}: ExifTool has no tag {key} in {table}")
            seen.add(key)
            field = describe_field(record, key, options, maker)
            field["table"] = tag_table
            groups[-1][1][-1][1].append(field)
    _check_forms(groups)
    return groups


def _check_forms(groups):
    """One row writes the same value to each form, so each must take it as the row has it."""
    fields = {f["key"]: f for _, sections in groups for _, fs in sections for f in fs}
    owner = {}
    for key, field in fields.items():
        for form in field["forms"]:
            other = fields.get(form)
            if other is None:
                raise SelectionError(f"{key}: form {form} is not in the selection")
            if form in owner or other["forms"]:
                raise SelectionError(f"{key}: form {form} already belongs to a row")
            # A list may also have a copy in one text (EXIF's Artist), its items joined.
            joined = field["representation"] == "strings" and other["representation"] is None
            if ((other["representation"] == "strings") != (field["representation"] == "strings")
                    and not joined) \
                    or other["representation"] not in (None, "strings") \
                    or field["representation"] not in (None, "strings"):
                raise SelectionError(f"{key}: form {form} holds its value differently")
            owner[form] = key


def add_structure_members(groups, exiftool):
    """Asks ExifTool's own tag tables for the members of each structure field."""
    fields = [f for _, sections in groups for _, fs in sections for f in fs
              if f["representation"] == "structure"]
    if not fields:
        return
    library = os.path.join(os.path.dirname(os.path.realpath(exiftool)), "lib")
    command = ["perl"] + (["-I", library] if os.path.isdir(library) else []) + \
        [os.path.join(HERE, "structure-members.pl")] + \
        [f"{f['table']} {f['key'].partition(':')[2]}" for f in fields]
    lines = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout.decode()
    for field, line in zip(fields, lines.splitlines()):
        words = line.split()
        field["structure"] = (None if words[2] == "-" else words[2],
                              [tuple(w.split(":", 1)) for w in words[3:]])


def render_fields(groups, version):
    out = ['<?xml version="1.0" encoding="UTF-8"?>',
           f"<!-- Generated from the tag database of ExifTool {escape(version)} by "
           "scripts/generate-catalogue.py; edit scripts/catalogue-selection.txt instead. -->",
           "<fields>"]
    for group_name, sections in groups:
        out.append(f"  <group name={quoteattr(group_name)}>")
        for section_name, fields in sections:
            out.append(f"    <section name={quoteattr(section_name)}>")
            for field in fields:
                attributes = [f"name={quoteattr(field['key'])}"]
                if not field["writable"]:
                    attributes.append('writable="false"')
                if field["representation"]:
                    attributes.append(f"representation={quoteattr(field['representation'])}")
                attributes.append(f"datatype={quoteattr(field['datatype'])}")
                if field["decimals"] is not None:
                    attributes.append(f'decimals="{field["decimals"]}"')
                if field["maker"]:
                    attributes.append(f"maker={quoteattr(field['maker'])}")
                if field["maxbytes"]:
                    attributes.append(f'maxbytes="{field["maxbytes"]}"')
                if field["forms"]:
                    attributes.append(f"forms={quoteattr(' '.join(field['forms']))}")
                if field["structure"] and field["structure"][0]:
                    attributes.append('list="true"')
                head = "      <field " + " ".join(attributes)
                if field["structure"]:
                    out.append(head + ">")
                    for member, kind in field["structure"][1]:
                        kind_attribute = "" if kind == "text" else f" kind={quoteattr(kind)}"
                        out.append(f"        <member name={quoteattr(member)}{kind_attribute}/>")
                    out.append("      </field>")
                    continue
                if not field["values"]:
                    out.append(head + "/>")
                    continue
                out.append(head + ">")
                for raw, _ in field["values"]:
                    out.append(f"        <value>{escape(raw)}</value>")
                out.append("      </field>")
            out.append("    </section>")
        out.append("  </group>")
    out.append("</fields>")
    return "\n".join(out) + "\n"


def _ts_text(text):
    return escape(text, {'"': "&quot;", "'": "&apos;"})


def render_translations(groups):
    out = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
           '<TS version="2.1" language="en_US">', "<context>", "    <name>Fields</name>"]
    seen = set()

    def message(source, translation):
        if source in seen:
            return
        seen.add(source)
        out.extend(["    <message>", f"        <source>{_ts_text(source)}</source>",
                    f"        <translation>{_ts_text(translation)}</translation>",
                    "    </message>"])

    for _, sections in groups:
        for _, fields in sections:
            for field in fields:
                message(field["key"], field["title"])
                for raw, text in field["values"] or []:
                    message(f"{field['key']}:{raw}", text)
    out.extend(["</context>", "</TS>"])
    return "\n".join(out) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("exiftool")
    parser.add_argument("--selection", default=os.path.join(HERE, "catalogue-selection.txt"))
    parser.add_argument("--out", default=os.path.join(ROOT, "resources"))
    arguments = parser.parse_args()

    tables, version = load_database(arguments.exiftool)
    try:
        groups = build_catalogue(tables, arguments.selection)
        add_structure_members(groups, arguments.exiftool)
    except SelectionError as error:
        print(f"generate-catalogue: {error}", file=sys.stderr)
        return 1

    os.makedirs(os.path.join(arguments.out, "i18n"), exist_ok=True)
    for name, text in (("Fields.xml", render_fields(groups, version)),
                       (os.path.join("i18n", "fields_en.ts"), render_translations(groups))):
        with open(os.path.join(arguments.out, name), "w", encoding="utf-8", newline="\n") as f:
            f.write(text)

    fields = [f for _, sections in groups for _, fs in sections for f in fs]
    print(f"{len(fields)} fields in {len(groups)} groups and "
          f"{sum(len(s) for _, s in groups)} sections, "
          f"{sum(len(f['values'] or []) for f in fields)} enumerated values")
    return 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Fails on names of src that mislead: two headers or two types of one name, types and enumerators that are not CamelCase,
private members without their mark.

Names that the rules of the system give (cUtility, frmSearch, mobjIE, chkSMA ...) are law for what they name.
"""
import pathlib
import re
import sys

TYPE = re.compile(
    r"^(?:template <[^>]*> )?(?:class|struct|enum class|enum)\s+(\w+)(?: final)?(?:\s*:[^:;{][^;{]*)?\s*$", re.MULTILINE)
NESTED = re.compile(r"^ +(?:class|struct|enum class|enum)\s+(\w+)\b(?!.*;\s*$)", re.MULTILINE)
ENUMERATORS = re.compile(r"\benum(?: class)?(?: \w+)?(?: : \w+)? ?\{([^{}]*)\}")
PRIVATE = re.compile(
    r"^  private:\n(.*?)(?=^  (?:public|protected|Q_SIGNALS|public Q_SLOTS|private Q_SLOTS):|^\};)", re.MULTILINE | re.DOTALL)
MEMBER = re.compile(
    r"^    (?=\w)(?!static |using |friend |enum |class |struct |template )[\w:<>, *&]+[ &*](\w+)(?:\{[^;()]*\}| = [^;()]*)?;", re.MULTILINE)

CAMEL = re.compile(r"^(?:(?:c|frm)(?=[A-Z]))?[A-Z][A-Za-z0-9]*$|^frmfxg$")
MARKED = re.compile(r"^m[A-Z]\w*$|^m(?:obj|str|s|lng|int|b|astr|o)[A-Z]\w*$|^(?:frm|tmr|txt|lst|pic|lbl|cmd)[A-Z]\w*$|^mn[A-Z]\w*$")
COMMENT = re.compile(r"//[^\n]*")


def main():
    found, headers, types = [], {}, {}
    for path in sorted(pathlib.Path("src").rglob("*.[hc]*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        text = COMMENT.sub("", path.read_text(encoding="utf-8"))
        if path.suffix == ".h":
            if path.name in headers:
                found.append(f"{path}: {headers[path.name]} has the same name")
            headers[path.name] = path
        for name in TYPE.findall(text):
            home = types.setdefault(name, path.with_suffix(""))
            if home != path.with_suffix(""):
                found.append(f"{path}: {name} is also a type of {home}")
        for name in TYPE.findall(text) + NESTED.findall(text):
            if not CAMEL.match(name):
                found.append(f"{path}: type {name} is not CamelCase")
        for listed in ENUMERATORS.findall(text):
            for name in re.findall(r"(?:^|,)\s*(\w+)", re.sub(r"=[^,]*", "", listed)):
                if not CAMEL.match(name):
                    found.append(f"{path}: enumerator {name} is not CamelCase")
        for private in PRIVATE.findall(text):
            for name in MEMBER.findall(private):
                if not MARKED.match(name):
                    found.append(f"{path}: private member {name} has no mark")
    print("\n".join(found), file=sys.stderr) if found else None
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
"""Writes a C++ source that holds the given files, for a program without a file system:

    pack-files.py SOURCE PREFIX FOLDER FILE...

FILE is a path in FOLDER and lies at PREFIX/FILE in the program. Property lists (.plist, .strings) are converted
to bencoding, which resources/browser reads.
"""
import pathlib
import plistlib
import sys


def bencoded(value):
    if isinstance(value, dict):
        return b"d" + b"".join(bencoded(key) + bencoded(value[key]) for key in sorted(value)) + b"e"
    if isinstance(value, list):
        return b"l" + b"".join(map(bencoded, value)) + b"e"
    text = value.encode()
    return b"%d:%s" % (len(text), text)


def packed(path):
    content = path.read_bytes()
    return bencoded(plistlib.loads(content)) if path.suffix in (".plist", ".strings") else content


def literal(content):
    """A C++ literal; octal escapes of three digits never swallow what follows."""
    return '"' + "".join(chr(byte) if 32 <= byte < 127 and chr(byte) not in '"\\?' else "\\%03o" % byte
                         for byte in content) + '"'


def main(source, prefix, folder, *files):
    entries = []
    for file in files:
        content = packed(pathlib.Path(folder, file))
        entries.append('    {"%s/%s", {%s, %d}},\n' % (prefix, file, literal(content), len(content)))
    pathlib.Path(source).write_text(
        "#include <velmora/platform/system/browser/PackedFiles.h>\n\n"
        'namespace [[gnu::visibility("hidden")]] velmora {\n\n'
        "std::span<const PackedFile> packedFiles() {\n"
        "  static constexpr PackedFile files[] = {\n" + "".join(entries) + "  };\n"
        "  return files;\n}\n\n}  // namespace velmora\n")


main(*sys.argv[1:])

r"""Decode binary trace values with the Orvane formatter plug-in.

A traced value is a run of bytes tagged with a type id ("PGO", "BNH", "u32", ...); the
plug-in's functions say how many bytes it holds and print it. Each value or record is
copied into a zero-guarded buffer and each argument printed on a stream in a new
stream's state, so the texts are exactly those of ovfmt.

    >>> import orvane
    >>> orvane.format("PGO", bytes.fromhex("01140a0110"))
    '10.1.16.0/20'
    >>> orvane.format_record("I,I", bytes.fromhex("0100000a0200000a"), "{} -> {}")
    '10.0.0.1 -> 10.0.0.2'
    >>> orvane.format_many([("I", bytes(4)), ("PGO", b"\x01")], errors="return")
    ['0.0.0.0', FormatError('item 1: value too short: 1 byte given, PGO needs 2')]

The first call that needs a formatter loads the plug-in installed or built beside this
module, unless load() has already loaded one. Data is any bytes-like object (bytes,
bytearray, a C-contiguous memoryview); a str is refused with a TypeError, as hex
text is no value's bytes (bytes.fromhex() turns it into bytes). Errors are
exceptions with ovfmt's words: KeyError for an unknown id, FormatError (a ValueError)
for data too short, an invalid encoding or bytes left over, LoadError (an OSError) for
a plug-in that will not load.
Formatting releases the GIL, so threads may format at once. Bytes of a text that are
not UTF-8 (a corrupt string field) appear as \xNN escapes.
"""

from orvane._core import (FormatError, LoadError, __version__, format, format_many,
                          format_record, ids, length, load)

for _error in (FormatError, LoadError):
    _error.__module__ = __name__  # shown as orvane.FormatError, where users find it

__all__ = ["FormatError", "LoadError", "format", "format_many", "format_record", "ids",
           "length", "load"]

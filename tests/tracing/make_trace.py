"""Writes the reader tests' traces under OUTDIR: good (one event of each kind of typed
value, valid and not, and strings with control characters), discarded (events and
packets lost between packets), corrupt (an event of a class the metadata lacks, in the
middle of the stream) and overrun (a sequence longer than its packet). Prints nothing; the tests know the values from VALUES."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent))
import ctf_writer  # noqa: E402

BPK = bytes.fromhex("05010100000a03657431")
PGO = bytes.fromhex("01140a0110")
BNH = bytes.fromhex("0102000000030100000a001c73aabbcc")
MAC = bytes.fromhex("001c73aabbcc")
SECOND = 1000000000

# (name, values) in time order; every typed value here is checked against ovfmt's text.
VALUES = [
    ("bgp:peer_up", {"seq": 1, "peer": b"pe1", "addr__BPK": BPK}),
    ("bgp:route", {"seq": 2, "prefix__PGO": PGO, "nexthop__BNH": BNH, "mac__E": MAC,
                   "raw": b"\x01\x02", "blob__NOPE": b"\x03"}),
    # Faults: BNH cut short, an empty value, PGO of an unknown family (invalid length).
    ("bgp:route", {"seq": 3, "prefix__PGO": b"\x07", "nexthop__BNH": BNH[:10], "mac__E": MAC,
                   "raw": b"", "blob__NOPE": b""}),
    ("bgp:route", {"seq": 4, "prefix__PGO": PGO + b"\xff", "nexthop__BNH": b"", "mac__E": MAC,
                   "raw": PGO, "blob__NOPE": b""}),
    ("app:message", {"seq": 5, "text": b"tab\there\nline\x1b[31mred\xc2\x9b\xff\"q\\"}),
]


def events(values, start_s, step_ns=1000):
    return [(start_s * SECOND + i * step_ns, name, fields, 100 + i)
            for i, (name, fields) in enumerate(values)]


def main(outdir):
    outdir = Path(outdir)
    ctf_writer.write_trace(outdir / "good", [(events(VALUES, 1), 0, 0)])
    first = events(VALUES[:2], 2)
    second = events(VALUES[2:], 3)
    ctf_writer.write_trace(outdir / "discarded", [(first, 0, 0), (second, 2, 7)])
    stream = ctf_writer.write_trace(outdir / "corrupt", [(events(VALUES, 1), 0, 0)] * 1 +
                                    [(events(VALUES, 2), 1, 0)])
    data = bytearray(stream.read_bytes())
    # The first event of the second packet gets a class id no event class has.
    second_packet = len(data) // 2
    at = data.index(ctf_writer.MAGIC.to_bytes(4, "little"), second_packet - 8)
    data[at + 24 + 52] = 0xEE
    stream.write_bytes(bytes(data))
    # The last sequence's length runs past the packet's content: the source stops the
    # stream there and leaves an error on the thread, yet says all went well.
    stream = ctf_writer.write_trace(outdir / "overrun", [(events(VALUES, 1), 0, 0)])
    data = bytearray(stream.read_bytes())
    data[data.index(PGO + b"\xff") - 4] ^= 0xFF
    stream.write_bytes(bytes(data))


if __name__ == "__main__":
    main(sys.argv[1])

"""Damaged copies of CTF traces, for tests of how the readers fail.

A damaged copy is the trace directory copied, then one stream file changed: one byte
flipped or overwritten, the file cut, or a range zeroed. Offsets that matter (an event
header's class id byte, a packet's content_size) are found by reading the packets as
the trace's own metadata lays them out, so that a reproducer names "the class id byte
of the 3rd event of orvane_1" rather than an offset that holds in one recording only.

The reader understands what LTTng-UST and tests/tracing/ctf_writer.py write: packetized
or plain text metadata, byte-aligned little-endian packet headers and contexts, the
compact (5-bit id) and large (16-bit id) event headers or a plain struct with an `id`,
stream and event contexts, and payload fields that are integers, strings, fixed arrays
and sequences of integers.

    python3 damage.py TRACE               # lists each stream's packets and events
    python3 damage.py TRACE OUT KIND      # writes one reproducer (see REPRODUCERS)
"""

import re
import shutil
import struct
import sys
from pathlib import Path

PACKET_MAGIC = 0xC1FC1FC1
METADATA_MAGIC = 0x75D11D57


def metadata_text(directory):
    """The metadata file in DIRECTORY as text, its packet headers taken out when
    packetized."""
    data = (Path(directory) / "metadata").read_bytes()
    if data[:4] != struct.pack("<I", METADATA_MAGIC):
        return data.decode()
    text, at = b"", 0
    while at + 37 <= len(data) and data[at:at + 4] == struct.pack("<I", METADATA_MAGIC):
        content, size = struct.unpack_from("<II", data, at + 24)
        text += data[at + 37:at + content // 8]
        at += size // 8
    return text.decode()


def _body(text, start):
    """The text between the brace at or after START and its match, and the end index."""
    open_at = text.index("{", start)
    depth = 0
    for i in range(open_at, len(text)):
        depth += {"{": 1, "}": -1}.get(text[i], 0)
        if depth == 0:
            return text[open_at + 1:i], i + 1
    raise ValueError("unbalanced braces")


def _integer(attributes):
    size = int(re.search(r"size\s*=\s*(\d+)", attributes).group(1))
    return ("int", size, "signed = 1" in attributes or "signed = true" in attributes)


class Metadata:
    """What the packets need from the metadata: the packet header, packet context,
    event header, contexts and each event class's payload, as lists of fields
    (name, kind, size in bits or element field, length: None, a count or a field)."""

    def __init__(self, directory):
        text = re.sub(r"/\*.*?\*/", "", metadata_text(directory), flags=re.S)
        self.aliases, self.structs = {}, {}
        for m in re.finditer(r"typealias\s+integer\s*", text):
            body, end = _body(text, m.end())
            name = re.match(r"\s*:=\s*([\w ]+?)\s*;", text[end:]).group(1)
            self.aliases[name] = _integer(body)
        for m in re.finditer(r"\bstruct\s+(\w+)\s*\{", text):
            self.structs[m.group(1)] = _body(text, m.end() - 1)[0]
        self.packet_header = self._scope(text, "trace", "packet.header")
        stream = _body(text, re.search(r"\bstream\s*\{", text).start())[0]
        self.packet_context = self._assigned(stream, "packet.context")
        self.stream_context = self._assigned(stream, "event.context")
        header = re.search(r"event\.header\s*:=\s*struct\s*(\w*)", stream).group(1)
        self.header_kind = {"event_header_compact": "compact",
                            "event_header_large": "large"}.get(header, "plain")
        self.event_header = [] if self.header_kind != "plain" else self._assigned(
            stream, "event.header")
        self.events = {}
        for m in re.finditer(r"\bevent\s*\{", text):
            body = _body(text, m.end() - 1)[0]
            ident = int(re.search(r"\bid\s*=\s*(\d+)", body).group(1))
            name = re.search(r'name\s*=\s*"([^"]*)"', body).group(1)
            self.events[ident] = (name, self._assigned(body, "context"),
                                  self._assigned(body, "fields"))

    def _scope(self, text, block, key):
        return self._assigned(_body(text, re.search(r"\b%s\s*\{" % block, text).start())[0],
                              key)

    def _assigned(self, scope, key):
        m = re.search(r"(?<![\w.])%s\s*:=\s*struct\s*(\w*)\s*" % re.escape(key), scope)
        if not m:
            return []
        body = self.structs[m.group(1)] if m.group(1) else _body(scope, m.end())[0]
        return self._fields(body)

    def _fields(self, body):
        fields, at = [], 0
        while True:
            body_rest = body[at:].lstrip()
            if not body_rest:
                return fields
            at = len(body) - len(body_rest)
            if body_rest.startswith(("integer", "string", "enum")):
                if "{" in body_rest.split(";")[0]:
                    inner, at = _body(body, at)
                else:
                    inner, at = "", at + len(body_rest.split()[0])
                kind = ("string", 0, False) if body_rest.startswith("string") else (
                    _integer(inner) if body_rest.startswith("integer") else
                    self.aliases[re.match(r"enum\s*:\s*([\w ]+?)\s*\{", body_rest).group(1)])
            else:
                alias = max((a for a in self.aliases if re.match(re.escape(a) + r"\b",
                                                                  body_rest)), key=len)
                kind, at = self.aliases[alias], at + len(alias)
            m = re.match(r"\s*(\w+)\s*(?:\[\s*(\w+)\s*\])?\s*;", body[at:])
            length = m.group(2)
            fields.append((m.group(1), kind, int(length) if length and length.isdigit()
                           else length))
            at += m.end()


def _read(data, at, fields, values, spots=None):
    """Reads FIELDS at byte AT into VALUES (and their offsets into SPOTS); the end."""
    for name, (kind, size, signed), length in fields:
        if spots is not None:
            spots[name] = at
        count = 1 if length is None else (length if isinstance(length, int)
                                          else values[length])
        if kind == "string":
            end = data.index(b"\0", at, len(data))
            values[name], at = data[at:end], end + 1
            continue
        width = size // 8
        if at + count * width > len(data):
            raise ValueError("field %s runs past the packet" % name)
        items = [int.from_bytes(data[at + i * width:at + (i + 1) * width], "little",
                                signed=signed) for i in range(count)]
        values[name] = items[0] if length is None else items
        at += count * width
    return at


def _event_header(meta, data, at):
    """(class id, offset of the byte holding the id, end of the header)."""
    if meta.header_kind == "compact":
        ident = data[at] & 0x1F
        if ident == 31:
            return struct.unpack_from("<I", data, at + 1)[0], at + 1, at + 13
        return ident, at, at + 4
    if meta.header_kind == "large":
        ident = struct.unpack_from("<H", data, at)[0]
        if ident == 0xFFFF:
            return struct.unpack_from("<I", data, at + 2)[0], at + 2, at + 14
        return ident, at, at + 6
    values, spots = {}, {}
    end = _read(data, at, meta.event_header, values, spots)
    return values["id"], spots["id"], end


def packets(trace, stream_file):
    """The packets of one stream file: for each a dict with its offset, header and
    context values, the offsets of its context fields (`spots`) and its events; each
    event a dict with its offset, class id, name, `id_at` (the byte holding the class
    id: the low 5 bits of a compact header, the low byte of a large one or of the
    extended id) and the offsets of its payload fields (`spots`)."""
    path = Path(trace) / stream_file
    meta, data = Metadata(path.parent), path.read_bytes()
    result, at = [], 0
    while at < len(data):
        packet = {"at": at, "values": {}, "spots": {}, "events": []}
        end = _read(data, at, meta.packet_header, packet["values"], packet["spots"])
        end = _read(data, end, meta.packet_context, packet["values"], packet["spots"])
        content = at + packet["values"]["content_size"] // 8
        while end < content:
            ident, id_at, body = _event_header(meta, data, end)
            name, context, fields = meta.events[ident]
            event = {"at": end, "id": ident, "id_at": id_at, "name": name, "spots": {}}
            body = _read(data, body, meta.stream_context + context, {})
            end = _read(data, body, fields, {}, event["spots"])
            packet["events"].append(event)
        result.append(packet)
        at += packet["values"]["packet_size"] // 8
    return result


def stream_files(trace):
    """The data stream files of TRACE (the files beside a metadata file), relative to
    TRACE, in name order."""
    trace = Path(trace)
    return [p.relative_to(trace) for m in sorted(trace.rglob("metadata"))
            for p in sorted(m.parent.iterdir()) if p.is_file() and p.name != "metadata"]


def damaged_copy(trace, out, stream_file, at, *, flip=None, byte=None, cut=False,
                 zero=0):
    """Copies TRACE to OUT, then changes STREAM_FILE (relative to TRACE) at offset AT:
    xor with FLIP, set to BYTE, cut the file there (CUT), or zero ZERO bytes. OUT is
    replaced if it exists. Returns OUT."""
    out = Path(out)
    if out.exists():
        shutil.rmtree(out)
    shutil.copytree(trace, out)
    path = out / stream_file
    data = bytearray(path.read_bytes())
    if flip is not None:
        data[at] ^= flip
    if byte is not None:
        data[at] = byte
    if zero:
        data[at:at + zero] = bytes(min(zero, len(data) - at))
    if cut:
        del data[at:]
    path.write_bytes(bytes(data))
    return out


def _events(trace):
    """(stream file, events) of the first stream file of TRACE that has events."""
    for name in stream_files(trace):
        events = [e for p in packets(trace, name) for e in p["events"]]
        if events:
            return name, events
    raise ValueError("%s has no events" % trace)


def _field_byte(nth, field, byte, change):
    """A reproducer: byte BYTE (from the field's first, little-endian) of the payload
    field FIELD of event NTH, changed by CHANGE."""
    def spot(trace):
        stream, events = _events(trace)
        return stream, events[nth]["spots"][field] + byte, change
    return spot


def _last_length(change):
    """A reproducer: the low byte of the first sequence length field of the last event
    that has one, changed by CHANGE."""
    def spot(trace):
        stream, events = _events(trace)
        event = next(e for e in reversed(events)
                     if any(f.endswith("_length") for f in e["spots"]))
        return stream, next(at for f, at in event["spots"].items()
                            if f.endswith("_length")), change
    return spot


def _packet_field(field, byte, change):
    """A reproducer: byte BYTE of the first packet's header or context field FIELD."""
    def spot(trace):
        stream, _ = _events(trace)
        return stream, packets(trace, stream)[0]["spots"][field] + byte, change
    return spot


def _class_id(nth, ident):
    """A reproducer: the byte holding the class id of event NTH set to IDENT."""
    def spot(trace):
        stream, events = _events(trace)
        return stream, events[nth]["id_at"], {"byte": ident}
    return spot


def _cut_at_event(nth):
    """A reproducer: the stream file cut where event NTH starts."""
    def spot(trace):
        stream, events = _events(trace)
        return stream, events[nth]["at"], {"cut": True}
    return spot


# name: (trace it is for, what babeltrace2 2.0.4 and the readers do, damaged_copy's
# arguments as a function of the trace). "recorded" is a trace of
# `bgp_speaker --router r1 --seed 1 --events 200`, "good" the writer's trace of that
# name; the payload bytes of both are the same on every run.
REPRODUCERS = {
    # babeltrace2 prints the events before the damaged one and exits 0; ovfmt aborts
    # (134, "API function called while current thread has an error") and prints none.
    "abort-class-id": ("recorded", "event 1 read as lttng_ust_tracelog (id 19): "
                       "babeltrace2 prints 1 event, ovfmt aborts", _class_id(1, 0x13)),
    "abort-class-id-150": ("recorded", "the same at event 150: babeltrace2 prints 150 "
                           "events, ovfmt none", _class_id(150, 0x13)),
    "abort-last-length": ("good", "last event's first sequence runs past the "
                          "content end: babeltrace2 prints N-1 events, ovfmt 0 and aborts",
                          _last_length({"flip": 0xFF})),
    "abort-length-good": ("good", "first sequence length of event 0 made 0x13000a: "
                          "ovfmt aborts", _field_byte(0, "_addr__BPK_length", 2,
                                                      {"byte": 0x13})),
    # ovfmt says "cannot open the trace" with status 2; babeltrace2 exits 1, no events.
    "cannot-open-cut": ("recorded or good", "stream file cut at event 1",
                        _cut_at_event(1)),
    # babeltrace2 itself fails.
    "bt-assert-content-size": ("recorded or good", "content_size > 2^63: assertion, "
                               "all abort (134)", _packet_field("content_size", 7,
                                                                {"flip": 0xFF})),
    "bt-alloc-16g": ("recorded", "GLib fails to allocate 16 GiB: SIGTRAP (133)",
                     _field_byte(0, "__address__I_length", 0, {"byte": 0x13})),
    "bt-segfault": ("recorded", "g_ptr_array_set_size assertion, then SIGSEGV (139)",
                    _field_byte(0, "__address__I_length", 1, {"byte": 0x13})),
    "bt-hang": ("good", "content_size and packet_size zero: all three loop until killed",
                _packet_field("content_size", 0, {"zero": 16})),
    "bt-1.7g": ("good", "a sequence of 0xFF000a bytes: babeltrace2 takes 1.7 GB and 3 s, "
                "exits 0; ovfmt aborts", _field_byte(0, "_addr__BPK_length", 2,
                                                     {"flip": 0xFF})),
}


def reproduce(trace, out, kind):
    """Writes the damaged copy KIND of REPRODUCERS of TRACE to OUT. Returns OUT."""
    stream, at, change = REPRODUCERS[kind][2](Path(trace))
    return damaged_copy(trace, out, stream, at, **change)


def main(argv):
    """Lists the events of a trace, or writes one reproducer."""
    if len(argv) == 4:
        print(reproduce(argv[1], argv[2], argv[3]))
        return 0
    for name in stream_files(argv[1]):
        for p in packets(argv[1], name):
            print("%s packet at %d: %d events, content %d, size %d" % (
                name, p["at"], len(p["events"]), p["values"]["content_size"] // 8,
                p["values"]["packet_size"] // 8))
            for e in p["events"][:5]:
                print("  event at %d id %d (byte at %d) %s" % (e["at"], e["id"], e["id_at"],
                                                              e["name"]))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))

"""Writes small CTF 1.8 traces byte by byte, so that the reader's tests control every
value: typed fields of each kind of fault, control characters, discarded events and
packets, damaged data. The layout follows what LTTng-UST writes: a sequence's length
field `_NAME_length` right before it, cpu_id in the packet context, a stream context."""

import struct
import uuid as uuidlib
from pathlib import Path

MAGIC = 0xC1FC1FC1
CLOCK_OFFSET_S = 1700000000  # 2023-11-14 22:13:20 UTC

# Event classes: name, then fields as (name, kind); kinds are int64, string, seq8 (a
# sequence of bytes after its length field) and arr8:N (N bytes).
EVENT_CLASSES = [
    ("bgp:peer_up", [("seq", "int64"), ("peer", "string"), ("addr__BPK", "seq8")]),
    ("bgp:route", [("seq", "int64"), ("prefix__PGO", "seq8"), ("nexthop__BNH", "seq8"),
                   ("mac__E", "arr8:6"), ("raw", "seq8"), ("blob__NOPE", "seq8")]),
    ("app:message", [("seq", "int64"), ("text", "string")]),
]
CLASS_IDS = {name: i for i, (name, _) in enumerate(EVENT_CLASSES)}

METADATA_HEAD = """/* CTF 1.8 */
typealias integer { size = 8; align = 8; signed = false; } := uint8_t;
typealias integer { size = 32; align = 8; signed = false; } := uint32_t;
typealias integer { size = 32; align = 8; signed = true; } := int32_t;
typealias integer { size = 64; align = 8; signed = false; } := uint64_t;
typealias integer { size = 64; align = 8; signed = true; } := int64_t;
trace {
  major = 1; minor = 8; uuid = "%(uuid)s"; byte_order = le;
  packet.header := struct { uint32_t magic; uint8_t uuid[16]; uint32_t stream_id; };
};
env { hostname = "router1"; domain = "ust"; tracer_name = "lttng-ust"; };
clock { name = "monotonic"; freq = 1000000000; offset_s = %(offset)d; offset = 0; };
typealias integer { size = 64; align = 8; signed = false; map = clock.monotonic.value; } := uint64_clock_t;
stream {
  id = 0;
  packet.context := struct {
    uint64_clock_t timestamp_begin; uint64_clock_t timestamp_end;
    uint64_t content_size; uint64_t packet_size; uint64_t packet_seq_num;
    uint64_t events_discarded; uint32_t cpu_id;
  };
  event.header := struct { uint32_t id; uint64_clock_t timestamp; };
  event.context := struct { int32_t vtid; };
};
"""


def _field_declarations(fields):
    lines = []
    for name, kind in fields:
        if kind == "int64":
            lines.append("int64_t %s;" % name)
        elif kind == "string":
            lines.append("string %s;" % name)
        elif kind == "seq8":
            lines.append("uint32_t _%s_length; uint8_t %s[_%s_length];" % (name, name, name))
        else:
            lines.append("uint8_t %s[%s];" % (name, kind.split(":")[1]))
    return " ".join(lines)


def metadata(trace_uuid):
    text = METADATA_HEAD % {"uuid": trace_uuid, "offset": CLOCK_OFFSET_S}
    for i, (name, fields) in enumerate(EVENT_CLASSES):
        text += 'event { name = "%s"; id = %d; stream_id = 0; fields := struct { %s }; };\n' % (
            name, i, _field_declarations(fields))
    return text


def _encode_field(kind, value):
    if kind == "int64":
        return struct.pack("<q", value)
    if kind == "string":
        return value + b"\0"
    if kind == "seq8":
        return struct.pack("<I", len(value)) + value
    assert len(value) == int(kind.split(":")[1])
    return value


def encode_event(event):
    """event: (timestamp_ns, class name, {field: value}, vtid)."""
    timestamp, name, values, vtid = event
    fields = EVENT_CLASSES[CLASS_IDS[name]][1]
    payload = b"".join(_encode_field(kind, values[field]) for field, kind in fields)
    return struct.pack("<IQi", CLASS_IDS[name], timestamp, vtid) + payload


def encode_packet(trace_uuid, events, seq_num, discarded, cpu=0):
    body = b"".join(encode_event(e) for e in events)
    header = struct.pack("<I16sI", MAGIC, uuidlib.UUID(trace_uuid).bytes, 0)
    context_size = 8 * 6 + 4
    size = len(header) + context_size + len(body)
    context = struct.pack("<QQQQQQI", events[0][0], events[-1][0], size * 8, size * 8,
                          seq_num, discarded, cpu)
    return header + context + body


def write_trace(directory, packets):
    """packets: [(events, packet_seq_num, events_discarded so far)]. Returns the stream
    file's path."""
    directory = Path(directory)
    directory.mkdir(parents=True, exist_ok=True)
    trace_uuid = str(uuidlib.uuid5(uuidlib.NAMESPACE_URL, str(directory)))
    (directory / "metadata").write_text(metadata(trace_uuid))
    stream = directory / "stream_0"
    stream.write_bytes(b"".join(encode_packet(trace_uuid, *p) for p in packets))
    return stream

#!/usr/bin/env python3
"""Decodes examples/records.txt, a few "route learned" trace records, with the orvane
module. It prints what
    ovfmt --template 'route {} from peer {} via {}' --batch examples/records.txt
prints. With the module built by the release preset:
    PYTHONPATH=build/release/lib/python3/dist-packages python3 examples/decode_records.py
With the package installed: python3 /usr/share/doc/orvane/examples/decode_records.py
"""

import sys
from pathlib import Path

import orvane

records = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).with_name("records.txt"))
for line in records.read_text().splitlines():
    if line.strip() and not line.startswith("#"):
        ids, hex_bytes = line.split(maxsplit=1)
        print(orvane.format_record(ids, bytes.fromhex(hex_bytes), "route {} from peer {} via {}"))

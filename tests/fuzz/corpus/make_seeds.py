#!/usr/bin/env python3
"""Writes the seed inputs of the two network fuzz targets into receive/ and messages/ beside this script.

Each seed is a short, valid conversation in the input layout its target reads (see the comment above
LLVMFuzzerTestOneInput in NetReceiveFuzz.cpp and NetMessagesFuzz.cpp); the fuzzer grows the rest from them.
"""
import os
import struct

HERE = os.path.dirname(os.path.abspath(__file__))


def frame(size, msg_type, sender, target, payload):
    """One frame as it travels: the 20-byte header, then exactly `size` payload bytes."""
    payload = payload.ljust(size, b"\0")[:size]
    return struct.pack("<5I", size, msg_type, sender, target, 0) + payload


# The receive target: a flag byte, then steps. A step byte holds the connection in bits 0-1 and the kind in
# bits 2-3: 0 a piece of up to 255 bytes, 1 a piece of 32 times the next byte, 2 a frame put into the queue,
# 3 a read of some frames (bit 4 clear) or a close of the connection (bit 4 set).
def piece(connection, data):
    out = b""
    while data:
        chunk, data = data[:255], data[255:]
        out += bytes([connection, len(chunk)]) + chunk
    return out


def receive_seeds():
    hello = frame(3, 3, 1, 1, b"hi\0")
    table = frame(68, 6, 0, 0, struct.pack("<I", 2) + struct.pack("<IBBxx", 0, 1, 0) + struct.pack("<IBBxx", 1, 1, 0))
    score = frame(20, 11, 2, 0, struct.pack("<IIIfB3x", 2, 2, 1500, 0.25, 0))
    seeds = {}
    seeds["one-frame"] = b"\0" + piece(0, hello)
    # Two peers whose frames arrive split inside the header and inside the payload, then a read.
    a, b = table, score
    seeds["interleaved"] = (b"\0" + piece(0, a[:7]) + piece(1, b[:25]) + piece(0, a[7:30]) + piece(1, b[25:]) +
                            piece(0, a[30:]) + bytes([0x03 | 0x0C | 0xE0]))
    # A header that no game sends: the connection is cut off, then a fresh stream on the same number.
    seeds["cut-off"] = (b"\0" + piece(2, hello + struct.pack("<I", 5000) + b"\0" * 16 + b"x") + piece(2, hello))
    # The host's own frame between the peers' ones, and a close that drops half a frame.
    put = bytes([0x08 | 0x10, 1, 0, 7, 0, 0, 0, 0, 0, ord("0")])
    seeds["put-and-close"] = (b"\1" + piece(3, hello[:10]) + put + bytes([0x03 | 0x0C | 0x10]) + piece(3, hello) +
                              piece(1, hello))
    # The largest payload a frame may carry, in long pieces.
    big = frame(4980, 4, 1, 0, b"a" * 4979)
    seeds["largest"] = b"\0" + bytes([0x04, 100]) + big[:3200] + piece(0, big[3200:]) + piece(0, b"z")
    return seeds


# The messages target: a setup byte (bit 0 a client, bit 1 wired to socket pairs, bits 2-3 the host's client
# count), a client's id, then steps. A frame step is its type byte (0-31), on a wired host the connection it
# came on (0 the host's own, n the n-th client), a sender id, a target id, a size code (below 0xC0 the type's
# own size; for a text 1 + code % 80 bytes) and the payload. 0x80 runs the message loop, 0xA0 a tick of 8
# times the next byte in milliseconds, 0xC0 + n a player's action n.
def msg(msg_type, sender, target, payload, size_code=0, source=None):
    via = bytes([source]) if source is not None else b""
    return bytes([msg_type]) + via + bytes([sender, target, size_code]) + payload


def text(line):
    data = line.encode() + b"\0"
    return len(data) - 1, data


def messages_seeds():
    seeds = {}
    n, chat = text("2: hello")
    seeds["host-join-chat"] = (bytes([0x02 | (2 << 2)]) + msg(1, 0, 0, struct.pack("<I", 1), source=0) +
                               msg(1, 0, 0, struct.pack("<I", 2), source=0) + msg(3, 2, 1, chat, n, source=2) +
                               bytes([0x80]))
    table = struct.pack("<I", 3) + b"".join(struct.pack("<IBBxx", i, 1, 0) for i in range(3)) + b"\0" * 40
    seeds["client-start"] = (bytes([0x01, 2]) + msg(0, 0, 0, struct.pack("<I", 2)) + msg(6, 0, 0, table) +
                             msg(7, 0, 1, b"0") + bytes([0x80, 0xA0, 200]))
    rows = struct.pack("<I", 2) + b"".join(struct.pack("<IIIfB3x", i + 1, i, 100 * i, 0.5, 0) for i in range(2))
    n, chat = text("1: go")
    seeds["client-powerups"] = (bytes([0x03, 1]) + msg(10, 0, 0, rows + b"\0" * 120) + msg(18, 0, 1, b"D\0") +
                                msg(17, 0, 1, b"0") + msg(4, 0, 0, chat, n) + bytes([0xA0, 150, 0xC4, 0]))
    row = struct.pack("<IIIfB3x", 2, 1, 900, 0.75, 0)
    seeds["host-match"] = (bytes([0x02 | (3 << 2)]) + msg(1, 0, 0, struct.pack("<I", 1), source=0) +
                           msg(1, 0, 0, struct.pack("<I", 2), source=0) + msg(11, 1, 0, row, source=1) +
                           msg(5, 1, 1, b"0", source=1) + msg(12, 2, 0, b"0", source=2) +
                           msg(2, 0, 0, struct.pack("<I", 2), source=0) + msg(13, 1, 0, b"0", source=1) +
                           msg(5, 2, 1, b"0", source=2) + msg(3, 1, 1, b"2: not me\0", 9, source=2) +
                           bytes([0x80, 0xC0, 0xC1, 0xC3, 3]) + b"abc")
    return seeds


def write(folder, seeds):
    path = os.path.join(HERE, folder)
    os.makedirs(path, exist_ok=True)
    for name, data in seeds.items():
        with open(os.path.join(path, name), "wb") as f:
            f.write(data)


if __name__ == "__main__":
    write("receive", receive_seeds())
    write("messages", messages_seeds())

#!/usr/bin/env python3
"""Reads the bots' reports for the soak: each bot's latest whole line of JSON on its standard output.

  reports.py agree HOST_OUT [CLIENT_OUT...]   exit 0 when no bot is in a match and every client lists the
                                               host's players and rows; else says what differs, exit 1
  reports.py figures HOST_OUT                  prints the host's matches, frames and slowest second
"""
import json
import os
import sys


def latest_report(path):
    """The last line the bot finished writing; a line still being written has no line break yet."""
    with open(path, encoding="ascii", errors="replace") as stream:
        whole_lines = stream.read().split("\n")[:-1]
    for line in reversed(whole_lines):
        if line.startswith("{"):
            return json.loads(line)
    return None


def player_ids(report):
    return [player["id"] for player in report["players"]]


def row_keys(report):
    """A client writes its own row for itself with number 0 in every frame, and the host's next table gives
    the number back (see CNetwork::ScoreStep): a 0 there stands for the row's own place."""
    keys = []
    for place, row in enumerate(report["rows"], start=1):
        number = row["number"]
        if number == 0 and row["id"] == report["my_id"] and report["my_id"] != 0:
            number = place
        keys.append((number, row["id"], row["score"], row["finished"]))
    return keys


def disagreement(host, client):
    if client["in_match"]:
        return "still in a match"
    if player_ids(client) != player_ids(host):
        return "players %s, host %s" % (player_ids(client), player_ids(host))
    if row_keys(client) != row_keys(host):
        return "rows %s, host %s" % (row_keys(client), row_keys(host))
    return None


def agree(host_path, client_paths):
    host = latest_report(host_path)
    if host is None:
        print("%s: no report" % os.path.basename(host_path))
        return 1
    if host["in_match"]:
        print("%s: still in a match" % os.path.basename(host_path))
        return 1
    for path in client_paths:
        client = latest_report(path)
        reason = "no report" if client is None else disagreement(host, client)
        if reason:
            print("%s: %s" % (os.path.basename(path), reason))
            return 1
    return 0


def figures(host_path):
    host = latest_report(host_path)
    print(len(host["matches"]), host["frames"], host["slowest_second"])
    return 0


def main(args):
    if len(args) >= 2 and args[0] == "agree":
        return agree(args[1], args[2:])
    if len(args) == 2 and args[0] == "figures":
        return figures(args[1])
    print(__doc__, file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

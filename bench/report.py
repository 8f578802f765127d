#!/usr/bin/env python3
"""Prints the two tables of scripts/bench from the files its run left in RESULTS.

Each figure is a ratio of Quorin's time to its reference tool's, both measured in the same run.
The machine is shared, so the ratio that is held against the target is that of CPU time (user +
system: the work a run took); the ratio of wall-clock medians stands beside it.
Usage: report.py RESULTS INDEX_FILE
"""
import json
import math
import os
import re
import sys

results, index_file = sys.argv[1], sys.argv[2]
WORDS = [("zebra", "5 letters, no match"), ("wombat", "6 letters, rare"),
         ("re", "2 letters"), ("e", "1 letter")]


class Time:
    def __init__(self, cpu, wall):
        self.cpu, self.wall = cpu, wall

    def __str__(self):
        return f"{self.cpu * 1000:.1f} ms ({self.wall * 1000:.0f})"


def path(name):
    return os.path.join(results, name)


def load_json(name):
    with open(path(name), encoding="utf-8") as f:
        return json.load(f)


def hyperfine(name):
    result = load_json(name + ".json")["results"][0]
    return Time(result["user"] + result["system"], result["median"])


def in_process(name):
    result = load_json(name + ".json")
    return Time(result["cpu_seconds"], result["wall_seconds"])


def text(name):
    with open(path(name), encoding="utf-8") as f:
        return f.read().strip()


def row(cells, widths):
    return "| " + " | ".join(c.ljust(w) for c, w in zip(cells, widths)) + " |"


def table(title, header, rows):
    widths = [max(len(r[i]) for r in [header] + rows) for i in range(len(header))]
    print(title)
    print(row(header, widths))
    print("|" + "|".join("-" * (w + 2) for w in widths) + "|")
    for r in rows:
        print(row(r, widths))
    print()


def verdict(value, target):
    return "yes" if value <= target else "NO"


def syscalls_per_folder(folders):
    for line in text("strace.txt").splitlines():
        fields = line.split()
        if fields and fields[-1] == "total":
            return int(fields[3]) / folders
    raise ValueError("no total line in strace.txt")


def memory_row(name, native_name=None):
    memory = load_json(name + ".json")
    file_bytes = os.path.getsize(index_file)
    added = memory["added_bytes"]
    cells = [f'Memory added by the load ({added / memory["records"]:.1f} bytes a record)',
             f"{added / 1e6:.1f} MB", "index.txt size", f"{file_bytes / 1e6:.1f} MB",
             f"{added / file_bytes:.2f}"]
    if native_name is None:
        return cells + ["", "<= 2.0", verdict(added / file_bytes, 2.0)]
    native = load_json(native_name + ".json")["added_bytes"]
    return cells + ["", f"{native / file_bytes:.2f}"]


NATIVE_HEADER = ["Figure", "Quorin", "Reference", "Reference time", "Ratio", "Wall ratio",
                 "Target", "Met"]


def ratio_row(rows, figure, ours, tool, theirs, target):
    ratio = ours.cpu / theirs.cpu
    rows.append([figure, str(ours), tool, str(theirs), f"{ratio:.2f}",
                 f"{ours.wall / theirs.wall:.2f}", f"<= {target}", verdict(ratio, target)])
    return ratio


def info_row(rows, figure, ours, tool, theirs):
    rows.append([figure, str(ours), tool, str(theirs), f"{ours.cpu / theirs.cpu:.2f}",
                 f"{ours.wall / theirs.wall:.2f}", "(information)", ""])


def lookup_rows(rows, prefix, mean_target):
    """The lookups of the files PREFIX + lookup-WORD etc., plocate's only for the first table."""
    grep_ratios = []
    for word, kind in WORDS:
        ours = in_process(f"{prefix}lookup-{word}")
        matches = load_json(f"{prefix}lookup-{word}.json")["matches"]
        figure = f'Lookup "{word}" ({kind}, {matches} matches)'
        grep_ratios.append(ratio_row(rows, figure, ours, "grep -F -i -c",
                                     hyperfine(f"{prefix}grep-{word}"), 1.0))
        if len(word) <= 2 and not prefix:
            ratio_row(rows, figure, ours, "plocate -i -c", hyperfine(f"plocate-{word}"), 0.25)
    mean = math.exp(sum(math.log(r) for r in grep_ratios) / len(grep_ratios))
    rows.append(["Lookup, geometric mean", "", "grep -F -i -c", "", f"{mean:.2f}", "",
                 f"<= {mean_target}", verdict(mean, mean_target)])
    same = sum(text(f"{prefix}equal-{w}.txt") == "same" for w, _ in WORDS)
    rows.append(["Lookup results equal grep's, line for line", f"{same} of {len(WORDS)} words",
                 "", "", "", "", "all", "yes" if same == len(WORDS) else "NO"])


def built_counts(name):
    built = re.search(r"(\d+) folders and (\d+) files", text(name))
    return int(built.group(1)), int(built.group(2))


def native_table():
    folders, files = built_counts("build.txt")
    build = hyperfine("build")
    rows = []
    files_found = int(text("find-count.txt"))
    walk = hyperfine("walk")
    ratio_row(rows, f"Build: the walk ({folders} folders, {files} of {files_found} files)", walk,
              "find ROOT -type f", hyperfine("find"), 0.75)
    ratio_row(rows, "Build: the walk", walk, "fdfind -HI -t f -j1 . ROOT", hyperfine("fdfind"),
              1.2)
    ratio_row(rows, "Build and save (quorin-cli build)", build, "updatedb -U ROOT -l no",
              hyperfine("updatedb"), 0.4)
    info_row(rows, "Build and save (quorin-cli build)", build, "find ROOT -type f",
             hyperfine("find"))
    per_folder = syscalls_per_folder(folders)
    rows.append(["Build: syscalls per folder", f"{per_folder:.2f}", "strace -c -f", "", "", "",
                 "<= 5", verdict(per_folder, 5)])
    ratio_row(rows, "Load 1,000,000 records", hyperfine("load"), "wc -l index.txt",
              hyperfine("wc"), 10)
    lookup_rows(rows, "", 0.6)
    rows.append(memory_row("memory"))
    table("Native, Release, warm cache. Times: CPU (user + system; wall-clock median in brackets)",
          NATIVE_HEADER, rows)


def big_table():
    folders, files = built_counts("big-build.txt")
    rows = []
    files_found = int(text("big-find-count.txt"))
    ratio_row(rows, f"Build: the walk ({folders} folders, {files} of {files_found} files)",
              hyperfine("big-walk"), "find ROOT -type f", hyperfine("big-find"), 0.7)
    # What no walk can save: each folder opened, read and closed, and nothing indexed.
    info_row(rows, "Build: the folders read, nothing indexed", hyperfine("big-read"),
             "find ROOT -type f", hyperfine("big-find"))
    ratio_row(rows, "Build and save (quorin-cli build)", hyperfine("big-build"),
              "updatedb -U ROOT -l no", hyperfine("big-updatedb"), 0.25)
    memory = load_json("big-memory.json")
    records = memory["records"]
    ratio_row(rows, f"Load {records} records", hyperfine("big-load"), "wc -l index.txt",
              hyperfine("big-wc"), 6)
    per_record = memory["added_bytes"] / records
    rows.append(["Memory added by the load, a record", f"{per_record:.1f} bytes", "", "", "",
                 "", "<= 50", verdict(per_record, 50)])
    lookup_rows(rows, "big-", 0.1)
    table("A Windows-shaped drive, all folders indexed (native, Release, warm cache; as above)",
          NATIVE_HEADER, rows)


def wine_table():
    rows = []

    def ratio_row(figure, ours, tool, theirs, native):
        rows.append([figure, str(ours), tool, str(theirs), f"{ours.cpu / theirs.cpu:.2f}",
                     f"{ours.wall / theirs.wall:.2f}", f"{native.cpu / theirs.cpu:.2f}"])

    build = in_process("wine-build")
    native_build = hyperfine("build")
    for tool, name in [("find ROOT -type f", "find"), ("fdfind -HI -t f -j1 . ROOT", "fdfind"),
                       ("updatedb -U ROOT -l no", "updatedb")]:
        ratio_row("Build and save (in process)", build, tool, hyperfine(name), native_build)
    rows.append(["quorin-cli.exe build, whole process", str(hyperfine("wine-cli")), "", "", "",
                 "", ""])
    ratio_row("Load 1,000,000 records (in process)", in_process("wine-load"), "wc -l index.txt",
              hyperfine("wc"), hyperfine("load"))
    for word, kind in WORDS:
        ours = in_process(f"wine-lookup-{word}")
        native = in_process(f"lookup-{word}")
        ratio_row(f'Lookup "{word}" ({kind})', ours, "grep -F -i -c", hyperfine(f"grep-{word}"),
                  native)
        if len(word) <= 2:
            ratio_row(f'Lookup "{word}" ({kind})', ours, "plocate -i -c",
                      hyperfine(f"plocate-{word}"), native)
    rows.append(memory_row("wine-memory", "memory"))
    table("Windows build under Wine (information, no targets; references run natively)",
          ["Figure", "Quorin", "Reference", "Reference time", "Ratio", "Wall ratio",
           "Native ratio"], rows)


native_table()
big_table()
if os.path.exists(path("wine-build.json")):
    wine_table()

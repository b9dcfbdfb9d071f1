# SPDX-License-Identifier: GPL-3.0-or-later
"""fleet.py COMPANION PCS: text files of so many PCs of 4 disks behind four exporters, and a Prometheus that reads them.

The text of each PC is what the companion writes of a described PC, with serial numbers of its own. Prints how long a scrape
takes, what the engine needs of memory and processor, and, from a day of made-up values of a few PCs, the bytes that a sample
takes on the disk.
"""
import json
import os
import random
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import engine

REPORTS = Path(__file__).resolve().parent.parent / "demo" / "reports"
DISKS, VOLUMES, EXPORTERS = 4, 4, 4
EVERY, SCRAPES = 15, 10  # s; a fleet is asked each minute
DAY_PCS, MINUTES = 4, 24 * 60


def text_of_one(companion, folder):
    """What the companion writes of a PC with an NVMe drive and three ATA drives."""
    (folder / "pc.json").write_text(json.dumps({
        "disks": [{"number": n, "model": "M", "sectors": 2048, "report": f"disk{n}.txt"} for n in range(DISKS)],
        "volumes": [{"letter": "CDEF"[n], "fileSystem": "NTFS", "size": 10**12, "free": 10**11} for n in range(VOLUMES)]}),
        encoding="utf-8")
    for n in range(DISKS):
        (folder / f"disk{n}.txt").write_bytes((REPORTS / f"disk{n}.txt").read_bytes())
    told = subprocess.run([companion, "--once", "--metrics"], stdout=subprocess.PIPE, check=False,
                          env={**os.environ, "HALVANE_PC": str(folder)})
    assert told.returncode == 2, told  # one of the disks is failing
    return told.stdout.decode()


def of_pc(text, number):
    """The same of another PC: labels of its own, since one exporter has the files of many PCs here."""
    text = re.sub(r'serial="([^"]*)"', rf'serial="\g<1>-{number}"', text)
    return re.sub(r"(?m)^(halvane_\w+)(?:\{| )", lambda name: name[0][:-1] + f'{{pc="{number}"' +
                  ("," if name[0].endswith("{") else "} "), text)


def one_round(folders, text, pcs):
    """Writes the files of all PCs, each a bit warmer or cooler."""
    now = time.time()
    for number in range(pcs):
        mine = re.sub(r"(?m)^(halvane_disk_temperature_celsius\{.*\}) (\d+)$",
                      lambda line: f"{line[1]} {int(line[2]) + random.randint(-3, 3)}", text)
        mine = re.sub(r"(?m)^(halvane_(?:last_round|disk_last_report)_timestamp_seconds(?:\{.*\})?) \S+$", rf"\1 {now:.3f}", mine)
        file = folders[number % EXPORTERS] / f"pc-{number}.prom"
        file.with_suffix(".new").write_text(of_pc(mine, number), encoding="utf-8")
        file.with_suffix(".new").rename(file)


def scrape(folder, text, pcs):
    folders = [folder / f"files-{n}" for n in range(EXPORTERS)]
    for each in folders:
        each.mkdir()
    one_round(folders, text, pcs)
    with engine.Programs(folder) as programs:
        targets = [f"127.0.0.1:{programs.exporter(each)}" for each in folders]
        process, port = programs.prometheus({
            "global": {"scrape_interval": f"{EVERY}s", "scrape_timeout": f"{EVERY}s"},
            "scrape_configs": [{"job_name": "disks", "static_configs": [{"targets": targets}]}]})
        for _ in range(SCRAPES):
            time.sleep(EVERY)
            one_round(folders, text, pcs)
        status = Path(f"/proc/{process.pid}/status").read_text(encoding="ascii")
        ticks = sum(map(int, Path(f"/proc/{process.pid}/stat").read_text(encoding="ascii").rsplit(")", 1)[1].split()[11:13]))
        series = engine.query(port, 'count({job="disks"})')[0][1]
        taken = engine.query(port, "sum(sum_over_time(scrape_samples_scraped[1h]))")[0][1]
        slowest = engine.query(port, "max(max_over_time(scrape_duration_seconds[1h]))")[0][1]
        mean = engine.query(port, "avg(avg_over_time(scrape_duration_seconds[1h]))")[0][1]
        assert not engine.query(port, "up == 0")
    memory = int(re.search(r"VmHWM:\s+(\d+)", status)[1]) / 1024
    print(f"{pcs} PCs of {DISKS} disks behind {EXPORTERS} exporters: {series:.0f} series, {series / pcs / DISKS:.1f} a disk")
    print(f"a scrape of {pcs // EXPORTERS} PCs: {mean:.2f} s, at most {slowest:.2f} s")
    print(f"memory: {memory:.0f} MiB at most, {memory * 1024 / series:.1f} KiB a series")
    print(f"processor: {ticks / os.sysconf('SC_CLK_TCK') / taken * 1e6:.1f} s for a million samples")


def day_on_disk(folder, text):
    """Bytes of a sample in a block, index included: a day of a few PCs, in the format that the engine's tool takes."""
    begin = int(time.time()) // 86400 * 86400 - 2 * 86400
    lines, families = [], re.split(r"(?m)^(?=# HELP)", text)[1:]
    for family in families:
        name, kind = re.search(r"# TYPE (\S+) (\S+)", family).groups()
        lines.append(f"# TYPE {name.removesuffix('_total') if kind == 'counter' else name} {kind}")
        for pc in range(DAY_PCS):
            for line in of_pc(family, pc).splitlines():
                if line.startswith("#"):
                    continue
                labels, value = line.rsplit(" ", 1)
                number = float(value)
                for minute in range(MINUTES):
                    if "temperature_celsius" in name:
                        number += random.choice((-1, 0, 0, 0, 0, 0, 1))
                    elif "timestamp" in name and "scan" not in name:
                        number = begin + 60 * minute + random.randint(0, 999) / 1000
                    elif "written" in name or "free_bytes" in name:
                        number += 512000 * random.randint(0, 40) * (1 if "written" in name else -1)
                    elif "tool_run" in name:
                        number += 4 if "_runs_" in name else random.randint(200, 900) / 1000
                    elif name.endswith("power_on_seconds_total") and minute % 60 == 59:
                        number += 3600
                    lines.append(f"{labels} {number:.15g} {begin + 60 * minute}")
    (folder / "day.txt").write_text("\n".join(lines) + "\n# EOF\n", encoding="utf-8")
    subprocess.run(["promtool", "tsdb", "create-blocks-from", "openmetrics", str(folder / "day.txt"), str(folder / "blocks")],
                   stdout=subprocess.DEVNULL, check=True)
    blocks = list((folder / "blocks").glob("*/meta.json"))
    samples = sum(json.loads(meta.read_text(encoding="utf-8"))["stats"]["numSamples"] for meta in blocks)
    size = sum(file.stat().st_size for file in (folder / "blocks").rglob("*") if file.is_file())
    assert samples == len([line for line in lines if line[0] != "#"]), samples
    print(f"on the disk: {size / samples:.2f} bytes a sample, index included ({samples} samples of a day)")


def main():
    with tempfile.TemporaryDirectory(prefix="halvane-") as name:
        folder = Path(name)
        (folder / "pc").mkdir()
        text = text_of_one(sys.argv[1], folder / "pc")
        scrape(folder, text, int(sys.argv[2]))
        day_on_disk(folder, text)


if __name__ == "__main__":
    main()

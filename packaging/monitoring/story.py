# SPDX-License-Identifier: GPL-3.0-or-later
"""story.py COMPANION: two companions on described PCs, whose disks change, and the real engine that watches them.

The rules are those of halvane.rules.yml, with each minute taken for a second, so that the story lasts two minutes. Asks for
what fired, what was told, and what else: nothing. Then each query of the dashboard has to have an answer.
"""
import http.server
import json
import os
import re
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

import engine

HERE = Path(__file__).resolve().parent
REPORTS = HERE.parent.parent / "demo" / "reports"
NVME, ATA = "NK2041X773", "TW19C4403187"
SECONDS = {"m": 1, "h": 60, "d": 1440}  # of the story

# What has to fire, and whether the story lets it end.
EXPECTED = {("a", "HalvaneDiskHot"): True, ("a", "HalvaneDiskErrorsRise"): False, ("a", "HalvaneDiskFailing"): False,
            ("b", "HalvaneDiskVanished"): True, ("b", "HalvaneNoData"): True}


def changed(report, **rows):
    """A report with other raw values in the named rows."""
    for name, raw in rows.items():
        report, count = re.subn(rf"(?m)^( *\d+ {name} +(?:\S+ +){{7}})\d+", rf"\g<1>{raw}", report)
        assert count == 1, name
    return report


class Pc:
    """A described PC with a sound NVMe drive and an ATA drive, and its companion."""

    def __init__(self, folder, changes):
        self.folder, self.state = folder / "pc", folder / "state"
        self.folder.mkdir(parents=True)
        well = (REPORTS / "disk1.txt").read_text(encoding="utf-8")
        well = changed(well, Temperature_Celsius=34)
        hot = changed(well, Temperature_Celsius=61, Reallocated_Sector_Ct=99)
        risen = changed(well, Reallocated_Sector_Ct=99)
        failing = risen.replace("test result: PASSED", "test result: FAILED!")
        assert failing != risen
        for name, text in {"well": well, "hot": hot, "failing": failing}.items():
            (self.folder / f"{name}.txt").write_text(text, encoding="utf-8")
        (self.folder / "nvme.txt").write_bytes((REPORTS / "disk0.txt").read_bytes())
        (self.folder / "pc.json").write_text(json.dumps({
            "disks": [{"number": 0, "model": "N", "interface": "SCSI", "sectors": 2048, "report": "nvme.txt"},
                      {"number": 1, "model": "T", "interface": "IDE", "sectors": 2048, "report": "well.txt"}],
            "volumes": [{"letter": "C", "label": "System", "fileSystem": "NTFS", "size": 1000, "free": 400,
                         "extents": [{"disk": 0}]}],
            "reportChanges": [{"afterSeconds": after, "disk": 1, "report": f"{report}.txt"} for after, report in changes],
            "settings": {"MetricsPath": "C:\\halvane.prom", "SaveLog": 0}}), encoding="utf-8")
        self.state.mkdir(mode=0o700)
        (self.state / "scans.json").write_text(json.dumps({ATA: [1.7e12, 3]}), encoding="utf-8")
        self.file = self.state / "drives" / "C" / "halvane.prom"
        self.process = None

    def start(self, programs, companion):
        self.process = programs.start(companion, "Schedular", env={
            **os.environ, "HALVANE_PC": str(self.folder), "HALVANE_PC_STATE": str(self.state), "QT_QPA_PLATFORM": "offscreen"})

    def touch(self, name="arrive"):
        """Plugs something. A notice alone makes the companion go over its disks at once."""
        folder = self.state / "volumes-changed"
        if folder.is_dir():
            (folder / name).touch()


class Mailbox(http.server.BaseHTTPRequestHandler):
    """Takes what Alertmanager tells."""

    told = set()
    lock = threading.Lock()

    @classmethod
    def letters(cls):
        with cls.lock:
            return set(cls.told)

    def do_POST(self):
        for alert in json.loads(self.rfile.read(int(self.headers["Content-Length"])))["alerts"]:
            key = (alert["labels"].get("instance"), alert["labels"]["alertname"], alert["status"])
            with self.lock:
                if key not in self.told:
                    print(f"{time.monotonic() - BEGIN:5.0f} s  {key[0]}: {key[1]} {key[2]}", flush=True)
                self.told.add(key)
        self.send_response(200)
        self.end_headers()

    def log_message(self, *_):
        pass


def quicker(rules):
    """The rules with each minute as a second."""
    rules = re.sub(r"\b(\d+)([mhd])\b", lambda time: f"{int(time[1]) * SECONDS[time[2]]}s", rules)
    return re.sub(r"([<>]) 900\b", r"\1 15", rules)


def start_engine(programs, folder, pcs):
    """Mailbox, Alertmanager, exporters and Prometheus; gives its port."""
    mailbox = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Mailbox)
    threading.Thread(target=mailbox.serve_forever, daemon=True).start()
    told = folder / "alertmanager.yml"
    told.write_text(json.dumps({
        "route": {"receiver": "mailbox", "group_by": ["..."], "group_wait": "1s", "group_interval": "1s"},
        "receivers": [{"name": "mailbox", "webhook_configs": [{"url": f"http://127.0.0.1:{mailbox.server_port}/"}]}]}),
        encoding="utf-8")
    manager = engine.free_port()
    programs.start("prometheus-alertmanager", f"--config.file={told}", f"--storage.path={folder}/told",
                   f"--web.listen-address=127.0.0.1:{manager}", "--cluster.listen-address=")
    rules = folder / "halvane.rules.yml"
    rules.write_text(quicker((HERE / "halvane.rules.yml").read_text(encoding="utf-8")), encoding="utf-8")
    targets = [{"targets": [f"127.0.0.1:{programs.exporter(pc.file.parent)}"], "labels": {"instance": name}}
               for name, pc in pcs.items()]
    return programs.prometheus({
        "global": {"scrape_interval": "1s", "evaluation_interval": "1s"}, "rule_files": [str(rules)],
        "alerting": {"alertmanagers": [{"static_configs": [{"targets": [f"127.0.0.1:{manager}"]}]}]},
        "scrape_configs": [{"job_name": "disks", "static_configs": targets}]})[1]


def check_dashboard(port):
    """Each query of the dashboard has to have an answer, for one of the disks at least."""
    dashboard = json.loads((HERE / "grafana-dashboard.json").read_text(encoding="utf-8"))
    queries = [target["expr"] for panel in dashboard["panels"] for target in panel.get("targets", [])]
    assert len(queries) > 30, queries
    silent = []
    for each in queries:
        expression = each.replace("$job", ".*").replace("$instance", "a").replace("$__rate_interval", "1m")
        if not any(engine.query(port, expression.replace("$serial", serial)) for serial in (NVME, ATA)):
            silent.append(each)
    print(f"{len(queries)} queries of the dashboard, {len(silent)} without an answer")
    assert not silent, silent


def tell_story(programs, companion, pcs, port):
    def told(pc, alert, status, seconds=90):
        engine.wait_until(lambda: (pc, alert, status) in Mailbox.letters(), seconds, f"{pc}: {alert} {status}")

    a, b = pcs["a"], pcs["b"]
    assert len(engine.query(port, "halvane_disk_up == 1")) == 4
    subprocess.run(["promtool", "check", "metrics"], input=a.file.read_bytes(), check=True)
    b.touch("remove-disk1")
    told("b", "HalvaneDiskVanished", "firing")
    assert len(engine.query(port, "halvane_disk_up")) == 3
    told("a", "HalvaneDiskHot", "firing")
    told("a", "HalvaneDiskErrorsRise", "firing")
    b.touch("arrive-disk1")
    told("b", "HalvaneDiskVanished", "resolved")
    told("a", "HalvaneDiskFailing", "firing")
    told("a", "HalvaneDiskHot", "resolved")
    check_dashboard(port)
    b.process.kill()
    told("b", "HalvaneNoData", "firing")
    b.start(programs, companion)
    told("b", "HalvaneNoData", "resolved")


def main():
    companion = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory(prefix="halvane-") as name:
        folder = Path(name)
        pcs = {"a": Pc(folder / "a", [(25, "hot"), (70, "failing")]), "b": Pc(folder / "b", [])}
        with engine.Programs(folder) as programs:
            for pc in pcs.values():
                pc.start(programs, companion)
            for pc in pcs.values():
                engine.wait_until(pc.file.exists, 30, "the metrics of a companion")

            ended = threading.Event()

            def plug():
                while not ended.wait(4):
                    for pc in pcs.values():
                        pc.touch()

            plugging = threading.Thread(target=plug)
            plugging.start()
            try:
                port = start_engine(programs, folder, pcs)
                engine.wait_until(lambda: len(engine.query(port, "halvane_disk_up")) == 4, 20, "the disks of both PCs")
                tell_story(programs, companion, pcs, port)
            finally:  # before its folders go
                ended.set()
                plugging.join()
            fired = {(labels.get("instance"), labels["alertname"]) for labels, _ in
                     engine.query(port, 'max_over_time(ALERTS{alertstate="firing"}[10m])')}
            resolved = {(pc, alert) for pc, alert, status in Mailbox.letters() if status == "resolved"}
    assert fired == set(EXPECTED), f"fired: {fired}"
    assert resolved == {key for key, ends in EXPECTED.items() if ends}, f"resolved: {resolved}"
    print("What had to fire fired and was resolved, and nothing besides.")


BEGIN = time.monotonic()
if __name__ == "__main__":
    main()

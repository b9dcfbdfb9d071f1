# SPDX-License-Identifier: GPL-3.0-or-later
"""Starts the programs of Prometheus on ports of this machine, and asks them."""
import json
import socket
import subprocess
import time
import urllib.parse
import urllib.request


def free_port():
    with socket.socket() as server:
        server.bind(("127.0.0.1", 0))
        return server.getsockname()[1]


def wait_until(ask, seconds, what):
    """Waits until `ask` gives something, and returns it."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            answer = ask()
        except OSError:
            answer = None
        if answer:
            return answer
        time.sleep(0.25)
    raise SystemExit(f"not within {seconds} s: {what}")


class Programs:
    """The programs that were started. They end with the `with` block."""

    def __init__(self, folder):
        self.folder = folder
        self.running = []

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for program in reversed(self.running):
            program.terminate()
        for program in self.running:
            try:
                program.wait(10)
            except subprocess.TimeoutExpired:
                program.kill()

    def start(self, *command, env=None):
        with (self.folder / f"{len(self.running)}.log").open("wb") as log:
            program = subprocess.Popen(list(map(str, command)), stdout=log, stderr=log, env=env, cwd=self.folder)
        self.running.append(program)
        return program

    def exporter(self, textfiles):
        """A node_exporter that shows the files of a folder; gives its port."""
        port = free_port()
        self.start("prometheus-node-exporter", f"--web.listen-address=127.0.0.1:{port}", "--collector.disable-defaults",
                   "--collector.textfile", f"--collector.textfile.directory={textfiles}")
        wait_until(lambda: get(port, "/metrics"), 20, "the exporter")
        return port

    def prometheus(self, config):
        """The engine with that configuration; gives process and port."""
        port = free_port()
        file = self.folder / "prometheus.yml"
        file.write_text(json.dumps(config), encoding="utf-8")  # JSON is YAML
        process = self.start("prometheus", f"--config.file={file}", f"--storage.tsdb.path={self.folder}/data",
                             f"--web.listen-address=127.0.0.1:{port}")
        wait_until(lambda: get(port, "/-/ready"), 30, "Prometheus")
        return process, port


def get(port, path):
    with urllib.request.urlopen(f"http://127.0.0.1:{port}{path}", timeout=20) as answer:
        return answer.read()


def query(port, expression):
    """The samples of an expression, as pairs of labels and number."""
    answer = json.loads(get(port, "/api/v1/query?" + urllib.parse.urlencode({"query": expression})))
    assert answer["status"] == "success", answer
    return [(sample["metric"], float(sample["value"][1])) for sample in answer["data"]["result"]]

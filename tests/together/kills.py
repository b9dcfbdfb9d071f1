#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program and its companion together on one described PC, killed at random moments.

Usage: kills.py FOLDER [ROUNDS [SEED]]     FOLDER has both executables.

A round is a run of the companion; the program lives longer, as it reads the first disk after some seconds. A count of the
first disk rises all the time, the second is always hot, the third grows warm in each run, to another temperature. After
each round settings, history, log and memory have to be whole, and the log must tell each rise once: what one line tells
is what the next one has as "before". A last quiet run has to catch up. Ends with 1 at the first thing that is wrong."""
import json, os, random, re, shutil, signal, subprocess, sys, tempfile, threading, time
from datetime import date, timedelta

FOLDER = sys.argv[1]
ROUNDS = int(sys.argv[2]) if len(sys.argv) > 2 else 50
SEED = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(10**6)
LIMIT = 10 * 1024
PROGRAM_LIVES = 5  # seconds at most
COMPANION_LIVES = 1.6
WARM = 15  # temperatures of the third disk, one after the other
MOST_WAITING = 150  # events not yet shown: beyond 200 the companion forgets the oldest
KEPT = 1  # seconds in which what was shown is kept at the latest, on a busy machine, too
STORE = "/registry/HKEY_LOCAL_MACHINE/Software/Wow6432Node/Velmora Data Rescue/Velmora Halvane for Windows.json"
SETTINGS = {"LogSavePath": "L:\\log.txt", "MaxLogSize": LIMIT // 1024, "ShowTrayIcon": 1, "ShowWarning": 1,
            "WarningValue": 45, "ShutDownValue": 70, "Limits/SER0": "60 70", "EN/rxUpdateLink": "none"}
LINE = re.compile(r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d [+-]\d\d:\d\d  (INFO|WARNING|CRITICAL)  Disk (\d)  "
                  r"Tarnwell TX2  SER\2  (.+)")
os.environ.pop("TZ", None)  # root's program does not take it
time.tzset()
DATES = [(date.today() - timedelta(days=9 - i)).strftime("%d-%m-%Y") for i in range(10)]


class Wrong(Exception):
    pass


def must(holds, *what):
    if not holds:
        raise Wrong(" ".join(str(each) for each in what))


def put(path, text):
    with open(path + ".new", "w") as file:
        file.write(text)
    os.replace(path + ".new", path)


def report(disk, celsius, pending=0):
    return f"""=== START OF INFORMATION SECTION ===
Device Model:     Tarnwell TX2
Serial Number:    SER{disk}
Firmware Version: 1.0
Rotation Rate:    7200 rpm
=== START OF READ SMART DATA SECTION ===
SMART overall-health self-assessment test result: PASSED

ID# ATTRIBUTE_NAME          FLAG     VALUE WORST THRESH TYPE      UPDATED  WHEN_FAILED RAW_VALUE
  5 Reallocated_Sector_Ct   0x0033   100   100   010    Pre-fail  Always       -       0
194 Temperature_Celsius     0x0022   060   060   000    Old_age   Always       -       {celsius}
197 Current_Pending_Sector  0x0012   100   100   000    Old_age   Always       -       {pending}

"""


class Together:
    def __init__(self, root):
        self.pc, self.state = root + "/pc", root + "/state"
        self.pending = 0
        self.lines, self.told, self.warm, self.shown = [], [], [], {}
        self.kills = self.twice = self.reads = 0
        self.marked = set()
        self.running = {}
        for folder in (self.pc, self.state + "/history"):
            os.makedirs(folder, 0o700)
        changes = [{"afterSeconds": 120, "disk": 0, "report": "0b.txt"}, {"afterSeconds": 240, "disk": 2, "report": "2b.txt"}]
        disks = [{"number": i, "model": "Tarnwell TX2", "sectors": 1 << 20, "report": f"{i}.txt"} for i in range(3)]
        put(self.pc + "/pc.json", json.dumps({"pauses": False, "clockSpeed": 600, "toolMilliseconds": 5, "disks": disks,
                                              "reportChanges": changes, "settings": SETTINGS}))
        put(self.pc + "/1.txt", report(1, 80))
        put(self.pc + "/2.txt", report(2, 40))
        values = "".join(f"[{day}]\nCompleteDate=then\nTemperature%20Celsius=3{i}\n\n" for i, day in enumerate(DATES[:9]))
        for disk in range(3):
            put(f"{self.state}/history/dates-SER{disk}.txt", "\n".join(DATES[:9]) + "\n")
            put(f"{self.state}/history/values-SER{disk}", values)

    def start(self, name, *arguments):
        env = dict(os.environ, HALVANE_PC=self.pc, HALVANE_PC_STATE=self.state, QT_QPA_PLATFORM="offscreen",
                   QT_LOGGING_RULES="halvane.monitor=true")
        process = subprocess.Popen([f"{FOLDER}/{name}", *arguments], env=env, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.PIPE, text=True)
        self.running[name] = process
        process.told = []
        process.reader = threading.Thread(target=lambda: process.told.extend((time.time(), line) for line in process.stderr))
        process.reader.start()

    def kill(self, name):
        process = self.running.pop(name)
        must(process.poll() is None, name, "ended by itself with", process.returncode, process.told[-2:])
        process.send_signal(signal.SIGKILL)
        process.wait()
        killed = time.time()
        process.reader.join()
        self.kills += 1
        if name == "VelmoraSMART":
            self.looked = any("shows event" in line for _, line in process.told)
        self.take_shown(killed, process.told)

    def start_companion(self):
        """On another day: it writes the history again."""
        self.pending += 2
        put(self.pc + "/0.txt", report(0, 40, self.pending - 1))
        put(self.pc + "/0b.txt", report(0, 40, self.pending))
        put(self.pc + "/2b.txt", report(2, 50 + self.pending // 2 % WARM))
        path = self.state + "/watch.json"
        if os.path.exists(path):
            with open(path) as file:
                memory = json.load(file)
            for disk in memory["disks"]:
                disk["historyDay"] = ""
            put(path, json.dumps(memory))
        self.mark_ended()
        self.start("VelmoraSMART", "Schedular")

    def stored(self):
        try:
            with open(self.state + STORE) as file:
                return json.load(file)
        except FileNotFoundError:
            return {}

    def mark_ended(self):
        """As Quit does it. The companion takes it back when it comes up. The program stands still, so what it writes is
        written before or after."""
        program = self.running.get("VelmoraHalvane")
        if program:
            program.send_signal(signal.SIGSTOP)
        stored = self.stored()
        if stored:
            put(self.state + STORE, json.dumps({**stored, "TrayQuit": "first"}))
        if program:
            program.send_signal(signal.SIGCONT)

    def take_shown(self, killed, told):
        """What the user was shown twice: only where the kill came before it could be kept."""
        now = {}
        for when, line in told:
            found = re.search(r"shows event (\d+) ", line)
            if found:
                must(found.group(1) not in now, "shown twice in one run:", line)
                now[found.group(1)] = when
        for event, when in now.items():
            must(event not in self.marked, "event", event, "is shown, though it was marked as seen")
            if event in self.shown:
                must(self.shown[event] < KEPT, "event", event, "is shown again", self.shown[event], "s after it was shown")
                self.twice += 1
            self.shown[event] = killed - when

    def check_settings(self, caught_up):
        stored = self.stored()
        must(not stored or stored == {**stored, **SETTINGS}, "settings", stored)
        # The program stores both behind its splash, and takes the path away when it starts.
        tool = self.state + "/temp/smartctl64Bit.exe"
        must(stored.get("FirstTimeLaunch") in ([1] if caught_up else [None, 1]), "settings", stored)
        must(stored.get("SmartctlFolderPath") in ([tool] if caught_up else [None, "", tool]), "settings", stored)
        # A run that has looked at a disk has taken it back; one that was killed earlier may have.
        must(stored.get("TrayQuit", "") in ([""] if self.looked else ["", "first"]), "settings", stored)

    def check_history(self, caught_up):
        for disk in range(3):
            with open(f"{self.state}/history/dates-SER{disk}.txt") as file:
                dates = file.read().splitlines()
            must(dates in ([DATES] if caught_up else [DATES[:9], DATES]), "dates of disk", disk, dates)
            with open(f"{self.state}/history/values-SER{disk}") as file:
                text = file.read()
            for i, day in enumerate(DATES[:9]):
                must(f"[{day}]\nCompleteDate=then\nTemperature%20Celsius=3{i}\n" in text, "values of", disk, day, text)
            today = text.partition(f"[{DATES[9]}]\n")[2].partition("[")[0]
            keys = sorted(line.partition("=")[0] for line in today.split())
            whole = ["CompleteDate", "Current%20Pending%20Sector", "Reallocated%20Sector%20Ct", "Temperature%20Celsius"]
            must([key for key in keys if key in whole] == whole or not (today or caught_up), "today of", disk, today)

    def check_log(self):
        path = self.state + "/drives/L/log.txt"
        if not os.path.exists(path):
            return
        with open(path, encoding="utf-8", newline="") as file:
            text = file.read()
        must(len(text.encode()) <= LIMIT, "the log has", len(text.encode()), "bytes")
        must(text.endswith("\n"), "the log ends in", repr(text[-80:]))
        lines = text.splitlines()
        fresh = lines
        if self.lines:
            must(self.lines[-1] in lines, "what was in the log is gone")
            fresh = lines[len(lines) - lines[::-1].index(self.lines[-1]):]
        for line in fresh:
            found = LINE.fullmatch(line)
            must(found, "line", repr(line))
            severity, disk, what = found.groups()
            if disk == "0" and severity != "INFO":
                before = int(self.told[-1].split()[2]) if self.told else 0
                must(re.fullmatch(r"pending sectors: \d+" + (rf" \(before: {before}\)" if before else ""), what), "after",
                     before, "comes", what)
                self.told.append(what)
            elif disk == "2" and severity != "INFO":
                run = self.pending // 2
                must(not self.warm or self.warm[-1][0] != what or self.warm[-1][1] + WARM <= run, "twice:", line)
                self.warm.append((what, run))
        self.lines += fresh

    def check(self, caught_up=False):
        self.check_settings(caught_up)
        self.check_history(caught_up)
        self.check_log()
        memory = {"events": []}
        if os.path.exists(self.state + "/watch.json"):
            with open(self.state + "/watch.json") as file:
                memory = json.load(file)
        return memory

    def end_program(self):
        self.kill("VelmoraHalvane")
        path = self.state + "/commands.log"
        if os.path.exists(path):
            with open(path) as file:
                self.reads += sum("SMART.txt" in line for line in file)
            os.remove(path)

    def round(self):
        self.start_companion()
        ends = time.time() + random.choice([random.uniform(0, 0.2), *3 * [random.uniform(0.2, COMPANION_LIVES)]])
        while True:
            if "VelmoraHalvane" not in self.running:
                self.start("VelmoraHalvane")
                self.program_ends = time.time() + random.uniform(0, PROGRAM_LIVES)
            if self.program_ends > ends:
                break
            time.sleep(max(0, self.program_ends - time.time()))
            self.end_program()
        self.await_end(ends, begin=random.choice([ends, time.time() + random.uniform(0, 0.7)]))
        self.kill("VelmoraSMART")
        self.mark_seen(self.check())

    def mark_seen(self, memory):
        """As if they had been shown and clicked. A companion shows a message every few seconds, so one that always dies
        young shows fewer than there are."""
        waiting = [event for event in memory["events"] if not event["told"]]
        if len(waiting) > MOST_WAITING:
            self.marked |= self.ids_of(waiting)
            for event in waiting:
                event["told"] = event["seen"] = True
            put(self.state + "/watch.json", json.dumps(memory))

    def ids_of(self, waiting):
        """What was shown does not wait for longer than it takes to be kept."""
        ids = {str(event["id"]) for event in waiting}
        for event in ids & self.shown.keys():
            must(self.shown[event] < KEPT, "event", event, "waits", self.shown[event], "s after it was shown")
        return ids

    def await_end(self, end, begin):
        """Or, from `begin` on, until right behind a line of the log: then the most has still to be kept."""
        def changed():
            return os.path.exists(path) and os.stat(path).st_mtime_ns
        path = self.state + "/drives/L/log.txt"
        time.sleep(max(0, min(begin, end) - time.time()))
        known = changed()
        while time.time() < end and changed() == known:
            time.sleep(0.0002)
        time.sleep(random.choice([0, random.uniform(0, 0.004)]))

    def catch_up(self):
        if "VelmoraHalvane" not in self.running:
            self.start("VelmoraHalvane")
        self.start_companion()
        end = time.time() + 30
        while not self.told or int(self.told[-1].split()[2]) < self.pending:
            must(time.time() < end, "the last rise is not told, but", self.told[-1:], "of", self.pending)
            time.sleep(0.2)
            self.check_log()
        while not self.stored().get("SmartctlFolderPath"):
            must(time.time() < end, "the program has stored nothing")
            time.sleep(0.2)
        time.sleep(1)
        self.kill("VelmoraSMART")
        self.end_program()
        memory = self.check(caught_up=True)
        must(all(event["logged"] for event in memory["events"]), "not logged:", memory)
        must(sum(" SER1 " in line and "shutdown limit" in line for line in self.lines) == 1, "the hot disk is not told once")
        waiting = self.ids_of(event for event in memory["events"] if not event["told"])
        happened = len(self.told) + len(self.warm) + 1
        must(happened == len(waiting | self.marked | self.shown.keys()), happened, "events, but shown", len(self.shown),
             "marked", len(self.marked), "and waiting", len(waiting))
        return len(waiting)

    def left_over(self):
        return [name for folder in ("", "/history", "/drives/L", "/temp") for name in os.listdir(self.state + folder)
                if name.startswith((".halvane-", "history-")) or re.search(r"(json|txt|SER\d)\.[A-Za-z]{6}$", name)]


def main():
    if time.localtime().tm_hour >= 21:
        print("SKIP: the day of the history would end on the fast clock of the PC")
        return 77
    random.seed(SEED)
    root = tempfile.mkdtemp(prefix="halvane-together-")
    together = Together(root)
    try:
        for _ in range(ROUNDS):
            together.round()
        waiting = together.catch_up()
    except Wrong as wrong:
        print(f"seed {SEED}: {wrong}\nsee {root}", file=sys.stderr)
        return 1
    finally:
        for process in together.running.values():
            process.kill()
            process.wait()
    print(f"seed {SEED}: {ROUNDS} rounds, {together.kills} kills, {together.reads} reports read by the program; log: "
          f"{len(together.told)} rises and {len(together.warm)} warm disks, each once; shown: {len(together.shown)} events, "
          f"{together.twice} of them again as the kill came at once, {len(together.marked)} were marked as seen, "
          f"{waiting} wait; {len(together.left_over())} files left over")
    shutil.rmtree(root)
    return 0


sys.exit(main())

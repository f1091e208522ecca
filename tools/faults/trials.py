"""The tests of a tree with faults: which faults each reaches, and what they say of one."""

import concurrent.futures
import dataclasses
import json
import os
import pathlib
import re
import resource
import shutil
import signal
import subprocess
import tempfile
import time

# What looks at the sources, needs more than the build has, or says the same again at length.
LEFT_OUT = re.compile(r"^(package|source_format|guide_\w+|browser_\w+|window_tests_at_scale_2|"
                      r"fills_equal_plain_baseline)$")
PATIENCE = (30, 10)  # a test that takes 30 seconds more than 10 times its own time hangs
LARGEST_FILE = 1 << 30
MOST_MEMORY = 4 << 30


@dataclasses.dataclass
class Test:
    name: str
    command: list
    folder: str
    environment: dict
    seconds: float = 0.0
    reached: frozenset = frozenset()

    @property
    def shown(self):
        return self.filter or self.name

    @property
    def filter(self):
        """The name inside a GoogleTest program, or nothing."""
        found = [a for a in self.command if a.startswith("--gtest_filter=")]
        return found[0].split("=", 1)[1] if found else ""


@dataclasses.dataclass
class Outcome:
    caught: bool
    text: str


class Tests:
    """Every test that CTest knows in a build, run one process each or several in one."""

    def __init__(self, build_folder, scratch, jobs):
        self.scratch = scratch
        self.jobs = jobs
        listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=build_folder, check=True,
                                capture_output=True, text=True).stdout
        self.tests = [Test(t["name"], t["command"], *self._properties(t))
                      for t in json.loads(listed)["tests"]
                      if "command" in t and not LEFT_OUT.match(t["name"])]

    @staticmethod
    def _properties(test):
        found = {p["name"]: p["value"] for p in test["properties"]}
        return (found["WORKING_DIRECTORY"],
                dict(v.split("=", 1) for v in found.get("ENVIRONMENT", [])))

    def trace(self):
        """Runs each test without a fault; one that fails so is left out from then on."""
        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            sound = list(pool.map(self._trace_one, self.tests))
        for test, passed in zip(self.tests, sound):
            if not passed:
                print(f"left out, fails without a fault: {test.name}", flush=True)
        self.tests = [test for test, passed in zip(self.tests, sound) if passed]

    def _trace_one(self, test):
        with tempfile.NamedTemporaryFile(dir=self.scratch) as trace:
            start = time.monotonic()
            status, _ = self._run(test, test.command, 600, {"TELARIUM_FAULT_TRACE": trace.name})
            test.seconds = time.monotonic() - start
            test.reached = frozenset(int(line) for line in trace.read().split())
        return status == 0

    def meet(self, fault):
        """What the tests that reach a fault say while it is switched on."""
        reaching = sorted((t for t in self.tests if fault in t.reached), key=lambda t: t.seconds)
        if not reaching:
            return Outcome(False, "reached by no test")
        for group in groups(reaching):
            failed = self._failing(group, fault)
            if failed:
                return Outcome(True, f"caught: {failed}")
        return Outcome(False, f"SURVIVES {len(reaching)} tests, among them "
                              + ", ".join(t.shown for t in reaching[:3]))

    def _failing(self, group, fault):
        """The first test of a group that fails, or nothing."""
        patience = PATIENCE[0] + PATIENCE[1] * sum(test.seconds for test in group)
        command = list(group[0].command)
        if group[0].filter:
            names = ":".join(test.filter for test in group)
            command = [command[0], "--gtest_filter=" + names, "--gtest_fail_fast",
                       "--gtest_brief=1" if len(group) == 1 else "--gtest_color=no"]
        switch = {"TELARIUM_FAULT": str(fault)}
        status, said = self._run(group[0], command, patience, switch)
        if status == 0:
            return ""
        running = re.findall(r"\[ RUN      \] (\S+)", said)
        name = running[-1] if running else group[0].shown
        if status is None:
            return name + " (hangs)"
        # A test that failed by chance is no witness.
        again = next((t for t in group if t.filter == name), group[0])
        return name if self._run(again, again.command, patience, switch)[0] != 0 else \
            self._failing([t for t in group if t is not again], fault) if len(group) > 1 else ""

    def _run(self, test, command, patience, switch):
        """Status (none for one that hung) and output of a process that finds nothing of ours."""
        home = pathlib.Path(tempfile.mkdtemp(prefix="home", dir=self.scratch))
        home.chmod(0o1777)  # some tests go on as another user
        environment = {**os.environ, **test.environment, **switch,
                       "HOME": str(home), "TMPDIR": str(home)}
        for name in ("XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"):
            environment.pop(name, None)
        with open(home / "output", "w+b") as output:
            process = subprocess.Popen(command, cwd=test.folder, env=environment, stdout=output,
                                       stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL,
                                       start_new_session=True, preexec_fn=set_limits)
            try:
                status = process.wait(patience)
            except subprocess.TimeoutExpired:
                status = None
            try:
                os.killpg(process.pid, signal.SIGKILL)  # children that it left
            except ProcessLookupError:
                pass
            process.wait()
            output.seek(max(0, output.seek(0, 2) - (1 << 20)))
            said = output.read().decode("utf-8", "replace")
        shutil.rmtree(home, ignore_errors=True)
        return status, said


def set_limits():
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_FSIZE, (LARGEST_FILE, LARGEST_FILE))
    resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))


def groups(tests):
    """Tests of one program each, in order; a group takes as long as all before it did."""
    found, spent = [], 0.0
    for program in dict.fromkeys(test.command[0] for test in tests):
        group, seconds = [], 0.0
        for test in (t for t in tests if t.command[0] == program):
            group.append(test)
            seconds += test.seconds
            if not test.filter or seconds > max(2.0, spent):
                found.append(group)
                spent += seconds
                group, seconds = [], 0.0
        if group:
            found.append(group)
            spent += seconds
    return found

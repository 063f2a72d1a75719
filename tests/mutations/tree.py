# SPDX-License-Identifier: MIT
# A private copy of the tree: what is built and tested there never touches the checkout. Builds and
# tests are those of the presets; what may be run at once, and for how long, is limited.
import fcntl
import os
import re
import resource
import shutil
import signal
import subprocess
from pathlib import Path

GIB = 1 << 30
# Longest single test, and a whole step (a full build, or all tests of a preset), in seconds.
TEST_TIMEOUT = {"dev": 120, "asan": 300, "i686": 300, "armhf": 300}
STEP_TIMEOUT = 1800
# From the summary of ctest, in which skipped tests stand, too.
FAILED = re.compile(r"^\s+\d+ - (\S+) \((?!Skipped)(.+)\)$", re.MULTILINE)


def _limit_memory():
    """For tests: some map 4 GiB of address space or have 2 of their own, none uses much of it."""
    resource.setrlimit(resource.RLIMIT_AS, (16 * GIB, 16 * GIB))
    resource.setrlimit(resource.RLIMIT_DATA, (3 * GIB, 3 * GIB))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def _limit_sanitized():
    """The sanitizers reserve terabytes of addresses; memory is theirs to watch, see test()."""
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Tree:
    def __init__(self, checkout, folder):
        self.checkout = checkout
        self.root = folder / "tree"
        self.log = folder / "last.log"
        self.configured = set()

    def lock(self):
        """Two runs in one tree would plant their faults on top of each other."""
        self.root.mkdir(parents=True, exist_ok=True)
        self.locked = open(self.root.parent / "lock", "w")
        try:
            fcntl.flock(self.locked, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise SystemExit("scripts/mutate is running already") from None

    def refresh(self):
        """Copies what differs, so that what has been built stays good. Heals a planted fault."""
        listed = subprocess.run(
            ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            cwd=self.checkout, check=True, capture_output=True, text=True).stdout
        names = {name for name in listed.split("\0") if (self.checkout / name).is_file()}
        for name in names:
            source, target = self.checkout / name, self.root / name
            if target.is_file() and target.read_bytes() == source.read_bytes():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)  # with the time of now: it is new to the build
        for folder in self.root.iterdir():
            for path in [folder] if folder.is_file() else folder.rglob("*"):
                name = str(path.relative_to(self.root))
                if folder.name != "build" and path.is_file() and name not in names:
                    path.unlink()

    def write(self, name, text):
        (self.root / name).write_text(text)

    def read(self, name):
        return (self.root / name).read_text()

    def _run(self, command, limit=None, **environment):
        """Whether it succeeded, and what it said. Too late is a failure like any other."""
        with open(self.log, "w+") as log:
            process = subprocess.Popen(
                ["nice", "-n", "5", *command], cwd=self.root, stdin=subprocess.DEVNULL,
                stdout=log, stderr=subprocess.STDOUT, start_new_session=True, preexec_fn=limit,
                env={**os.environ, **environment})
            try:
                status = process.wait(STEP_TIMEOUT)
            except BaseException as error:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
                if not isinstance(error, subprocess.TimeoutExpired):
                    raise
                status = -1
        return status == 0, self.log.read_text(errors="replace")

    def _configure(self, preset):
        command = ["cmake", "--preset", preset]
        if preset == "dev":  # nobody debugs a mutant
            command += ["-DCMAKE_C_FLAGS_DEBUG=-O0", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"]
        if shutil.which("ninja"):
            command += ["-G", "Ninja"]
        done, output = self._run(command)
        if not done:
            raise RuntimeError(f"{preset}: cannot be configured\n{output}")
        self.configured.add(preset)

    def build(self, preset, *targets):
        if preset not in self.configured:
            self._configure(preset)
        command = ["cmake", "--build", "--preset", preset, "--parallel", "1"]
        return self._run(command + (["--target", *targets] if targets else []))[0]

    def test(self, preset, pattern="."):
        """The first test that fails, with a word on how, or None."""
        # Else those that have failed before come first, and results would depend on each other.
        shutil.rmtree(self.root / "build" / preset / "Testing", ignore_errors=True)
        limit = _limit_sanitized if preset == "asan" else _limit_memory
        done, output = self._run(
            ["ctest", "--test-dir", f"build/{preset}", "--stop-on-failure", "--no-tests=error",
             "--timeout", str(TEST_TIMEOUT[preset]), "-R", pattern],
            limit, ASAN_OPTIONS="hard_rss_limit_mb=8000")
        if done:
            return None
        found = FAILED.search(output)
        if not found:
            raise RuntimeError(f"{preset}: tests cannot be run\n{output}")
        return f"{found[1]} ({found[2].lower()})"

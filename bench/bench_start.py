#!/usr/bin/env python3
"""How long the programs take to start: the line of help, and the window until it is on the screen.

The window is started on a display of its own with an empty home, once after its files have been dropped from memory where the
system lets us, then again and again. Needs Xvfb and xdotool.

    python3 bench_start.py BIN_FOLDER [ROUNDS]
"""
import os
import pathlib
import re
import signal
import statistics
import subprocess
import sys
import tempfile
import time

HELP_MARK, WINDOW_MARK = 0.010, 0.5
MAIN_HEIGHT = 450  # pixels


def help_times(program, rounds):
    times = []
    for _ in range(rounds * 10):
        begun = time.perf_counter()
        subprocess.run([program, "--help"], stdout=subprocess.DEVNULL, check=True)
        times.append(time.perf_counter() - begun)
    return times


def drop_files_from_memory():
    """False where only the superuser may."""
    os.sync()
    try:
        pathlib.Path("/proc/sys/vm/drop_caches").write_text("3\n", encoding="ascii")
    except OSError:
        return False
    return True


def main_window_is_there(env):
    """The splash has no other title, but is smaller."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Trawlex$", "getwindowgeometry", "--shell", "%@"], env=env,
                           capture_output=True, text=True)
    return any(int(height) > MAIN_HEIGHT for height in re.findall(r"HEIGHT=(\d+)", found.stdout))


def window_time(program, display):
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as home:
        env = dict(os.environ, HOME=home, XDG_DATA_HOME=home + "/data", XDG_CONFIG_HOME=home + "/config",
                   XDG_RUNTIME_DIR=home, DISPLAY=display, QT_QPA_PLATFORM="xcb")
        begun = time.perf_counter()
        run = subprocess.Popen([program], env=env, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            while not main_window_is_there(env):
                if time.perf_counter() - begun > 60:
                    raise TimeoutError("no window")
            return time.perf_counter() - begun
        finally:
            run.send_signal(signal.SIGTERM)
            run.wait(30)


def report(what, seconds, mark):
    print(f"{what:50} {seconds * 1000:7.1f} ms   mark {mark * 1000:5.0f} ms: {'met' if seconds <= mark else 'not met'}")


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    report("trawlex-harvest --help", statistics.median(help_times(folder / "trawlex-harvest", rounds)), HELP_MARK)
    with subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1366x768x24", "-noreset"], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, text=True) as screen:
        display = f":{screen.stdout.readline().strip()}"
        try:
            if drop_files_from_memory():
                report("the window on the screen, cold", window_time(folder / "trawlex", display), WINDOW_MARK)
            times = [window_time(folder / "trawlex", display) for _ in range(rounds)]
            report("the window on the screen", statistics.median(times), WINDOW_MARK)
        finally:
            screen.terminate()


if __name__ == "__main__":
    main()

"""The machine in words, without names of hosts or folders."""
import os
import pathlib
import platform
import re
import subprocess
import time


def first_line(*command):
    try:
        done = subprocess.run(command, capture_output=True, text=True, check=False)
    except OSError:
        return "unknown"
    return (done.stdout.splitlines() or ["unknown"])[0].strip()


def value_of(file, pattern):
    try:
        found = re.search(pattern, pathlib.Path(file).read_text(encoding="utf-8"), re.MULTILINE)
    except OSError:
        found = None
    return found.group(1).strip() if found else "unknown"


def in_words():
    memory = value_of("/proc/meminfo", r"^MemTotal:\s*(\d+) kB")
    return {
        "processor": value_of("/proc/cpuinfo", r"^model name\s*:\s*(.*)$"),
        "processors": str(os.cpu_count()),
        "memory": f"{int(memory) / 1024 ** 2:.0f} GB" if memory.isdigit() else memory,
        "system": f'{value_of("/etc/os-release", chr(94) + "PRETTY_NAME=" + chr(34) + "(.*)" + chr(34))}, '
                  f'Linux {platform.release().split("-")[0]}',
        "Wine": first_line("/usr/lib/wine/wine64", "--version"),
        "compiler for Windows": first_line("x86_64-w64-mingw32-g++-posix", "--version"),
        "native compiler": first_line("g++", "--version"),
    }


def load_of_others(seconds=2.0):
    """The share of the processors, 0 to 1, that other programs take while we wait."""
    def ticks():
        fields = [int(word) for word in value_of("/proc/stat", r"^cpu +(.*)$").split()]
        return sum(fields), fields[3] + fields[4]

    total, idle = ticks()
    time.sleep(seconds)
    later_total, later_idle = ticks()
    return 1 - (later_idle - idle) / max(later_total - total, 1)

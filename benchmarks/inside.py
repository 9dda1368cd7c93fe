"""Operations of the library timed from the inside, each beside its limit."""
import json
import statistics
import subprocess
import sys

from screen import preferred

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def from_inside(built, formats, folder, quick):
    out = folder / "inside.json"
    print("inside ...", file=sys.stderr, flush=True)
    with preferred():
        subprocess.run([built / "benchmarks/korva-bench-inside", f"--benchmark_min_time={0.02 if quick else 0.1}",
                        f"--benchmark_repetitions={1 if quick else 5}", f"--benchmark_out={out}",
                        "--benchmark_enable_random_interleaving=true", formats],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    times = {}
    sizes = {}
    for run in json.loads(out.read_text())["benchmarks"]:
        if run.get("error_occurred"):
            sys.exit(f"bench: {run['name']}: {run['error_message']}")
        if run["run_type"] == "iteration":
            times.setdefault(run["run_name"], []).append(run["cpu_time"] * NANOSECONDS[run["time_unit"]])
            if "file_bytes" in run:
                sizes[run["run_name"]] = run["file_bytes"]
    medians = {name: statistics.median(values) for name, values in times.items()}
    found = {name: {"ns": value, "limit_ns": medians[name + "/limit"], "ratio": value / medians[name + "/limit"]}
             for name, value in medians.items() if not name.endswith("/limit")}
    for name in found:
        if name in sizes:
            found[name]["size_ratio"] = sizes[name] / sizes[name + "/limit"]
    return found

"""Holds the planner against the reference on random plans: the bill and the trace byte for byte, and the bill of a run
without a trace, which goes shorter ways.

    python3 compare.py --planner PATH --plans N --seed S [--legacy] [--resources]

Prints one line when all runs are equal; else the first few differences, and exits with 1.
"""

import argparse
import difflib
import itertools
import json
import os
import random
import subprocess
import sys
import tempfile
from dataclasses import dataclass

from bom_reference import analyse
from flow_nodes import FASTENER_TYPES, Settings, WorkLimitError, fastener_types
from plan_model import Plan, Resource, cast
from random_plans import make_plan

WORK_LIMIT = 1500
DIFFERENCES_SHOWN = 3
RUN_SECONDS = 60


@dataclass
class Case:
    """One run: a root of a plan and the options that both sides get."""

    root: str
    fasteners: str
    unassigned_fasteners: bool
    legacy: bool

    def settings(self):
        return Settings(fastener_types(self.fasteners), not self.unassigned_fasteners, self.legacy)

    def arguments(self):
        return ((["--root", self.root] if self.root else [])
                + (["--fasteners", self.fasteners] if self.fasteners != "all" else [])
                + (["--unassigned-fasteners"] if self.unassigned_fasteners else [])
                + (["--legacy"] if self.legacy else []))


@dataclass
class Outcome:
    """What one side made of a run; `failure` is empty when it ran well."""

    bom: object = None
    trace: str = ""
    failure: str = ""


class Planner:
    """Runs the program under test on plan files in a folder of its own."""

    def __init__(self, path, folder):
        self.path = path
        self.plan_file = os.path.join(folder, "random.plan.json")
        self.trace_file = os.path.join(folder, "trace")
        self.environment = {key: value for key, value in os.environ.items()
                            if key not in ("FAB_BOM_OLD_ALGORITHM", "QOR_TRACE")}

    def write(self, text):
        with open(self.plan_file, "w", encoding="utf-8") as file:
            file.write(text)

    def run(self, case, is_traced):
        command = [self.path, "bom", self.plan_file, *case.arguments(), "--format", "json"]
        if is_traced:
            command += ["--trace", self.trace_file]
        try:
            done = subprocess.run(command, capture_output=True, env=self.environment, close_fds=False,
                                  timeout=RUN_SECONDS, check=True)
            return Outcome(json.loads(done.stdout), self.take_trace() if is_traced else "")
        except subprocess.CalledProcessError as error:
            return Outcome(failure=f"{error}: {error.stderr.decode(errors='replace')}")
        except (subprocess.TimeoutExpired, OSError, ValueError) as error:
            return Outcome(failure=str(error))

    def take_trace(self):
        with open(self.trace_file, encoding="utf-8", newline="") as file:
            trace = file.read()
        os.remove(self.trace_file)
        return trace


def make_cases(rng, plan, resources, legacy):
    """One to three roots of the plan, each with settings of its own."""
    activities = [obj.key for obj in plan.objects if cast(obj, "QORISPPActivity") and obj is not plan.process]
    roots = some_of(rng, activities, rng.choice((0, 0, 0, 1) if resources else (0, 0, 1, 2)))
    if resources:
        roots += some_of(rng, [obj.key for obj in plan.objects if isinstance(obj, Resource)], 2)
    else:
        roots.append(None)
    return [Case(root, make_fasteners(rng), rng.random() < 0.3, legacy) for root in roots]


def some_of(rng, keys, count):
    return rng.sample(keys, min(len(keys), count))


def make_fasteners(rng):
    style = rng.random()
    if style < 0.2:
        return ",".join(rng.sample(FASTENER_TYPES, rng.randint(1, len(FASTENER_TYPES))))
    return "none" if style < 0.3 else "all"


def reference_outcome(plan, case):
    bom, trace = analyse(plan, case.root, case.settings(), WORK_LIMIT)
    return Outcome({"bom": bom}, trace)


def usable_plans(seed, resources, legacy):
    """Endless plans with their runs and the reference's outcomes; a plan with too many paths is passed over."""
    for index in itertools.count():
        rng = random.Random(f"{seed}:{index}")
        data = make_plan(rng, resources)
        plan = Plan(data)
        cases = make_cases(rng, plan, resources, legacy)
        try:
            runs = [(case, reference_outcome(plan, case)) for case in cases]
        except WorkLimitError:
            continue
        text = json.dumps(data, ensure_ascii=rng.random() < 0.2, indent=rng.choice((None, 1)))
        yield index, text, runs


def traces_apart(expected, actual):
    """The lines from shortly before the first place where two traces part, the reference's marked by a minus."""
    return "\n".join(itertools.islice(difflib.unified_diff(expected.split("\n"), actual.split("\n"), lineterm=""), 12))


def describe(index, case, text, expected, actual):
    """A difference for a person to read."""
    return "\n".join([f"plan {index}, options: {' '.join(case.arguments())}",
                      json.dumps(json.loads(text), ensure_ascii=False),
                      actual.failure or traces_apart(expected.trace, actual.trace),
                      f"reference: {json.dumps(expected.bom, ensure_ascii=False)}",
                      f"planner:   {json.dumps(actual.bom, ensure_ascii=False)}\n"])


def compare_all(options):
    """Runs all plans and gives the number of runs and of those that differ."""
    runs_made = differences = 0
    with tempfile.TemporaryDirectory() as folder:
        planner = Planner(options.planner, folder)
        plans = usable_plans(options.seed, options.resources, options.legacy)
        for index, text, runs in itertools.islice(plans, options.plans):
            planner.write(text)
            for (case, traced), is_traced in itertools.product(runs, (True, False)):
                runs_made += 1
                expected = traced if is_traced else Outcome(traced.bom)
                actual = planner.run(case, is_traced)
                if actual != expected:
                    differences += 1
                    if differences <= DIFFERENCES_SHOWN:
                        print(describe(index, case, text, expected, actual))
    return runs_made, differences


def main():
    parser = argparse.ArgumentParser(description="Compares the planner with the reference on random plans.")
    parser.add_argument("--planner", required=True)
    parser.add_argument("--plans", type=int, default=1000)
    parser.add_argument("--seed", default="1")
    parser.add_argument("--legacy", action="store_true")
    parser.add_argument("--resources", action="store_true")
    options = parser.parse_args()
    runs_made, differences = compare_all(options)
    outcome = f"{differences} differ" if differences else "all equal"
    print(f"{options.plans} plans, {runs_made} runs, {outcome}")
    return 1 if differences or not runs_made else 0


if __name__ == "__main__":
    sys.exit(main())

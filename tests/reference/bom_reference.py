"""Computes the bill of a plan file in the plainest way, as an oracle for the fast implementation.

    python3 bom_reference.py PLAN [--root ID] [--legacy] [--fasteners all|none|NAME,NAME...]
                             [--unassigned-fasteners] [--trace FILE]
"""

import argparse
import json
import os
import sys
from dataclasses import dataclass

from bill import Bill
from flow_nodes import Settings, Trace, fastener_types
from flow_walk import FlowWalk, ProcessWalk, ResourceWalk
from plan_model import Plan, cast

WORK_LIMIT = 1_000_000
sys.setrecursionlimit(20_000)


@dataclass
class Result:
    """What one analysis leaves: the elements of the bill, the text of the trace, graph and tree."""

    bom: list
    trace: str
    walk: FlowWalk
    bill: Bill


def analyse(plan, root_key=None, settings=Settings(), work_limit=WORK_LIMIT):
    """Runs a new generator on the process or on the activity or resource that is named."""
    root = plan.root(root_key)
    trace = Trace(work_limit)
    walk_class = ProcessWalk if cast(root, "QORISPPActivity") is not None else ResourceWalk
    walk = walk_class(settings, trace)
    walk.main_check_flow(root)
    bill = Bill(settings, trace)
    bill.build(walk.last_node_in_flow(walk.first_node))
    return Result(bill.bom(), trace.text(), walk, bill)


def main():
    parser = argparse.ArgumentParser(description="The bill of a plan, as JSON.")
    parser.add_argument("plan")
    parser.add_argument("--root")
    parser.add_argument("--legacy", action="store_true")
    parser.add_argument("--fasteners", default="all")
    parser.add_argument("--unassigned-fasteners", action="store_true")
    parser.add_argument("--trace")
    options = parser.parse_args()
    with open(options.plan, encoding="utf-8") as file:
        plan = Plan(json.load(file), os.path.basename(options.plan))
    settings = Settings(fastener_types(options.fasteners), not options.unassigned_fasteners, options.legacy)
    result = analyse(plan, options.root, settings)
    if options.trace:
        with open(options.trace, "w", encoding="utf-8", newline="") as file:
            file.write(result.trace)
    print(json.dumps({"bom": result.bom}, ensure_ascii=False, indent=2))


if __name__ == "__main__":
    main()

"""Computes the bill of a plan in the plainest way, as an oracle for the fast implementation."""

import sys

from bill import Bill
from flow_nodes import Trace
from flow_walk import ProcessWalk, ResourceWalk
from plan_model import cast

sys.setrecursionlimit(20_000)


def analyse(plan, root_key, settings, work_limit):
    """The elements of the bill and the text of the trace for the process, or the activity or resource named."""
    root = plan.root(root_key)
    trace = Trace(work_limit)
    walk_class = ProcessWalk if cast(root, "QORISPPActivity") is not None else ResourceWalk
    walk = walk_class(settings, trace)
    walk.main_check_flow(root)
    bill = Bill(settings, trace)
    bill.build(walk.last_node_in_flow(walk.first_node))
    return bill.elements_below(bill.top), trace.text()

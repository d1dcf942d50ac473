"""The walks that turn a process plan or a resource into a graph of flow nodes.

Both walks have one shape, which stands in `FlowWalk`: the children of a node are walked before it, each
flow among them from what came before the node; then the node is linked behind the end of the child flow
walked last; then its own successors are followed. The subclasses say what becomes a node and which links they know.
"""

from flow_nodes import ProcessFlowNode, ResourceFlowNode
from plan_model import cast


class FlowWalk:
    """The registries of a graph, the search for its ends, the dumps, and what the two walks share."""

    def __init__(self, settings, trace):
        self.settings = settings
        self.trace = trace
        self.counter = 1
        self.nodes = []
        self.by_id = {}
        self.first_node = None
        self.open_visits = []

    def main_check_flow(self, root):
        self.first_node = self.create_flow_node(root)
        self.update_lists(self.first_node)
        self.check_flow(None, self.first_node, 0)
        self.trace_flow()
        self.trace_nodes()

    def update_lists(self, node):
        """Registers a node; a missing one still takes its number and a place in the list."""
        self.counter += 1
        if node is not None:
            self.by_id.setdefault(node.identity, node)
        self.nodes.append(node)

    def check_use(self, obj):
        return self.by_id.get(obj.identity)

    def last_node_in_flow(self, node):
        """Along first successors to the end, or to the node whose first successor was passed before."""
        passed = [node]
        while node.successors and node.successors[0] not in passed:
            node = node.successors[0]
            passed.append(node)
        return node

    def first_flow_node(self, item):
        """Back along first predecessors to the start, or to the first item that is met a second time."""
        met = []
        while item not in met and self.has_flow(item) and item.predecessors():
            met.append(item)
            item = item.predecessors()[0]
        return item

    def check_flow(self, previous, current, level):
        """Walks from `current`, which comes after `previous`, and gives the end of the flow through it.

        What becomes a node is an activity or a resource, so it always answers `QORISpecObject`.
        """
        self.trace.spend()
        if current is None:
            return previous
        self.trace_flow()
        last = previous
        children, drop_standalone = current.below()
        for child in children:
            last = self.visit_child(previous, last, child, level, drop_standalone)
        self.trace_flow()
        if last is not None:
            last.successors.append(current)
            current.predecessors.append(last)
            self.trace_pair("", last, current)
            last = current
        self.trace_flow()
        return self.walk_successors(current, last, level)

    def visit_child(self, previous, last, child, level, drop_standalone):
        """The end of the flow that begins with the child, or `last` where none is walked for it."""
        if cast(child, "QORISPPAbstractActivity") is not None:
            self.trace.line(f"Name: {child.name}")
            self.trace.line(f"Type: {child.type}")
        if drop_standalone and self.is_standalone_logical_node(child):
            return last
        if self.check_use(child) is not None:
            return last
        first = child if self.visit_would_repeat(child) else self.first_flow_node(child)
        if cast(first, "QORISpecObject") is None:
            return last
        node = self.create_flow_node(first)
        self.update_lists(node)
        self.open_visits.append((child, len(self.by_id)))
        last = self.check_flow(previous, node, level + 1)
        self.open_visits.pop()
        return last

    def visit_would_repeat(self, child):
        """Whether a visit of this child is open and no object has got its first node since it began."""
        return (child, len(self.by_id)) in self.open_visits

    def visit_successor(self, current, last, successor, level):
        if cast(successor, "QORISPPAbstractActivity") is not None:
            self.trace.line(f"Name: {successor.name}")
        known = self.check_use(successor)
        if known is not None:
            current.successors.append(known)
            known.predecessors.append(current)
            self.trace_pair("**", current, known)
            return self.last_node_in_flow(current)
        node = self.create_flow_node(successor)
        if node is None and not current.is_resource:
            return last
        self.update_lists(node)
        return self.check_flow(current, node, level)

    def walk_successors(self, current, last, level):
        for successor in current.flow.successors() if level > 0 else []:
            last = self.visit_successor(current, last, successor, level)
        return last

    def has_flow(self, item):
        return any(cast(item, interface) is not None for interface in self.FLOWS)

    def trace_pair(self, mark, earlier, later):
        self.trace.line(f"{mark}Predecessor: {earlier.name}")
        self.trace.line(f"{mark}Successor: {later.name}")

    def trace_flow(self):
        for node in self.by_id.values():
            self.trace.line(f"Number: {node.number} Name: {node.name}")
        self.trace.line("Flow: Node Number (N), Predecessor (P) und Successors (S)")
        for node in self.by_id.values():
            text = f"N: {node.number}"
            for label, neighbours in ((" P ", node.predecessors), (" S ", node.successors)):
                if neighbours:
                    text += label + "".join(f" {neighbour.number}" for neighbour in neighbours)
            self.trace.line(text + " *")

    def trace_nodes(self):
        for node in self.nodes:
            if node is not None:
                text = f"Number {node.number}"
                for label, neighbours in (("P", node.predecessors), ("S", node.successors)):
                    for position, neighbour in enumerate(neighbours, 1):
                        text += f"{label}{position}: {neighbour.number}"
                self.trace.line(text + " *")


class ProcessWalk(FlowWalk):
    """The walk of a tree of activities."""

    FLOWS = ("QORISPPFlowMgt",)

    def create_flow_node(self, item):
        return ProcessFlowNode(item, self.counter, self.settings, self.trace)

    def is_standalone_logical_node(self, item):
        is_logical = cast(item, "QORISPPActivity") is None and self.has_flow(item)
        return is_logical and not item.predecessors() and not item.successors()


class ResourceWalk(FlowWalk):
    """The walk of a resource, whose graph holds nodes of resources and of activities."""

    FLOWS = ("VXMIResourceFlowMgmt", "QORISPPFlowMgt")

    def create_flow_node(self, item):
        if cast(item, "VXMIResourceBehaviorManager") is not None:
            return ResourceFlowNode(item, self.counter, self.settings, self.trace)
        if cast(item, "QORISPPAbstractActivity") is not None:
            return ProcessFlowNode(item, self.counter, self.settings, self.trace)
        return None

    def is_standalone_logical_node(self, item):
        return not self.has_flow(item) or not item.predecessors() and not item.successors()

    def walk_successors(self, current, last, level):
        if last is None and level > 0 and not current.is_resource:
            last = current
        return super().walk_successors(current, last, level)

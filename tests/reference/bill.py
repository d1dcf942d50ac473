"""From the flow graph to the bill: the tree of MBOM nodes, its cleaning, and the elements that are shown."""

from itertools import chain, takewhile

from flow_nodes import NT_LOADING
from plan_model import cast

AT_TOP, AT_FIRST_ASSIGN, AT_PROCESS, AT_REMOVE, AT_CREATE, AT_FASTENER = range(6)
ASSIGNMENTS = (AT_FIRST_ASSIGN, AT_PROCESS)


def use_products(flow_node, assignment_type):
    """Inside a station only what a loading activity assigns first counts; outside everything does."""
    return not flow_node.parent_is_station or (
        flow_node.node_type == NT_LOADING and assignment_type == AT_FIRST_ASSIGN)


def used_lists(flow_node):
    """The lists of a flow node that count, in the order in which their nodes are made."""
    lists = ((AT_CREATE, flow_node.cp), (AT_FIRST_ASSIGN, flow_node.fap), (AT_FASTENER, flow_node.fasteners),
             (AT_PROCESS, flow_node.pp), (AT_REMOVE, flow_node.rp))
    return [(kind, products) for kind, products in lists if use_products(flow_node, kind)]


def is_assembly(product):
    return cast(product, "VXMIMfgAssembly") is not None


class MbomNode:
    def __init__(self, product, number, assignment_type, removable, trace):
        trace.spend()
        self.product = product
        self.number = number
        self.assignment_type = assignment_type
        self.removable = removable
        self.predecessor = None
        self.successors = []
        self.name = "TOPNODE" if product is None else product.name
        self.identity = -1 if product is None else product.identity
        if product is not None:
            trace.node_line(self)

    def descendants(self):
        for child in self.successors:
            yield child
            yield from child.descendants()


class Bill:
    """One computation on the graph of a walk; the elements of the bill are those below the top node."""

    def __init__(self, settings, trace):
        self.settings = settings
        self.trace = trace
        self.nodes = [[] for _ in range(6)]
        self.removed_ids = []
        self.top = None

    def build(self, last_flow_node):
        """Makes the tree from the end of the flow and runs the passes of the algorithm in use."""
        self.top = MbomNode(None, 0, AT_TOP, True, self.trace)
        self.nodes[AT_TOP].append(self.top)
        self.create_mbom(last_flow_node, self.top, 1, [])
        if self.settings.legacy:
            passes = lambda: self.clean_1(self.top, {}), lambda: self.clean_2(self.top)
        else:
            passes = lambda: self.clean_assignments(AT_PROCESS, False), lambda: self.clean_3(self.top, {})
        self.trace_names()
        self.trace_links()
        for clean in (lambda: self.clean_assignments(AT_REMOVE, True), *passes):
            clean()
            self.trace_links()

    def new_node(self, product, number, assignment_type, removable, parent):
        node = MbomNode(product, number, assignment_type, removable, self.trace)
        self.nodes[assignment_type].append(node)
        parent.successors.append(node)
        node.predecessor = parent
        return node

    # Building

    def create_mbom(self, flow_node, parent, number, path):
        """Makes the nodes of a step, then those of the steps before it: by the legacy algorithm under its first output."""
        self.trace.spend()
        self.trace.line(f"--> VXMBomGenerator::Create{'Old' if self.settings.legacy else ''}MBOM ")
        current_parent = parent
        for assignment_type, products in used_lists(flow_node):
            for position, product in enumerate(products, 1):
                above = parent if assignment_type == AT_CREATE else current_parent
                node = self.new_node(product, number, assignment_type, True, above)
                number += 1
                if assignment_type != AT_FASTENER:
                    number = self.create_children(node, number, [])
                if self.settings.legacy and assignment_type == AT_CREATE and position == 1:
                    current_parent = node
        for predecessor in flow_node.predecessors:
            if predecessor not in path + [flow_node]:
                self.create_mbom(predecessor, current_parent, number, path + [flow_node])

    def create_children(self, node, number, path):
        """Makes the structure below a node and gives the number to go on with."""
        for entry in self.entries_of(node.product, path):
            child = self.new_node(entry, number + 1, node.assignment_type, self.settings.legacy, node)
            number = self.create_children(child, number + 1, path + [node.product])
        return number

    def entries_of(self, product, path):
        """What a product unfolds to: an assembly once on a path, a plain product once between two assemblies."""
        if is_assembly(product):
            return [] if product in path else product.holds or []
        if self.settings.legacy or cast(product, "QORIProduct") is None:
            return []
        plain = takewhile(lambda entry: not is_assembly(entry), reversed(path))
        return [] if product in plain else product.children or []

    # Cleaning

    def clean_assignments(self, assignment_type, with_partner):
        """Takes out the nodes of a type that have a partner, and the partners where they are to go as well."""
        entry = self.nodes[assignment_type]
        position, count = 0, len(entry)
        while position < count:
            node = entry[position]
            partner = self.find_partner(node)
            if partner is None:
                position += 1
                continue
            if with_partner:
                self.remove_node(partner)
                self.removed_ids.append(node.identity)
            self.remove_node(node)
            count -= 1

    def find_partner(self, node):
        """An assignment beside the node of the same product, else the first below it of its own parent's product."""
        if not any(other.identity == node.identity for kind in ASSIGNMENTS for other in self.nodes[kind]):
            return None
        beside = (other for other in node.predecessor.successors
                  if other is not node and other.identity == node.identity)
        below = (other for other in node.descendants() if other.identity == other.predecessor.identity)
        return next((other for other in chain(beside, below) if other.assignment_type in ASSIGNMENTS), None)

    def clean_1(self, node, seen):
        self.clean_successors(node, seen, self.remove_node, lambda child: self.clean_3(child, seen))

    def clean_3(self, node, seen):
        self.clean_successors(node, seen, self.remove_node_and_children,
                              lambda child: self.clean_3(child, seen))

    def clean_2(self, node):
        self.clean_successors(node, {}, self.remove_node, lambda child: None)
        for position in range(len(node.successors)):
            self.clean_2(node.successors[position])

    @staticmethod
    def clean_successors(node, seen, remove, go_on):
        """Removes removable repeats among the successors that stand there now; goes on with each that stays."""
        position, count = 0, len(node.successors)
        while position < count:
            child = node.successors[position]
            if child.identity in seen and child.removable:
                remove(child)
                count -= 1
            else:
                seen.setdefault(child.identity, child)
                go_on(child)
                position += 1

    def remove_node(self, node):
        """Takes one node out; its children go to the end of its parent's list."""
        parent = node.predecessor
        parent.successors.remove(node)
        for child in node.successors:
            parent.successors.append(child)
            child.predecessor = parent
        self.nodes[node.assignment_type].remove(node)

    def remove_node_and_children(self, node):
        node.predecessor.successors.remove(node)
        for gone in (node, *node.descendants()):
            self.nodes[gone.assignment_type].remove(gone)

    # Output

    def elements_below(self, node):
        elements = []
        for child in node.successors:
            tag = self.tag_of(child)
            below = self.elements_below(child)
            elements += below if tag is None else [
                {"tag": tag, "name": child.name, "object": child.product.key, "children": below}]
        return elements

    def tag_of(self, node):
        if node.assignment_type == AT_FASTENER:
            return "BOMFastener"
        was_removed = node.assignment_type == AT_PROCESS and node.identity in self.removed_ids
        return "BOMNode" if was_removed or node.assignment_type in (AT_CREATE, AT_FIRST_ASSIGN) else None

    def trace_names(self):
        self.trace.line("--- TRACE 1 ---")
        for kind in range(5):
            self.trace.line(f"--- {kind}--- ")
            for node in self.nodes[kind]:
                self.trace.line(f"N {node.number} {node.name}")

    def trace_links(self):
        self.trace.line("--- TRACE 2 ---\n")
        for kind in range(5):
            self.trace.line(f"--- {kind}--- ")
            for node in self.nodes[kind]:
                above = "" if node.predecessor is None else f" P {node.predecessor.number}"
                below = "".join(f" S {child.number}" for child in node.successors)
                self.trace.line(f"N {node.number}{above}{below} *")

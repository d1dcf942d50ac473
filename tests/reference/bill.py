"""From the flow graph to the bill: the tree of MBOM nodes, its cleaning, and the elements that are shown."""

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


class Bill:
    """One computation on the graph of a walk; `bom` gives the elements below the document's root."""

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
        if self.settings.legacy:
            self.create_old_mbom(last_flow_node, self.top, 1, [])
            passes = (self.clean_remove_assignments, lambda: self.clean_1(self.top, {}),
                      lambda: self.clean_2(self.top))
        else:
            self.create_mbom(last_flow_node, self.top, 1, [])
            passes = (self.clean_remove_assignments, self.clean_process_assignments,
                      lambda: self.clean_3(self.top, {}))
        self.trace_names()
        self.trace_links()
        for clean in passes:
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
        self.trace.spend()
        self.trace.line("--> VXMBomGenerator::CreateMBOM ")
        for assignment_type, products in used_lists(flow_node):
            for product in products:
                node = self.new_node(product, number, assignment_type, True, parent)
                number += 1
                if assignment_type != AT_FASTENER:
                    number = self.create_product_children(node, number, [])
        for predecessor in flow_node.predecessors:
            if predecessor not in path + [flow_node]:
                self.create_mbom(predecessor, parent, number, path + [flow_node])

    def create_product_children(self, node, number, path):
        """Makes the structure below a node and gives the number to go on with."""
        product = node.product
        entries = None
        if cast(product, "VXMIMfgAssembly") is not None:
            if product not in path:
                entries = product.holds
        elif cast(product, "QORIProduct") is not None:
            if not self.comes_round(product, path):
                entries = product.children
        for entry in entries or []:
            child = self.new_node(entry, number + 1, node.assignment_type, False, node)
            number = self.create_product_children(child, number + 1, path + [product])
        return number

    @staticmethod
    def comes_round(product, path):
        """Whether a plain product was expanded on the path with only plain products since."""
        for entry in reversed(path):
            if cast(entry, "VXMIMfgAssembly") is not None:
                return False
            if entry is product:
                return True
        return False

    def create_old_mbom(self, flow_node, parent, number, path):
        self.trace.spend()
        self.trace.line("--> VXMBomGenerator::CreateOldMBOM ")
        current_parent = parent
        for assignment_type, products in used_lists(flow_node):
            for position, product in enumerate(products, 1):
                above = parent if assignment_type == AT_CREATE else current_parent
                node = self.new_node(product, number, assignment_type, True, above)
                number += 1
                if assignment_type != AT_FASTENER:
                    number = self.create_old_ma_children(node, number, [])
                if assignment_type == AT_CREATE and position == 1:
                    current_parent = node
        for predecessor in flow_node.predecessors:
            if predecessor not in path + [flow_node]:
                self.create_old_mbom(predecessor, current_parent, number, path + [flow_node])

    def create_old_ma_children(self, node, number, path):
        assembly = cast(node.product, "VXMIMfgAssembly")
        if assembly is None or assembly in path:
            return number
        for entry in assembly.holds or []:
            child = self.new_node(entry, number + 1, node.assignment_type, True, node)
            number = self.create_old_ma_children(child, number + 1, path + [assembly])
        return number

    # Cleaning

    def clean_remove_assignments(self):
        self.clean_entry(AT_REMOVE, self.check_previous_assignments)

    def clean_process_assignments(self):
        self.clean_entry(AT_PROCESS, self.check_previous_fp_assignments)

    def clean_entry(self, assignment_type, check):
        entry = self.nodes[assignment_type]
        position, count = 0, len(entry)
        while position < count:
            if check(entry[position]):
                count -= 1
            else:
                position += 1

    def check_previous_assignments(self, node):
        partner = self.find_partner(node)
        if partner is None:
            return False
        self.remove_node(partner)
        self.remove_node(node)
        self.removed_ids.append(node.identity)
        return True

    def check_previous_fp_assignments(self, node):
        if self.find_partner(node) is None:
            return False
        self.remove_node(node)
        return True

    def find_partner(self, node):
        if not any(other.identity == node.identity for kind in ASSIGNMENTS for other in self.nodes[kind]):
            return None
        return self.search_siblings(node) or self.search_subtree(node)

    @staticmethod
    def search_siblings(node):
        for other in node.predecessor.successors:
            if (other is not node and other.identity == node.identity
                    and other.assignment_type in ASSIGNMENTS):
                return other
        return None

    def search_subtree(self, node):
        for child in node.successors:
            if child.identity == node.identity and child.assignment_type in ASSIGNMENTS:
                return child
            found = self.search_subtree(child)
            if found is not None:
                return found
        return None

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
        self.unregister_subtree(node)

    def unregister_subtree(self, node):
        for child in node.successors:
            self.unregister_subtree(child)
        self.nodes[node.assignment_type].remove(node)

    # Output

    def bom(self):
        return self.elements_below(self.top)

    def elements_below(self, node):
        elements = []
        for child in node.successors:
            tag = self.tag_of(child)
            below = self.elements_below(child)
            if tag is None:
                elements += below
            else:
                elements.append({"tag": tag, "name": child.name, "object": child.product.key, "children": below})
        return elements

    def tag_of(self, node):
        if node.assignment_type in (AT_CREATE, AT_FIRST_ASSIGN):
            return "BOMNode"
        if node.assignment_type == AT_PROCESS and node.identity in self.removed_ids:
            return "BOMNode"
        return "BOMFastener" if node.assignment_type == AT_FASTENER else None

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

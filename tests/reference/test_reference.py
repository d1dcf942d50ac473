"""Small drawings with known bills and graphs, so that the reference can be trusted.

Run with: python3 -m unittest test_reference
"""

import re
import unittest

from bom_reference import analyse
from flow_nodes import Settings
from plan_model import Plan

LISTS = {"FAP": "first_assigned", "PP": "assigned", "RP": "removed", "CP": "outputs", "ITEMS": "items"}
TYPE_LETTERS = "TFPRCX"


def activities(text):
    """Activities from a drawing such as "A1 A2(B1 B2) L?": nested names, a mark "?" for a logical node."""
    tops, stack = [], []
    for token in re.findall(r"[\w?]+|[()]", text):
        if token == "(":
            stack.append((stack[-1][0]["children"] if stack else tops)[-1])
            stack[-1] = (stack[-1], stack[-1].setdefault("children", []))
        elif token == ")":
            stack.pop()
        else:
            entry = {"id": token.rstrip("?"), "kind": "logical" if token.endswith("?") else "activity"}
            (stack[-1][1] if stack else tops).append(entry)
    return tops


def links(text):
    return [pair.split(">") for pair in text.split()]


def walk(process, link_text, root=None):
    """The graph as text: links in the order of the nodes that they leave, nodes in the order of creation."""
    plan = Plan({"process": activities(process)[0], "links": links(link_text)})
    return graph(analyse(plan, root).walk)


def graph(walked):
    nodes = [node for node in walked.nodes if node is not None]
    joined = " ".join(f"{node.name}>{after.name}" for node in nodes for after in node.successors)
    return joined, " ".join(node.name for node in nodes)


def flow_plan(steps, items):
    """A straight flow S1, S2, S3 with lists as in "S1: FAP P Q, RP A; S2: CP A"."""
    children = {key: {"id": key} for key in ("S1", "S2", "S3")}
    for step in filter(None, steps.split("; ")):
        key, lists = step.split(": ")
        for entry in lists.split(", "):
            name, *content = entry.split()
            children[key][LISTS[name]] = content
    return Plan({"items": items, "links": links("S1>S2 S2>S3"),
                 "process": {"id": "line", "children": list(children.values())}})


def tree_text(nodes):
    """MBOM nodes as text: a letter for the type, the name, what stands below in brackets."""
    parts = []
    for node in nodes:
        below = tree_text(node.successors)
        parts.append(f"{TYPE_LETTERS[node.assignment_type]}:{node.name}" + (f"({below})" if below else ""))
    return " ".join(parts)


def bom_text(elements):
    return " ".join(element["name"] + (f"({bom_text(element['children'])})" if element["children"] else "")
                    for element in elements)


ITEMS = [{"id": name, "kind": "product"} for name in "PQR"] + [
    {"id": "A", "kind": "product", "children": ["P", "Q"]},
    {"id": "M", "kind": "assembly", "holds": ["P", "Q"]},
    {"id": "K", "kind": "assembly", "holds": ["L"]}, {"id": "L", "kind": "assembly", "holds": ["K"]},
    {"id": "Z", "kind": "product", "children": ["Y"]}, {"id": "Y", "kind": "product", "children": ["Z"]},
    {"id": "V", "kind": "product", "children": ["W"]},
    {"id": "W", "kind": "assembly", "holds": ["V"], "children": []},
    {"id": "O", "kind": "item"}, {"id": "O2", "kind": "item"},
    {"id": "weld", "kind": "fastener", "type": "Spot Weld"},
    {"id": "loose", "kind": "fastener", "type": "Screw", "assigned": False},
    {"id": "bolt", "kind": "fastener", "type": "Bolt"}]

# Steps, what is left after cleaning, what is shown.
NEW_ROWS = (
    ("", "", ""),
    ("S1: FAP P", "F:P", "P"),
    ("S1: FAP P; S2: FAP P", "F:P", "P"),
    ("S1: FAP P; S2: PP P", "F:P", "P"),
    ("S1: PP P", "P:P", ""),
    ("S1: FAP P; S2: RP P", "", ""),
    ("S1: PP P; S2: RP P", "", ""),
    ("S1: PP P; S2: RP P; S3: PP P", "P:P", "P"),
    ("S1: FAP P; S2: RP P; S3: PP P", "F:P", "P"),
    ("S1: FAP P; S2: PP P; S3: RP P", "F:P", "P"),
    ("S1: FAP P; S2: RP P; S3: FAP P", "F:P", "P"),
    ("S1: RP P", "R:P", ""),
    ("S1: CP P; S2: RP P", "R:P", ""),
    ("S1: FAP P Q; S2: CP A", "C:A(C:P C:Q)", "A(P Q)"),
    ("S1: CP A; S2: FAP P", "F:P C:A(C:P C:Q)", "P A(P Q)"),
    ("S1: FAP A; S2: RP A", "", ""),
    ("S1: FAP A; S2: PP A", "F:A(F:P F:Q) P:P P:Q", "A(P Q)"),
    ("S1: FAP K", "F:K(F:L(F:K))", "K(L(K))"),
    ("S1: FAP Z", "F:Z(F:Y(F:Z))", "Z(Y(Z))"),
    ("S1: FAP V", "F:V(F:W(F:V(F:W)))", "V(W(V(W)))"),
    ("S1: RP P, PP Q, FAP R, CP O, ITEMS weld loose bolt", "C:O F:R X:weld P:Q R:P", "O R weld"),
    ("S1: FAP P; S2: FAP Q; S3: FAP R", "F:R F:Q F:P", "R Q P"))

LEGACY_ROWS = (
    ("S1: FAP P; S2: CP Q; S3: CP O", "C:O(C:Q(F:P))", "O(Q(P))"),
    ("S1: FAP P; S2: CP Q; S3: CP O, FAP R", "C:O(F:R C:Q(F:P))", "O(R Q(P))"),
    ("S1: FAP P; S2: CP O O2, FAP Q", "C:O(F:Q F:P) C:O2", "O(Q P) O2"),
    ("S1: FAP A", "F:A", "A"),
    ("S1: FAP M; S2: FAP M", "F:M(F:P F:Q) F:P F:Q", "M(P Q) P Q"),
    ("S1: FAP M; S2: FAP M; S3: FAP M", "F:M(F:P F:Q) F:P F:Q", "M(P Q) P Q"),
    ("S1: FAP K", "F:K(F:L)", "K(L)"),
    ("S1: FAP P; S2: RP P", "", ""),
    ("S1: PP P; S2: RP P", "", ""),
    ("S1: FAP P; S2: CP O; S3: RP P", "R:P C:O", "O"))

# Process tree, links of the plan, links of the graph, order of the nodes.
WALK_ROWS = (
    ("R(A1 A2(B1 B2))", "A1>A2 B1>B2", "A1>B1 A2>R B1>B2 B2>A2", "R A1 A2 B1 B2"),
    ("R(A1 A2 A3)", "A1>A2 A2>A3", "A1>A2 A2>A3 A3>R", "R A1 A2 A3"),
    ("R(A3 A2 A1)", "A1>A2 A2>A3", "A1>A2 A2>A3 A3>R", "R A1 A2 A3"),
    ("R(A S1 S2)", "A>S1 A>S2", "A>S1 A>S2 S2>R", "R A S1 S2"),
    ("R(A S1 S2 J)", "A>S1 A>S2 S1>J S2>J", "A>S1 A>S2 S1>J J>R S2>J", "R A S1 J S2"),
    ("R(Q P(A1 A2 A3 A4) E)", "Q>P P>E A1>A2 A3>A4", "Q>A1 Q>A3 P>E A1>A2 A3>A4 A4>P E>R",
     "R Q P A1 A2 A3 A4 E"),
    ("R(A)", "", "", "R A"),
    ("R(A1 A2 B)", "A1>A2", "A1>A2", "R A1 A2 B"),
    ("R(Q P(A))", "Q>P", "Q>A P>R A>P", "R Q P A"),
    ("R(Q P(L?))", "Q>P", "Q>P P>R", "R Q P"),
    ("R(A B)", "A>B A>B", "A>B A>B B>R", "R A B"),
    ("R(A B)", "A>B B>A", "A>B A>R B>A", "R A B"),
    ("R(A)", "A>A", "A>A A>R", "R A"),
    ("R(A)", "R>A", "R>A A>R", "R R A"))

A1_A2 = [{"id": "A1"}, {"id": "A2"}]
CHAIN = [{"id": "C1", "behaviour": {}}, {"id": "C2", "behaviour": {}}]

# Behaviour of the root, its children, links of the plan, links of the graph, order of the nodes.
RESOURCE_ROWS = (
    ({"activities": A1_A2}, [], "A1>A2", "A1>A2 A2>R", "R A1 A2"),
    ({"activities": A1_A2[::-1]}, [], "A1>A2", "A1>A2 A2>R", "R A1 A2"),
    ({"activities": A1_A2}, [], "", "A2>R", "R A1 A2"),
    ({"activities": activities("A(B)")}, [], "", "A>R", "R A"),
    ({"activities": []}, CHAIN, "C1>C2", "", "R"),
    ({}, CHAIN, "C1>C2", "C1>C2 C2>R", "R C1 C2"),
    (None, CHAIN, "C1>C2", "", "R"),
    ({}, CHAIN, "", "", "R"),
    ({}, CHAIN[:1], "C1>R", "R>R C1>R", "R C1"),
    ({}, [CHAIN[0], {"id": "C2", "behaviour": {"id": "b2"}}], "C1>C2 C1>b2", "C1>C2 C1>R", "R C1 C2"),
    ({}, [{"id": "C1", "behaviour": {"id": "b1"}}, CHAIN[1]], "b1>C2 C1>C1", "C1>C2 C2>R", "R C1 C2"))

WALK_TRACE = """Name: A1 | Type: PhysicalActivity | Name: A2 | Name: B1 | Type: PhysicalActivity
 | Predecessor: A1 | Successor: B1 | Name: B2 | Predecessor: B1 | Successor: B2 | Name: B2
 | Type: PhysicalActivity | Predecessor: B2 | Successor: A2 | Name: A2 | Type: PhysicalActivity
 | Predecessor: A2 | Successor: R""".replace("\n", "").split(" | ")

MESSAGE = "FAB_BOM_NO_FASTENERS is NOT set to TRUE: fasteners are displayed in MBOM\n"
FLOW = "Flow: Node Number (N), Predecessor (P) und Successors (S)\n"
LINKS_DUMP = "--- TRACE 2 ---\n\n--- 0--- \nN 0 *\n--- 1--- \n--- 2--- \n--- 3--- \n--- 4--- \n"
ROOT_TRACE = (MESSAGE + "processType of weld: \nBolt\nNumber: 1ID: 2Name Line\n"
              + ("Number: 1 Name: Line\n" + FLOW + "N: 1 *\n") * 4
              + "Number 1 *\n--> VXMBomGenerator::CreateMBOM \n"
              + "--- TRACE 1 ---\n--- 0--- \nN 0 TOPNODE\n--- 1--- \n--- 2--- \n--- 3--- \n--- 4--- \n"
              + LINKS_DUMP * 4)


class ReferenceTest(unittest.TestCase):
    def check_rows(self, rows, settings):
        for steps, left, shown in rows:
            with self.subTest(steps=steps):
                result = analyse(flow_plan(steps, ITEMS), None, settings)
                self.assertEqual(tree_text(result.bill.top.successors), left)
                self.assertEqual(bom_text(result.bom), shown)

    def test_flows_give_their_bills(self):
        self.check_rows(NEW_ROWS, Settings())

    def test_legacy_flows_give_their_bills(self):
        self.check_rows(LEGACY_ROWS, Settings(legacy=True))

    def test_process_walk_links_the_nodes(self):
        for process, link_text, *expected in WALK_ROWS:
            with self.subTest(process=process, links=link_text):
                self.assertEqual(list(walk(process, link_text)), expected)

    def test_resource_walk_links_the_nodes(self):
        for behaviour, children, link_text, *expected in RESOURCE_ROWS:
            with self.subTest(behaviour=behaviour, children=children, links=link_text):
                root = {"id": "R", "children": children}
                if behaviour is not None:
                    root["behaviour"] = behaviour
                plan = Plan({"resources": [root], "links": links(link_text)})
                self.assertEqual(list(graph(analyse(plan, "R").walk)), expected)

    def test_walk_traces_names_and_links_in_order(self):
        plan = Plan({"process": activities("R(A1 A2(B1 B2))")[0], "links": links("A1>A2 B1>B2")})
        lines = analyse(plan).trace.split("\n")
        told = [line for line in lines if re.match(r"(Name|Type|Predecessor|Successor): ", line)]
        self.assertEqual(told, WALK_TRACE)

    def test_whole_trace_of_a_lone_root(self):
        plan = Plan({"items": [{"id": "b", "kind": "fastener", "type": "Bolt"}],
                     "process": {"id": "line", "name": "Line", "items": ["b"]}})
        self.assertEqual(analyse(plan).trace, ROOT_TRACE)

    def test_diamond_gives_the_nodes_before_the_fork_twice(self):
        plan = Plan({"items": ITEMS, "links": links("S1>S2 S1>S3 S2>S4 S3>S4"),
                     "process": {"id": "R", "children": [
                         {"id": f"S{n}", "outputs": [item]} for n, item in enumerate("PQRO", 1)]}})
        made = re.findall(r"^N \d+ (\w+)$", analyse(plan).trace, re.MULTILINE)
        self.assertEqual(made, ["TOPNODE", "O", "Q", "P", "R", "P"])

    def test_station_keeps_first_assignments_of_loading_only(self):
        loading = {"id": "load", "kind": "loading", "first_assigned": ["P"], "outputs": ["O"], "items": ["weld"]}
        station = {"id": "st", "kind": "station", "children": [loading, {"id": "work", "first_assigned": ["Q"]}]}
        plan = Plan({"items": ITEMS, "links": links("load>work start>st"),
                     "process": {"id": "R", "children": [{"id": "start", "first_assigned": ["R"]}, station]}})
        self.assertEqual(bom_text(analyse(plan).bom), "P R")

    def test_settings_choose_the_fasteners(self):
        plan = flow_plan("S1: ITEMS weld loose bolt", ITEMS)
        for settings, shown in ((Settings(), "weld"), (Settings(assigned_only=False), "weld loose"),
                                (Settings(("Screw",), False), "loose"), (Settings(()), "")):
            with self.subTest(settings=settings):
                self.assertEqual(bom_text(analyse(plan, None, settings).bom), shown)

    def test_objects_are_numbered_in_file_order(self):
        plan = Plan({"items": [{"id": "i", "kind": "item"}], "process": activities("R(A(B) C)")[0],
                     "resources": [{"id": "r", "behaviour": {"activities": activities("D(E)")},
                                    "children": [{"id": "s"}]}, {"id": "t"}]})
        self.assertEqual([obj.key for obj in plan.objects],
                         ["i", "R", "A", "B", "C", "r", None, "D", "E", "s", "t"])


if __name__ == "__main__":
    unittest.main()

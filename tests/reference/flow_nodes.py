"""The vertices of the flow graph, each a snapshot of its model object, with the trace and the settings."""

from dataclasses import dataclass

from plan_model import cast

FASTENER_TYPES = (
    "Adhesive Curve", "Adhesive Point", "Arc Weld", "Clinch", "Glue Bead", "Glue Drop",
    "Rivet", "Sealant Curve", "Sealant Point", "Screw", "Spot Weld", "Stud")

NT_ACTIVITY, NT_LOADING, NT_STATION, NT_GROUPING = 0, 2, 3, 4
NODE_TYPES = (("BIWActivityLoading", NT_LOADING), ("BIWActivityStation", NT_STATION),
              ("BIWActivityGrouping", NT_GROUPING))


@dataclass(frozen=True)
class Settings:
    fastener_types: tuple = FASTENER_TYPES
    assigned_only: bool = True
    legacy: bool = False


def fastener_types(text):
    """The types to show for "all", "none" or type names with commas between."""
    return {"all": FASTENER_TYPES, "none": ()}.get(text, tuple(text.split(",")))


class WorkLimitError(Exception):
    """The analysis makes more nodes and calls than the limit of its trace allows."""


class Trace:
    """Collects the text of a run, and counts the work so that a plan with too many paths is given up."""

    def __init__(self, limit):
        self._parts = []
        self._work_left = limit

    def line(self, text):
        self._parts.append(text + "\n")

    def node_line(self, node):
        self.line(f"Number: {node.number}ID: {node.identity}Name {node.name}")

    def text(self):
        return "".join(self._parts)

    def spend(self):
        self._work_left -= 1
        if self._work_left < 0:
            raise WorkLimitError()


class FlowNode:
    """What both kinds share. The model of a plan file answers all that a node asks of its object."""

    is_resource = False

    def __init__(self, activity, number, settings, trace):
        trace.spend()
        self.settings = settings
        self.trace = trace
        self.predecessors, self.successors = [], []
        self.activity = activity
        self.name = activity.name
        self.identity = activity.identity
        self.number = number
        self.node_type = self.classify()
        self.parent_is_station = self.stands_in_station()
        self.fap, self.pp, self.rp, self.cp, self.fasteners = [], [], [], [], []
        self.assign_products_and_fasteners()
        trace.node_line(self)

    def classify(self):
        return next((node_type for model_type, node_type in NODE_TYPES if self.activity.is_of_type(model_type)),
                    NT_ACTIVITY)

    def show_fasteners(self, items):
        """Takes the fasteners that the settings show; the process type of every fastener is traced."""
        if not self.settings.fastener_types:
            return
        self.trace.line("FAB_BOM_NO_FASTENERS is NOT set to TRUE: fasteners are displayed in MBOM")
        for item in items:
            if cast(item, "VXMIBIWFastener") is not None:
                self.trace.line(f"processType of weld: \n{item.process_type}")
                wanted = item.is_assigned or not self.settings.assigned_only
                if wanted and item.process_type in self.settings.fastener_types:
                    self.fasteners.append(item)


class ProcessFlowNode(FlowNode):
    """The node of an activity."""

    @property
    def flow(self):
        return self.activity

    def below(self):
        """The children to walk, and whether those without any link are left out."""
        return self.activity.children or [], True

    def stands_in_station(self):
        above = self.activity.parent
        while above is not None and not above.is_of_type("BIWActivityStation"):
            above = above.parent
        return above is not None

    def assign_products_and_fasteners(self):
        self.fap += self.activity.first_assigned or []
        self.pp += self.activity.assigned or []
        self.rp += self.activity.removed or []
        self.show_fasteners(self.activity.every_item())
        self.cp += self.activity.outputs or []


class ResourceFlowNode(FlowNode):
    """The node of a resource; its items are those of the behaviour."""

    is_resource = True

    def stands_in_station(self):
        return False

    @property
    def flow(self):
        """What the links are read from: the behaviour where it has a flow of its own."""
        return cast(self.activity.behaviour, "VXMIResourceFlowMgmt") or self.activity

    def below(self):
        behaviour = self.activity.behaviour
        if behaviour is None:
            return [], False
        if behaviour.activities is not None:
            return behaviour.activities, False
        return self.activity.children or [], True

    def assign_products_and_fasteners(self):
        behaviour = self.activity.behaviour
        if behaviour is not None:
            self.fap += behaviour.assigned or []
            self.show_fasteners(behaviour.assigned or [])
            self.cp += behaviour.outputs or []

"""The model that a plan file describes: items, activities, resources, behaviours and their links.

Every object says which of the interfaces that matter here it answers; `cast` asks it. A list that the file leaves
out is None, an empty one is []. The plan is taken to be valid: a faulty one ends in a plain Python error.
"""

ACTIVITY_INTERFACES = {"QORISPPActivity", "QORISPPAbstractActivity", "QORISpecObject", "QORISPPFlowMgt"}

ACTIVITY_TYPES = {
    "activity": ("PhysicalActivity",),
    "loading": ("BIWActivityLoading", "PhysicalActivity"),
    "station": ("BIWActivityStation", "PhysicalActivity"),
    "grouping": ("BIWActivityGrouping", "PhysicalActivity"),
    "logical": ()}

ITEM_INTERFACES = {
    "product": {"QORIProduct"},
    "assembly": {"VXMIMfgAssembly"},
    "fastener": {"VXMIBIWFastener"},
    "item": set()}


def cast(obj, interface):
    """The object itself when it answers the interface, else None; None stays None."""
    return obj if obj is not None and interface in obj.interfaces else None


class ModelObject:
    """What all sorts share: the id of the file, a name, the interfaces, lists of ids, links in file order."""

    ID_LISTS = ()

    def __init__(self, data, interfaces):
        self.key = data.get("id")
        self.name = data.get("name", self.key)
        self.interfaces = interfaces
        self.data = data
        self.identity = 0
        self.linked_from = []
        self.linked_to = []

    def predecessors(self):
        return self.linked_from

    def successors(self):
        return self.linked_to

    def resolve(self, find):
        """Sets an attribute for each list of ids: the objects that `find` gives for it."""
        for key in self.ID_LISTS:
            setattr(self, key, find(self.data.get(key)))


class Item(ModelObject):
    ID_LISTS = ("children", "holds")

    def __init__(self, data):
        expands = data["kind"] == "assembly" and "children" in data
        super().__init__(data, ITEM_INTERFACES[data["kind"]] | ({"QORIProduct"} if expands else set()))
        self.process_type = data.get("type", "")
        self.is_assigned = data.get("assigned", True)


class Activity(ModelObject):
    ID_LISTS = ("first_assigned", "assigned", "removed", "items", "outputs")

    def __init__(self, data, parent):
        kind = data.get("kind", "activity")
        super().__init__(data, ACTIVITY_INTERFACES - ({"QORISPPActivity"} if kind == "logical" else set()))
        self.parent = parent
        self.model_types = ACTIVITY_TYPES[kind]
        self.type = data.get("type", self.model_types[0] if self.model_types else "Logical")
        self.children = None

    def is_of_type(self, model_type):
        return model_type in self.model_types

    def every_item(self):
        """All items of the activity, each once."""
        lists = (self.first_assigned, self.assigned, self.removed, self.items)
        return list(dict.fromkeys(item for entries in lists for item in entries or []))

    def predecessors(self):
        return [obj for obj in self.linked_from if isinstance(obj, Activity)]

    def successors(self):
        return [obj for obj in self.linked_to if isinstance(obj, Activity)]


class Behaviour(ModelObject):
    ID_LISTS = ("assigned", "outputs")

    def __init__(self, data):
        super().__init__(data, {"VXMIResourceFlowMgmt"} if "id" in data else set())
        self.activities = None


class Resource(ModelObject):
    def __init__(self, data):
        super().__init__(data, {"VXMIResourceBehaviorManager", "VXMIResourceFlowMgmt", "QORISpecObject"})
        self.behaviour = None
        self.children = None

    def is_of_type(self, _model_type):
        return False

    def resolve(self, find):
        self.children = find(self.children)


class Plan:
    """All objects of a plan file, given as the parsed JSON and the title to use where it has none.

    Identity numbers run from 1: items, the process tree, then the resources, each parent before what it
    contains. A process that the file leaves out is a root activity that takes its number all the same.
    """

    def __init__(self, data, title="plan"):
        self.objects = []
        for item in data.get("items", []):
            self._add(Item(item))
        self.process = self._read_activity(data.get("process", {"name": data.get("plan", title)}), None)
        for resource in data.get("resources", []):
            self._read_resource(resource)
        self.by_key = {obj.key: obj for obj in self.objects if obj.key is not None}
        for obj in self.objects:
            obj.resolve(self._find)
        for source, target in data.get("links", []):
            self.by_key[source].linked_to.append(self.by_key[target])
            self.by_key[target].linked_from.append(self.by_key[source])

    def root(self, key=None):
        """The object to analyse: the process, or what the id names if it is an activity or a resource."""
        obj = self.process if key is None else self.by_key[key]
        if cast(obj, "QORISPPActivity") is None and not isinstance(obj, Resource):
            raise ValueError(f"{key!r} is neither an activity nor a resource")
        return obj

    def _add(self, obj):
        self.objects.append(obj)
        obj.identity = len(self.objects)
        return obj

    def _read_activity(self, data, parent):
        activity = self._add(Activity(data, parent))
        if "children" in data:
            activity.children = [self._read_activity(child, activity) for child in data["children"]]
        return activity

    def _read_resource(self, data):
        resource = self._add(Resource(data))
        if "behaviour" in data:
            resource.behaviour = self._read_behaviour(data["behaviour"])
        if "children" in data:
            resource.children = [child if isinstance(child, str) else self._read_resource(child)
                                 for child in data["children"]]
        return resource

    def _read_behaviour(self, data):
        behaviour = self._add(Behaviour(data))
        if "activities" in data:
            behaviour.activities = [self._read_activity(child, None) for child in data["activities"]]
        return behaviour

    def _find(self, entries):
        """Objects for a list of ids, in which nested objects may stand already; None for None."""
        if entries is None:
            return None
        return [self.by_key[entry] if isinstance(entry, str) else entry for entry in entries]

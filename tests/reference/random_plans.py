"""Random valid plan files of small size, the same ones for the same seed.

Most plans are orderly: chains, forks and joins among siblings. Some are wild: links that cross parents, run
between parent and child, close loops or stand twice, and structures in which items hold themselves.
"""

from flow_nodes import FASTENER_TYPES

OTHER_TYPES = ("Bolt", "spot weld", "Spot Weld ", "")
NAMES = ("Panel", "Träger ∆", 'a "quoted" <name> & more', "two\nlines", "tab\tstop", "=1+1", " ", "Übermaß 𝛑",
         "back\\slash", "Step", "")


class PlanMaker:
    """Makes one plan; every choice comes from the generator of random numbers that it is given."""

    def __init__(self, rng, with_resources):
        self.rng = rng
        self.with_resources = with_resources
        self.wild = rng.random() < 0.35
        self.wild_structure = rng.random() < 0.2
        self.dense = rng.random() < 0.06
        self.item_keys, self.product_keys, self.removal_keys = [], [], []
        self.linkable, self.links = [], []
        self.counts = {}

    def make(self):
        plan = {"version": 1, "plan": self.text(), "items": self.items()}
        if self.chance(0.6 if self.with_resources else 0.97):
            plan["process"] = self.process(self.rng.randint(1, 4) if self.with_resources else self.size())
        if self.with_resources or self.chance(0.1):
            plan["resources"] = self.resources(self.rng.randint(1, 2), 0)
        self.add_wild_links()
        if self.chance(0.3):
            self.rng.shuffle(self.links)
        if self.links or self.chance(0.5):
            plan["links"] = self.links
        if self.chance(0.05):
            plan["notes"] = {"any": [1, None, {"thing": True}]}
        return dict(self.rng.sample(list(plan.items()), len(plan))) if self.chance(0.05) else plan

    # Small choices

    def chance(self, probability):
        return self.rng.random() < probability

    def size(self):
        return self.rng.randint(12, 24) if self.dense else self.rng.randint(2, 14)

    def text(self):
        return self.rng.choice(NAMES)

    def new_key(self, letter):
        self.counts[letter] = self.counts.get(letter, 0) + 1
        return f"{letter}{self.counts[letter]}"

    def linkable_key(self, letter):
        self.linkable.append(self.new_key(letter))
        return self.linkable[-1]

    def named(self, data):
        """Gives an object a name now and then, one that others may bear as well."""
        if self.chance(0.2):
            data["name"] = self.text()
        return data

    def put_list(self, data, key, probability, pool, longest=3):
        """A list of ids under the key: often absent, at times empty, at times with repeats."""
        if self.chance(probability):
            length = 0 if self.chance(0.1) or not pool else self.rng.randint(1, longest)
            data[key] = [self.rng.choice(pool) for _ in range(length)]

    # Items

    def items(self):
        count = self.rng.randint(9, 14) if self.chance(0.05) else self.rng.randint(2, 8)
        kinds = self.rng.choices(("product", "assembly", "fastener", "item"), (42, 25, 25, 8), k=count)
        records = [self.named({"id": self.new_key("i"), "kind": kind}) for kind in kinds]
        with_children = [record["kind"] == "product" and self.chance(0.5)
                         or record["kind"] == "assembly" and self.chance(0.25) for record in records]
        keys = [record["id"] for record in records]
        products = [record["id"] for record, expands in zip(records, with_children)
                    if record["kind"] == "product" or expands]
        for position, record in enumerate(records):
            below = keys if self.wild_structure else keys[position + 1:]
            self.fill_item(record, with_children[position], below, products)
        self.item_keys, self.product_keys = keys, products
        self.removal_keys = self.rng.sample(keys, self.rng.randint(1, len(keys)))
        return records

    def fill_item(self, record, with_children, below, products):
        if record["kind"] == "fastener":
            record["type"] = self.rng.choice(FASTENER_TYPES if self.chance(0.9) else OTHER_TYPES)
            if self.chance(0.5):
                record["assigned"] = self.chance(0.6)
        if record["kind"] == "assembly":
            self.put_list(record, "holds", 0.85, below, 4)
        if with_children:
            record["children"] = []
            self.put_list(record, "children", 0.95, [key for key in below if key in products])
        if self.chance(0.05):
            record["shape"] = {"box": [1, 2.5, 3]}
            record["place"] = [0, -1, 2]

    # Activities

    def process(self, size):
        root = self.activity(0.3)
        if root.get("kind") == "logical":
            del root["kind"]
        self.grow(root, [root], size - 1)
        return root

    def grow(self, root, activities, count):
        """Hangs activities below the given ones, then links the siblings of each parent."""
        for _ in range(count):
            parent = self.rng.choice([root] if self.dense and self.chance(0.8) else
                                     activities[-3:] if self.chance(0.4) else activities)
            child = self.activity(1, in_station=parent.get("kind") == "station")
            parent.setdefault("children", []).append(child)
            activities.append(child)
        for activity in activities:
            children = activity.get("children", [])
            self.link_siblings([child["id"] for child in children])
            if self.chance(0.4):
                self.rng.shuffle(children)
            if activity is not root and "children" not in activity and self.chance(0.1):
                activity["children"] = []

    def activity(self, fill, in_station=False):
        data = self.named({"id": self.linkable_key("a")})
        if in_station and self.chance(0.5):
            data["kind"] = "loading"
        elif self.chance(0.45):
            data["kind"] = self.rng.choice(("activity", "loading", "station", "station", "grouping", "logical"))
        if self.chance(0.05):
            data["type"] = self.text()
        self.put_list(data, "first_assigned", 0.5 * fill, self.item_keys)
        self.put_list(data, "assigned", 0.3 * fill, self.item_keys)
        self.put_list(data, "removed", 0.3 * fill, self.removal_keys, 2)
        self.put_list(data, "items", 0.3 * fill, self.item_keys)
        self.put_list(data, "outputs", 0.3 * fill, self.item_keys, 2)
        return data

    # Resources

    def resources(self, count, depth):
        made = [self.resource(depth) for _ in range(count)]
        self.link_siblings([resource["id"] for resource in made])
        if self.chance(0.4):
            self.rng.shuffle(made)
        return made

    def resource(self, depth):
        data = self.named({"id": self.linkable_key("r")})
        if self.chance(0.85):
            data["behaviour"] = self.behaviour()
        if self.chance(0.85 - 0.3 * depth):
            children = self.resources(self.rng.choice((0, 1, 2, 3, 4)), depth + 1)
            if self.chance(0.3) and self.product_keys:
                children.insert(self.rng.randint(0, len(children)), self.rng.choice(self.product_keys))
            data["children"] = children
        return data

    def behaviour(self):
        data = {}
        if self.chance(0.3):
            data["id"] = self.linkable_key("b")
        if self.chance(0.35):
            data["activities"] = self.behaviour_activities()
        self.put_list(data, "assigned", 0.75, self.item_keys)
        self.put_list(data, "outputs", 0.4, self.item_keys, 2)
        return data

    def behaviour_activities(self):
        root = {"children": []}
        self.grow(root, [root], 0 if self.chance(0.1) else self.rng.randint(1, 4))
        return root["children"]

    # Links

    def link_siblings(self, keys):
        """Chains, several flows, forks and joins among the children of one parent, in an order of their own."""
        style = self.rng.random()
        if style < 0.1:
            return
        for position, key in enumerate(keys[1:], 1):
            if style < 0.6 or style < 0.7 and self.chance(0.7):
                self.links.append([keys[position - 1], key])
            elif style >= 0.7:
                near = keys[max(0, position - 3):position] if self.dense else keys[:position]
                for _ in range(self.rng.choice((1, 2, 2, 3) if self.dense else (0, 1, 1, 1, 2))):
                    self.links.append([self.rng.choice(near), key])

    def add_wild_links(self):
        if not self.linkable or not (self.wild or self.with_resources and self.chance(0.5)):
            return
        resource_side = [key for key in self.linkable if key[0] in "rb"] or self.linkable
        for _ in range(self.rng.randint(1, 4)):
            if self.links and self.chance(0.3):
                source, target = self.rng.choice(self.links)
                self.links.append([source, target] if self.chance(0.5) else [target, source])
            else:
                pool = resource_side if self.chance(0.6) else self.linkable
                self.links.append([self.rng.choice(pool), self.rng.choice(pool)])


def make_plan(rng, with_resources=False):
    return PlanMaker(rng, with_resources).make()

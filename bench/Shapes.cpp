#include "bench/Shapes.h"

namespace bench {

using namespace planner;

namespace {

constexpr int kFan = 10; // parts of a product

/// A step that brings a product of its own.
Activity& bringing(PlanDraft& draft, Activity& parent, int number) {
    Activity& step = draft.step(parent, "S", number);
    step.firstAssigned.add(&draft.product("P", number));
    return step;
}

std::vector<Activity*> line(PlanDraft& draft, int size, Activity& (*make)(PlanDraft&, Activity&, int)) {
    std::vector<Activity*> steps;
    for (int number = 1; number <= size; ++number) {
        Activity& step = make(draft, draft.root(), number);
        if (!steps.empty()) {
            draft.link(*steps.back(), step);
        }
        steps.push_back(&step);
    }
    return steps;
}

Sample chain(int size) {
    PlanDraft draft;
    line(draft, size, bringing);
    return draft.finish();
}

/// Many flows of one step each, closed by one step.
Sample wide(int size) {
    PlanDraft draft;
    Activity& closing = draft.step(draft.root(), "end", 0);
    for (int number = 1; number <= size; ++number) {
        draft.link(bringing(draft, draft.root(), number), closing);
    }
    return draft.finish();
}

/// Two steps, with steps nested in each other below the second.
Sample nested(int size) {
    PlanDraft draft;
    Activity* above = line(draft, 2, bringing).back();
    for (int number = 3; number <= size; ++number) {
        above = &bringing(draft, *above, number);
    }
    return draft.finish();
}

/// A station that loads two products, welds them, and names three welds.
Activity& station(PlanDraft& draft, Activity& parent, int number) {
    Activity& station = draft.step(parent, "station", number);
    station.setKind(ActivityKind::Station);
    Activity& loading = draft.step(station, "load", number);
    loading.setKind(ActivityKind::Loading);
    Activity& welding = draft.step(station, "weld", number);
    draft.link(loading, welding);
    for (int part = 0; part < 2; ++part) {
        Product& product = draft.product("P", 2 * number + part);
        loading.firstAssigned.add(&product);
        welding.assigned.add(&product);
    }
    for (int spot = 0; spot < 3; ++spot) {
        Item& weld = draft.item(ItemKind::Fastener, "spot", 3 * number + spot);
        static_cast<Fastener&>(weld).type = "Spot Weld";
        station.items.add(&weld);
    }
    return station;
}

Sample stations(int size) {
    PlanDraft draft;
    line(draft, size / 5, station);
    return draft.finish();
}

/// A step that brings one product, made of products, each of so many others.
Sample structureOf(int size, int fan) {
    PlanDraft draft;
    std::vector<Product*> products;
    for (int number = 0; number < size; ++number) {
        products.push_back(&draft.product("P", number));
        if (number > 0) {
            products[(number - 1) / fan]->children.add(products.back());
        }
    }
    Activity& bringing = draft.step(draft.root(), "S", 1);
    bringing.firstAssigned.add(products.front());
    draft.link(bringing, draft.step(draft.root(), "S", 2));
    return draft.finish();
}

Sample structure(int size) {
    return structureOf(size, kFan);
}

Sample deepStructure(int size) {
    return structureOf(size, 1);
}

/// Each product is assigned, removed by the next step, and assigned again by the one after that.
Sample reuse(int size) {
    PlanDraft draft;
    const std::vector<Activity*> steps = line(draft, size, bringing);
    for (std::size_t index = 0; index + 2 < steps.size(); ++index) {
        ModelObject* const product = steps[index]->firstAssigned.entries().front();
        steps[index + 1]->removed.add(product);
        steps[index + 2]->firstAssigned.add(product);
    }
    return draft.finish();
}

/// A chain in which each step has a second link to one step, which leads nowhere or on to the end.
Sample forksTo(int size, bool isEnd) {
    PlanDraft draft;
    const std::vector<Activity*> steps = line(draft, size, bringing);
    Activity& other = isEnd ? *steps.back() : draft.step(draft.root(), "nowhere", 0);
    for (std::size_t index = 0; index + 2 < steps.size(); ++index) {
        draft.link(*steps[index], other);
    }
    return draft.finish();
}

Sample forks(int size) {
    return forksTo(size, false);
}

Sample join(int size) {
    return forksTo(size, true);
}

/// Sections in a row, each of which forks and joins: three steps, each bringing a product.
Sample sections(int size) {
    PlanDraft draft;
    Activity* before = &bringing(draft, draft.root(), 0);
    for (int number = 1; number + 2 <= size; number += 3) {
        Activity& left = bringing(draft, draft.root(), number);
        Activity& right = bringing(draft, draft.root(), number + 1);
        Activity& joined = bringing(draft, draft.root(), number + 2);
        for (Activity* side : {&left, &right}) {
            draft.link(*before, *side);
            draft.link(*side, joined);
        }
        before = &joined;
    }
    return draft.finish();
}

/// Sections through which a sub-assembly is put out, assigned, removed and assigned again; its parts were assigned
/// before.
Sample transfer(int size) {
    PlanDraft draft;
    Activity* before = &draft.step(draft.root(), "S", 0);
    for (int number = 1; number + 2 <= size; number += 3) {
        auto& assembly = static_cast<Assembly&>(draft.item(ItemKind::Assembly, "A", number));
        Product& part = draft.product("P", number);
        assembly.holds.add(&part);
        before->firstAssigned.add(&part);
        before->outputs.add(&assembly);
        Activity& left = draft.step(draft.root(), "S", number);
        Activity& right = draft.step(draft.root(), "S", number + 1);
        Activity& joined = draft.step(draft.root(), "S", number + 2);
        left.assigned.add(&assembly);
        right.removed.add(&assembly);
        joined.assigned.add(&assembly);
        for (Activity* side : {&left, &right}) {
            draft.link(*before, *side);
            draft.link(*side, joined);
        }
        before = &joined;
    }
    return draft.finish();
}

/// A line without lists, with a feeder into each of its steps; with a loop, its last step but one leads back to the
/// middle.
Sample feedersWith(int size, bool hasLoop) {
    PlanDraft draft;
    std::vector<Activity*> steps;
    for (int number = 1; number <= size; ++number) {
        Activity& step = draft.step(draft.root(), "L", number);
        if (!steps.empty()) {
            draft.link(*steps.back(), step);
        }
        draft.link(bringing(draft, draft.root(), number), step);
        steps.push_back(&step);
    }
    if (hasLoop) {
        draft.link(*steps[steps.size() - 2], *steps[steps.size() / 2]);
    }
    return draft.finish();
}

Sample feeders(int size) {
    return feedersWith(size, false);
}

Sample feedersWithLoop(int size) {
    return feedersWith(size, true);
}

/// Resources in a row, with a product assigned to the behaviour of each.
Sample resources(int size) {
    PlanDraft draft;
    Resource& cell = draft.resource(nullptr, "cell", 0);
    Resource* before = nullptr;
    for (int number = 1; number <= size; ++number) {
        Resource& robot = draft.resource(&cell, "R", number);
        robot.behaviour()->assigned.add(&draft.product("P", number));
        if (before) {
            draft.link(*before, robot);
        }
        before = &robot;
    }
    return draft.finish(&cell);
}

} // namespace

const std::vector<Shape>& shapes() {
    const std::vector<int> all{10'000, 100'000, 1'000'000};
    static const std::vector<Shape> shapes{
        {"chain", chain, all, true},
        {"wide", wide, all, true},
        {"nested", nested, all, true},
        {"stations", stations, all, true},
        {"structure", structure, all, false, true},
        {"deepstructure", deepStructure, all, false, true},
        {"reuse", reuse, all, true},
        {"forks", forks, all},
        {"join", join, {1'000, 10'000, 100'000}},
        {"sections", sections, {300, 3'000, 30'000}},
        {"transfer", transfer, {15, 24, 33}},
        {"feeders", feeders, {1'000, 10'000, 100'000}},
        {"feeders, loop", feedersWithLoop, {1'000, 10'000, 100'000}},
        {"resources", resources, all},
    };
    return shapes;
}

} // namespace bench

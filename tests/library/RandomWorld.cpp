#include "library/RandomWorld.h"

#include <algorithm>

namespace testmodel {

namespace {

class Maker {
public:
    Maker(World& world, std::mt19937& random) : world_(world), random_(random) {}

    Thing& make(Root kind) {
        makeItems();
        const int size = 2 + pick(random_, 7);
        Thing& root = kind == Root::Process ? step("S0") : resource("S0");
        for (int index = 1; index < size; ++index) {
            add(kind, "S" + std::to_string(index));
        }
        for (int count = pick(random_, size + 2); count > 0; --count) {
            World::link(*pickOne(random_, steps_), *pickOne(random_, steps_));
        }
        spoil();
        return root;
    }

private:
    bool chance(int percent) { return pick(random_, 100) < percent; }

    void makeItems() {
        const unsigned kinds[] = {kItem, kItem | kProduct, kItem | kProduct, kItem | kAssembly, kItem | kFastener};
        for (int index = 0; index < 6; ++index) {
            items_.push_back(&world_.thing("I" + std::to_string(index), pickOne(random_, kinds)));
        }
        for (Thing* item : items_) {
            item->assigned = chance(80) ? 1 : 0;
            item->parts = list(2);
            item->held = list(2);
        }
    }

    /// Up to so many items, or null.
    MaybeThings list(int most) {
        if (chance(10)) {
            return std::nullopt;
        }
        Things things;
        for (int count = pick(random_, most + 1); count > 0; --count) {
            things.push_back(pickOne(random_, items_));
        }
        return things;
    }

    Thing& step(const std::string& name) {
        const char* const types[] = {"BIWActivityLoading", "BIWActivityStation", "BIWActivityGrouping"};
        Thing& made = world_.thing(name, chance(90) ? kStep : kLogical);
        if (chance(50)) {
            made.modelTypes[pickOne(random_, types)] = chance(90) ? 1 : 2;
        }
        for (auto& [relation, items] : made.items) {
            items = list(2);
        }
        for (int count = pick(random_, 2); count > 0; --count) {
            world_.putOut(made, chance(90) ? pickOne(random_, items_) : nullptr);
        }
        steps_.push_back(&made);
        return made;
    }

    Thing& resource(const std::string& name) {
        Thing& made = world_.thing(name, kResource);
        Thing& behaviour = world_.behaviourOf(made);
        behaviour.assignedItems = list(3);
        behaviour.outputItems = list(2);
        made.nullLinks = chance(50);
        made.behaviourStatus = chance(90) ? QOR_OK : QOR_FAILED;
        steps_.push_back(&made);
        return made;
    }

    void add(Root kind, const std::string& name) {
        Thing& above = *pickOne(random_, steps_);
        Thing& made = kind == Root::Process || chance(50) ? step(name) : resource(name);
        const bool isResource = (above.answers & kManager) != 0;
        made.parent = isResource ? nullptr : &above;
        MaybeThings& below = !isResource ? above.children : chance(60) ? above.behaviour->activities : above.parts;
        if (!below) {
            below = Things();
        } else if (!below->empty() && chance(60)) {
            World::link(*below->back(), made);
        }
        below->push_back(&made);
    }

    /// Takes interfaces away, and shuffles a list, so that it isn't in the order of its links.
    void spoil() {
        for (Thing* thing : steps_) {
            if (chance(5)) {
                thing->answers &= ~(1U << pick(random_, 15));
            }
            if (thing->children && chance(20)) {
                std::shuffle(thing->children->begin(), thing->children->end(), random_);
            }
        }
    }

    World& world_;
    std::mt19937& random_;
    Things items_;
    Things steps_;
};

} // namespace

Thing& drawRandom(World& world, std::mt19937& random, Root kind) {
    return Maker(world, random).make(kind);
}

} // namespace testmodel

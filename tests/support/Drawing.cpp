#include "support/Drawing.h"

#include <cctype>

namespace testmodel {

namespace {

/// Reads one drawing from left to right.
class Reader {
public:
    Reader(World& world, std::string_view text) : world_(world), text_(text) {}

    Things steps(Thing* parent) {
        Things steps;
        bool linked = false;
        while (startsName()) {
            Thing& next = step(parent);
            if (linked) {
                World::link(*steps.back(), next);
            }
            steps.push_back(&next);
            linked = take('|');
            if (!linked && !take(',')) {
                break;
            }
        }
        return steps;
    }

    void furtherLinks() {
        while (take(';') || startsName()) {
            Thing& from = world_[name()];
            need('>');
            World::link(from, world_[name()]);
        }
        if (!atEnd()) {
            fail("nothing more");
        }
    }

private:
    Thing& item() {
        const std::string own = name();
        if (takeHere('(')) {
            return structure(own, kProduct | kItem, ')', &Thing::parts);
        }
        if (takeHere('[')) {
            return structure(own, kAssembly | kItem, ']', &Thing::held);
        }
        return world_.thing(own, kItem);
    }

    Thing& step(Thing* parent) {
        const std::string own = name();
        const std::string kind = take('@') ? name() : "";
        if (kind == "resource") {
            return resource(own);
        }
        Thing& made = world_.thing(own, kind == "logical" ? kLogical : kStep);
        made.parent = parent;
        made.type = kind.empty() ? "Activity" : kind;
        setModelType(made, kind);
        if (take(':')) {
            while (stepItem(made)) {
            }
        }
        if (take('{')) {
            made.children = steps(&made);
            need('}');
        }
        return made;
    }

    static void setModelType(Thing& made, std::string kind) {
        if (!kind.empty() && kind != "logical") {
            kind[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(kind[0])));
            made.modelTypes["BIWActivity" + kind] = 1;
        }
    }

    Thing& resource(const std::string& own) {
        Thing& made = world_.thing(own, kResource);
        Thing& behaviour = world_.behaviourOf(made);
        if (take(':')) {
            behaviour.assignedItems = Things();
            behaviour.outputItems = Things();
            while (resourceItem(behaviour)) {
            }
        }
        if (take('{')) {
            behaviour.activities = steps(nullptr);
            need('}');
        }
        if (take('(')) {
            made.parts = steps(nullptr);
            need(')');
        }
        return made;
    }

    bool stepItem(Thing& step) {
        static const std::map<char, int> relations{{'+', 2}, {'=', 1}, {'-', 4}};
        const char sign = peek();
        if (const auto relation = relations.find(sign); relation != relations.end()) {
            ++at_;
            Thing& taken = item();
            step.items[relation->second]->push_back(&taken);
            step.items[0]->push_back(&taken);
        } else if (take('>')) {
            world_.putOut(step, &item());
        } else if (sign == '*') {
            step.items[0]->push_back(&fastener());
        } else {
            return false;
        }
        return true;
    }

    bool resourceItem(Thing& behaviour) {
        if (take('+')) {
            behaviour.assignedItems->push_back(&item());
        } else if (take('>')) {
            behaviour.outputItems->push_back(&item());
        } else if (peek() == '*') {
            behaviour.assignedItems->push_back(&fastener());
        } else {
            return false;
        }
        return true;
    }

    Thing& fastener() {
        need('*');
        Thing& made = world_.thing(name(), kItem | kFastener);
        if (takeHere('{')) {
            made.processType = std::string(text_.substr(at_, text_.find('}', at_) - at_));
            at_ += made.processType.size();
            need('}');
        }
        made.assigned = takeHere('?') ? 0 : made.assigned;
        return made;
    }

    Thing& structure(const std::string& own, unsigned answers, char close, MaybeThings Thing::*list) {
        Thing& made = world_.thing(own, answers);
        made.answers |= answers;
        Things content;
        while (startsName()) {
            content.push_back(&item());
        }
        need(close);
        made.*list = content;
        return made;
    }

    char peek() {
        while (at_ < text_.size() && text_[at_] == ' ') {
            ++at_;
        }
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    bool atEnd() { return peek() == '\0'; }
    static bool isNameCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '.'; }
    bool startsName() { return isNameCharacter(peek()); }
    bool take(char wanted) { return peek() == wanted && ++at_ != 0; }
    bool takeHere(char wanted) { return at_ < text_.size() && text_[at_] == wanted && ++at_ != 0; }
    void need(char wanted) {
        if (!take(wanted)) {
            fail(std::string(1, wanted));
        }
    }
    std::string name() {
        if (!startsName()) {
            fail("a name");
        }
        const std::size_t begin = at_;
        while (at_ < text_.size() && isNameCharacter(text_[at_])) {
            ++at_;
        }
        return std::string(text_.substr(begin, at_ - begin));
    }
    [[noreturn]] void fail(const std::string& wanted) const {
        throw std::logic_error("drawing '" + std::string(text_) + "' at " + std::to_string(at_) + ": no " + wanted);
    }

    World& world_;
    std::string_view text_;
    std::size_t at_ = 0;
};

} // namespace

Thing& drawPlan(World& world, std::string_view drawing) {
    Thing& root = world.thing("R", kStep);
    Reader reader(world, drawing);
    root.children = reader.steps(&root);
    reader.furtherLinks();
    return root;
}

Thing& drawResource(World& world, std::string_view drawing) {
    Reader reader(world, drawing);
    Thing& root = *reader.steps(nullptr).at(0);
    reader.furtherLinks();
    return root;
}

} // namespace testmodel

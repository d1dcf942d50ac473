#include "PlanDrawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

namespace plandrawing {

using namespace planner;

namespace {

class Reader {
public:
    Reader(Plan& plan, std::string_view text) : plan_(plan), text_(text) {}

    void read() {
        Activity& root = plan_.newActivity();
        plan_.setId(root, "R");
        plan_.setProcess(root);
        steps(root);
        while (take(';') || startsName()) {
            auto& from = static_cast<FlowObject&>(*plan_.find(name()));
            take('>');
            plan_.addLink(from, static_cast<FlowObject&>(*plan_.find(name())));
        }
        EXPECT_EQ(at_, text_.size()) << text_.substr(at_);
        plan_.number();
    }

private:
    void steps(Activity& parent) {
        Activity* last = nullptr;
        bool isLinked = false;
        while (startsName()) {
            Activity& next = step();
            parent.children.add(&next);
            isLinked ? plan_.addLink(*last, next) : void();
            last = &next;
            isLinked = take('|');
            isLinked ? void() : void(take(','));
        }
    }

    Activity& step() {
        Activity& made = plan_.newActivity();
        plan_.setId(made, name());
        if (take('@')) {
            const auto word = std::find(kActivityKinds.begin(), kActivityKinds.end(), name());
            made.setKind(static_cast<ActivityKind>(word - kActivityKinds.begin()));
        }
        if (take(':')) {
            while (ObjectList* const list = nextList(made)) {
                list->add(&item());
            }
        }
        if (take('{')) {
            steps(made);
            take('}');
        }
        return made;
    }

    ObjectList* nextList(Activity& step) {
        static ObjectList nowhere;
        return take('+')   ? &step.firstAssigned
               : take('=') ? &step.assigned
               : take('-') ? &step.removed
               : take('>') ? &step.outputs
               : take('*') ? &step.items
               : take('.') ? &nowhere
                           : nullptr;
    }

    Item& item() {
        Item& known = itemNamed(name());
        if (takeHere('(')) {
            parts(dynamic_cast<Product&>(known).children, ')');
        } else if (takeHere('[')) {
            parts(dynamic_cast<Assembly&>(known).holds, ']');
        }
        while (takeHere('<')) {
            dynamic_cast<Fastener&>(known).joins.add(&itemNamed(name()));
        }
        return known;
    }

    Item& itemNamed(const std::string& id) {
        const bool isAssembly = text_.substr(at_, 1) == "[";
        if (!plan_.find(id)) {
            const bool isFastener = std::islower(static_cast<unsigned char>(id[0])) != 0;
            Item& made = plan_.newItem(isFastener   ? ItemKind::Fastener
                                       : isAssembly ? ItemKind::Assembly
                                                    : ItemKind::Product);
            plan_.setId(made, id);
            plan_.items.add(&made);
            if (auto* const fastener = dynamic_cast<Fastener*>(&made)) {
                fastener->type = takeHere('{') ? typeName() : "Rivet";
            }
        }
        return static_cast<Item&>(*plan_.find(id));
    }

    void parts(ObjectList& list, char end) {
        while (!take(end)) {
            list.add(&item());
        }
    }

    std::string typeName() {
        const std::size_t end = text_.find('}', at_);
        std::string type(text_.substr(at_, end - at_));
        at_ = end + 1;
        return type;
    }

    static bool isLetter(char letter) { return std::isalnum(static_cast<unsigned char>(letter)) != 0; }

    void skipBlanks() { at_ = std::min(text_.find_first_not_of(' ', at_), text_.size()); }

    bool startsName() {
        skipBlanks();
        return at_ < text_.size() && isLetter(text_[at_]);
    }

    bool takeHere(char letter) {
        const bool isThere = at_ < text_.size() && text_[at_] == letter;
        at_ += isThere ? 1 : 0;
        return isThere;
    }

    bool take(char letter) {
        skipBlanks();
        return takeHere(letter);
    }

    std::string name() {
        skipBlanks();
        const std::size_t start = at_;
        while (at_ < text_.size() && isLetter(text_[at_])) {
            ++at_;
        }
        EXPECT_LT(start, at_) << "a name at " << text_.substr(start);
        return std::string(text_.substr(start, at_ - start));
    }

    Plan& plan_;
    std::string_view text_;
    std::size_t at_ = 0;
};

} // namespace

std::unique_ptr<Plan> draw(std::string_view drawing) {
    auto plan = std::make_unique<Plan>();
    Reader(*plan, drawing).read();
    return plan;
}

} // namespace plandrawing

#include "bench/PlanDraft.h"

namespace bench {

using namespace planner;

PlanDraft::PlanDraft() {
    Activity& process = plan().newActivity();
    name(process, "process", 0);
    process.children.make();
    plan().setProcess(process);
}

void PlanDraft::name(ModelObject& object, const char* prefix, int number) {
    plan().setId(object, prefix + std::to_string(number));
}

Activity& PlanDraft::step(Activity& parent, const char* prefix, int number) {
    Activity& made = plan().newActivity();
    name(made, prefix, number);
    parent.children.add(&made);
    return made;
}

Item& PlanDraft::item(ItemKind kind, const char* prefix, int number) {
    Item& made = plan().newItem(kind);
    name(made, prefix, number);
    plan().items.add(&made);
    return made;
}

Product& PlanDraft::product(const char* prefix, int number) {
    return static_cast<Product&>(item(ItemKind::Product, prefix, number));
}

Resource& PlanDraft::resource(Resource* parent, const char* prefix, int number) {
    Resource& made = plan().newResource();
    name(made, prefix, number);
    made.setBehaviour(&plan().newBehaviour());
    if (parent) {
        parent->children.add(&made);
    } else {
        plan().resources.add(&made);
    }
    return made;
}

Sample PlanDraft::finish(ModelObject* root) {
    plan().number();
    sample_.root = root ? root : plan().process();
    return std::move(sample_);
}

} // namespace bench

#include "planner/file/PlanBuilder.h"

#include "planner/file/JsonText.h"
#include "planner/file/SourceText.h"
#include "planner/model/Contents.h"

#include <algorithm>

namespace planner {

namespace {

Activity& activityOf(ModelObject* object) {
    return static_cast<Activity&>(*object);
}
Resource& resourceOf(ModelObject* object) {
    return static_cast<Resource&>(*object);
}

} // namespace

ModelObject* PlanBuilder::begin(Value object, ModelObject* container) {
    switch (object) {
    case Value::Item:
        item_.clear();
        return nullptr;
    case Value::Shape:
        shape_ = ShapeDraft();
        return nullptr;
    case Value::Process:
        plan_.setProcess(plan_.newActivity());
        return plan_.process();
    case Value::Activity: {
        Activity& activity = plan_.newActivity();
        activitiesIn(*container)->add(&activity);
        activity.setParent(container->sort() == Sort::Activity ? &activityOf(container) : nullptr);
        return &activity;
    }
    case Value::Resource:
        plan_.resources.add(&plan_.newResource());
        return plan_.resources.entries().back();
    case Value::ResourceChild:
        resourceOf(container).children.add(&plan_.newResource());
        return resourceOf(container).children.entries().back();
    case Value::Behaviour:
        resourceOf(container).setBehaviour(&plan_.newBehaviour());
        return resourceOf(container).behaviour();
    default:
        return nullptr;
    }
}

void PlanBuilder::end(Value object, std::size_t offset) {
    if (object == Value::Item) {
        item_.make(plan_, references_, faults_);
    } else if (object == Value::Shape) {
        item_.setShape(shape_.take(offset, faults_));
    }
}

void PlanBuilder::key(Value object, Key key, std::size_t offset) {
    if (object == Value::Item) {
        item_.keySeen(key, offset);
    } else if (object == Value::Shape) {
        shape_.keySeen(key, offset, faults_);
    }
}

void PlanBuilder::beginList(Value list, ModelObject* owner) {
    if (list == Value::Items) {
        plan_.items.make();
    } else if (list == Value::Resources) {
        plan_.resources.make();
    } else if (list == Value::Links) {
        plan_.makeLinks();
    } else if (list == Value::Activities) {
        activitiesIn(*owner)->make();
    } else if (list == Value::ResourceChildren) {
        resourceOf(owner).children.make();
    }
}

void PlanBuilder::checkText(std::string_view value, std::size_t offset) {
    if (holdsControlCharacter(value)) {
        faults_.addValue(offset, "the text " + inQuotes(value) + kControlCharacterText);
    }
}

void PlanBuilder::text(const ValuePlace& place, std::string value) {
    checkText(value, place.offset);
    if (place.key == Key::Id && value.empty()) {
        faults_.addValue(place.offset, "an empty id; expected a text of one character or more");
    } else if (place.object == Value::Document) {
        plan_.ownTitle = std::move(value);
    } else if (place.object == Value::Item) {
        item_.text(place.key, std::move(value), place.offset);
    } else if (place.object == Value::Shape) {
        shape_.text(place.key, std::move(value), place.offset, faults_);
    } else if (place.key == Key::Id) {
        giveId(plan_, *place.owner, value, place.offset, faults_);
    } else if (place.key == Key::Name) {
        place.owner->setName(std::move(value));
    } else if (place.key == Key::Type) {
        activityOf(place.owner).setType(std::move(value));
    } else {
        activityKind(activityOf(place.owner), place, value);
    }
}

void PlanBuilder::activityKind(Activity& activity, const ValuePlace& place, const std::string& word) {
    const bool isRoot = place.object == Value::Process;
    const auto known = std::find(kActivityKinds.begin(), kActivityKinds.end(), word);
    const auto kind = static_cast<ActivityKind>(known - kActivityKinds.begin());
    const auto expected = [isRoot] {
        return "; expected " + alternatives({kActivityKinds.begin(), kActivityKinds.end() - isRoot});
    };
    if (known == kActivityKinds.end()) {
        faults_.addValue(place.offset, "unknown kind of activity " + inQuotes(word) + expected());
    } else if (isRoot && kind == ActivityKind::Logical) {
        faults_.addValue(place.offset, "the root of the process is " + inQuotes(word) + expected());
    } else {
        activity.setKind(kind);
    }
}

void PlanBuilder::ids(const ValuePlace& place, const std::vector<std::size_t>& offsets) {
    if (place.object == Value::Item) {
        item_.ids(place.key, offsets);
    } else {
        references_.add(*place.owner, relationOf(place.key), offsets);
    }
}

void PlanBuilder::numbers(const ValuePlace& place, std::vector<double> values) {
    if (place.object == Value::Shape) {
        shape_.numbers(place.key, std::move(values), place.offset, faults_);
    } else {
        if (const auto fault = placeFault(values)) {
            faults_.addValue(place.offset, *fault);
        }
        item_.setPlace(Place{std::move(values)});
    }
}

void PlanBuilder::notes(const ValuePlace& place, std::string json) {
    if (place.object == Value::Document) {
        plan_.notes = std::move(json);
    } else if (place.object == Value::Item) {
        item_.setNotes(std::move(json));
    } else if (place.object == Value::Shape) {
        shape_.setNotes(std::move(json));
    } else {
        place.owner->setNotes(std::move(json));
    }
}

void PlanBuilder::resourceChild(ModelObject& owner, std::size_t offset) {
    references_.add(owner, Relation::Children, {offset});
}

void PlanBuilder::finish(std::string_view text) {
    if (!plan_.process()) {
        plan_.makeDefaultProcess();
    }
    references_.resolve(text, plan_, faults_);
    if (faults_.empty()) {
        plan_.number();
    }
}

} // namespace planner

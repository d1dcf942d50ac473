#include "planner/edit/EditSession.h"

#include "planner/PlanText.h"
#include "support/BomText.h"

#include "QORPlatform/notification/QORSPPActivityNotification.h"
#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <gtest/gtest.h>

namespace editing {

const char* const kWorld = R"({"version": 1,
  "items": [
    {"id": "part", "kind": "product"},
    {"id": "panel", "kind": "product", "name": "Panel", "children": ["part", "part"]},
    {"id": "frame", "kind": "assembly", "name": "Frame", "holds": ["part", "panel", "part"]},
    {"id": "cell", "kind": "assembly", "children": ["panel"]},
    {"id": "weld", "kind": "fastener", "type": "Spot Weld", "joins": ["part"]},
    {"id": "jig", "kind": "item", "shape": {"box": [1, 2, 3]}, "place": [4, 5, 6]},
    {"id": "kit", "kind": "product", "children": ["gripper", "part", "gripper"]}],
  "process": {"id": "line", "children": [
    {"id": "load", "kind": "loading", "first_assigned": ["part", "jig", "part"], "items": ["weld"]},
    {"id": "join", "name": "Join", "first_assigned": ["panel"], "removed": [], "outputs": ["frame"], "children": [
      {"id": "hold"}, {"id": "press", "assigned": ["part"]}]},
    {"id": "check", "children": []}]},
  "resources": [
    {"id": "robot", "children": ["panel", {"id": "gripper"}, "cell"],
     "behaviour": {"id": "moves", "activities": [{"id": "pick"}, {"id": "drop"}], "assigned": ["part"]}},
    {"id": "table"}],
  "links": [["load", "join"], ["hold", "press"], ["join", "check"], ["load", "join"], ["moves", "load"],
            ["robot", "gripper"], ["load", "check"]]})";

std::string billUnder(QORBaseUnknown& root) {
    return testmodel::bomText(VXMMakeBomGenerator(QORBaseUnknown_var(&root))->GetBom(0));
}

std::string billsOf(const planner::Plan& plan) {
    std::string text = billUnder(*plan.process());
    for (planner::Resource* resource : plan.resources) {
        text += "; " + billUnder(*resource);
    }
    return text;
}

Listener::Listener(QOREventSubscriber& publisher) {
    AddCallback(this, &publisher, QORSPPActivityNotificationDispatcher::DISPATCHER_SPP_VIEWS_CHANGE(), &Listener::heard,
                nullptr);
}

std::string Listener::take() {
    return std::exchange(kinds_, "");
}

void Listener::heard(const char*, void*, QORNotification* notification, void*, long) {
    const int kind = dynamic_cast<QORSPPActivityNotification&>(*notification).GetNotificationKind();
    kinds_ += (kinds_.empty() ? "" : " ") + std::to_string(kind);
    if (react) {
        react(kind);
    }
}

Session::Session(const std::string& text)
    : document_(QORVar<planner::PlanDocument>::Adopt(new planner::PlanDocument(plantext::read(text)))),
      editor_(std::make_unique<planner::PlanEditor>(*document_.Get())),
      listener_(QORVar<Listener>::Adopt(new Listener(*plan().process()->GetEventPublisher()))) {}

std::string Session::text() {
    return plantext::written(plan());
}

void Session::expectGoodFile() {
    const std::string now = text();
    const auto reread = plantext::read(now);
    ASSERT_TRUE(reread) << now;
    EXPECT_EQ(plantext::written(*reread), now);
}

} // namespace editing

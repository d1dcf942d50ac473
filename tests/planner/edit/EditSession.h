#pragma once

#include "planner/edit/PlanEditor.h"

#include "QORPlatform/notification/QOREventSubscriber.h"

#include <functional>
#include <string>
#include <vector>

/// A plan that a test edits, with somebody who hears what its views are told.
namespace editing {

/// A plan with an object of every sort; what its parts are called says what they are.
extern const char* const kWorld;

/// Bills of a plan by names: that of the process, then that of each resource at the top.
std::string billsOf(const planner::Plan& plan);

/// The bill under one object.
std::string billUnder(QORBaseUnknown& root);

/// Hears the kinds of change that a plan publishes.
class Listener : public QOREventSubscriber {
public:
    explicit Listener(QOREventSubscriber& publisher);

    /// What happens when it hears of a kind, besides being written down.
    std::function<void(int)> react;

    /// Kinds since the last call: "3 18".
    std::string take();

private:
    void heard(const char* event, void* publisher, QORNotification* notification, void* data, long handle);

    std::string kinds_;
};

class Session {
public:
    explicit Session(const std::string& text);

    planner::PlanDocument& document() { return *document_.Get(); }
    planner::Plan& plan() { return document_->plan(); }
    planner::PlanEditor& editor() { return *editor_; }
    void endEditor() { editor_.reset(); }

    /// The plan's file as it would be written now.
    std::string text();

    /// Whether that text is a plan file, which gives the same text when it is written again.
    void expectGoodFile();

    Listener& listener() { return *listener_.Get(); }

    // Objects by id, of the sort that the id has.
    planner::ModelObject& object(const std::string& id) { return editor_->object(id); }
    planner::Activity& activity(const std::string& id) { return as<planner::Activity>(id); }
    planner::FlowObject& flow(const std::string& id) { return as<planner::FlowObject>(id); }
    planner::Resource& resource(const std::string& id) { return as<planner::Resource>(id); }
    planner::Item& item(const std::string& id) { return as<planner::Item>(id); }
    planner::Fastener& fastener(const std::string& id) { return as<planner::Fastener>(id); }

private:
    template <class T>
    T& as(const std::string& id) {
        return dynamic_cast<T&>(object(id));
    }

    QORVar<planner::PlanDocument> document_;
    std::unique_ptr<planner::PlanEditor> editor_;
    QORVar<Listener> listener_;
};

} // namespace editing

// A model of one's own: a chain of steps with parts.
//
// A model object derives from QORBaseUnknown, holds one forwarder per interface that it answers, and names them in
// QueryInterface. That is all that the library needs to know of it.
#pragma once

#include <QORPlatform/collections/QORListValQORBaseUnknown_var.h>
#include <VXMBomInfrastructure/model/QORISPPAbstractActivity.h>
#include <VXMBomInfrastructure/model/QORISPPActivity.h>
#include <VXMBomInfrastructure/model/QORISPPChildManagement.h>
#include <VXMBomInfrastructure/model/QORISPPFlowMgt.h>
#include <VXMBomInfrastructure/model/QORISPPItem.h>
#include <VXMBomInfrastructure/model/QORISPPItemMgt.h>
#include <VXMBomInfrastructure/model/QORISpecObject.h>

#include <vector>

namespace line {

using List = QORListValQORBaseUnknown_var;

class Part : public QORBaseUnknown {
public:
    explicit Part(const char* name) : name_(name) {}
    QORStatus QueryInterface(const QORInterfaceID& id, void** found) override { return QORAnswer(id, found, item_); }
    QORUnicodeString GetName() { return name_; }

private:
    QORUnicodeString name_;
    QORISPPItemTie<Part> item_{this};
};

class Step : public QORBaseUnknown {
public:
    explicit Step(const char* name) : name_(name) {}
    QORStatus QueryInterface(const QORInterfaceID& id, void** found) override {
        return QORAnswer(id, found, activity_, abstractActivity_, typed_, children_, flow_, items_);
    }

    std::vector<Step*> children;
    Step* parent = nullptr;
    Step* before = nullptr;
    Step* after = nullptr;
    std::vector<QORBaseUnknown*> comingIn;
    std::vector<QORBaseUnknown*> takenOut;

    /// Appends a step to those below this one, behind the last.
    void append(Step& step) {
        step.parent = this;
        if (!children.empty()) {
            step.before = children.back();
            children.back()->after = &step;
        }
        children.push_back(&step);
    }

    QORUnicodeString GetName() { return name_; }
    QORISPPAbstractActivity_var GetParent() { return {parent}; }
    QORStatus GetType(QORUnicodeString& type) {
        type = "Step";
        return QOR_OK;
    }
    unsigned char IsOfType(const QORUnicodeString&) { return 0; }
    List* GetChildren(const QORUnicodeString&) { return listOf(children); }
    List GetPredecessors(const QORUnicodeString&) { return listOf(before); }
    List GetSuccessors(const QORUnicodeString&) { return listOf(after); }
    List GetProductOutputs(const QORISPPItem_var&) { return {}; }
    List* GetItems(const QORUnicodeString&, int relation) {
        constexpr int firstAssigned = 2;
        constexpr int removed = 4;
        return relation == firstAssigned ? listOf(comingIn) : relation == removed ? listOf(takenOut) : nullptr;
    }

private:
    template <class T>
    static List* listOf(const std::vector<T*>& objects) {
        auto* const list = new List();
        for (T* object : objects) {
            list->Append(QORBaseUnknown_var(object));
        }
        return list;
    }
    static List listOf(Step* step) {
        List list;
        if (step) {
            list.Append(QORBaseUnknown_var(step));
        }
        return list;
    }

    QORUnicodeString name_;
    QORISPPActivityTie<Step> activity_{this};
    QORISPPAbstractActivityTie<Step> abstractActivity_{this};
    QORISpecObjectTie<Step> typed_{this};
    QORISPPChildManagementTie<Step> children_{this};
    QORISPPFlowMgtTie<Step> flow_{this};
    QORISPPItemMgtTie<Step> items_{this};
};

} // namespace line

// The library over a model of one's own: a chain of steps with parts, and the bill that comes of it.
//
// A model object derives from QORBaseUnknown, holds one forwarder per interface that it answers, and names them in
// QueryInterface. That is all that the generator needs to know of it.

#include <QORPlatform/collections/QORListValQORBaseUnknown_var.h>
#include <QORPlatform/dom/DOM_Document.h>
#include <VXMBomInfrastructure/generation/StrX.h>
#include <VXMBomInfrastructure/model/QORISPPAbstractActivity.h>
#include <VXMBomInfrastructure/model/QORISPPActivity.h>
#include <VXMBomInfrastructure/model/QORISPPChildManagement.h>
#include <VXMBomInfrastructure/model/QORISPPFlowMgt.h>
#include <VXMBomInfrastructure/model/QORISPPItem.h>
#include <VXMBomInfrastructure/model/QORISPPItemMgt.h>
#include <VXMBomInfrastructure/model/QORISpecObject.h>
#include <VXMBomInfrastructure/process/VXMProcessBomGenerator.h>

#include <iostream>
#include <string>
#include <vector>

namespace {

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
    std::vector<Part*> comingIn;
    std::vector<Part*> takenOut;

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

void print(const DOM_Node& element, int depth) {
    for (DOM_Node child = element.getFirstChild(); !child.isNull(); child = child.getNextSibling()) {
        std::cout << std::string(2 * depth, ' ') << StrX(DOM_Element(child).getAttribute("DisplayName")) << '\n';
        print(child, depth + 1);
    }
}

} // namespace

int main() {
    Part panel("Outer panel");
    Part hinge("Hinge");
    Part jig("Welding jig");
    Step line("Door line");
    Step load("Load");
    Step weld("Weld");
    line.children = {&load, &weld};
    load.parent = weld.parent = &line;
    load.after = &weld;
    weld.before = &load;
    load.comingIn = {&panel, &jig};
    weld.comingIn = {&hinge};
    weld.takenOut = {&jig};

    VXMProcessBomGenerator generator{QORBaseUnknown_var(&line)};
    const DOM_Document bill = generator.GetBom(0);
    print(bill.getDocumentElement(), 0);
}

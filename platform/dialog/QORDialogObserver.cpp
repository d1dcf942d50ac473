#include "QORPlatform/dialog/QORDialogObserver.h"

#include <vector>

namespace {

/// Never destroyed: the last dialog objects may end with the process.
std::vector<QORDialogObserver*>& Observers() {
    static auto* const observers = new std::vector<QORDialogObserver*>();
    return *observers;
}

} // namespace

QORDialogObserver::QORDialogObserver() {
    Observers().push_back(this);
}

QORDialogObserver::~QORDialogObserver() {
    std::erase(Observers(), this);
}

void QORDialogObserver::TellAll(QORDialogStep iStep, const QORCommand& iObject, const QORCommand* iOther) {
    for (QORDialogObserver* observer : Observers()) {
        observer->Happened(iStep, iObject, iOther);
    }
}

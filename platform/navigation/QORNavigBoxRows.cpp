// The tree box and the rows that are known of its tree: what stands behind an instance, the way down to a row, and the
// refill, over which rows keep what a person has done to them.

#include "QORPlatform/navigation/QORNavigMemory.h"

#include <algorithm>
#include <exception>

QORNavigRows::Row QORNavigBox::GetRow(const QORNavigInstance& iInstance) const {
    if (!_rows || !Holds(iInstance)) {
        return QORNavigRows::kNone;
    }
    std::vector<int> ordinals;
    for (const QORNavigInstance* instance = &iInstance; instance; instance = instance->GetParent()) {
        ordinals.push_back(instance->GetOrdinal());
    }
    QORNavigRows::Row row = _rows->GetRoot(ordinals.back());
    for (auto ordinal = std::next(ordinals.rbegin()); ordinal != ordinals.rend() && row != QORNavigRows::kNone;
         ++ordinal) {
        row = _rows->GetChild(row, *ordinal);
    }
    return row;
}

/// The ordinals on the way from the root down to a row.
std::vector<int> QORNavigBox::OrdinalsTo(QORNavigRows::Row iRow) const {
    std::vector<int> ordinals;
    for (QORNavigRows::Row row = _rows ? iRow : QORNavigRows::kNone; row != QORNavigRows::kNone;
         row = _rows->GetParent(row)) {
        ordinals.push_back(_rows->GetPosition(row));
    }
    std::reverse(ordinals.begin(), ordinals.end());
    return ordinals;
}

QORNavigInstance* QORNavigBox::FindRoot(int iOrdinal) const {
    const auto place = std::find_if(_roots.begin(), _roots.end(), [iOrdinal](const QORVar<QORNavigInstance>& iRoot) {
        return iRoot->GetOrdinal() == iOrdinal;
    });
    return place == _roots.end() ? nullptr : place->Get();
}

QORNavigInstance* QORNavigBox::GetInstance(QORNavigRows::Row iRow) const {
    QORNavigInstance* instance = nullptr;
    for (const int ordinal : OrdinalsTo(iRow)) {
        instance = instance ? instance->FindChild(ordinal) : FindRoot(ordinal);
        if (!instance) {
            return nullptr;
        }
    }
    return instance;
}

QORBaseUnknown_var QORNavigBox::GetObject(const QORNavigInstance& iInstance) const {
    const QORNavigRows::Row row = GetRow(iInstance);
    if (_rows) {
        return row == QORNavigRows::kNone ? QORBaseUnknown_var() : _rows->GetObject(row);
    }
    return iInstance.GetTreeObject();
}

/// The child of an ordinal, or the root of that one below null; made now if it wasn't. Null where there is none.
QORVar<QORNavigInstance> QORNavigBox::MakeChild(QORNavigInstance* iParent, int iOrdinal) {
    if (!iParent) {
        return FindRoot(iOrdinal);
    }
    if (!iParent->Fill()) {
        return nullptr;
    }
    QORNavigInstance* child = iParent->FindChild(iOrdinal);
    while (!child && iParent->_triedUpTo < iOrdinal && iParent->Fetch(iOrdinal - iParent->_triedUpTo) > 0) {
        child = iParent->FindChild(iOrdinal);
    }
    return child;
}

QORNavigInstance* QORNavigBox::Reveal(QORNavigRows::Row iRow) {
    const QORWatch<QORNavigBox> self(this);
    QORVar<QORNavigInstance> instance;
    for (const int ordinal : OrdinalsTo(iRow)) {
        if (instance && instance->Expand() < 0) {
            return nullptr;
        }
        instance = self.Get() ? MakeChild(instance.Get(), ordinal) : nullptr;
        if (!instance) {
            return nullptr;
        }
    }
    if (instance && self.Get() && _peer) {
        _peer->ScrollTo(*instance.Get(), QORNavigBoxPeer::InView);
    }
    return instance.Get();
}

void QORNavigBox::BeginRefill() {
    if (_refills == 0) {
        _memory = std::make_unique<QORNavigMemory>(*this);
        if (_peer) {
            _peer->RefillBegins();
        }
    }
    ++_refills;
}

void QORNavigBox::EndRefill() {
    if (_refills != 1) {
        _refills = std::max(_refills - 1, 0);
        return;
    }
    const QORWatch<QORNavigBox> self(this);
    const auto memory = std::move(_memory);
    QORVar<QORNavigInstance> top;
    std::exception_ptr raised;
    try {
        top = memory->Restore(*this);
    } catch (...) {
        raised = std::current_exception();
    }
    if (self.Get()) {
        _refills = 0;
        if (_peer) {
            _peer->RefillEnds();
        }
        if (_peer && top) {
            _peer->ScrollTo(*top.Get(), QORNavigBoxPeer::AtTop);
        }
        TellSelection();
    }
    if (raised) {
        std::rethrow_exception(raised);
    }
}

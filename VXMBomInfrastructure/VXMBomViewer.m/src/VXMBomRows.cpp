#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMBomRows.h"

#include "QORPlatform/dom/DOM_Element.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <tuple>

void VXMBomRows::Enter(Row iParent) {
    _parents.push_back(iParent);
    _behind.push_back(nullptr);
}

/// Goes through the document once: a row where an element begins, its object where it ends.
void VXMBomRows::Read() {
    if (!_parents.empty()) {
        return;
    }
    int ended = 0;
    Row open = 0; // row of the innermost element that hasn't ended
    DOM_Node node = _document.getDocumentElement();
    Enter(kNone);
    while (true) {
        DOM_Node next = node.getFirstChild();
        while (next.isNull() && open != 0) {
            _behind[open] = _objects[++ended].Impl();
            open = _parents[open];
            next = node.getNextSibling();
            if (next.isNull()) {
                node = node.getParentNode();
            }
        }
        if (next.isNull()) {
            break;
        }
        Enter(open);
        open = static_cast<Row>(_parents.size()) - 1;
        node = next;
    }
    ListChildren();
    SortByObject();
}

void VXMBomRows::ListChildren() {
    const std::size_t count = _parents.size();
    _first.assign(count + 1, 0);
    for (std::size_t row = 1; row < count; ++row) {
        ++_first[_parents[row] + 1];
    }
    std::partial_sum(_first.begin(), _first.end(), _first.begin());
    std::vector<int> next(_first);
    _children.resize(count - 1);
    _positions.assign(count, 1);
    for (std::size_t row = 1; row < count; ++row) {
        const Row parent = _parents[row];
        _children[next[parent]++] = static_cast<Row>(row);
        _positions[row] = next[parent] - _first[parent];
    }
}

void VXMBomRows::SortByObject() {
    _byObject.resize(_parents.size());
    std::iota(_byObject.begin(), _byObject.end(), 0);
    std::sort(_byObject.begin(), _byObject.end(), [this](Row iLeft, Row iRight) {
        if (_behind[iLeft] != _behind[iRight]) {
            return std::less<>()(_behind[iLeft], _behind[iRight]);
        }
        return std::tie(_parents[iLeft], iLeft) < std::tie(_parents[iRight], iRight);
    });
}

bool VXMBomRows::Has(Row iRow) {
    Read();
    return iRow >= 0 && iRow < static_cast<Row>(_parents.size());
}

QORNavigRows::Row VXMBomRows::GetRoot(int iPosition) {
    return iPosition == 1 ? 0 : kNone;
}

QORNavigRows::Row VXMBomRows::GetChild(Row iParent, int iPosition) {
    const bool is = Has(iParent) && iPosition >= 1 && iPosition <= _first[iParent + 1] - _first[iParent];
    return is ? _children[_first[iParent] + iPosition - 1] : kNone;
}

QORNavigRows::Row VXMBomRows::GetParent(Row iRow) {
    return Has(iRow) ? _parents[iRow] : kNone;
}

int VXMBomRows::GetPosition(Row iRow) {
    return Has(iRow) ? _positions[iRow] : 0;
}

QORBaseUnknown_var VXMBomRows::GetObject(Row iRow) {
    return Has(iRow) ? QORBaseUnknown_var(_behind[iRow]) : QORBaseUnknown_var();
}

/// Where a row stands in the order by object, or would; without a row where those below the parent begin.
VXMBomRows::Rows::const_iterator VXMBomRows::FirstAtOrAfter(const QORBaseUnknown* iObject, Row iParent,
                                                            Row iRow) const {
    return std::partition_point(_byObject.begin(), _byObject.end(), [&](Row iEach) {
        if (_behind[iEach] != iObject) {
            return std::less<>()(_behind[iEach], iObject);
        }
        return std::tie(_parents[iEach], iEach) < std::tie(iParent, iRow);
    });
}

int VXMBomRows::GetPlace(Row iRow) {
    if (!Has(iRow)) {
        return 0;
    }
    const Row parent = _parents[iRow];
    const auto first = FirstAtOrAfter(_behind[iRow], parent);
    return static_cast<int>(FirstAtOrAfter(_behind[iRow], parent, iRow) - first) + 1;
}

QORNavigRows::Row VXMBomRows::FindChild(Row iParent, QORBaseUnknown* iObject, int iPlace) {
    Read();
    const QORBaseUnknown* const object = iObject ? iObject->GetImpl(0) : nullptr;
    const auto first = FirstAtOrAfter(object, iParent);
    if (iPlace < 1 || iPlace > _byObject.cend() - first) {
        return kNone;
    }
    const Row row = first[iPlace - 1];
    return _behind[row] == object && _parents[row] == iParent ? row : kNone;
}

std::vector<QORNavigRows::Row> VXMBomRows::FindRows(QORBaseUnknown* iObject) {
    Read();
    const QORBaseUnknown* const object = iObject ? iObject->GetImpl(0) : nullptr;
    const auto first = FirstAtOrAfter(object, kNone);
    const auto last = std::find_if(first, _byObject.cend(), [&](Row iRow) { return _behind[iRow] != object; });
    Rows rows(first, last);
    std::sort(rows.begin(), rows.end());
    return rows;
}

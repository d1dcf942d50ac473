#include "QORPlatform/navigation/QORNavigMemory.h"

struct QORNavigMemory::Made {
    QORNavigInstance* instance;
    int parent;            // in the same list, -1 for a root
    bool isNeeded = false; // itself or something below it is to be remembered
    int entry = -1;
    QORNavigRows::Row row = QORNavigRows::kNone;
};

struct QORNavigMemory::Found {
    QORVar<QORNavigInstance> instance;
    QORNavigRows::Row row = QORNavigRows::kNone;
};

/// What was made, each row behind the one above it.
std::vector<QORNavigMemory::Made> QORNavigMemory::MadeRows(const QORNavigBox& iBox, const QORNavigInstance* iTop) {
    std::vector<Made> made;
    for (int position = 1; position <= iBox.GetRootCount(); ++position) {
        made.push_back({iBox.GetRoot(position), -1});
    }
    for (std::size_t i = 0; i < made.size(); ++i) {
        const QORNavigInstance& instance = *made[i].instance;
        made[i].isNeeded = instance.IsExpanded() || instance.IsSelected() || instance.IsMarked() || &instance == iTop;
        for (int position = 1; position <= instance.GetChildCount(); ++position) {
            made.push_back({instance.GetChild(position), static_cast<int>(i)});
        }
    }
    for (auto row = made.rbegin(); row != made.rend(); ++row) {
        if (row->isNeeded && row->parent >= 0) {
            made[row->parent].isNeeded = true;
        }
    }
    return made;
}

QORNavigMemory::QORNavigMemory(const QORNavigBox& iBox) {
    QORNavigRows* const rows = iBox.GetRows();
    if (!rows) {
        return;
    }
    const bool isAnchored = iBox.GetGraphViewer() && iBox.GetGraphViewer()->isAnchoredViewpoint();
    const QORNavigInstance* const top = isAnchored && iBox.GetPeer() ? iBox.GetPeer()->GetTopRow() : nullptr;
    std::vector<Made> made = MadeRows(iBox, top);
    for (Made& each : made) {
        if (!each.isNeeded) {
            continue;
        }
        const Made* const above = each.parent < 0 ? nullptr : &made[each.parent];
        const QORNavigInstance& instance = *each.instance;
        each.row = above ? rows->GetChild(above->row, instance.GetOrdinal()) : rows->GetRoot(instance.GetOrdinal());
        each.entry = static_cast<int>(_entries.size());
        _entries.push_back({above ? above->entry : -1, rows->GetObject(each.row), rows->GetPlace(each.row),
                            instance.IsExpanded(), instance.IsSelected(), instance.IsMarked(), &instance == top});
    }
}

QORNavigMemory::Found QORNavigMemory::FindNow(QORNavigBox& ioBox, const Entry& iEntry, const Found& iAbove) {
    QORNavigRows* const rows = ioBox.GetRows();
    if (!rows || (iEntry.parent >= 0 && !iAbove.instance)) {
        return {};
    }
    const QORNavigRows::Row row = rows->FindChild(iAbove.row, iEntry.object.Get(), iEntry.place);
    if (row == QORNavigRows::kNone) {
        return {};
    }
    return {ioBox.MakeChild(iAbove.instance.Get(), rows->GetPosition(row)), row};
}

QORVar<QORNavigInstance> QORNavigMemory::Restore(QORNavigBox& ioBox) const {
    const QORWatch<QORNavigBox> box(&ioBox);
    std::vector<Found> found;
    std::vector<QORNavigInstance*> selected;
    QORVar<QORNavigInstance> top;
    for (const Entry& entry : _entries) {
        found.push_back(FindNow(ioBox, entry, entry.parent < 0 ? Found() : found[entry.parent]));
        const QORVar<QORNavigInstance>& instance = found.back().instance;
        if (instance && entry.isOpened) {
            instance->Expand();
        }
        if (!box.Get()) {
            return nullptr;
        }
        if (!instance) {
            continue;
        }
        instance->SetMarked(entry.isMarked);
        if (entry.isSelected) {
            selected.push_back(instance.Get());
        }
        top = entry.isTop ? instance : top;
    }
    ioBox.SetSelection(selected);
    return top;
}

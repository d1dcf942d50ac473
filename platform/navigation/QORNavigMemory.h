#pragma once

#include "QORPlatform/navigation/QORNavigBox.h"

/// What a person has done to the rows of a tree box, in terms that outlast a refill: which are opened, selected and
/// marked, and which is the uppermost one seen. Each remembered row says what it stands for and its place among the
/// equals beside it, and which remembered row is above.
class QORNavigMemory {
public:
    /// Remembers a box as it is, nothing of one without rows. Costs in proportion to the instances that were made.
    explicit QORNavigMemory(const QORNavigBox& iBox);

    /// Does the same to the rows of the box that stand for the same now, making those that aren't made yet. Gives the
    /// one that was the uppermost one seen, null for none.
    QORVar<QORNavigInstance> Restore(QORNavigBox& ioBox) const;

private:
    struct Entry {
        int parent; // entry of the row above, -1 for a root
        QORBaseUnknown_var object;
        int place;
        bool isOpened;
        bool isSelected;
        bool isMarked;
        bool isTop;
    };
    struct Made;
    struct Found;

    static std::vector<Made> MadeRows(const QORNavigBox& iBox, const QORNavigInstance* iTop);
    static Found FindNow(QORNavigBox& ioBox, const Entry& iEntry, const Found& iAbove);

    std::vector<Entry> _entries; // each behind the one above it
};

#pragma once

#include "QORPlatform/framework/QORVar.h"

#include <optional>
#include <unordered_map>
#include <vector>

/// Memory of the search for the item at which a flow begins. A generator's GetFirstFlowNode follows first predecessors
/// by calling itself; each call is one step here. A search that runs in a circle ends at the item where it has
/// entered it. While a computation runs, answers are kept, since the model doesn't change: each item is asked once.
class VXMFirstItemSearch {
public:
    /// One call of the recursion, for as long as it lives.
    class Step {
    public:
        Step(VXMFirstItemSearch& ioSearch, const QORBaseUnknown_var& iItem);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

        /// Says what the search gave from this item on.
        void Conclude(const QORBaseUnknown_var& iFirst);

    private:
        VXMFirstItemSearch& _search;
        QORBaseUnknown_var _item;
        int _id;
        int _depth;
    };

    /// The answer for an item that the present search is past already, or that an earlier one has settled.
    std::optional<QORBaseUnknown_var> Find(const QORBaseUnknown_var& iItem);

    /// Answers are kept for as long as one of these lives, and forgotten with it.
    class Keeping {
    public:
        explicit Keeping(VXMFirstItemSearch& ioSearch) : _search(ioSearch) { _search._keeps = true; }
        ~Keeping() {
            _search._keeps = false;
            _search._answers.clear();
        }
        Keeping(const Keeping&) = delete;
        Keeping& operator=(const Keeping&) = delete;

    private:
        VXMFirstItemSearch& _search;
    };

private:
    std::unordered_map<int, int> _path; // depth of each item that the search is past, by identity number
    int _loopStart = -1;                // depth of the item that was met a second time
    bool _keeps = false;
    std::unordered_map<int, QORBaseUnknown_var> _answers;
};

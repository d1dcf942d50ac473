// Which nodes of a build matter, when steps are reached on many paths.
//
// In place of: making the nodes of every step once per path, which forks and joins in a row multiply: thirty of them
// make 2^30 nodes of a plan whose bill has 90 lines.
//
// An occurrence is an entry of a list of a step, on one path. The build makes occurrences in the order of the walk, and
// the passes see this sequence alone. For an item p, let A be those that assign it (first assigned or assigned), R
// those that remove it, each in their order, k the smaller of their numbers, S what is left of A without its first k,
// and h the height of p's structure, 0 for a leaf. These are kept:
//
//   the first that puts p out, and the first that joins it as a fastener
//   of A and of R the first each, if k > 0
//   of R the one after the first k, if there is one
//   of S the first that is first assigned, or, when there is none, the last
//   of S the first h that are assigned otherwise (process assignments)
//
// Why the same: the first pass takes the removals in their order, and each goes with the first assignment that is left,
// so the first k of A and R go, and what is left of either is S, or the removals after k. What a pair leaves to the top
// node, the parts of p as assignments and as removals, goes in pairs at once, before the next removal has its turn:
// their turn comes first, and the assignments of a part that stand there were left by this pair, since no step assigns
// it (VXMThinnedItems keeps the others whole). So one pair does all that k do: it enters p and all below it into the
// removed products. The second pass takes a process assignment when another assignment stands beside it, and leaves its
// parts to the top node as process assignments, which have their turn at once, too. When one of S that is first
// assigned stands there, all go; else all but the last. After i of them have gone, each part down to level i has an
// assignment under the top node, and keeps one, since the last never goes; so from the (h+1)-th on, parts find another
// one beside them at each level, and nothing of them is left. The third pass keeps the first removable node of a
// product and passes over later ones unseen: of first assignments, outputs, fasteners and removals that are left, the
// first is all that it looks at. What is kept has the same place to each other in both forms, and so the tree that the
// passes leave is the same, node by node; each gets the number that it has in the full form, since those left out are
// counted.
//
// A mover and its parts (VXMThinnedItems): each pairing of the mover p puts its m copies of a leaf c at the end of c's
// assignments, as process assignments, and takes as many from their front. With k pairs of p, and j of c's own, the
// first j + km are gone of c's own assignments and of what was put behind them, and as many are left as c has
// assignments without a partner of its own. The second pass leaves the one of them that was made last, or none beside a
// first assignment; being leaves, the others leave nothing. So of p the last pair is kept, which puts the last copies
// where they are, and of c: when some of its own stay, as many of its first ones as the kept pairs take, and of the
// rest what is kept of S; else as many as the kept pairs take of its own, and one more, if any is left at all.
//
// What it gains: at most h + 6 occurrences an item, whatever the number of paths. A thousand sections in a row take
// 0.1 s. Where S begins is searched for (VXMOccurrenceSearch) only when something of S is kept that isn't the last:
// then an item takes time for each place from which it can be reached, and each path that is kept its length.

#pragma once

#include "VXMBomInfrastructure/index/VXMOccurrenceSearch.h"
#include "VXMBomInfrastructure/index/VXMThinnedItems.h"

#include <memory>
#include <optional>

/// Finds the occurrences that are kept of items that are thinned out, and the tree of the paths to them.
class VXMKeptOccurrences {
public:
    /// iPaths are the numbers of paths to each place, as far as they can be counted so. iMost bounds what repeats
    /// bring, nodes of structure or paths to them; IsTooLarge tells that it wasn't enough.
    VXMKeptOccurrences(const VXMUnrolledSteps& iPlaces, const VXMListings& iListings, const VXMThinnedItems& iItems,
                       const VXMUnrolledSteps::Paths& iFirst, const std::vector<std::uint64_t>& iPaths,
                       std::uint64_t iMost);
    VXMKeptOccurrences(const VXMKeptOccurrences&) = delete;
    VXMKeptOccurrences& operator=(const VXMKeptOccurrences&) = delete;

    bool IsTooLarge() const {
        return _repeatedNodes > _most || static_cast<std::uint64_t>(_tree.Size()) > _most + _paths.size();
    }
    const VXMPathTree& GetTree() const { return _tree; }

private:
    using Listed = VXMOccurrenceSearch::Listed;
    using Kind = VXMOccurrenceSearch::Kind;

    /// One path to each place, and its nodes as far as they stand in the tree.
    struct Tracks {
        explicit Tracks(const VXMUnrolledSteps::Paths& iPaths) : paths(iPaths), nodes(iPaths.from.size(), -1) {
            nodes[0] = VXMPathTree::kRoot;
        }
        const VXMUnrolledSteps::Paths& paths;
        std::vector<int> nodes;
    };

    std::span<const Listed> ListedOf(int iItem) const {
        return std::span(_listed).subspan(_listedBegin[iItem], _listedBegin[iItem + 1] - _listedBegin[iItem]);
    }
    VXMNatural CountPairs(std::span<const Listed> iListed);
    void ListByItem(const VXMListings& iListings);
    void Keep(int iItem);
    static bool Lists(std::span<const Listed> iListed, unsigned iKinds);
    void KeepFirst(std::span<const Listed> iListed, unsigned iKinds);
    void KeepLastAssigned(std::span<const Listed> iListed);
    void KeepPair(std::span<const Listed> iListed, int iItem);
    void KeepMover(std::span<const Listed> iListed);
    void KeepMoved(std::span<const Listed> iListed, int iItem);
    void KeepRest(std::span<const Listed> iListed, VXMNatural iPassed, int iItem);
    void KeepUnpaired(std::span<const Listed> iListed, int iItem);
    void KeepProcess(VXMNatural iPassed, int iItem);
    void KeepAt(Tracks& ioTracks, const Listed& iListed);
    VXMNatural CountOf(std::span<const Listed> iListed, unsigned iKinds);
    const VXMNatural& ExactPaths(int iPlace);
    VXMOccurrenceSearch& Search();

    const VXMUnrolledSteps& _places;
    const VXMThinnedItems& _items;
    const std::vector<std::uint64_t>& _paths;
    std::uint64_t _most;
    std::uint64_t _repeatedNodes = 0;
    VXMPathTree _tree;
    Tracks _first;

    std::vector<Listed> _listed; // by item, in the order of places and entries
    std::vector<int> _listedBegin;

    // Made when they are first asked for.
    std::unique_ptr<VXMUnrolledSteps::Paths> _lastPaths;
    std::optional<Tracks> _last;
    std::optional<VXMOccurrenceSearch> _search;
    std::vector<VXMNatural> _exactPaths;
};

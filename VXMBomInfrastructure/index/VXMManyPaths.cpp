#include "VXMBomInfrastructure/index/VXMManyPaths.h"

#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"
#include "VXMBomInfrastructure/nodes/VXMProductName.h"

#include <algorithm>
#include <iomanip>
#include <map>
#include <sstream>

namespace {

/// The names of those that cost most, "A", "B" and 3 more.
template <class NameOf>
std::string NameCostly(const std::map<int, double>& iCosts, NameOf iNameOf) {
    std::vector<std::pair<double, int>> costs;
    costs.reserve(iCosts.size());
    for (const auto& [number, cost] : iCosts) {
        costs.emplace_back(-cost, number);
    }
    std::sort(costs.begin(), costs.end());
    const std::size_t named = std::min<std::size_t>(costs.size(), 3);
    std::string names;
    for (std::size_t index = 0; index < named; ++index) {
        names += (index > 0 ? ", " : "") + std::string("\"") + std::string(iNameOf(costs[index].second)) + "\"";
    }
    return costs.size() > named ? names + " and " + std::to_string(costs.size() - named) + " more" : names;
}

std::string Rounded(double iNumber) {
    std::ostringstream text;
    text << std::setprecision(3) << iNumber;
    return text.str();
}

} // namespace

VXMManyPaths::VXMManyPaths(const VXMStepGraph& iGraph, int iEnd, const Build& iBuild)
    : _graph(iGraph), _places(iGraph, iEnd, iBuild.mostNodes + iGraph.Size()) {
    if (_places.IsTooLarge()) {
        RaiseOfLoop(iBuild);
    }
    _first.emplace(_places.FirstPaths());
    _pathCounts = _places.CountPaths<std::uint64_t>(_first->left, [](std::uint64_t& ioSum, std::uint64_t iPaths) {
        ioSum = std::min(ioSum + iPaths, VXMUnrolledSteps::kManyPaths);
    });
    std::vector<std::uint64_t> pathsOfSteps(iGraph.Size(), 0);
    for (int place = 0; place < _places.Size(); ++place) {
        std::uint64_t& paths = pathsOfSteps[_places.StepAt(place)];
        paths = std::min(paths + _pathCounts[place], VXMUnrolledSteps::kManyPaths);
    }
    _hasManyPaths.resize(pathsOfSteps.size());
    std::transform(pathsOfSteps.begin(), pathsOfSteps.end(), _hasManyPaths.begin(),
                   [](std::uint64_t iPaths) { return iPaths > 1; });
    _listings.emplace(iGraph, iBuild.takes);
    _items.emplace(*_listings, _hasManyPaths, iBuild.kind);
    if (iBuild.form == Form::Thinned && _items->AreThere()) {
        _kept.emplace(_places, *_listings, *_items, *_first, _pathCounts, iBuild.mostNodes);
    }
    FindWhole(iBuild.calls);
    CheckCost(iBuild);
}

/// A place is taken on every path when it or something before it brings an item that is kept whole, or when each call
/// is shown.
void VXMManyPaths::FindWhole(Calls iCalls) {
    _leadsToWhole.assign(_places.Size(), iCalls == Calls::Shown);
    for (const int place : _first->left) {
        const std::span<const int> before = _places.Before(place);
        const std::span<const VXMListings::Entry> entries = _listings->Of(_places.StepAt(place));
        _leadsToWhole[place] =
            _leadsToWhole[place] ||
            std::any_of(before.begin(), before.end(), [this](int iBefore) { return _leadsToWhole[iBefore]; }) ||
            std::any_of(entries.begin(), entries.end(),
                        [this](const VXMListings::Entry& iEntry) { return IsMade(iEntry); });
    }
}

/// Nodes that a step makes on its paths, when there are several, and the visits that this takes.
double VXMManyPaths::CountMade(int iPlace) const {
    if (!_hasManyPaths[_places.StepAt(iPlace)] || !_leadsToWhole[iPlace]) {
        return 0;
    }
    double nodes = 1;
    for (const VXMListings::Entry& entry : _listings->Of(_places.StepAt(iPlace))) {
        nodes += IsMade(entry) ? static_cast<double>(_items->NodesOf(entry.item)) : 0;
    }
    return nodes * static_cast<double>(_pathCounts[iPlace]);
}

void VXMManyPaths::CheckCost(const Build& iBuild) const {
    double nodes = 0;
    for (int place = 0; place < _places.Size(); ++place) {
        nodes += CountMade(place);
    }
    if (nodes > static_cast<double>(iBuild.mostNodes) || (_kept && _kept->IsTooLarge())) {
        Raise(iBuild, nodes);
    }
}

void VXMManyPaths::Raise(const Build& iBuild, double iNodes) const {
    std::map<int, double> items;
    std::map<int, double> steps;
    std::map<int, double> taken;
    for (int place = 0; place < _places.Size(); ++place) {
        const int step = _places.StepAt(place);
        if (!_hasManyPaths[step]) {
            continue;
        }
        const auto paths = static_cast<double>(_pathCounts[place]);
        taken[step] += paths;
        for (const VXMListings::Entry& entry : _listings->Of(step)) {
            if (IsMade(entry) || _kept->IsTooLarge()) {
                items[entry.item] += paths * static_cast<double>(_items->NodesOf(entry.item));
                steps[step] = taken[step];
            }
        }
    }
    const auto nameOfStep = [this](int iStep) {
        return _graph.StepOf(iStep)->GetUName();
    };
    if (items.empty()) {
        throw VXMTooManyNodes("a trace would show steps on many paths about " + Rounded(iNodes) + " times, more than " +
                              std::to_string(iBuild.mostNodes) + ": " + NameCostly(taken, nameOfStep));
    }
    throw VXMTooManyNodes(
        "steps on many paths would make " + (_kept && _kept->IsTooLarge() ? "too many" : "about " + Rounded(iNodes)) +
        " nodes, more than " + std::to_string(iBuild.mostNodes) + ": items " +
        NameCostly(items, [this](int iItem) { return VXMNameOfProduct(_listings->ObjectOf(iItem)); }) + " at steps " +
        NameCostly(steps, nameOfStep));
}

void VXMManyPaths::RaiseOfLoop(const Build& iBuild) const {
    std::map<int, double> steps;
    for (int place = 0; place < _places.Size(); ++place) {
        steps[_places.StepAt(place)] += 1;
    }
    throw VXMTooManyNodes("loops of links lead to steps on more than " + std::to_string(iBuild.mostNodes) + " paths: " +
                          NameCostly(steps, [this](int iStep) { return _graph.StepOf(iStep)->GetUName(); }));
}

VXMManyPaths::Visit::Visit(const VXMManyPaths& iPaths, int iPlace, int iNode)
    : _paths(&iPaths), _place(iPlace), _node(iNode) {
    if (_node != kNoNode) {
        _kept = iPaths._kept->GetTree().KeptAt(_node);
        _branches = iPaths._kept->GetTree().BranchesAt(_node);
    }
}

std::uint64_t VXMManyPaths::Visit::LeavesOut() {
    const VXMListings::Entry& entry = _paths->_listings->Of(_paths->_places.StepAt(_place))[_entry];
    const bool isKept = !_kept.empty() && _kept.front() == _entry;
    _kept = _kept.subspan(isKept ? 1 : 0);
    ++_entry;
    if (isKept || _paths->IsMade(entry)) {
        return 0;
    }
    return entry.type == VXMFabMBOMNode::AT_Fastener ? 1 : _paths->_items->NodesOf(entry.item);
}

std::optional<VXMManyPaths::Visit> VXMManyPaths::Visit::Next() {
    const std::span<const int> before = _paths->_places.Before(_place);
    while (_position < static_cast<int>(before.size())) {
        if (!_paths->_leadsToWhole[_place]) { // nothing but the tree leads on
            _position = _branches.empty() ? static_cast<int>(before.size()) - 1 : _branches.front().position;
        }
        const int position = _position++;
        const int place = before[position];
        if (!_branches.empty() && _branches.front().position == position) {
            const int node = _branches.front().node;
            _branches = _branches.subspan(1);
            return Visit(*_paths, place, node);
        }
        if (_paths->_leadsToWhole[place]) {
            return Visit(*_paths, place, kNoNode);
        }
    }
    return std::nullopt;
}

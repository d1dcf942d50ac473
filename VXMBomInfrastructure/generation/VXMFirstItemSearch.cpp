#include "VXMBomInfrastructure/generation/VXMFirstItemSearch.h"

#include "QORPlatform/framework/QORDeepStack.h"
#include "VXMBomInfrastructure/generation/VXMBomComputation.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

namespace {

/// The items of the walk, or those of a search that somebody began outside one.
class SearchUnderWay {
public:
    explicit SearchUnderWay(VXMBomGenerator& iGenerator)
        : _reading(iGenerator), _items(VXMBomComputation::Of(iGenerator).firstItems), _isFirst(!_items) {
        if (_isFirst) {
            _items.emplace(VXMFirstItems::Answers::Forgotten);
        }
    }
    ~SearchUnderWay() {
        if (_isFirst) {
            _items.reset();
        }
    }
    SearchUnderWay(const SearchUnderWay&) = delete;
    SearchUnderWay& operator=(const SearchUnderWay&) = delete;

    VXMFirstItems& operator*() const { return *_items; }

private:
    VXMModelReading _reading;
    std::optional<VXMFirstItems>& _items;
    bool _isFirst;
};

} // namespace

QORBaseUnknown_var
VXMSearchFirstItem(VXMBomGenerator& ioGenerator, const QORBaseUnknown_var& iItem,
                   std::optional<QORBaseUnknown_var> (*iFirstPredecessor)(const QORBaseUnknown_var& iItem)) {
    if (!iItem) {
        return iItem;
    }
    const SearchUnderWay search(ioGenerator);
    if (const auto known = (*search).Find(iItem)) {
        return *known;
    }
    VXMFirstItems::Step step(*search, iItem);
    const auto predecessor = iFirstPredecessor(iItem);
    if (!predecessor) {
        return iItem; // asked again it is found as fast
    }
    QORBaseUnknown_var first;
    QORCallDeep([&] { first = ioGenerator.GetFirstFlowNode(*predecessor); });
    step.Conclude(first);
    return first;
}

// What is to be known of the structure of a product before its nodes are made.
//
// In place of: making the nodes and counting.
// Why the same: structure that doesn't hold itself is the same wherever the product stands (VXMStructure).
// What it gains: each part is asked once for what it is made of, however often it is built in.

#pragma once

#include "QORPlatform/framework/QORVar.h"
#include "VXMBomInfrastructure/generation/VXMStructure.h"
#include "VXMBomInfrastructure/index/VXMByNumber.h"

#include <cstdint>
#include <functional>
#include <vector>

class VXMStructures {
public:
    struct Facts {
        int height = 0;           ///< 0 for a leaf, else one above the highest part's
        std::uint64_t nodes = 1;  ///< of a node and all below it, as far as can be counted
        bool holdsItself = false; ///< it, or something below it, does; then the other two say nothing
        bool holdsMarked = false; ///< something below it is marked, or holds itself
    };

    /// iKind says what is expanded; iIsMarked(identity) tells of a product.
    VXMStructures(VXMStructure::Kind iKind, std::function<bool(int)> iIsMarked)
        : _kind(iKind), _isMarked(std::move(iIsMarked)) {}
    VXMStructures(const VXMStructures&) = delete;
    VXMStructures& operator=(const VXMStructures&) = delete;

    /// Asks the model for what it doesn't know yet. The reference holds until the next question.
    const Facts& Of(const QORBaseUnknown_var& iObject);

    /// Identity numbers of the parts of a product that was asked about, in their order.
    std::vector<int> PartsOf(const QORBaseUnknown_var& iObject);

    /// Calls iVisit(identity) for a product that was asked about and for each below it, but for none a second time,
    /// also in later calls.
    void VisitBelow(const QORBaseUnknown_var& iObject, const std::function<void(int)>& iVisit);

    /// Whether two objects share an identity number.
    bool AreAmbiguous() const { return _areAmbiguous; }

    /// Identity number of an object, and whether two that have the same one are one.
    static int IdentityOf(const QORBaseUnknown_var& iObject);
    static bool AreOne(const QORBaseUnknown_var& iObject, const QORBaseUnknown_var& iOther);

    static constexpr std::uint64_t kManyNodes = std::uint64_t{1} << 40;

private:
    enum class State { New, Open, Known, Visited };
    struct Part {
        QORBaseUnknown_var object;
        int identity;
        Facts facts;
        State state = State::New;
        std::vector<int> below;
    };
    struct Visit {
        int part;
        std::size_t next;
    };

    int PartOf(const QORBaseUnknown_var& iObject);
    void Open(int iPart);
    void Close(int iPart);

    VXMStructure::Kind _kind;
    std::function<bool(int)> _isMarked;
    VXMByNumber<int> _places; // by identity: from 1, in _parts
    std::vector<Part> _parts;
    std::vector<Visit> _visits;
    bool _areAmbiguous = false;
};

#pragma once

#include "planner/model/Resource.h"

#include <cstddef>
#include <variant>

namespace planner {

/// A list of a plan, whatever class its entries are declared as.
class ListRef {
public:
    template <class T>
    ListRef(OptionalList<T*>& list) : list_(&list) {}

    bool present() const;
    std::size_t size() const;

    /// Puts an object, which is of the class of the entries, in at a position up to the size. The list is present then.
    void insert(std::size_t position, ModelObject& object);
    void erase(std::size_t position);

    /// Makes the list absent.
    void reset();

    /// Position of an object in the list, the size when it isn't there. Searched from where the object was last seen,
    /// so that a session of edits doesn't go through long lists over and over.
    std::size_t positionOf(const ModelObject& object) const;

    /// The list as one that names objects of any class, null when it isn't declared like that.
    ObjectList* objects() const;

private:
    std::variant<OptionalList<Activity*>*, OptionalList<Resource*>*, OptionalList<Item*>*, ObjectList*> list_;
};

} // namespace planner

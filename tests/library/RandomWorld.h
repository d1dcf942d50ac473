#pragma once

#include "library/Bills.h"

#include <iterator>
#include <random>

/// Random models and the direct forms that the library's fast ones are held against.
namespace testmodel {

/// Fills a world with a small plan, or a resource, and gives its root. Links go anywhere, loops included; lists are
/// null or empty at times; now and then an object doesn't answer what its kind answers.
Thing& drawRandom(World& world, std::mt19937& random, Root kind);

inline int pick(std::mt19937& random, int below) {
    return static_cast<int>(random() % static_cast<unsigned>(below));
}

template <class T>
auto& pickOne(std::mt19937& random, T& from) {
    return from[static_cast<std::size_t>(pick(random, static_cast<int>(std::size(from))))];
}

} // namespace testmodel

#pragma once

#include "QORPlatform/dom/DOM_Document.h"

#include <string>
#include <vector>

namespace bench {

/// An element of a document, in document order.
struct OutlineEntry {
    int level; ///< 1 below the top element
    bool isFastener;
    std::u16string name;
};
using Outline = std::vector<OutlineEntry>;

/// What a document shows.
Outline outlineOf(const DOM_Document& document);

/// Makes the same document with Xerces-C alone, by the shortest calls of its public interface and from texts that are
/// wide already, and releases it: the floor of what any way to make it takes.
void makeAndRelease(const Outline& outline);

} // namespace bench

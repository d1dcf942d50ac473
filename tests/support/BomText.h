#pragma once

#include "support/TestModel.h"

#include "QORPlatform/dom/DOM_Document.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <string>

/// Results of a generator as text that a test can compare.
namespace testmodel {

inline QORBaseUnknown_var handle(Thing& thing) {
    return QORBaseUnknown_var(static_cast<QORBaseUnknown*>(&thing));
}

/// The bill: "A(P Q) *w", a fastener being marked by a star.
std::string bomText(const DOM_Node& parent);
std::string bomText(const DOM_Document& document);

/// Names of the objects in a list, in order.
std::string listText(const QORListValQORBaseUnknown_var& list);

/// The flow graph: for each node in the order of numbers "name=number", with "<" the predecessors and with ">" the
/// successors, as "A=2<R,B>C". Holds what CheckUse knows of the world's things, and what is linked with it.
std::string graphText(VXMBomGenerator& generator, const World& world);

/// An MBOM tree by numbers: "1(2 3(4)) 5".
std::string treeText(VXMFabMBOMNode& parent);

/// Writes what the library's trace says while this object lives.
class TraceCapture {
public:
    TraceCapture();
    ~TraceCapture();
    TraceCapture(const TraceCapture&) = delete;
    TraceCapture& operator=(const TraceCapture&) = delete;

    /// What has come so far.
    std::string text() const;

private:
    std::FILE* file_;
};

/// Sets an environment variable, or takes it away for null, and puts back what was there.
class Environment {
public:
    Environment(const char* name, const char* value);
    ~Environment();
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    std::string name_;
    std::optional<std::string> before_;
};

} // namespace testmodel

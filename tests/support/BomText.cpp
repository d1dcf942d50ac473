#include "support/BomText.h"

#include "QORPlatform/dom/DOM_Element.h"
#include "QORPlatform/trace/QORTrace.h"
#include "VXMBomInfrastructure/generation/StrX.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace testmodel {

namespace {

void separate(std::string& text) {
    if (!text.empty() && text.back() != '(') {
        text += ' ';
    }
}

void collect(VXMFabFlowNode* node, std::vector<VXMFabFlowNode*>& nodes) {
    if (!node || std::find(nodes.begin(), nodes.end(), node) != nodes.end()) {
        return;
    }
    nodes.push_back(node);
    for (int position = 1; position <= node->GetNumberOfPredecessors(); ++position) {
        collect(node->GetPredecessor(position), nodes);
    }
    for (int position = 1; position <= node->GetNumberOfSuccessors(); ++position) {
        collect(node->GetSuccessor(position), nodes);
    }
}

std::string nodeText(const VXMFabFlowNode& node) {
    std::string text = std::string(node.GetName()) + "=" + std::to_string(node.GetNumber());
    for (int position = 1; position <= node.GetNumberOfPredecessors(); ++position) {
        text += (position == 1 ? "<" : ",") + std::string(node.GetPredecessor(position)->GetName());
    }
    for (int position = 1; position <= node.GetNumberOfSuccessors(); ++position) {
        text += (position == 1 ? ">" : ",") + std::string(node.GetSuccessor(position)->GetName());
    }
    return text;
}

} // namespace

std::string bomText(const DOM_Node& parent) {
    std::string text;
    for (DOM_Node node = parent.getFirstChild(); !node.isNull(); node = node.getNextSibling()) {
        separate(text);
        const bool isFastener = node.getNodeName().equals("BOMFastener");
        text += isFastener ? "*" : node.getNodeName().equals("BOMNode") ? "" : "UNKNOWN:";
        text += StrX(DOM_Element(node).getAttribute("DisplayName")).localForm();
        const std::string below = bomText(node);
        text += below.empty() ? "" : "(" + below + ")";
    }
    return text;
}

std::string bomText(const DOM_Document& document) {
    return bomText(document.getDocumentElement());
}

std::string listText(const QORListValQORBaseUnknown_var& list) {
    std::string text;
    for (const QORBaseUnknown_var& entry : list) {
        separate(text);
        text += entry ? dynamic_cast<Thing&>(*entry.Impl()).name : "null";
    }
    return text;
}

std::string graphText(VXMBomGenerator& generator, const World& world) {
    std::vector<VXMFabFlowNode*> nodes;
    for (Thing* thing : world.things()) {
        collect(generator.CheckUse(handle(*thing)), nodes);
    }
    std::sort(nodes.begin(), nodes.end(), [](const VXMFabFlowNode* left, const VXMFabFlowNode* right) {
        return left->GetNumber() < right->GetNumber();
    });
    std::string text;
    for (const VXMFabFlowNode* node : nodes) {
        separate(text);
        text += nodeText(*node);
    }
    return text;
}

std::string treeText(VXMFabMBOMNode& parent) {
    std::string text;
    for (int position = 1; position <= parent.GetNumberOfSuccessors(); ++position) {
        separate(text);
        VXMFabMBOMNode& child = *parent.GetSuccessor(position);
        text += std::to_string(child.GetNumber());
        const std::string below = treeText(child);
        text += below.empty() ? "" : "(" + below + ")";
    }
    return text;
}

TraceCapture::TraceCapture() : file_(std::tmpfile()) {
    if (!file_) {
        throw std::runtime_error("no temporary file");
    }
    QORTrace& trace = *QORTrace::Find("VXMBomViewerTrace");
    trace.SetOutput(file_);
    trace.SetMode(1);
}

TraceCapture::~TraceCapture() {
    QORTrace& trace = *QORTrace::Find("VXMBomViewerTrace");
    trace.SetMode(0);
    trace.SetOutput(nullptr);
    std::fclose(file_);
}

std::string TraceCapture::text() const {
    QORTrace::Find("VXMBomViewerTrace")->Flush();
    std::fflush(file_);
    std::rewind(file_);
    std::string text;
    char buffer[4096];
    while (const std::size_t read = std::fread(buffer, 1, sizeof buffer, file_)) {
        text.append(buffer, read);
    }
    return text;
}

Environment::Environment(const char* name, const char* value) : name_(name) {
    if (const char* const before = std::getenv(name)) {
        before_ = before;
    }
    value ? setenv(name, value, 1) : unsetenv(name);
}

Environment::~Environment() {
    before_ ? setenv(name_.c_str(), before_->c_str(), 1) : unsetenv(name_.c_str());
}

} // namespace testmodel

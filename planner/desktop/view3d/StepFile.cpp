#include "planner/desktop/view3d/StepFile.h"

#include <BRep_Builder.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <Standard_Failure.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

namespace planner::desktop {

namespace {

/// A document that ends with its scope.
class Document {
public:
    Document() { XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", document_); }
    ~Document() { XCAFApp_Application::GetApplication()->Close(document_); }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    Handle(TDocStd_Document) & get() { return document_; }

private:
    Handle(TDocStd_Document) document_;
};

std::string nameOf(const TDF_Label& label) {
    Handle(TDataStd_Name) name;
    return label.FindAttribute(TDataStd_Name::GetID(), name) ? TCollection_AsciiString(name->Get()).ToCString() : "";
}

void read(const std::string& path, Handle(TDocStd_Document) & document) {
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) {
        throw std::runtime_error(path + ": there is no such file");
    }
    STEPCAFControl_Reader reader;
    reader.SetNameMode(true);
    reader.SetColorMode(true);
    bool isRead = false;
    try {
        isRead = reader.ReadFile(path.c_str()) == IFSelect_RetDone && reader.Transfer(document);
    } catch (const Standard_Failure&) {
        isRead = false;
    }
    if (!isRead) {
        throw std::runtime_error(path + ": this is no STEP file that can be read");
    }
}

} // namespace

StepFile::StepFile(const std::string& path) : path_(path) {
    Document document;
    read(path, document.get());
    bool isEmpty = true;
    for (XCAFPrs_DocumentExplorer each(document.get(), XCAFPrs_DocumentExplorerFlags_None); each.More(); each.Next()) {
        const XCAFPrs_DocumentNode& found = each.Current();
        Node node{each.CurrentDepth(), nameOf(found.Label), nameOf(found.RefLabel), {}, {}};
        if (!found.IsAssembly) {
            node.shape = XCAFDoc_ShapeTool::GetShape(found.RefLabel).Located(found.Location);
            isEmpty = false;
        }
        if (found.Style.IsSetColorSurf()) {
            node.colour = found.Style.GetColorSurf();
        }
        nodes_.push_back(node);
    }
    if (isEmpty) {
        throw std::runtime_error(path + ": there is no shape in this file");
    }
}

Solid StepFile::part(const std::string& name) const {
    const auto first = std::find_if(nodes_.begin(), nodes_.end(), [&](const Node& node) {
        return name.empty() || node.product == name || node.place == name;
    });
    if (first == nodes_.end()) {
        throw std::runtime_error(path_ + ": there is no part \"" + name + "\" in this file, but " + names());
    }
    Solid solid;
    TopoDS_Compound whole;
    BRep_Builder builder;
    builder.MakeCompound(whole);
    for (auto node = first; node != nodes_.end(); ++node) {
        if (node != first && !name.empty() && node->depth <= first->depth) {
            break;
        }
        if (!node->shape.IsNull()) {
            builder.Add(whole, node->shape);
            if (node->colour) {
                solid.colours.emplace_back(node->shape, *node->colour);
            }
        }
    }
    solid.shape = whole;
    return solid;
}

/// The first names of products, for a person who looks for the right one.
std::string StepFile::names() const {
    constexpr std::size_t kEnough = 5;
    std::string names;
    for (std::size_t place = 0; place < std::min(nodes_.size(), kEnough); ++place) {
        names += (place > 0 ? ", \"" : "\"") + nodes_[place].product + '"';
    }
    return nodes_.size() > kEnough ? names + " and others" : names;
}

} // namespace planner::desktop

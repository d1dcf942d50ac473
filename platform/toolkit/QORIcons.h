#pragma once

#include "QORPlatform/text/QORExport.h"

#include <string>
#include <utility>

/// Where the pictures come from that the system asks for by name, such as those of tree nodes (see
/// QORIGraphNode::GetIconName): a host brings it. Drawings have no size of their own; a toolkit paints them as large as
/// it needs them, at the scale of the screen.
class QOR_EXPORT QORIconResource {
public:
    virtual ~QORIconResource();

    /// The drawing of that name as an SVG document in UTF-8; empty where there is none.
    virtual std::string GetDrawing(const std::string& iName) = 0;

    /// The resource of the host, null for none, as at first. Stays the caller's, who keeps it as long as it is set.
    static QORIconResource* GetCurrent();
    static void SetCurrent(QORIconResource* iResource);
};

/// A folder of drawings, each in a file of its name with ".svg" behind.
class QOR_EXPORT QORIconFolder : public QORIconResource {
public:
    explicit QORIconFolder(std::string iPath) : _path(std::move(iPath)) {}
    ~QORIconFolder() override;

    /// Reads the file at each call. A name with a slash in it is none.
    std::string GetDrawing(const std::string& iName) override;

private:
    std::string _path;
};

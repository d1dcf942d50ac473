#pragma once

#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORVar.h"

#include <vector>

/// Path of objects from an outermost one inwards; the last one is what it names. Holds a reference on each.
class QOR_EXPORT QORPathElement : public QORBaseUnknown, private QORCounted<QORPathElement> {
public:
    static constexpr std::string_view kCountName = "QORPathElement";

    /// A path of that one object; null for an empty path.
    explicit QORPathElement(QORBaseUnknown* iObject);
    ~QORPathElement() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// Puts iObject at iPosition, where 1 is the outermost place, and moves what stands there inwards; 0 or a position
    /// beyond the end appends it. A null object adds nothing.
    void AddChildElement(QORBaseUnknown* iObject, int iPosition);

    int GetSize() const { return static_cast<int>(_objects.size()); }

    /// The object at iPosition, through the interface that it was given by; a null handle outside 1 to the size.
    QORBaseUnknown_var GetElement(int iPosition) const;

    /// The implementations on the path: two paths are the same when these are.
    std::vector<QORBaseUnknown*> GetImplementations() const;

private:
    std::vector<QORBaseUnknown_var> _objects;
};
